#pragma once

#include "teskara/collections/ListBoxItem.h"
#include "teskara/collections/RowSet.h"
#include "teskara/core/Export.h"

#include <deque>
#include <optional>

// The rows of a list box by their ids, which count from 1. The id of a row that is gone is given again, the lowest one
// first. Rows stay where they are in memory, and finding one takes the same time in a list of any length.
class TESKARA_EXPORT RowStore
{
public:
    // Makes a row. Null: there is no memory.
    ListBoxItem* Add(TeskListBox* list, const char* text, const char* value, u32 color) noexcept;

    // Ends a row of the store.
    void Remove(const ListBoxItem& item);
    void Clear();

    // Null: there is no such row.
    ListBoxItem* Find(u32 id) { return id - 1 < LastID() && !m_Free.Contains(id) ? &*m_Slots[id - 1] : nullptr; }

    // Ids in use lie between 1 and this.
    u32 LastID() const { return static_cast<u32>(m_Slots.size()); }

private:
    u32 FreeID();

    std::deque<std::optional<ListBoxItem>> m_Slots;
    RowSet m_Free; // of the slots, those without a row
};
