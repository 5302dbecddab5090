#pragma once

#include "teskara/core/Types.h"

#include <algorithm>
#include <cstddef>
#include <vector>

// Cells on a grid of rows and columns. A cell stands in every slot that it covers; the cells are borrowed.
template <class Cell> class GridSlots
{
public:
    // Makes the grid anew, with every slot free.
    void Assign(u32 rows, u32 columns)
    {
        m_Slots.assign(std::size_t{rows} * columns, nullptr);
        m_Columns = columns;
        m_Rows = rows;
    }

    // Row by row; null where a slot is free.
    std::size_t Count() const { return m_Slots.size(); }
    Cell* operator[](std::size_t slot) const { return m_Slots[slot]; }

    // The first free column of a row, from one on; the number of columns if there is none.
    u32 FreeColumn(u32 row, u64 column) const
    {
        u32 free = static_cast<u32>(std::min<u64>(column, m_Columns));
        while (free < m_Columns && m_Slots[SlotOf(row, free)])
            ++free;
        return free;
    }

    // Puts a cell into a rectangle, also in place of others. What lies beyond the grid is left out.
    void Fill(Cell& cell, u32 row, u32 column, u32 rowSpan, u32 columnSpan)
    {
        ForEach(row, column, rowSpan, columnSpan, [&](Cell*& slot) { slot = &cell; });
    }

    // Frees what a cell has of a rectangle.
    void Free(const Cell& cell, u32 row, u32 column, u32 rowSpan, u32 columnSpan)
    {
        ForEach(row, column, rowSpan, columnSpan, [&](Cell*& slot) {
            if (slot == &cell)
                slot = nullptr;
        });
    }

private:
    template <class Act> void ForEach(u32 row, u32 column, u32 rowSpan, u32 columnSpan, Act act)
    {
        const u32 rowEnd = static_cast<u32>(std::min<u64>(u64{row} + rowSpan, m_Rows));
        const u32 columnEnd = static_cast<u32>(std::min<u64>(u64{column} + columnSpan, m_Columns));
        for (u32 y = row; y < rowEnd; ++y) {
            for (u32 x = column; x < columnEnd; ++x)
                act(m_Slots[SlotOf(y, x)]);
        }
    }

    std::size_t SlotOf(u32 row, u32 column) const { return std::size_t{row} * m_Columns + column; }

    std::vector<Cell*> m_Slots;
    u32 m_Rows = 0;
    u32 m_Columns = 0;
};
