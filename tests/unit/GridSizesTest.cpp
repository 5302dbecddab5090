#include "teskara/collections/GridSizes.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <vector>

namespace {

constexpr u32 Largest = 4294967295u;

SizeSpecification Pixels(u32 pixels)
{
    return {SizePixels, pixels};
}

SizeSpecification Factor(float factor)
{
    return {SizeFactor, std::bit_cast<u32>(factor)};
}

SizeSpecification Less(u32 pixels)
{
    return {SizeLess, pixels};
}

constexpr SizeSpecification Nothing = {SizePixels, 0};
constexpr SizeSpecification Shared = {SizeShared, 0};

// Sizes of which each begins as a share, and is then merged with what is wished.
GridSizes SizesOf(const std::vector<SizeSpecification>& wishes)
{
    GridSizes sizes;
    sizes.Assign(wishes.size(), SizeShared);
    for (std::size_t index = 0; index < wishes.size(); ++index)
        sizes.Merge(index, wishes[index]);
    return sizes;
}

// What they measure in a table of that size.
std::vector<u32> Lengths(const std::vector<SizeSpecification>& wishes, u32 tableSize)
{
    GridSizes sizes = SizesOf(wishes);
    const GridLines lines = sizes.ShareOut(tableSize);
    EXPECT_EQ(wishes.size(), lines.Count());
    std::vector<u32> lengths;
    for (u32 index = 0; index < wishes.size(); ++index)
        lengths.push_back(lines.Spanned(index, 1).Length);
    return lengths;
}

SizeSpecification Merged(const std::vector<SizeSpecification>& wishes)
{
    GridSizes sizes;
    sizes.Assign(1, SizeShared);
    for (const SizeSpecification& wish : wishes)
        sizes.Merge(0, wish);
    return sizes[0];
}

using Sizes = std::vector<u32>;

} // namespace

TEST(GridSizes, WhatTheDivisionLeavesOverGoesToTheFirstShare)
{
    EXPECT_EQ((Sizes{34, 33, 33}), Lengths({Shared, Shared, Shared}, 100));
    EXPECT_EQ((Sizes{35, 33, 33}), Lengths({Shared, Shared, Shared}, 101));
    EXPECT_EQ((Sizes{10, 46, 45}), Lengths({Pixels(10), Shared, Shared}, 101));
    EXPECT_EQ((Sizes{45, 10, 45}), Lengths({Shared, Pixels(10), Shared}, 100));
    EXPECT_EQ((Sizes{46, 10, 45}), Lengths({Shared, Pixels(10), Shared}, 101));
    EXPECT_EQ((Sizes{2, 0, 0}), Lengths({Shared, Shared, Shared}, 2));
}

TEST(GridSizes, SharesGetWhatTheOthersLeave)
{
    EXPECT_EQ((Sizes{30, 50, 20}), Lengths({Pixels(30), Factor(0.5f), Shared}, 100));
    EXPECT_EQ((Sizes{30, 90, Largest - 19}), Lengths({Pixels(30), Less(10), Shared}, 100));
    EXPECT_EQ((Sizes{70, 30}), Lengths({Less(30), Shared}, 100));
    EXPECT_EQ((Sizes{100}), Lengths({Shared}, 100));
}

TEST(GridSizes, WithoutASharedOneTheTableIsNotFilled)
{
    EXPECT_EQ((Sizes{30, 20}), Lengths({Pixels(30), Pixels(20)}, 100));
    EXPECT_EQ((Sizes{30, 200}), Lengths({Pixels(30), Pixels(200)}, 100));
}

TEST(GridSizes, FactorsAreTruncated)
{
    EXPECT_EQ((Sizes{33, 33}), Lengths({Factor(0.333f), Factor(0.3399f)}, 100));
    EXPECT_EQ((Sizes{0, 300}), Lengths({Factor(0.0f), Factor(3.0f)}, 100));
    EXPECT_EQ((Sizes{static_cast<u32>(-50)}), Lengths({Factor(-0.5f)}, 100));
    EXPECT_EQ((Sizes{0, 100}), Lengths({Factor(std::numeric_limits<float>::quiet_NaN()), Shared}, 100));
    EXPECT_EQ((Sizes{0, 100}), Lengths({Factor(std::numeric_limits<float>::infinity()), Shared}, 100));
}

TEST(GridSizes, SharesOfATableThatIsTooSmallAreHuge)
{
    EXPECT_EQ((Sizes{150, Largest - 49}), Lengths({Pixels(150), Shared}, 100));
    const u32 share = (Largest - 49) / 2;
    EXPECT_EQ((Sizes{150, Largest - 49 - share, share}), Lengths({Pixels(150), Shared, Shared}, 100));
    EXPECT_EQ((Sizes{Largest - 4}), Lengths({Less(15)}, 10));
}

TEST(GridSizes, EachShareOutBeginsAnew)
{
    GridSizes sizes = SizesOf({Shared, Pixels(10), Shared});
    sizes.ShareOut(100);
    EXPECT_EQ((SizeSpecification{SizeShared, 45}), sizes[0]);
    const GridLines lines = sizes.ShareOut(31);
    EXPECT_EQ(11u, lines.Spanned(0, 1).Length);
    EXPECT_EQ(10u, lines.Spanned(2, 1).Length);
}

TEST(GridSizes, OfOneModeTheLargerResultStands)
{
    EXPECT_EQ(Pixels(20), Merged({Pixels(10), Pixels(20)}));
    EXPECT_EQ(Pixels(20), Merged({Pixels(20), Pixels(10)}));
    EXPECT_EQ(Pixels(Largest), Merged({Pixels(Largest), Pixels(10)}));
    EXPECT_EQ(Factor(0.5f), Merged({Factor(0.25f), Factor(0.5f)}));
    EXPECT_EQ(Factor(0.5f), Merged({Factor(0.5f), Factor(0.25f)}));
    EXPECT_EQ(Factor(-0.25f), Merged({Factor(-0.5f), Factor(-0.25f)}));
    EXPECT_EQ(Less(10), Merged({Less(10), Less(20)}));
    EXPECT_EQ(Less(10), Merged({Less(20), Less(10)}));
    EXPECT_EQ(Shared, Merged({Shared, {SizeShared, 7}}));
}

TEST(GridSizes, TheLastOfAnotherModeHasItsWay)
{
    EXPECT_EQ(Factor(0.5f), Merged({Pixels(10), Factor(0.5f)}));
    EXPECT_EQ(Pixels(1), Merged({Pixels(10), Factor(0.5f), Pixels(1)}));
    EXPECT_EQ(Less(0), Merged({Pixels(10), Less(0)}));
    EXPECT_EQ(Factor(0.0f), Merged({Pixels(10), Factor(0.0f)}));
    EXPECT_EQ((SizeSpecification{SizeShared, 7}), Merged({Pixels(10), {SizeShared, 7}}));
}

TEST(GridSizes, ACellThatAsksForNothingChangesNothing)
{
    EXPECT_EQ(Shared, Merged({Nothing}));
    EXPECT_EQ(Less(10), Merged({Less(10), Nothing}));
}

TEST(GridSizes, WhatIsAssignedHasNoValue)
{
    GridSizes sizes = SizesOf({Pixels(10), Pixels(20)});
    sizes.Assign(3, SizePixels);
    EXPECT_EQ(3u, sizes.Count());
    EXPECT_EQ(Nothing, sizes[0]);
    sizes.Merge(1, Pixels(5));
    sizes.Share(1);
    EXPECT_EQ(Shared, sizes[1]);
}

TEST(GridLines, ASpanRunsFromItsFirstToTheEndOfItsLast)
{
    GridSizes sizes = SizesOf({Pixels(10), Pixels(20), Pixels(30), Pixels(40)});
    const GridLines lines = sizes.ShareOut(0);
    const auto expect = [&](u32 first, u32 span, u32 start, u32 length) {
        const GridStretch stretch = lines.Spanned(first, span);
        EXPECT_EQ(start, stretch.Start) << first << ", " << span;
        EXPECT_EQ(length, stretch.Length) << first << ", " << span;
    };
    expect(0, 1, 0, 10);
    expect(0, 2, 0, 30);
    expect(0, 4, 0, 100);
    expect(1, 1, 10, 20);
    expect(1, 3, 10, 90);
    expect(3, 1, 60, 40);
}

TEST(GridLines, ASpanThatPassesTheLastEndsWithIt)
{
    GridSizes sizes = SizesOf({Pixels(10), Pixels(20)});
    const GridLines lines = sizes.ShareOut(0);
    EXPECT_EQ(30u, lines.Spanned(0, Largest).Length);
    EXPECT_EQ(20u, lines.Spanned(1, 2).Length);
    EXPECT_EQ(20u, lines.Spanned(1, Largest).Length);
    EXPECT_EQ(30u, lines.Spanned(2, 1).Start);
    EXPECT_EQ(0u, lines.Spanned(Largest, Largest).Length);
}

TEST(GridLines, SumsWrap)
{
    GridSizes sizes = SizesOf({Pixels(Largest), Pixels(11), Pixels(5)});
    const GridLines lines = sizes.ShareOut(0);
    EXPECT_EQ(Largest, lines.Spanned(1, 1).Start);
    EXPECT_EQ(11u, lines.Spanned(1, 1).Length);
    EXPECT_EQ(10u, lines.Spanned(2, 1).Start);
    EXPECT_EQ(15u, lines.Spanned(0, 3).Length);
}
