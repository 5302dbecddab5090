#pragma once

#include "teskara/collections/ListBoxItem.h"
#include "teskara/collections/RowSortType.h"
#include "teskara/core/Export.h"

#include <span>
#include <vector>

// The rows of a list box from top to bottom. The rows are borrowed; each holds its place in Order.
//
// Sorting waits until somebody wants to see the order, so that a list that sorts itself is filled as fast as any other.
// Whoever changes a text or a value of a row calls Settle first.
class TESKARA_EXPORT RowOrder
{
public:
    // Puts a row below all others. False: there is no memory.
    bool Append(ListBoxItem& item) noexcept;

    // Takes a row out; those below it move up by one.
    void Remove(const ListBoxItem& item);
    void Clear();

    // Moves a row to another place; those between shift by one towards the old one.
    void Move(const ListBoxItem& item, u32 row);

    // Sorts by text or by value; the other types do nothing. Equal rows keep their order.
    void Sort(u32 type) noexcept;

    // Puts the same rows into another order.
    void Arrange(std::span<ListBoxItem* const> rows);

    // Carries out a sort that waits. All but Append, Sort and Count do it.
    void Settle() noexcept;

    u32 Count() const { return static_cast<u32>(m_Rows.size()); }
    u32 RowOf(const ListBoxItem& item);

    // Null beyond the end.
    ListBoxItem* At(u32 row);

    // All rows; valid until one comes, goes or moves.
    std::span<ListBoxItem* const> Rows();

    // How often a row came or went: if it has not changed, all rows are still there.
    u32 GetChanges() const { return m_Changes; }

private:
    void Number(u32 first, u32 last);

    std::vector<ListBoxItem*> m_Rows;
    u32 m_WaitingType = SortNone; // of the sort that waits
    u32 m_WaitingCount = 0; // how many rows it is for
    u32 m_Changes = 0;
};
