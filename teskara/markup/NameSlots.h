#pragma once

#include "teskara/core/utf8string.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

// A table of things that are found by their names, whatever the case: each stands in the slot that the hash of its name
// tells, or in one of the next. Takes at most three slots for each and nothing besides. A slot is free while it is false.
// Throws std::bad_alloc.
template <class Slot> class NameSlots
{
public:
    bool IsEmpty() const { return m_Slots.empty(); }
    void Clear() { m_Slots.clear(); }

    // The slot that has the name, as isNamed(slot) tells, or else the free one that it is to be put into. There must be
    // room for it.
    template <class IsNamed> Slot& Find(std::string_view name, IsNamed isNamed)
    {
        const std::size_t mask = m_Slots.size() - 1;
        std::size_t place = NameHash()(name) & mask;
        while (m_Slots[place] && !isNamed(m_Slots[place]))
            place = (place + 1) & mask;
        return m_Slots[place];
    }

    // The free slot for a name that is not in the table.
    Slot& FindFree(std::string_view name)
    {
        return Find(name, [](const Slot&) { return false; });
    }

    // Makes room for so many in all. nameOf(slot) tells the names of those that are there.
    template <class NameOf> void Reserve(std::size_t count, NameOf nameOf)
    {
        constexpr std::size_t Fewest = 16;
        if (count * 4 <= m_Slots.size() * 3)
            return;

        const std::size_t size = std::max(std::bit_ceil(count * 4 / 3 + 1), Fewest);
        for (const Slot& slot : std::exchange(m_Slots, std::vector<Slot>(size))) {
            if (slot)
                FindFree(nameOf(slot)) = slot;
        }
    }

private:
    std::vector<Slot> m_Slots; // a power of two, never more than three quarters full
};
