#include "teskara/text/LineBlock.h"

#include <cstddef>

namespace {

// Brings a slot that lies outside of a ring into it, if one turn does.
i64 OneTurn(i64 slot, i64 last, i64 size)
{
    if (slot < 0)
        return slot + size;
    return slot > last ? slot - size : slot;
}

} // namespace

LineBlock::LineBlock(const TextBlock& block, i64 base, i64 rows, i64 ringSize)
    : m_Block(block), m_First(OneTurn(base - rows + 1 + block.FirstRow, ringSize - 1, ringSize)),
      m_Limit(OneTurn(base + 1 + block.RowLimit - rows, ringSize, ringSize))
{
}

bool LineBlock::IsEmpty() const
{
    constexpr u32 spareColumns = 4; // a line's break among them
    constexpr u32 bytesPerColumn = 2;
    const u32 lines = static_cast<u32>(m_Limit - m_First);
    return lines * (static_cast<u32>(m_Block.ColumnCount) + spareColumns) * bytesPerColumn == 0;
}

std::string_view LineBlock::Cut(std::string_view line) const
{
    const std::size_t from = static_cast<std::size_t>(std::max(m_Block.FirstColumn, 0));
    if (from >= line.size() || m_Block.ColumnCount < 1)
        return {};
    return line.substr(from, static_cast<std::size_t>(m_Block.ColumnCount));
}
