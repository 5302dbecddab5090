#pragma once

#include "teskara/core/Types.h"

#include <algorithm>
#include <cstddef>
#include <vector>

// Blips by their ids, and in the order of the ids. New elements have the highest ids, so they mostly come last; what
// leaves makes its place empty, and empty places are closed when they are many and something is added.
//
// A walk goes over the places and passes the empty ones. After a call that may have added blips it goes on behind the id
// that it has reached:
//
//     for (std::size_t place = 0; place < blips.Places(); ++place) ...
//     place = blips.PlaceBehind(id);
template <class Blip> class BlipOrder
{
public:
    struct Entry {
        u32 ID;
        Blip* Element; // null: the place is empty
    };

    // Throws if there is no memory, and then nothing has changed. An id that is there gets the new blip.
    void Enter(u32 id, Blip& blip)
    {
        if (m_EmptyPlaces > LeastToClose && m_EmptyPlaces > m_Entries.size() / 2)
            CloseEmptyPlaces();

        const auto place = m_Entries.begin() + static_cast<std::ptrdiff_t>(PlaceOf(id));
        if (place == m_Entries.end() || place->ID != id) {
            m_Entries.insert(place, {id, &blip});
            return;
        }
        m_EmptyPlaces -= place->Element == nullptr;
        place->Element = &blip;
    }

    // True if it was there.
    bool Leave(u32 id)
    {
        const std::size_t place = PlaceOf(id);
        if (place == Places() || m_Entries[place].ID != id || !m_Entries[place].Element)
            return false;

        m_Entries[place].Element = nullptr;
        ++m_EmptyPlaces;
        return true;
    }

    // Null: there is none.
    Blip* Find(u32 id) const
    {
        const std::size_t place = PlaceOf(id);
        return place < Places() && m_Entries[place].ID == id ? m_Entries[place].Element : nullptr;
    }

    std::size_t Places() const { return m_Entries.size(); }
    const Entry& At(std::size_t place) const { return m_Entries[place]; }
    std::size_t PlaceBehind(u32 id) const { return id == HighestID ? Places() : PlaceOf(id + 1); }

private:
    static constexpr std::size_t LeastToClose = 16;
    static constexpr u32 HighestID = 0xffffffffu;

    // The first place of that id or a higher one. It is sought around the place where it would be if the ids were spread
    // evenly, as they nearly are.
    std::size_t PlaceOf(u32 id) const
    {
        if (m_Entries.empty() || m_Entries.back().ID < id)
            return Places();
        if (m_Entries.front().ID >= id)
            return 0;

        std::size_t low = GuessPlace(id);
        std::size_t high = low;
        for (std::size_t reach = 1; low > 0 && m_Entries[low].ID >= id; reach *= 2)
            low -= std::min(low, reach);
        for (std::size_t reach = 1; high < Places() && m_Entries[high].ID < id; reach *= 2)
            high += std::min(Places() - high, reach);
        const Entry* place = std::lower_bound(m_Entries.data() + low, m_Entries.data() + high, id,
            [](const Entry& entry, u32 wanted) { return entry.ID < wanted; });
        return static_cast<std::size_t>(place - m_Entries.data());
    }

    // Of an id between the first and the last.
    std::size_t GuessPlace(u32 id) const
    {
        const u64 distance = id - m_Entries.front().ID;
        return static_cast<std::size_t>(distance * (Places() - 1) / (m_Entries.back().ID - m_Entries.front().ID));
    }

    void CloseEmptyPlaces()
    {
        std::erase_if(m_Entries, [](const Entry& entry) { return !entry.Element; });
        m_EmptyPlaces = 0;
    }

    std::vector<Entry> m_Entries;
    std::size_t m_EmptyPlaces = 0;
};
