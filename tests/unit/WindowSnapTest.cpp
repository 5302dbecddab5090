#include "teskara/windows/WindowSnap.h"

#include <gtest/gtest.h>

namespace {

constexpr u32 Largest = 4294967295u;

// A window of 100 in a parent of 300.
const WindowSnap Plain(100, 300);

i32 InsideByWidth(i32 position)
{
    return Plain.StickInside(position, 100, WindowSnap::InSight);
}

i32 InsideByTitleBar(i32 position)
{
    return Plain.StickInside(position, 20, 1);
}

} // namespace

TEST(WindowSnap, SticksToTheNearEdgeFromLessThanFivePixelsAway)
{
    EXPECT_EQ(5, Plain.Stick(5));
    for (i32 position = -4; position <= 4; ++position)
        EXPECT_EQ(0, Plain.Stick(position));
    EXPECT_EQ(-5, Plain.Stick(-5));
    EXPECT_EQ(-1000, Plain.Stick(-1000));
}

TEST(WindowSnap, SticksToTheFarEdgeFromLessThanFivePixelsAway)
{
    EXPECT_EQ(195, Plain.Stick(195));
    for (i32 position = 196; position <= 204; ++position)
        EXPECT_EQ(200, Plain.Stick(position));
    EXPECT_EQ(205, Plain.Stick(205));
    EXPECT_EQ(1000, Plain.Stick(1000));
}

TEST(WindowSnap, OneThatIsLargerThanTheParentSticksToTheNearEdgeOnly)
{
    const WindowSnap large(400, 300);
    EXPECT_EQ(0, large.Stick(4));
    EXPECT_EQ(5, large.Stick(5));
    EXPECT_EQ(-98, large.Stick(-98));
}

TEST(WindowSnap, FourPixelsStayInSightAtTheFarEdge)
{
    EXPECT_EQ(200, InsideByWidth(204));
    EXPECT_EQ(205, InsideByWidth(205));
    EXPECT_EQ(296, InsideByWidth(296));
    EXPECT_EQ(296, InsideByWidth(297));
    EXPECT_EQ(296, InsideByWidth(5000));
}

TEST(WindowSnap, FourPixelsOfTheWindowStayInSightAtTheNearEdge)
{
    EXPECT_EQ(0, InsideByWidth(-4));
    EXPECT_EQ(-5, InsideByWidth(-5));
    EXPECT_EQ(-96, InsideByWidth(-96));
    EXPECT_EQ(-96, InsideByWidth(-97));
    EXPECT_EQ(-96, InsideByWidth(-5000));
}

TEST(WindowSnap, OnePixelOfTheTitleBarStaysInSightAtTheTop)
{
    EXPECT_EQ(0, InsideByTitleBar(4));
    EXPECT_EQ(-19, InsideByTitleBar(-19));
    EXPECT_EQ(-19, InsideByTitleBar(-20));
}

TEST(WindowSnap, WhatHasNoSizeIsPushedInside)
{
    const WindowSnap flat(0, 300);
    EXPECT_EQ(4, flat.StickInside(3, 0, 4));
    EXPECT_EQ(0, flat.StickInside(4, 0, 4));
    EXPECT_EQ(300, flat.StickInside(296, 0, 4));
    EXPECT_EQ(296, flat.StickInside(297, 0, 4));
}

TEST(WindowSnap, AParentWithoutSizeIsNoPlaceToStandIn)
{
    const WindowSnap homeless(100, 0);
    EXPECT_EQ(50, homeless.Stick(50));
    EXPECT_EQ(-4, homeless.StickInside(50, 100, 4));
    EXPECT_EQ(0, homeless.StickInside(-4, 100, 4));
}

TEST(WindowSnap, HugeNumbersWrap)
{
    const WindowSnap huge(Largest, Largest);
    EXPECT_EQ(0, huge.Stick(-4));
    EXPECT_EQ(5, huge.Stick(5));
    EXPECT_EQ(2147483647, huge.Stick(2147483647));
    EXPECT_EQ(2147483643, huge.StickInside(2147483643, Largest, 4));
    EXPECT_EQ(-2147483647 - 1, huge.StickInside(-2147483647 - 1, Largest, 4));
}
