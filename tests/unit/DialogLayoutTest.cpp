#include "teskara/windows/DialogLayout.h"

#include <gtest/gtest.h>

using namespace DialogLayout;

TEST(DialogLayout, AShortTextGetsTheLeastWidth)
{
    EXPECT_EQ(128u, SizesFor(1, 60, 12, 13, 30, 600).Width);
    EXPECT_EQ(128u, SizesFor(1, 116, 12, 13, 30, 600).Width);
    EXPECT_EQ(129u, SizesFor(1, 117, 12, 13, 30, 600).Width);
}

TEST(DialogLayout, ATextIsAsHighAsItsLinesAndOnePixelMore)
{
    const Sizes sizes = SizesFor(3, 60, 12, 13, 30, 600);
    EXPECT_EQ(40u, sizes.TextHeight);
    EXPECT_EQ(69u, sizes.WindowHeight);
}

TEST(DialogLayout, ATextStopsAtThreeQuartersOfTheParentWhileTheWindowGrowsOn)
{
    EXPECT_EQ(450u, SizesFor(40, 60, 12, 13, 30, 600).TextHeight);
    EXPECT_EQ(550u, SizesFor(40, 60, 12, 13, 30, 600).WindowHeight);
    EXPECT_EQ(450u, SizesFor(40, 60, 12, 13, 30, 601).TextHeight) << "450.75";
    EXPECT_EQ(0u, SizesFor(1, 60, 12, 13, 30, 0).TextHeight);
}

TEST(DialogLayout, ButtonsStandInTheMiddleOfTheirRow)
{
    EXPECT_EQ(48u, FirstButton(128, 32));
    EXPECT_EQ(13u, FirstButton(128, 101));
    EXPECT_EQ(0x7fffffe0u, FirstButton(0, 64)) << "without room lengths wrap";
    EXPECT_EQ(18u, ButtonTop(43));
}
