#pragma once

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CIndex.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/script/MvTypeMember.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

// The members or the methods of a script type: the records that share a name are chained, the newest first.
class TypeNameTable
{
public:
    TypeNameTable() = default;
    ~TypeNameTable();
    TypeNameTable(const TypeNameTable&) = delete;
    TypeNameTable& operator=(const TypeNameTable&) = delete;

    // False: the name has this handler already. Throws when there is no memory, and is then as it was.
    bool Add(u32 id, std::string_view name, MvTypeHandler handler);

    // False: the name has no such handler.
    bool Remove(std::string_view name, MvTypeHandler handler);

    // The newest record behind a name; null if there is none. Valid until it is removed.
    _MvTypeMember* Find(std::string_view name) const;

    // The id of that record. False, and id as it was: there is none, or name is null.
    bool FindID(const char* name, u32& id) const;

    // The id that a further record of that name gets.
    u32 NextID(std::string_view name) const;

private:
    // The names are the program's own, so they need no seed. Case counts, but by the comparison alone.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const noexcept { return FoldedHash(name); }
    };

    std::size_t PositionOf(std::string_view name) const;

    CIndex<_MvTypeMember> m_Chains{10}; // owns the records
    std::unordered_map<utf8string, std::size_t, Hash, std::equal_to<>> m_Positions; // place plus one; 0 for none
    u32 m_NextID = 1;
};
