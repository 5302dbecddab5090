#include "teskara/text/LineBlock.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Slots = std::vector<i64>;

constexpr i64 PaneRows = 10;

LineRing RingOf(u32 size, int lines)
{
    LineRing ring(size);
    for (int line = 0; line < lines; ++line)
        ring.Add(std::to_string(line));
    return ring;
}

// The slots from a row of the pane up to another one.
Slots VisitedOf(const LineRing& ring, i32 firstRow, i32 rowLimit, i64 base)
{
    Slots slots;
    const LineBlock block({0, 1, firstRow, rowLimit}, base, PaneRows, ring.Size());
    block.VisitSlots(ring, [&](i64 slot) {
        slots.push_back(slot);
        return true;
    });
    return slots;
}

Slots VisitedOf(const LineRing& ring, i32 firstRow, i32 rowLimit)
{
    return VisitedOf(ring, firstRow, rowLimit, ring.Newest());
}

} // namespace

TEST(LineBlock, RowsOfThePaneAreSlotsOfTheRing)
{
    const LineRing ring = RingOf(100, 50);
    EXPECT_EQ((Slots{40, 41, 42}), VisitedOf(ring, 0, 3));
    EXPECT_EQ((Slots{48, 49}), VisitedOf(ring, 8, 10));
    EXPECT_EQ((Slots{11}), VisitedOf(ring, 0, 1, 20));
    EXPECT_TRUE(VisitedOf(ring, 3, 3).empty());
}

TEST(LineBlock, SlotsWithoutALineArePassedOver)
{
    const LineRing ring = RingOf(100, 12);
    EXPECT_EQ((Slots{10, 11}), VisitedOf(ring, 5, 10, 14));
    EXPECT_TRUE(VisitedOf(RingOf(100, 0), 2, 8).empty());
}

TEST(LineBlock, AcrossTheSeamTheSlotBehindTheLastIsVisitedAndSlot0IsNot)
{
    EXPECT_EQ((Slots{95, 96, 97, 98, 99, 100, 1, 2, 3, 4}), VisitedOf(RingOf(100, 105), 0, 10));
    EXPECT_EQ((Slots{100, 1, 2}), VisitedOf(RingOf(100, 3), 0, 10));
    EXPECT_EQ((Slots{100}), VisitedOf(RingOf(100, 3), 0, 8));
}

TEST(LineBlock, ABlockThatEndsAtTheSeamFromBelowEndsThere)
{
    EXPECT_EQ((Slots{96, 97, 98, 99}), VisitedOf(RingOf(100, 200), 6, 10));
    EXPECT_EQ((Slots{97, 98, 99, 100}), VisitedOf(RingOf(100, 107), 0, 3));
}

TEST(LineBlock, AVisitMayEndTheWalk)
{
    const LineRing ring = RingOf(100, 50);
    int visits = 0;
    LineBlock({0, 1, 0, 10}, 49, PaneRows, 100).VisitSlots(ring, [&](i64) { return ++visits < 2; });
    EXPECT_EQ(2, visits);
}

TEST(LineBlock, RowsThatOneTurnDoesNotBringIntoTheRingAreNone)
{
    const LineRing ring = RingOf(100, 50);
    EXPECT_TRUE(VisitedOf(ring, -200, 5).empty());
    EXPECT_TRUE(VisitedOf(ring, 0, 1000).empty());
    EXPECT_TRUE(VisitedOf(ring, 1000, 5).empty());
    EXPECT_TRUE(VisitedOf(ring, 0x7fffffff, -0x7fffffff).empty());
}

TEST(LineBlock, TheLargestRingIsWalkedFromLineToLine)
{
    EXPECT_EQ((Slots{i64{0xffffffff}, 1, 2}), VisitedOf(RingOf(0xffffffffu, 3), 0, 10));
    EXPECT_EQ((Slots{2, 3, i64{0xffffffff}}), VisitedOf(RingOf(0xffffffffu, 4), 8, 7)); // the long way round
}

TEST(LineBlock, ItIsEmptyWhenItsSizeIn32BitsIs0)
{
    EXPECT_TRUE(LineBlock({0, 5, 3, 3}, 49, PaneRows, 100).IsEmpty());
    EXPECT_TRUE(LineBlock({0, -4, 0, 3}, 49, PaneRows, 100).IsEmpty());
    EXPECT_FALSE(LineBlock({0, 0, 0, 3}, 49, PaneRows, 100).IsEmpty());
    EXPECT_FALSE(LineBlock({0, 5, 0, 10}, 4, PaneRows, 100).IsEmpty());
}

TEST(LineBlock, ALineIsCutToTheColumns)
{
    struct Row {
        i32 First;
        i32 Count;
        const char* Part;
    };
    constexpr Row rows[] = {{0, 3, "abc"}, {2, 3, "cde"}, {4, 9, "ef"}, {6, 1, ""}, {7, 1, ""}, {0, 0, ""}, {0, -1, ""},
        {-3, 2, "ab"}, {0, 0x7fffffff, "abcdef"}, {-0x7fffffff, -5, ""}};
    for (const Row& row : rows)
        EXPECT_EQ(row.Part, LineBlock({row.First, row.Count, 0, 1}, 0, 1, 1).Cut("abcdef")) << row.First;
}
