#include "teskara/windows/MapProjection.h"

#include "teskara/core/QuietFloats.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

// Whoever asks a projection keeps floats from trapping, as maps do.
class MapProjectionTest : public testing::Test
{
    const QuietFloats m_Quiet;
};

constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();
constexpr i32 Nowhere = std::numeric_limits<i32>::min();

// 200 by 100 pixels for 40 by 20 of the world around 10, 20, 30.
constexpr u32 Width = 200;
constexpr u32 Height = 100;
constexpr MapArea Plain = {{10, 20, 30}, 20, 10, false, 0, false, -10, 10};

MapArea Rotated(float radians)
{
    MapArea area = Plain;
    area.IsRotated = true;
    area.Rotation = radians;
    return area;
}

MapArea WithSize(float x, float y)
{
    MapArea area = Plain;
    area.SizeX = x;
    area.SizeY = y;
    return area;
}

MapProjection Box(const MapArea& area = Plain)
{
    return MapProjection::OfBox(area, Width, Height);
}

MapProjection Circle(const MapArea& area = Plain)
{
    return MapProjection::OfCircle(area, Width, Height);
}

void ExpectAt(i32 x, i32 y, const _Point2i& place)
{
    EXPECT_EQ(x, place.x);
    EXPECT_EQ(y, place.y);
}

} // namespace

TEST_F(MapProjectionTest, ABoxShowsWhatLiesOnItsEdges)
{
    const MapProjection box = Box();
    EXPECT_TRUE(box.Shows({-10, 10, 0}));
    EXPECT_TRUE(box.Shows({30, 30, 0}));
    EXPECT_FALSE(box.Shows({-10.001f, 20, 0}));
    EXPECT_FALSE(box.Shows({30.001f, 20, 0}));
    EXPECT_FALSE(box.Shows({10, 9.999f, 0}));
    EXPECT_FALSE(box.Shows({10, 30.001f, 0}));
}

TEST_F(MapProjectionTest, ACircleDoesNotShowWhatLiesOnItsEdge)
{
    const MapProjection circle = Circle();
    EXPECT_FALSE(circle.Shows({30, 20, 0}));
    EXPECT_FALSE(circle.Shows({10, 0, 0}));
    EXPECT_TRUE(circle.Shows({29.999f, 20, 0}));
    EXPECT_TRUE(circle.Shows({22, 36 - 0.01f, 0})); // 12 and 16 make 20
    EXPECT_FALSE(circle.Shows({22, 36, 0}));
}

TEST_F(MapProjectionTest, HeightsAreLookedAtOnlyWhereTheyAreClipped)
{
    MapArea area = Plain;
    EXPECT_TRUE(Box(area).Shows({10, 20, 1000}));
    area.ClipsZ = true;
    for (const MapProjection& map : {Box(area), Circle(area)}) {
        EXPECT_TRUE(map.Shows({10, 20, 20}));
        EXPECT_TRUE(map.Shows({10, 20, 40}));
        EXPECT_FALSE(map.Shows({10, 20, 19.5f}));
        EXPECT_FALSE(map.Shows({10, 20, 40.5f}));
    }
}

TEST_F(MapProjectionTest, TheOriginLiesInTheMiddleLessHalfOfTheMark)
{
    for (const MapArea& area : {Plain, Rotated(0), Rotated(1), Rotated(-2.5f)}) {
        ExpectAt(100, 50, Box(area).Place({10, 20, 0}, 0, 0));
        ExpectAt(94, 44, Box(area).Place({10, 20, 0}, 12, 13));
        ExpectAt(94, 44, Circle(area).Place({10, 20, 0}, 13, 12));
    }
}

TEST_F(MapProjectionTest, WithoutRotationXRunsRightAndYDown)
{
    ExpectAt(0, 0, Box().Place({-10, 10, 0}, 0, 0));
    ExpectAt(200, 100, Box().Place({30, 30, 0}, 0, 0));
    ExpectAt(150, 25, Box().Place({20, 15, 0}, 0, 0));
}

TEST_F(MapProjectionTest, WithRotationXRunsUpAndYRight)
{
    ExpectAt(100, 25, Box(Rotated(0)).Place({15, 20, 0}, 0, 0));
    ExpectAt(125, 50, Box(Rotated(0)).Place({10, 25, 0}, 0, 0));
}

TEST_F(MapProjectionTest, AQuarterTurnBringsXToTheLeft)
{
    const MapProjection turned = Box(Rotated(std::acos(0.0f)));
    const _Point2i place = turned.Place({15, 20, 0}, 0, 0);
    EXPECT_NEAR(75, place.x, 1);
    EXPECT_NEAR(50, place.y, 1);
}

// The box is measured as if it were not turned.
TEST_F(MapProjectionTest, ATurnedBoxShowsWhatItWouldShowUnturned)
{
    const MapProjection turned = Box(Rotated(1.2f));
    EXPECT_TRUE(turned.Shows({30, 30, 0}));
    EXPECT_FALSE(turned.Shows({10, 31, 0}));
}

TEST_F(MapProjectionTest, ACircleMeasuresBothAxesByItsRadius)
{
    ExpectAt(150, 75, Circle(WithSize(20, 7)).Place({20, 30, 0}, 0, 0));
    MapArea turned = WithSize(20, 7);
    turned.IsRotated = true;
    ExpectAt(150, 25, Circle(turned).Place({20, 30, 0}, 0, 0));
}

TEST_F(MapProjectionTest, PlacesAreCutTowardsZero)
{
    const MapProjection map = MapProjection::OfBox(WithSize(20, 20), 100, 100);
    ExpectAt(2, 2, map.Place({-8.9f, 1.1f, 0}, 0, 0));
    ExpectAt(-2, -2, map.Place({-8.9f, 1.1f, 0}, 10, 11)); // 2.75 less 5
}

// 21 / 40 * 200 is less than 105 there.
TEST_F(MapProjectionTest, TheArithmeticIsInSinglePrecision)
{
    ExpectAt(104, 50, Box().Place({11, 20, 0}, 0, 0));
    const MapArea fine = {{16777216, 0, 0}, 2, 2, false, 0, false, 0, 0};
    EXPECT_TRUE(Box(fine).Shows({16777217.0f, 0, 0})); // which is 16777216
    ExpectAt(100, 50, Box(fine).Place({16777217.0f, 0, 0}, 0, 0));
}

TEST_F(MapProjectionTest, ABoxWithoutAWidthHasNoPlaces)
{
    const MapProjection box = Box(WithSize(0, 10));
    EXPECT_TRUE(box.Shows({10, 20, 0}));
    EXPECT_FALSE(box.Shows({10.001f, 20, 0}));
    ExpectAt(Nowhere, 50, box.Place({10, 20, 0}, 12, 0));
    ExpectAt(Nowhere, 50, Box(WithSize(-0.0f, 10)).Place({11, 20, 0}, 0, 0));
}

TEST_F(MapProjectionTest, WhatIsNoNumberIsBeyondNoEdgeAndHasNoPlace)
{
    for (const MapProjection& map : {Box(), Circle()}) {
        EXPECT_TRUE(map.Shows({NoNumber, 20, 0}));
        EXPECT_TRUE(map.Shows({NoNumber, NoNumber, NoNumber}));
    }
    EXPECT_FALSE(Box().Shows({NoNumber, 31, 0}));
    ExpectAt(Nowhere, 50, Box().Place({NoNumber, 20, 0}, 12, 0));
    ExpectAt(Nowhere, Nowhere, Box(Rotated(NoNumber)).Place({10, 20, 0}, 0, 0));
}

TEST_F(MapProjectionTest, WhatIsInfinitelyFarAwayIsNotShown)
{
    for (const MapProjection& map : {Box(), Circle()}) {
        EXPECT_FALSE(map.Shows({Infinity, 20, 0}));
        EXPECT_FALSE(map.Shows({10, -Infinity, 0}));
    }
    EXPECT_TRUE(Box(WithSize(Infinity, Infinity)).Shows({Infinity, -Infinity, 0}));
    ExpectAt(Nowhere, Nowhere, Box(WithSize(Infinity, Infinity)).Place({10, 20, 0}, 0, 0));
}

TEST_F(MapProjectionTest, PlacesBeyondAllNumbersAreNowhere)
{
    const MapProjection map = Box(WithSize(1e-30f, 1e-30f));
    ExpectAt(Nowhere, Nowhere, map.Place({1e30f, -1e30f, 0}, 0, 0));
    ExpectAt(Nowhere, 50, MapProjection::OfBox(Plain, 0xffffffffu, 100).Place({30, 20, 0}, 0, 0));
}

TEST_F(MapProjectionTest, ABoxOfNegativeSizeShowsNothing)
{
    EXPECT_FALSE(Box(WithSize(-20, 10)).Shows({10, 20, 0}));
    EXPECT_TRUE(Circle(WithSize(-20, 10)).Shows({10, 20, 0}));
}
