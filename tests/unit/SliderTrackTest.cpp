#include "teskara/controls/SliderTrack.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using enum SliderTrack::Direction;

constexpr u32 Largest = 4294967295u;

} // namespace

TEST(SliderTrack, TheHandleMovesOverWhatItAndTheBordersLeave)
{
    const SliderTrack track(100, 9, 10, Onward);
    EXPECT_FALSE(track.IsTooShort());
    EXPECT_EQ(91u, track.Travel());
}

TEST(SliderTrack, OneThatIsAllHandleIsNotTooShort)
{
    EXPECT_FALSE(SliderTrack(5, 5, 10, Onward).IsTooShort());
    EXPECT_EQ(0u, SliderTrack(5, 5, 10, Onward).Travel());
    EXPECT_TRUE(SliderTrack(4, 5, 10, Onward).IsTooShort());
    EXPECT_EQ(0u, SliderTrack(4, 5, 10, Onward).Travel());
    EXPECT_TRUE(SliderTrack(0, 5, 10, Onward).IsTooShort());
}

TEST(SliderTrack, TheHandleStandsWhereTheValueIsInTheRange)
{
    const SliderTrack track(105, 5, 200, Onward);
    EXPECT_EQ(0u, track.PositionOf(0));
    EXPECT_EQ(0u, track.PositionOf(1));
    EXPECT_EQ(1u, track.PositionOf(2));
    EXPECT_EQ(50u, track.PositionOf(100));
    EXPECT_EQ(99u, track.PositionOf(199));
    EXPECT_EQ(100u, track.PositionOf(200));
}

TEST(SliderTrack, BackwardTheRangeIsAtItsStart)
{
    const SliderTrack track(105, 5, 200, Backward);
    EXPECT_EQ(100u, track.PositionOf(0));
    EXPECT_EQ(100u, track.PositionOf(1));
    EXPECT_EQ(0u, track.PositionOf(200));
}

TEST(SliderTrack, WithoutARangeTheHandleStandsAtTheStart)
{
    EXPECT_EQ(0u, SliderTrack(105, 5, 0, Onward).PositionOf(0));
    EXPECT_EQ(0u, SliderTrack(105, 5, 0, Backward).PositionOf(0));
    EXPECT_EQ(0u, SliderTrack(105, 5, 0, Onward).ValueAt(70));
    EXPECT_EQ(0u, SliderTrack(105, 5, 0, Backward).ValueAt(70));
}

TEST(SliderTrack, APositionGivesTheValueItStandsFor)
{
    const SliderTrack onward(105, 5, 10, Onward);
    const SliderTrack backward(105, 5, 10, Backward);
    EXPECT_EQ(0u, onward.ValueAt(9));
    EXPECT_EQ(1u, onward.ValueAt(10));
    EXPECT_EQ(10u, onward.ValueAt(100));
    EXPECT_EQ(10u, backward.ValueAt(9));
    EXPECT_EQ(9u, backward.ValueAt(10));
    EXPECT_EQ(0u, backward.ValueAt(100));
}

TEST(SliderTrack, BeyondTheTravelIsItsEnd)
{
    EXPECT_EQ(10u, SliderTrack(105, 5, 10, Onward).ValueAt(101));
    EXPECT_EQ(10u, SliderTrack(105, 5, 10, Onward).ValueAt(Largest));
    EXPECT_EQ(0u, SliderTrack(105, 5, 10, Backward).ValueAt(Largest));
}

TEST(SliderTrack, TheEndsAreExactAlsoBeyondWhatAFloatCounts)
{
    for (const u32 large : {16777217u, 4000000001u, Largest}) {
        const SliderTrack ranged(105, 5, large, Onward);
        EXPECT_EQ(large, ranged.ValueAt(100));
        EXPECT_EQ(0u, ranged.ValueAt(0));
        EXPECT_EQ(100u, ranged.PositionOf(large));

        const SliderTrack reversed(large, 5, 10, Backward);
        EXPECT_EQ(0u, reversed.PositionOf(10));
        EXPECT_EQ(large - 5, reversed.PositionOf(0));
        EXPECT_EQ(0u, reversed.ValueAt(large));
        EXPECT_EQ(10u, reversed.ValueAt(0));
    }
}
