#pragma once

#include "teskara/core/Types.h"
#include "teskara/element/MarkupWord.h"

#include <optional>
#include <string_view>

// How a list box puts its rows in order. The reverse types exchange the two rows of each comparison, so that equal rows
// keep their order there too.
enum RowSortType : u32 {
    SortNone = 0, // as they were added
    SortUser = 1, // as the user drags them
    SortText = 2,
    SortValue = 3, // as texts: 10 stands before 9
    SortCustom = 4, // as the host or a script compares them
    SortTextReverse = 5,
    SortValueReverse = 6,
};

// The names of the types, in their order.
inline constexpr MarkupWord RowSortWords[] = {
    {"none", SortNone},
    {"user", SortUser},
    {"text", SortText},
    {"value", SortValue},
    {"custom", SortCustom},
    {"textreverse", SortTextReverse},
    {"valuereverse", SortValueReverse},
};

// The type of that name, in any case.
std::optional<RowSortType> FindRowSortType(std::string_view word);

// The name of a type; null if there is no such type.
const char* NameOfRowSortType(u32 type);
