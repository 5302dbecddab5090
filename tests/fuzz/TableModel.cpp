#include "tests/fuzz/TableModel.h"

#include "teskara/core/Limits.h"

#include <algorithm>
#include <cmath>
#include <stack>

namespace {

constexpr u32 Pixels = 0;
constexpr u32 Shared = 1;
constexpr u32 Factor = 2;
constexpr u32 Less = 3;

// Only for products that fit.
u32 Truncated(float product)
{
    return static_cast<u32>(static_cast<i64>(std::trunc(product)));
}

u32 PixelsOf(const TableModel::Size& size, u32 whole)
{
    if (size.Mode == Factor)
        return Truncated(static_cast<float>(whole) * size.Factor);
    return size.Mode == Less ? whole - size.Pixels : size.Pixels;
}

} // namespace

bool TableModel::Count(const std::vector<std::vector<Wish>>& rows)
{
    for (std::size_t row = 0; row < rows.size(); ++row) {
        u64 columns = 0;
        Rows = std::max<u64>(Rows, row + 1);
        for (const Wish& wish : rows[row]) {
            columns += wish.ColSpan;
            Rows = std::max<u64>(Rows, row + wish.RowSpan);
        }
        Columns = std::max(Columns, columns);
    }
    if (Columns != 0 && Rows > Limits::TableSlots / Columns)
        Rows = Columns = 0;
    return Rows != 0 && Columns != 0;
}

void TableModel::Load(const std::vector<std::vector<Wish>>& rows)
{
    if (!Count(rows))
        return;

    m_RowSizes.assign(Rows, {Shared, 0, 0});
    m_ColumnSizes.assign(Columns, {Shared, 0, 0});
    for (u32 row = 0; row < rows.size(); ++row)
        LoadRow(rows[row], row);
}

void TableModel::LoadRow(const std::vector<Wish>& wishes, u32 row)
{
    u64 column = 0;
    for (const Wish& wish : wishes) {
        while (Slots.count({row, column}) != 0)
            ++column;
        if (column >= Columns)
            return;

        const u32 number = m_NextNumber++;
        if (wish.AtLoad == Fate::EndsThePrevious && !Cells.empty())
            Remove(Cells.rbegin()->first);
        if (wish.AtLoad == Fate::Ends) {
            ++column;
            continue;
        }

        Cells[number] = {row, static_cast<u32>(column), wish};
        for (u64 y = row; y < std::min<u64>(Rows, u64{row} + wish.RowSpan); ++y) {
            for (u64 x = column; x < std::min<u64>(Columns, column + wish.ColSpan); ++x)
                Slots[{y, x}] = number;
        }
        Merge(m_RowSizes[row], wish.Height);
        Merge(m_ColumnSizes[column], wish.Width);
        column += wish.ColSpan;
    }
}

void TableModel::Remove(u32 number)
{
    Cells.erase(number);
    std::erase_if(Slots, [&](const auto& slot) { return slot.second == number; });
}

void TableModel::Merge(Size& size, const Size& wish)
{
    if (wish.Mode == Pixels && wish.Pixels == 0)
        return;
    if (wish.Mode != size.Mode)
        size = wish;
    size.Pixels = size.Mode == Less ? std::min(size.Pixels, wish.Pixels) : std::max(size.Pixels, wish.Pixels);
    size.Factor = std::max(size.Factor, wish.Factor);
}

std::vector<u32> TableModel::Ends(std::vector<Size>& sizes, u32 whole)
{
    u32 used = 0;
    std::stack<Size*> shared;
    for (Size& size : sizes) {
        if (size.Mode == Shared)
            shared.push(&size);
        else
            used += PixelsOf(size, whole);
    }

    const u32 share = shared.empty() ? 0 : (whole - used) / static_cast<u32>(shared.size());
    for (; !shared.empty(); shared.pop()) {
        shared.top()->Pixels = shared.size() == 1 ? whole - used : share;
        used += share;
    }

    std::vector<u32> ends = {0};
    for (const Size& size : sizes)
        ends.push_back(ends.back() + PixelsOf(size, whole));
    return ends;
}

std::map<u32, TableModel::Place> TableModel::LayOut(u32 width, u32 height)
{
    const std::vector<u32> rowEnds = Ends(m_RowSizes, height);
    const std::vector<u32> columnEnds = Ends(m_ColumnSizes, width);
    std::map<u32, Place> places;
    for (const auto& [slot, number] : Slots) {
        const Cell& cell = Cells[number];
        const u32 x = columnEnds[cell.Column];
        const u32 y = rowEnds[cell.Row];
        const u32 right = columnEnds[std::min<u64>(u64{cell.Column} + cell.Wishes.ColSpan, Columns)];
        const u32 bottom = rowEnds[std::min<u64>(u64{cell.Row} + cell.Wishes.RowSpan, Rows)];
        places[number] = {x, y, right - x, bottom - y};
    }
    return places;
}
