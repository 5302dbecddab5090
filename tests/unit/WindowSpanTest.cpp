#include "teskara/windows/WindowSpan.h"

#include <gtest/gtest.h>

namespace {

constexpr u32 Near = WindowSpan::Near;
constexpr u32 Far = WindowSpan::Far;
constexpr u32 Largest = 4294967295u;

// At 30 in its parent and 130 on the screen, 100 long and at least 40.
WindowSpan Plain()
{
    return {30, 100, 130, 40};
}

} // namespace

TEST(WindowSpan, AnEdgeIsAsWideAsTheBorder)
{
    EXPECT_EQ(Near, Plain().EdgesAt(129, 3));
    EXPECT_EQ(Near, Plain().EdgesAt(132, 3));
    EXPECT_EQ(0u, Plain().EdgesAt(133, 3));
    EXPECT_EQ(0u, Plain().EdgesAt(227, 3));
    EXPECT_EQ(Far, Plain().EdgesAt(228, 3));
    EXPECT_EQ(Far, Plain().EdgesAt(230, 3));
}

TEST(WindowSpan, OneThatIsNarrowerThanItsBordersHasBothEdgesAtOnce)
{
    const WindowSpan narrow(0, 4, 0, 0);
    EXPECT_EQ(Near, narrow.EdgesAt(1, 3));
    EXPECT_EQ(Near | Far, narrow.EdgesAt(2, 3));
    EXPECT_EQ(Far, narrow.EdgesAt(3, 3));
}

TEST(WindowSpan, ABorderOfAnySizeFindsAnAnswer)
{
    EXPECT_EQ(Near | Far, Plain().EdgesAt(180, 60));
    EXPECT_EQ(Near | Far, WindowSpan(0, 0, 2147483647, 0).EdgesAt(0, Largest));
}

TEST(WindowSpan, TheNearEdgeLeavesTheFarOneInItsPlace)
{
    WindowSpan span = Plain();
    EXPECT_EQ(Near, span.Drag(Near, 140, 10));
    EXPECT_EQ(40, span.Position);
    EXPECT_EQ(90u, span.Size);
    EXPECT_EQ(Near, span.Drag(Near, 100, -40));
    EXPECT_EQ(0, span.Position);
    EXPECT_EQ(130u, span.Size);
}

TEST(WindowSpan, BeyondTheLeastSizeTheNearEdgePushesTheWindowAlong)
{
    WindowSpan span = Plain();
    EXPECT_EQ(Near, span.Drag(Near, 200, 70));
    EXPECT_EQ(100, span.Position);
    EXPECT_EQ(40u, span.Size);
    EXPECT_EQ(Near, span.Drag(Near, 210, 10));
    EXPECT_EQ(110, span.Position);
    EXPECT_EQ(40u, span.Size);
}

TEST(WindowSpan, TheNearEdgePastTheFarOneLeavesTheLeastSize)
{
    WindowSpan span = Plain();
    span.Drag(Near, 1000, 870);
    EXPECT_EQ(900, span.Position);
    EXPECT_EQ(40u, span.Size);
}

TEST(WindowSpan, TheFarEdgeFollowsThePointer)
{
    WindowSpan span = Plain();
    EXPECT_EQ(Far, span.Drag(Far, 250, 20));
    EXPECT_EQ(30, span.Position);
    EXPECT_EQ(120u, span.Size);
}

TEST(WindowSpan, TheFarEdgeStaysWhereThePointerIsNotBeyondTheLeastSize)
{
    WindowSpan span = Plain();
    EXPECT_EQ(0u, span.Drag(Far, 170, -60));
    EXPECT_EQ(100u, span.Size);
    EXPECT_EQ(Far, span.Drag(Far, 171, -59));
    EXPECT_EQ(41u, span.Size);
}

TEST(WindowSpan, AFarEdgeThatLagsBehindThePointerStopsAtTheLeastSize)
{
    WindowSpan span(0, 50, 0, 40);
    EXPECT_EQ(Far, span.Drag(Far, 100, -30));
    EXPECT_EQ(40u, span.Size);
    EXPECT_EQ(Far, span.Drag(Far, 100, -300));
    EXPECT_EQ(40u, span.Size);
}

TEST(WindowSpan, BothEdgesTogetherMoveTheWindow)
{
    WindowSpan span = Plain();
    EXPECT_EQ(Near | Far, span.Drag(Near | Far, 240, 10));
    EXPECT_EQ(40, span.Position);
    EXPECT_EQ(100u, span.Size);
}

TEST(WindowSpan, WhatIsTooSmallGrowsEvenIfNoEdgeMoves)
{
    WindowSpan span(0, 10, 0, 40);
    EXPECT_EQ(0u, span.Drag(0, 5, 5));
    EXPECT_EQ(0, span.Position);
    EXPECT_EQ(40u, span.Size);
}

TEST(WindowSpan, NothingIsSmallerThanNothing)
{
    WindowSpan span(0, 10, 0, 0);
    span.Drag(Near, 0, 2147483647);
    EXPECT_EQ(0u, span.Size);
    EXPECT_EQ(2147483647, span.Position);
}

TEST(WindowSpan, HugeNumbersWrap)
{
    WindowSpan span(-2147483647, Largest, 0, 0);
    span.Drag(Near, 0, -2);
    EXPECT_EQ(2147483647, span.Position);
    EXPECT_EQ(1u, span.Size);
    WindowSpan large(0, Largest, 0, Largest);
    EXPECT_EQ(Far, large.Drag(Far, 0, -100));
    EXPECT_EQ(Largest, large.Size);
}
