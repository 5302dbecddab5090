#include "teskara/collections/RowStore.h"

#include <algorithm>
#include <functional>

// The list of free slots can hold all slots, so that giving one back needs no memory.
bool RowStore::HasRoom()
{
    if (!m_Free.empty())
        return true;

    if (m_Slots.size() == m_Slots.capacity())
        m_Slots.reserve(std::max<std::size_t>(m_Slots.capacity() * 2, 10));
    m_Free.reserve(m_Slots.capacity());
    return m_Slots.size() < 0xffffffffu;
}

u32 RowStore::TakeFreeSlot()
{
    if (m_Free.empty()) {
        m_Slots.emplace_back();
        return static_cast<u32>(m_Slots.size() - 1);
    }

    std::pop_heap(m_Free.begin(), m_Free.end(), std::greater<>());
    const u32 slot = m_Free.back();
    m_Free.pop_back();
    return slot;
}

ListBoxItem* RowStore::Add(TeskListBox* list, const char* text, const char* value, u32 color) noexcept
try {
    if (!HasRoom())
        return nullptr;

    auto item = std::make_unique<ListBoxItem>(list, 0, text, value, color);
    const u32 slot = TakeFreeSlot();
    item->ID = slot + 1;
    m_Slots[slot] = std::move(item);
    return m_Slots[slot].get();
} catch (...) {
    return nullptr;
}

void RowStore::Remove(ListBoxItem& item)
{
    const u32 slot = item.ID - 1;
    m_Slots[slot].reset();
    m_Free.push_back(slot);
    std::push_heap(m_Free.begin(), m_Free.end(), std::greater<>());
}

void RowStore::Clear()
{
    m_Slots.clear();
    m_Free.clear();
}
