#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

// The lines that a console keeps: slots from 0 up that are filled in turn, and from the start again when the last one
// is reached. Whatever its size, it holds no more than Limits::RingLines lines, and its storage grows with them.
class TESKARA_EXPORT LineRing
{
public:
    // The slot of the newest line while there is none.
    static constexpr i64 NoSlot = -1;

    // size: slots; at least 1.
    explicit LineRing(u32 size) { SetSize(size); }

    // Forgets all lines.
    void SetSize(u32 size);
    void Clear();

    // Fills the next slot, whose old line goes, as does the oldest one beyond the limit. A line that there is no memory
    // for is lost.
    void Add(std::string_view line) noexcept;

    i64 Size() const { return m_Size; }
    i64 Newest() const { return m_Newest; }
    bool Has(i64 slot) const { return slot >= 0 && slot < m_Size; }

    // Null: the slot is empty, or there is no such slot. Valid until the next line is added or all are forgotten.
    const char* At(i64 slot) const;

    // How many slots hold nothing from this one on, before one that is filled.
    i64 EmptyFrom(i64 slot) const;

    // The slot so many slots before another one. Before the slots there are as many more, and then none: there the
    // result is negative.
    i64 Before(i64 slot, i64 count) const { return slot < count ? slot - count + m_Size : slot - count; }

    // Calls visit(row, line) for each row of a pane that shows a line: the last of the rows shows the slot last, the
    // others those before it. When the rows are more than the slots, they end where last comes first. Lines may be
    // added meanwhile, but a line may go by that.
    template <class Visit> void VisitRows(i64 last, i64 rows, Visit visit) const
    {
        if (rows < 1 || !Has(last))
            return;

        i64 slot = Before(last, rows - 1);
        const i64 end = slot <= last ? last - slot + 1 : m_Size - slot + last + 1;
        for (i64 row = 0; row < end;) {
            const i64 gap = EmptyFrom(slot);
            if (gap >= end - row)
                return;

            row += gap;
            slot = After(slot, gap);
            if (const char* line = At(slot))
                visit(row, line);
            ++row;
            slot = After(slot, 1);
        }
    }

private:
    using Line = std::unique_ptr<char[]>;

    i64 After(i64 slot, i64 count) const { return slot + count >= m_Size ? slot + count - m_Size : slot + count; }
    i64 AgeOf(i64 slot) const;
    i64 Held() const { return static_cast<i64>(m_Lines.size()); }
    i64 MostLines() const;

    std::vector<Line> m_Lines; // in a ring of its own, once there are as many as may be
    i64 m_Size = 1;
    i64 m_Newest = NoSlot;
    i64 m_Last = -1; // the newest line's place in m_Lines
};
