#include "teskara/core/AsciiCase.h"

#include <algorithm>

void FoldAscii(std::string& text)
{
    for (char& character : text)
        character = FoldAscii(character);
}

// Texts that are compared are mostly spelled alike.
bool EqualsNoCase(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return false;
    if (left == right)
        return true;

    for (std::size_t index = 0; index < left.size(); ++index)
        if (FoldAscii(left[index]) != FoldAscii(right[index]))
            return false;
    return true;
}

int CompareNoCase(std::string_view left, std::string_view right)
{
    const std::size_t shared = std::min(left.size(), right.size());
    for (std::size_t index = 0; index < shared; ++index) {
        const int difference =
            static_cast<unsigned char>(FoldAscii(left[index])) - static_cast<unsigned char>(FoldAscii(right[index]));
        if (difference != 0)
            return difference;
    }
    if (left.size() == right.size())
        return 0;
    return left.size() < right.size() ? -1 : 1;
}
