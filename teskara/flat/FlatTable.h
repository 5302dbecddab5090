#pragma once

#include "teskara/core/Types.h"
#include "teskara/host.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

// How every table of operations begins.
struct FlatTableHead {
    u32 Size;
    u32 Version;
    void* User;
};

// Larger ones are taken for a size that was never set.
inline constexpr u32 MostTableBytes = 4096;

// Copies a program's table. An older one is shorter: what it does not know is null. A newer one is longer, and may be so
// while the program leaves the further operations null. Unless the answer is TESKARA_OK, taken stays as it was.
template <class Table> teskara_answer TakeTable(const Table* table, Table& taken)
{
    static_assert(offsetof(Table, version) == offsetof(FlatTableHead, Version));
    static_assert(offsetof(Table, user) == offsetof(FlatTableHead, User));
    using Operation = void (*)();

    if (!table)
        return TESKARA_NO_TABLE;
    const u32 size = table->size;
    if (size < sizeof(FlatTableHead) || size > MostTableBytes
        || (size - sizeof(FlatTableHead)) % sizeof(Operation) != 0)
        return TESKARA_WRONG_SIZE;
    if (table->version != TESKARA_TABLE_VERSION)
        return TESKARA_WRONG_VERSION;

    const auto* bytes = reinterpret_cast<const unsigned char*>(table);
    const std::size_t known = std::min<std::size_t>(size, sizeof(Table));
    if (std::any_of(bytes + known, bytes + size, [](unsigned char each) { return each != 0; }))
        return TESKARA_TOO_NEW;

    taken = {};
    std::memcpy(&taken, bytes, known);
    return TESKARA_OK;
}

// Calls an operation of a table; without one, fallback is the answer.
template <class Table, class Result, class... Parameters, class... Arguments>
Result CallFlat(
    const Table& table, Result (*operation)(void* user, Parameters...), Result fallback, Arguments... arguments)
{
    return operation ? operation(table.user, arguments...) : fallback;
}

template <class Table, class... Parameters, class... Arguments>
void CallFlat(const Table& table, void (*operation)(void* user, Parameters...), Arguments... arguments)
{
    if (operation)
        operation(table.user, arguments...);
}
