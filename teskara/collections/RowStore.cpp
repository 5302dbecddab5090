#include "teskara/collections/RowStore.h"

#include <algorithm>
#include <functional>

// The lowest one. The list of free slots has room for all of them, so that giving one back needs no memory.
u32 RowStore::FreeSlot()
{
    if (m_Free.empty()) {
        if (m_Free.capacity() == m_Slots.size())
            m_Free.reserve(std::max<std::size_t>(m_Slots.size() * 2, 10));
        m_Slots.emplace_back();
        m_Free.push_back(LastID() - 1);
    }
    return m_Free.front();
}

ListBoxItem* RowStore::Add(TeskListBox* list, const char* text, const char* value, u32 color) noexcept
try {
    const u32 slot = FreeSlot();
    m_Slots[slot] = std::make_unique<ListBoxItem>(list, slot + 1, text, value, color);
    std::pop_heap(m_Free.begin(), m_Free.end(), std::greater<>());
    m_Free.pop_back();
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
