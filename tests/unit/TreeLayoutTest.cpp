#include "teskara/collections/TreeLayout.h"

#include <gtest/gtest.h>

namespace {

TreeLayout WithItemHeight(u32 height)
{
    return {height, 10, 16, 5};
}

} // namespace

TEST(TreeLayout, ScrollsFromAsManyRowsAsFitOn)
{
    const TreeLayout layout = WithItemHeight(10);
    EXPECT_EQ(0u, layout.ScrollRange(0, 45));
    EXPECT_EQ(0u, layout.ScrollRange(3, 45));
    EXPECT_EQ(1u, layout.ScrollRange(4, 45));
    EXPECT_EQ(97u, layout.ScrollRange(100, 49));
    EXPECT_EQ(5u, layout.ScrollRange(5, 10)) << "of a single row";
}

TEST(TreeLayout, ScrollsNotAtAllIfNoRowFits)
{
    EXPECT_EQ(0u, WithItemHeight(10).ScrollRange(100, 9));
    EXPECT_EQ(0u, WithItemHeight(0).ScrollRange(100, 50));
    EXPECT_EQ(0u, WithItemHeight(10).ScrollRange(100, 0xfffffff0u)) << "a height below 0";
}

TEST(TreeLayout, ARowNeedsAPixelToSpare)
{
    EXPECT_TRUE(WithItemHeight(10).HasRoom(0, 11));
    EXPECT_FALSE(WithItemHeight(10).HasRoom(0, 10));
    EXPECT_FALSE(WithItemHeight(0).HasRoom(0, 10));
    EXPECT_FALSE(WithItemHeight(0xffffffffu).HasRoom(0, 0x7fffffff));
}

TEST(TreeLayout, ARowReachesOnePixelIntoTheNext)
{
    const TreeLayout layout = WithItemHeight(10);
    EXPECT_EQ(0u, layout.RowAt(-5));
    EXPECT_EQ(0u, layout.RowAt(0));
    EXPECT_EQ(0u, layout.RowAt(10));
    EXPECT_EQ(1u, layout.RowAt(11));
    EXPECT_EQ(1u, layout.RowAt(20));
    EXPECT_EQ(0u, WithItemHeight(0).RowAt(100));
}

TEST(TreeLayout, TheImageEndsBehindTheMarginOfTheText)
{
    const TreeLayout layout = WithItemHeight(10);
    EXPECT_TRUE(layout.IsOnImage(21));
    EXPECT_FALSE(layout.IsOnImage(22));
    EXPECT_TRUE((TreeLayout{10, 10, 0xffffffffu, 0xffffffffu}.IsOnImage(0x7fffffff)));
}

TEST(TreeLayout, DepthsAreIndented)
{
    EXPECT_EQ(0, WithItemHeight(10).IndentOf(0));
    EXPECT_EQ(30, WithItemHeight(10).IndentOf(3));
    EXPECT_EQ(-2, (TreeLayout{10, 0xffffffffu, 0, 0}.IndentOf(2)));
}

TEST(TreeLayout, OnlyWhatIsLowerThanItsRowStandsInTheMiddle)
{
    EXPECT_EQ(3u, WithItemHeight(20).Centered(13));
    EXPECT_EQ(0u, WithItemHeight(20).Centered(20));
    EXPECT_EQ(0u, WithItemHeight(20).Centered(30));
}
