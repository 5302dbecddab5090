#pragma once

#include "teskara/text/LineRing.h"
#include "teskara/text/TextGrid.h"

#include <algorithm>
#include <string_view>

// A block of text as the slots of a ring and the columns of a line.
//
// The walk over the slots is late at the seam of the ring: it visits one slot behind the last one, which never holds a
// line, and goes on with slot 1. So a block across the seam lacks slot 0.
class TESKARA_EXPORT LineBlock
{
public:
    // base: the slot on the last of the rows that the pane shows.
    LineBlock(const TextBlock& block, i64 base, i64 rows, i64 ringSize);

    // Whether the room for it, counted in 32 bits, comes to nothing.
    bool IsEmpty() const;

    // Calls visit(slot) for each slot that holds a line in turn, until it gives false. The slot behind the last one is
    // the only one that is none of the ring.
    template <class Visit> void VisitSlots(const LineRing& lines, Visit visit) const
    {
        const i64 behind = lines.Size();
        if (m_First < 0 || m_First > behind || m_Limit < 0 || m_Limit > behind)
            return;

        for (i64 slot = m_First; slot != m_Limit; ++slot) {
            const i64 end = slot < m_Limit ? m_Limit : behind;
            slot += std::min(lines.EmptyFrom(slot), end - slot);
            if (slot == m_Limit || !visit(slot))
                return;
            if (slot == behind && m_Limit == 0)
                return;
            if (slot == behind)
                slot = 0;
        }
    }

    // The part of a line that lies in the columns.
    std::string_view Cut(std::string_view line) const;

private:
    TextBlock m_Block;
    i64 m_First;
    i64 m_Limit; // the slot behind the block
};
