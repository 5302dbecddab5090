#include "host/lint/LintName.h"

#include "teskara/core/AsciiCase.h"

#include <algorithm>

namespace host {

bool IsSameName(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return FoldAscii(one) == FoldAscii(other); });
}

std::string FoldedName(std::string_view name)
{
    std::string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), [](char character) { return FoldAscii(character); });
    return folded;
}

} // namespace host
