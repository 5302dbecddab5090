#pragma once

#include "teskara/collections/ListBoxItem.h"
#include "teskara/core/Export.h"

#include <memory>
#include <vector>

// The rows of a list box by their ids, which count from 1. The id of a row that is gone is given again, the lowest one
// first. Finding takes the same time in a list of any length.
class TESKARA_EXPORT RowStore
{
public:
    // Makes a row. Null: there is no memory.
    ListBoxItem* Add(TeskListBox* list, const char* text, const char* value, u32 color) noexcept;

    // Ends a row of the store.
    void Remove(ListBoxItem& item);
    void Clear();

    // Null: there is no such row.
    ListBoxItem* Find(u32 id) const { return id - 1 < m_Slots.size() ? m_Slots[id - 1].get() : nullptr; }

    // Ids in use lie between 1 and this.
    u32 LastID() const { return static_cast<u32>(m_Slots.size()); }

private:
    u32 FreeSlot();

    std::vector<std::unique_ptr<ListBoxItem>> m_Slots;
    std::vector<u32> m_Free; // slots; a heap with the lowest on top
};
