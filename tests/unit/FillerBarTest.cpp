#include "teskara/controls/FillerBar.h"

#include "teskara/core/Limits.h"

#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<FillerBar::Piece> PiecesOf(u32 extent, u32 repeat, float fill)
{
    std::vector<FillerBar::Piece> pieces;
    FillerBar(extent, repeat, fill).ForEachPiece([&](const FillerBar::Piece& piece) { pieces.push_back(piece); });
    return pieces;
}

// Each piece as begin+length, and what is shown of the image if that is not all of it.
std::string Bar(u32 extent, u32 repeat, float fill)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    const char* gap = "";
    for (const FillerBar::Piece& piece : PiecesOf(extent, repeat, fill)) {
        text << gap << piece.Begin << '+' << piece.Length;
        if (piece.Shown != 1)
            text << ':' << piece.Shown;
        gap = " ";
    }
    return text.str();
}

} // namespace

TEST(FillerBar, OnePieceGrowsWithTheFill)
{
    EXPECT_EQ("0+100", Bar(100, 1, 1));
    EXPECT_EQ("0+50:0.5", Bar(100, 1, 0.5f));
    EXPECT_EQ("0+0:0.005", Bar(100, 1, 0.005f));
    EXPECT_EQ("0+33:0.333", Bar(100, 1, 0.333f));
}

TEST(FillerBar, NoRepeatIsOnePiece)
{
    EXPECT_EQ("0+50:0.5", Bar(100, 0, 0.5f));
}

TEST(FillerBar, StepsAreFilledOneAfterTheOtherAndTheLastComesTwice)
{
    EXPECT_EQ("0+25 25+25 50+25 75+25 75+25", Bar(100, 4, 1));
    EXPECT_EQ("0+25 25+12:0.5 25+12:0.5", Bar(100, 4, 0.375f));
    EXPECT_EQ("0+6:0.25 0+6:0.25", Bar(100, 4, 0.0625f));
}

TEST(FillerBar, AFillThatEndsAtAStepDrawsNoneBehindIt)
{
    EXPECT_EQ("0+25 0+25", Bar(100, 4, 0.25f));
    EXPECT_EQ("0+25 25+25 25+25", Bar(100, 4, 0.5f));
}

TEST(FillerBar, StepsAreCutByIntegers)
{
    EXPECT_EQ("0+25 25+25 50+25 75+25 75+25", Bar(103, 4, 1));
    EXPECT_EQ("0+51 51+51 51+51", Bar(103, 2, 1));
}

// Thirds and tenths have no exact float, so a little is missing of the last step, or left when it has been drawn.
TEST(FillerBar, RoundingDrawsNoStepBehindTheLast)
{
    for (const u32 repeat : {3u, 7u, 10u, 49u, 100u}) {
        const auto pieces = PiecesOf(1000, repeat, 1);
        ASSERT_EQ(repeat + 1, pieces.size());
        EXPECT_EQ((repeat - 1) * (1000 / repeat), pieces.back().Begin);
        EXPECT_NEAR(1, pieces.back().Shown, 0.001);
    }
}

TEST(FillerBar, MoreStepsThanPixelsAreNone)
{
    EXPECT_EQ(100u, PiecesOf(99, 99, 1).size());
    EXPECT_EQ(0u, PiecesOf(98, 99, 1).size());
    EXPECT_EQ(0u, PiecesOf(0, 2, 1).size());
    EXPECT_EQ(0u, PiecesOf(4000, 4294967295u, 1).size());
    EXPECT_EQ("0+0", Bar(0, 1, 1));
}

TEST(FillerBar, NoMoreStepsAreDrawnThanAScreenShows)
{
    constexpr u32 limit = Limits::FillerSteps;
    constexpr u32 wide = 4294967295u;
    EXPECT_EQ(limit, PiecesOf(wide, limit - 1, 1).size());
    EXPECT_EQ(limit + 1, PiecesOf(wide, limit, 1).size());
    EXPECT_EQ(limit + 1, PiecesOf(wide, limit + 1, 1).size());
    EXPECT_EQ(limit + 1, PiecesOf(wide, wide, 1).size());
    EXPECT_EQ(limit - 1, PiecesOf(wide, wide, 1).back().Begin);
}

TEST(FillerBar, AnExtentThatNoFloatHoldsIsFilledAllTheSame)
{
    EXPECT_EQ("0+2147483648:0.5", Bar(4294967295u, 1, 0.5f));
}
