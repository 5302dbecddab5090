#pragma once

#include "teskara/collections/CTeskTab.h"
#include "teskara/core/Export.h"

#include <algorithm>
#include <vector>

// The tabs of a tab control from left to right, and where each lies when the strip is scrolled to some first place. The
// tabs are borrowed; each holds its place in Order.
//
// There are more places than tabs: they come ten at a time, and the free ones mostly lie behind the last tab. A tab that
// is moved there leaves free places between tabs; those take no room.
class TESKARA_EXPORT TabStrip
{
public:
    // Puts a tab into the first free place. False: there is no memory.
    bool Add(CTeskTab& tab) noexcept;

    // Takes a tab out; those behind it move up by one place.
    void Remove(const CTeskTab& tab);

    // Moves a tab to another place; those between shift by one towards the old one. Beyond the last place nothing
    // happens.
    void Move(const CTeskTab& tab, u32 place);

    // How many places there are, the free ones included.
    u32 Places() const { return static_cast<u32>(m_Places.size()); }

    // Null for a free place, and beyond the last one.
    CTeskTab* At(u32 place) const { return place < Places() ? m_Places[place] : nullptr; }

    // The tab in front of all others; null if there is none.
    CTeskTab* Front() const;

    // The tab that lies so many pixels behind where the strip begins; null behind the last one. What lies before the
    // beginning is a huge offset.
    CTeskTab* FindAt(u32 firstPlace, u32 offset) const;

    // Calls draw(tab, left, right) for each tab from a place on, side by side from left to limit, where the last one is
    // cut. True: the limit was reached, and there are places behind the tab that reached it, be they free or not.
    template <class Draw> bool LayOut(u32 firstPlace, i32 left, i32 limit, Draw&& draw) const;

private:
    void Number(u32 first, u32 end);

    std::vector<CTeskTab*> m_Places;
};

// Without any room the first tab still takes what there is, even if that is less than nothing.
template <class Draw> bool TabStrip::LayOut(u32 firstPlace, i32 left, i32 limit, Draw&& draw) const
{
    for (u32 place = firstPlace; place < Places(); ++place) {
        const CTeskTab* tab = m_Places[place];
        if (!tab)
            continue;

        const i32 right = static_cast<i32>(std::min(i64{left} + tab->Width, i64{limit}));
        draw(*tab, left, right);
        if (right == limit)
            return place + 1 < Places();
        left = right;
    }
    return false;
}
