#include "teskara/collections/TreeRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <random>
#include <vector>

namespace {

// The same as a plain tree, whose rows are counted by walking.
struct PlainRow {
    PlainRow* Holder = nullptr;
    std::vector<PlainRow*> Held;
    TreeRow Row;
};

class TreeRowsTest : public testing::Test
{
protected:
    PlainRow& Append(PlainRow* holder)
    {
        PlainRow& row = Insert(holder, HeldBy(holder).size());
        if (holder)
            Rows.AppendTo(holder->Row, row.Row);
        else
            Rows.Append(row.Row);
        return row;
    }

    PlainRow& InsertBeside(PlainRow& sibling, bool behind)
    {
        const auto& held = HeldBy(sibling.Holder);
        const auto place = static_cast<std::size_t>(std::find(held.begin(), held.end(), &sibling) - held.begin());
        PlainRow& row = Insert(sibling.Holder, place + (behind ? 1 : 0));
        if (behind)
            Rows.InsertBehind(sibling.Row, row.Row);
        else
            Rows.InsertBefore(sibling.Row, row.Row);
        return row;
    }

    void Remove(PlainRow& row)
    {
        Rows.Remove(row.Row);
        std::erase(HeldBy(row.Holder), &row);
        Forget(row);
    }

    // All rows that show, and how deep they lie, must be those of the plain tree.
    void Compare() const
    {
        std::vector<std::pair<const TreeRow*, u32>> shown;
        Walk(m_Top, 0, shown);
        ASSERT_EQ(shown.size(), Rows.Count());
        for (u32 place = 0; place < shown.size(); ++place) {
            const TreeRows::Shown row = Rows.At(place);
            ASSERT_EQ(shown[place].first, row.Row);
            ASSERT_EQ(shown[place].second, row.Depth);
        }
        EXPECT_EQ(nullptr, Rows.At(Rows.Count()).Row);
        EXPECT_EQ(nullptr, Rows.At(0xffffffffu).Row);
    }

    PlainRow& Any(u32 number) { return *Present[number % Present.size()]; }

    TreeRows Rows;
    std::vector<PlainRow*> Present;

private:
    std::vector<PlainRow*>& HeldBy(PlainRow* holder) { return holder ? holder->Held : m_Top; }

    PlainRow& Insert(PlainRow* holder, std::size_t place)
    {
        PlainRow& row = m_All.emplace_back();
        row.Holder = holder;
        auto& held = HeldBy(holder);
        held.insert(held.begin() + static_cast<std::ptrdiff_t>(place), &row);
        Present.push_back(&row);
        return row;
    }

    void Forget(PlainRow& row)
    {
        std::erase(Present, &row);
        for (PlainRow* held : row.Held)
            Forget(*held);
    }

    static void Walk(const std::vector<PlainRow*>& rows, u32 depth, std::vector<std::pair<const TreeRow*, u32>>& shown)
    {
        for (const PlainRow* row : rows) {
            shown.emplace_back(&row->Row, depth);
            if (row->Row.IsExpanded())
                Walk(row->Held, depth + 1, shown);
        }
    }

    std::deque<PlainRow> m_All;
    std::vector<PlainRow*> m_Top;
};

} // namespace

TEST_F(TreeRowsTest, WithoutRowsNoneShows)
{
    Compare();
    EXPECT_EQ(0u, Rows.Count());
}

TEST_F(TreeRowsTest, RowsStandInTheOrderOfTheTree)
{
    PlainRow& first = Append(nullptr);
    PlainRow& second = Append(nullptr);
    Append(&first);
    PlainRow& inner = Append(&first);
    Append(&inner);
    Append(&second);
    InsertBeside(inner, false);
    InsertBeside(first, false);
    InsertBeside(first, true);
    InsertBeside(second, true);
    Compare();
    EXPECT_EQ(10u, Rows.Count());
}

TEST_F(TreeRowsTest, WhatACollapsedRowHoldsDoesNotShow)
{
    PlainRow& outer = Append(nullptr);
    PlainRow& inner = Append(&outer);
    Append(&inner);
    Append(nullptr);
    Rows.SetExpanded(inner.Row, false);
    EXPECT_EQ(3u, Rows.Count());
    Rows.SetExpanded(outer.Row, false);
    EXPECT_EQ(2u, Rows.Count());
    Compare();
    Rows.SetExpanded(inner.Row, true);
    EXPECT_EQ(2u, Rows.Count());
    Rows.SetExpanded(outer.Row, true);
    EXPECT_EQ(4u, Rows.Count());
    Compare();
}

TEST_F(TreeRowsTest, ARowThatComesCollapsedStaysSo)
{
    PlainRow row;
    Rows.SetExpanded(row.Row, false);
    Rows.Append(row.Row);
    TreeRow held;
    Rows.AppendTo(row.Row, held);
    EXPECT_EQ(1u, Rows.Count());
    Rows.Clear();
    EXPECT_EQ(0u, Rows.Count());
}

TEST_F(TreeRowsTest, ManyChangesAgreeWithAPlainTree)
{
    std::minstd_rand random(7);
    for (int step = 0; step < 3000; ++step) {
        const u32 number = static_cast<u32>(random());
        const u32 act = static_cast<u32>(random()) % 10;
        if (Present.empty() || act == 0)
            Append(nullptr);
        else if (act < 4)
            Append(&Any(number));
        else if (act < 6)
            InsertBeside(Any(number), act == 4);
        else if (act < 9)
            Rows.SetExpanded(Any(number).Row, act == 6 || !Any(number).Row.IsExpanded());
        else if (number % 5 == 0)
            Remove(Any(number / 5));
        if (step % 10 == 0)
            Compare();
    }
    Compare();
    EXPECT_GT(Present.size(), 20u);
    while (!Present.empty())
        Remove(Any(static_cast<u32>(random())));
    Compare();
}

TEST_F(TreeRowsTest, AChainOfAMillionIsAsEasyAsARow)
{
    constexpr u32 Depth = 1000000;
    const auto chain = std::make_unique<TreeRow[]>(Depth);
    Rows.Append(chain[0]);
    for (u32 depth = 1; depth < Depth; ++depth)
        Rows.AppendTo(chain[depth - 1], chain[depth]);
    EXPECT_EQ(Depth, Rows.Count());
    EXPECT_EQ(&chain[Depth - 1], Rows.At(Depth - 1).Row);
    EXPECT_EQ(Depth - 1, Rows.At(Depth - 1).Depth);
    Rows.SetExpanded(chain[Depth / 2], false);
    EXPECT_EQ(Depth / 2 + 1, Rows.Count());
    Rows.Remove(chain[10]);
    EXPECT_EQ(10u, Rows.Count());
}
