#include "teskara/collections/RowStore.h"

#include <new>

// The lowest one. A slot is free once before its row is made, so that setting it free again needs no memory.
u32 RowStore::FreeID()
{
    if (m_Free.Count() != 0)
        return m_Free.FirstAfter(0);

    m_Slots.emplace_back();
    if (m_Free.Insert(LastID()))
        return LastID();
    m_Slots.pop_back();
    throw std::bad_alloc();
}

ListBoxItem* RowStore::Add(TeskListBox* list, const char* text, const char* value, u32 color) noexcept
try {
    const u32 id = FreeID();
    ListBoxItem& item = m_Slots[id - 1].emplace(list, id, text, value, color);
    m_Free.Remove(id);
    return &item;
} catch (...) {
    return nullptr;
}

void RowStore::Remove(const ListBoxItem& item)
{
    const u32 id = item.ID;
    m_Slots[id - 1].reset();
    m_Free.Insert(id);
}

void RowStore::Clear()
{
    m_Slots.clear();
    m_Free.Clear();
}
