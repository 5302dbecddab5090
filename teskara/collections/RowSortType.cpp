#include "teskara/collections/RowSortType.h"

#include "teskara/core/AsciiCase.h"

#include <iterator>

namespace {

// In the order of the types.
constexpr const char* Words[] = {"none", "user", "text", "value", "custom", "textreverse", "valuereverse"};
static_assert(std::size(Words) == SortValueReverse + 1);

} // namespace

std::optional<RowSortType> FindRowSortType(std::string_view word)
{
    for (u32 type = 0; type < std::size(Words); ++type) {
        if (EqualsNoCase(word, Words[type]))
            return static_cast<RowSortType>(type);
    }
    return std::nullopt;
}

const char* NameOfRowSortType(u32 type)
{
    return type < std::size(Words) ? Words[type] : nullptr;
}
