#include "teskara/text/TextGrid.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

// Characters of 6 by 9 in a pane at 100, 200 that is 90 wide and 50 high.
TextGrid PlainGrid()
{
    return {100, 200, 90, 50, 0, 6, 9};
}

_Point2i Snapped(const TextGrid& grid, _Point2i point)
{
    grid.Snap(point);
    return point;
}

struct Change {
    i32 From;
    i32 To;
};

} // namespace

TEST(TextGrid, APointGoesToTheCornerOfItsCharacter)
{
    const TextGrid grid = PlainGrid();
    constexpr Change columns[] = {
        {99, 100}, {100, 103}, {102, 103}, {103, 103}, {108, 103}, {109, 109}, {190, 187}, {191, 190}, {5000, 190}};
    for (const Change& change : columns)
        EXPECT_EQ(change.To, Snapped(grid, {change.From, 200}).x) << change.From;
    constexpr Change rows[] = {
        {199, 200}, {200, 202}, {202, 202}, {211, 202}, {212, 212}, {250, 242}, {251, 250}, {INT_MAX, 250}};
    for (const Change& change : rows)
        EXPECT_EQ(change.To, Snapped(grid, {100, change.From}).y) << change.From;
}

TEST(TextGrid, ABorderMovesTheCornersAndTheEnds)
{
    TextGrid grid = PlainGrid();
    grid.Border = 4;
    constexpr Change columns[] = {{103, 104}, {104, 107}, {107, 107}, {112, 107}, {113, 113}, {186, 185}, {187, 186}};
    for (const Change& change : columns)
        EXPECT_EQ(change.To, Snapped(grid, {change.From, 200}).x) << change.From;
    constexpr Change rows[] = {{203, 204}, {204, 206}, {215, 206}, {216, 216}, {246, 246}, {247, 246}};
    for (const Change& change : rows)
        EXPECT_EQ(change.To, Snapped(grid, {100, change.From}).y) << change.From;
}

TEST(TextGrid, WithoutACharacterWidthAColumnStaysWhereItIs)
{
    TextGrid grid = PlainGrid();
    grid.CharacterWidth = 0;
    EXPECT_EQ(117, Snapped(grid, {117, 200}).x);
}

TEST(TextGrid, APointIsBroughtIntoThePane)
{
    _Point2i points[] = {{-5, 5000}, {190, 250}, {191, 251}, {100, 200}};
    for (_Point2i& point : points)
        PlainGrid().Clamp(point);
    EXPECT_EQ(100, points[0].x);
    EXPECT_EQ(250, points[0].y);
    EXPECT_EQ(190, points[1].x);
    EXPECT_EQ(190, points[2].x);
    EXPECT_EQ(250, points[2].y);
    EXPECT_EQ(200, points[3].y);
}

TEST(TextGrid, ASelectionBecomesColumnsAndRows)
{
    tagRECT selection = {109, 212, 127, 232};
    const auto block = PlainGrid().BlockUnder(selection);
    ASSERT_TRUE(block);
    EXPECT_EQ(1, block->FirstColumn);
    EXPECT_EQ(3, block->ColumnCount);
    EXPECT_EQ(1, block->FirstRow);
    EXPECT_EQ(3, block->RowLimit);
    EXPECT_EQ(6, selection.left);
    EXPECT_EQ(10, selection.top);
    EXPECT_EQ(24, selection.right);
    EXPECT_EQ(30, selection.bottom);
}

TEST(TextGrid, ASelectionMayBeDrawnFromAnyCorner)
{
    for (tagRECT selection : {tagRECT{127, 232, 109, 212}, tagRECT{127, 212, 109, 232}, tagRECT{109, 232, 127, 212}}) {
        const auto block = PlainGrid().BlockUnder(selection);
        ASSERT_TRUE(block);
        EXPECT_EQ(1, block->FirstColumn);
        EXPECT_EQ(3, block->ColumnCount);
        EXPECT_EQ(1, block->FirstRow);
        EXPECT_EQ(3, block->RowLimit);
    }
}

TEST(TextGrid, ASelectionWithoutASizeIsNone)
{
    for (const tagRECT& rect : {tagRECT{109, 212, 109, 232}, tagRECT{109, 212, 127, 212}, tagRECT{}}) {
        tagRECT selection = rect;
        EXPECT_FALSE(PlainGrid().BlockUnder(selection));
        EXPECT_EQ(rect.left, selection.left);
        EXPECT_EQ(rect.top, selection.top);
    }
}

// Its first column comes from its place on the screen.
TEST(TextGrid, ASelectionFromTheVeryEdgeKeepsItsPlaceOnTheScreen)
{
    tagRECT selection = {100, 200, 187, 212};
    const auto block = PlainGrid().BlockUnder(selection);
    ASSERT_TRUE(block);
    EXPECT_EQ(103, selection.left);
    EXPECT_EQ(103 / 6, block->FirstColumn);
    EXPECT_EQ(84 / 6 - 103 / 6, block->ColumnCount);
    EXPECT_EQ(0, selection.top);
    EXPECT_EQ(0, block->FirstRow);
    EXPECT_EQ(1, block->RowLimit);
}

TEST(TextGrid, NothingIsUnderASelectionWithoutMeasures)
{
    TextGrid grid = PlainGrid();
    grid.CharacterWidth = 0;
    tagRECT selection = {109, 212, 127, 232};
    EXPECT_FALSE(grid.BlockUnder(selection));
}

TEST(TextGrid, TheEndsOfTheRangeAreSurvived)
{
    constexpr i32 ends[] = {INT_MIN, -1, 0, 1, INT_MAX};
    for (const i32 x : ends) {
        for (const i32 y : ends) {
            for (const u32 border : {0u, 1u, 0x7fffffffu, 0xffffffffu}) {
                const TextGrid grid = {x, y, 0xffffffffu, 0x80000000u, border, 1, 255};
                _Point2i point = {y, x};
                grid.Snap(point);
                grid.Clamp(point);
                tagRECT selection = {x, y, point.x, point.y};
                grid.BlockUnder(selection);
                selection = {INT_MIN, INT_MIN, INT_MAX, INT_MAX};
                EXPECT_TRUE(grid.BlockUnder(selection));
            }
        }
    }
}
