#include "teskara/collections/RowSortType.h"

#include "teskara/core/AsciiCase.h"

#include <iterator>

static_assert(std::size(RowSortWords) == SortValueReverse + 1);

std::optional<RowSortType> FindRowSortType(std::string_view word)
{
    for (const MarkupWord& row : RowSortWords) {
        if (EqualsNoCase(word, row.Word))
            return static_cast<RowSortType>(row.Value);
    }
    return std::nullopt;
}

const char* NameOfRowSortType(u32 type)
{
    return type < std::size(RowSortWords) ? RowSortWords[type].Word.data() : nullptr;
}
