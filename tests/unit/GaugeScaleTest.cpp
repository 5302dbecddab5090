#include "teskara/controls/GaugeScale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using enum GaugeScale::Overflow;

constexpr float Infinity = std::numeric_limits<float>::infinity();
constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(GaugeScale, AValueWithinTheRangeIsHeldAsItIs)
{
    for (const auto overflow : {Stops, WrapsAround}) {
        for (const float value : {0.0f, 0.25f, 50.0f, 99.99f})
            EXPECT_EQ(value, GaugeScale(100).Hold(value, overflow));
    }
}

TEST(GaugeScale, AValueBelowZeroCountsAsZero)
{
    for (const auto overflow : {Stops, WrapsAround}) {
        for (const float value : {-0.001f, -1e30f, -Infinity})
            EXPECT_EQ(0.0f, GaugeScale(100).Hold(value, overflow));
    }
}

TEST(GaugeScale, AValueAtTheRangeOrAboveIsTheRangeOrStartsAnew)
{
    EXPECT_EQ(100.0f, GaugeScale(100).Hold(100, Stops));
    EXPECT_EQ(100.0f, GaugeScale(100).Hold(1e30f, Stops));
    EXPECT_EQ(100.0f, GaugeScale(100).Hold(Infinity, Stops));

    EXPECT_EQ(0.0f, GaugeScale(100).Hold(100, WrapsAround));
    EXPECT_EQ(50.0f, GaugeScale(100).Hold(250, WrapsAround));
    EXPECT_EQ(0.25f, GaugeScale(1).Hold(7.25f, WrapsAround));
    EXPECT_EQ(0.0f, GaugeScale(100).Hold(Infinity, WrapsAround));
}

TEST(GaugeScale, WhatIsNoNumberCountsAsZero)
{
    for (const auto overflow : {Stops, WrapsAround}) {
        EXPECT_EQ(0.0f, GaugeScale(100).Hold(NoNumber, overflow));
        EXPECT_EQ(5.0f, GaugeScale(NoNumber).Hold(5, overflow)); // no range is no bound
    }
}

TEST(GaugeScale, ARangeOfZeroHoldsZeroAndIsFull)
{
    for (const auto overflow : {Stops, WrapsAround}) {
        for (const float value : {-1.0f, 0.0f, 1.0f, Infinity, NoNumber})
            EXPECT_EQ(0.0f, GaugeScale(0).Hold(value, overflow));
    }
    EXPECT_EQ(1.0f, GaugeScale(0).ShareOf(0));
    EXPECT_EQ(1.0f, GaugeScale(-0.0f).ShareOf(5));
}

TEST(GaugeScale, ARangeBelowZeroIsHeldByEveryValue)
{
    EXPECT_EQ(-5.0f, GaugeScale(-5).Hold(3, Stops));
    EXPECT_EQ(1.0f, GaugeScale(-5).ShareOf(-5));
}

TEST(GaugeScale, TheShareIsTheValueByTheRange)
{
    EXPECT_EQ(0.5f, GaugeScale(100).ShareOf(50));
    EXPECT_EQ(1.0f, GaugeScale(0.25f).ShareOf(0.25f));
    EXPECT_EQ(0.0f, GaugeScale(7).ShareOf(0));
    EXPECT_EQ(1.0f / 3.0f, GaugeScale(3).ShareOf(1));
    EXPECT_TRUE(std::isnan(GaugeScale(Infinity).ShareOf(Infinity)));
}
