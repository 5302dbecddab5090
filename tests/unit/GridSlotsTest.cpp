#include "teskara/collections/GridSlots.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr u32 Largest = 4294967295u;

// The cells are letters. Two rows of three columns.
class GridSlotsTest : public testing::Test
{
protected:
    GridSlotsTest() { Slots.Assign(2, 3); }

    std::string Picture() const
    {
        std::string picture;
        for (std::size_t slot = 0; slot < Slots.Count(); ++slot)
            picture += Slots[slot] ? *Slots[slot] : '.';
        return picture;
    }

    GridSlots<char> Slots;
    char A = 'a';
    char B = 'b';
};

} // namespace

TEST_F(GridSlotsTest, EverySlotIsFreeAtFirst)
{
    EXPECT_EQ("......", Picture());
    Slots.Fill(A, 0, 0, 2, 3);
    Slots.Assign(1, 2);
    EXPECT_EQ("..", Picture());
    Slots.Assign(0, 0);
    EXPECT_EQ("", Picture());
}

TEST_F(GridSlotsTest, ACellStandsInEverySlotThatItCovers)
{
    Slots.Fill(A, 0, 1, 2, 2);
    EXPECT_EQ(".aa.aa", Picture());
    Slots.Fill(B, 1, 0, 1, 2);
    EXPECT_EQ(".aabba", Picture());
}

TEST_F(GridSlotsTest, WhatLiesBeyondTheGridIsLeftOut)
{
    Slots.Fill(A, 1, 2, 5, 5);
    EXPECT_EQ(".....a", Picture());
    Slots.Fill(B, 0, 1, Largest, Largest);
    EXPECT_EQ(".bb.bb", Picture());
    Slots.Fill(A, Largest, Largest, Largest, Largest);
    Slots.Fill(A, 0, 3, 1, 1);
    Slots.Fill(A, 2, 0, 1, 1);
    EXPECT_EQ(".bb.bb", Picture());
}

TEST_F(GridSlotsTest, TheNextFreeColumnOfARowIsFound)
{
    Slots.Fill(A, 0, 0, 2, 1);
    EXPECT_EQ(1u, Slots.FreeColumn(0, 0));
    EXPECT_EQ(1u, Slots.FreeColumn(1, 0));
    EXPECT_EQ(2u, Slots.FreeColumn(1, 2));
    Slots.Fill(B, 0, 1, 1, 2);
    EXPECT_EQ(3u, Slots.FreeColumn(0, 0));
    EXPECT_EQ(1u, Slots.FreeColumn(1, 0));
    EXPECT_EQ(3u, Slots.FreeColumn(1, 3));
    EXPECT_EQ(3u, Slots.FreeColumn(1, u64{Largest} + 2));
}

TEST_F(GridSlotsTest, FreeingACellLeavesWhatIsAnothers)
{
    Slots.Fill(A, 0, 0, 2, 3);
    Slots.Fill(B, 1, 1, 1, 1);
    Slots.Free(A, 0, 0, 2, 3);
    EXPECT_EQ("....b.", Picture());
    Slots.Free(B, 0, 0, Largest, Largest);
    EXPECT_EQ("......", Picture());
}
