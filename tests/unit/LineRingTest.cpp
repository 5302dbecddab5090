#include "teskara/text/LineRing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

// The lines "0" to count - 1, the first ones already overwritten.
void Fill(LineRing& ring, int count)
{
    for (int line = 0; line < count; ++line)
        ring.Add(std::to_string(line));
}

std::string TextAt(const LineRing& ring, i64 slot)
{
    const char* line = ring.At(slot);
    return line ? line : "(none)";
}

// What stands in each row of a pane.
Strings Rows(const LineRing& ring, i64 last, i64 count)
{
    Strings rows;
    ring.VisitRows(last, count, [&](i64 row, const char* line) {
        rows.resize(static_cast<std::size_t>(row), "-");
        rows.emplace_back(line);
    });
    return rows;
}

} // namespace

TEST(LineRing, IsEmptyAtFirst)
{
    const LineRing ring(3);
    EXPECT_EQ(3, ring.Size());
    EXPECT_EQ(-1, ring.Newest());
    for (const i64 slot : {-1, 0, 2, 3})
        EXPECT_EQ(nullptr, ring.At(slot));
    EXPECT_TRUE(Rows(ring, 0, 10).empty());
}

TEST(LineRing, FillsItsSlotsInTurn)
{
    LineRing ring(3);
    Fill(ring, 2);
    EXPECT_EQ(1, ring.Newest());
    EXPECT_EQ("0", TextAt(ring, 0));
    EXPECT_EQ("1", TextAt(ring, 1));
    EXPECT_EQ("(none)", TextAt(ring, 2));
    Fill(ring, 3);
    EXPECT_EQ(1, ring.Newest());
    EXPECT_EQ("1", TextAt(ring, 0));
    EXPECT_EQ("2", TextAt(ring, 1));
    EXPECT_EQ("0", TextAt(ring, 2));
}

TEST(LineRing, LinesOfEveryByteAreKept)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    LineRing ring(1);
    ring.Add(all);
    EXPECT_EQ(all, ring.At(0));
    ring.Add("");
    EXPECT_STREQ("", ring.At(0));
}

TEST(LineRing, IsEmptyAgainAfterClearing)
{
    LineRing ring(3);
    Fill(ring, 5);
    ring.Clear();
    EXPECT_EQ(-1, ring.Newest());
    EXPECT_EQ("(none)", TextAt(ring, 1));
    Fill(ring, 1);
    EXPECT_EQ(0, ring.Newest());
    EXPECT_EQ("0", TextAt(ring, 0));
    ring.SetSize(2);
    EXPECT_EQ(-1, ring.Newest());
    EXPECT_EQ(2, ring.Size());
}

TEST(LineRing, ASizeOf0CountsAs1)
{
    LineRing ring(0);
    Fill(ring, 2);
    EXPECT_EQ(1, ring.Size());
    EXPECT_EQ("1", TextAt(ring, 0));
}

TEST(LineRing, TheSlotsBeforeAreThoseOfOneTurn)
{
    const LineRing ring(10);
    EXPECT_EQ(3, ring.Before(5, 2));
    EXPECT_EQ(0, ring.Before(5, 5));
    EXPECT_EQ(9, ring.Before(5, 6));
    EXPECT_EQ(0, ring.Before(5, 15));
    EXPECT_EQ(-1, ring.Before(5, 16));
    EXPECT_EQ(6, ring.Before(-1, 3));
}

TEST(LineRing, EmptySlotsAreCountedUpToTheNextFilledOne)
{
    LineRing ring(10);
    Fill(ring, 3);
    EXPECT_EQ(4, ring.EmptyFrom(-4));
    EXPECT_EQ(0, ring.EmptyFrom(0));
    EXPECT_EQ(0, ring.EmptyFrom(2));
    EXPECT_EQ(7, ring.EmptyFrom(3));
    EXPECT_EQ(1, ring.EmptyFrom(9));
    EXPECT_EQ(0, ring.EmptyFrom(10)); // there is no such slot
    Fill(ring, 10);
    for (i64 slot = 0; slot < 10; ++slot)
        EXPECT_EQ(0, ring.EmptyFrom(slot));
}

TEST(LineRing, NewLinesStandOnTheLowestRows)
{
    LineRing ring(100);
    Fill(ring, 3);
    EXPECT_EQ((Strings{"-", "-", "0", "1", "2"}), Rows(ring, 2, 5));
    EXPECT_EQ((Strings{"1", "2"}), Rows(ring, 2, 2));
    EXPECT_EQ((Strings{"-", "-", "0"}), Rows(ring, 0, 3));
    EXPECT_TRUE(Rows(ring, 50, 10).empty());
    EXPECT_TRUE(Rows(ring, 2, 0).empty());
    EXPECT_TRUE(Rows(ring, -1, 5).empty());
    EXPECT_TRUE(Rows(ring, 100, 5).empty());
}

TEST(LineRing, RowsGoAcrossTheSeam)
{
    LineRing ring(4);
    Fill(ring, 6); // 4 5 2 3
    EXPECT_EQ((Strings{"3", "4", "5"}), Rows(ring, 1, 3));
    EXPECT_EQ((Strings{"2", "3", "4", "5"}), Rows(ring, 1, 4));
}

// Scrolled back to the oldest line, what lies above it is the newest again.
TEST(LineRing, RowsBeforeTheOldestLineShowTheNewest)
{
    LineRing ring(4);
    Fill(ring, 6);
    EXPECT_EQ((Strings{"4", "5", "2"}), Rows(ring, 2, 3));
}

TEST(LineRing, MoreRowsThanSlotsEndWhereTheLastIsMetFirst)
{
    LineRing ring(4);
    Fill(ring, 4);
    EXPECT_EQ((Strings{"2", "3"}), Rows(ring, 3, 6));
    Fill(ring, 1);
    EXPECT_EQ((Strings{"-", "-", "-", "0"}), Rows(ring, 0, 8));
    EXPECT_EQ((Strings{"3"}), Rows(ring, 3, 1));
}

TEST(LineRing, LinesThatComeWhileRowsAreVisitedReplaceTheOldest)
{
    LineRing ring(4);
    Fill(ring, 4);
    Strings rows;
    ring.VisitRows(3, 4, [&](i64, const char* line) {
        rows.emplace_back(line);
        ring.Add("new");
    });
    EXPECT_EQ((Strings{"0", "1", "2", "3"}), rows);
    rows.clear();
    ring.VisitRows(3, 4, [&](i64, const char* line) {
        rows.emplace_back(line);
        ring.Clear();
    });
    EXPECT_EQ((Strings{"new"}), rows);
}

TEST(LineRing, TheLargestRingHasNoMoreStorageThanLines)
{
    LineRing ring(0xffffffffu);
    Fill(ring, 3);
    EXPECT_EQ(i64{0xffffffff}, ring.Size());
    EXPECT_EQ(2, ring.Newest());
    EXPECT_EQ(i64{0xffffffff} - 2, ring.Before(0, 2));
    EXPECT_EQ((Strings{"0", "1", "2"}), Rows(ring, 2, 3));
    EXPECT_EQ((Strings{"-", "-", "0"}), Rows(ring, 0, 3));
    EXPECT_TRUE(Rows(ring, i64{0xffffffff} - 1, 2'000'000'000).empty());
}

TEST(LineRing, ItHoldsAMillionLinesAndThenTheOldestGoes)
{
    for (const u32 size : {1'000'001u, 0xffffffffu}) {
        LineRing ring(size);
        Fill(ring, 999'999);
        EXPECT_EQ("0", TextAt(ring, 0));
        ring.Add("next to last");
        EXPECT_EQ("0", TextAt(ring, 0));
        ring.Add("last");
        EXPECT_EQ("(none)", TextAt(ring, 0));
        EXPECT_EQ("1", TextAt(ring, 1));
        EXPECT_EQ("last", TextAt(ring, 1'000'000));
        EXPECT_EQ(1, ring.EmptyFrom(0));
        EXPECT_EQ((Strings{"-", "1", "2"}), Rows(ring, 2, 3));
    }
}

TEST(LineRing, AMillionLinesStayAcrossTheSeamOfALargerRing)
{
    LineRing ring(1'000'001);
    Fill(ring, 1'000'003);
    EXPECT_EQ(1, ring.Newest());
    EXPECT_EQ("1000002", TextAt(ring, 1));
    EXPECT_EQ("(none)", TextAt(ring, 2));
    EXPECT_EQ("3", TextAt(ring, 3));
    EXPECT_EQ((Strings{"1000000", "1000001", "1000002"}), Rows(ring, 1, 3));
}
