#include "teskara/collections/TabStrip.h"

#include "teskara/core/MoveEntry.h"

namespace {

constexpr std::size_t Growth = 10;

} // namespace

bool TabStrip::Add(CTeskTab& tab) noexcept
try {
    auto place = std::find(m_Places.begin(), m_Places.end(), nullptr);
    const auto order = static_cast<u32>(place - m_Places.begin());
    if (order == Places())
        m_Places.resize(m_Places.size() + Growth, nullptr);
    m_Places[order] = &tab;
    tab.Order = order;
    return true;
} catch (...) {
    return false;
}

void TabStrip::Remove(const CTeskTab& tab)
{
    const u32 place = tab.Order;
    MoveEntry(m_Places, place, Places() - 1);
    m_Places.back() = nullptr;
    Number(place, Places());
}

void TabStrip::Move(const CTeskTab& tab, u32 place)
{
    const u32 old = tab.Order;
    if (place >= Places() || place == old)
        return;

    MoveEntry(m_Places, old, place);
    Number(std::min(old, place), std::max(old, place) + 1);
}

CTeskTab* TabStrip::Front() const
{
    const auto tab = std::find_if(m_Places.begin(), m_Places.end(), [](const CTeskTab* place) { return place; });
    return tab != m_Places.end() ? *tab : nullptr;
}

CTeskTab* TabStrip::FindAt(u32 firstPlace, u32 offset) const
{
    for (u32 place = firstPlace; place < Places(); ++place) {
        CTeskTab* tab = m_Places[place];
        if (!tab)
            continue;
        if (offset < tab->Width)
            return tab;
        offset -= tab->Width;
    }
    return nullptr;
}

void TabStrip::Number(u32 first, u32 end)
{
    for (u32 place = first; place < end; ++place) {
        if (m_Places[place])
            m_Places[place]->Order = place;
    }
}
