#include "teskara/text/LineHistory.h"

#include "teskara/core/Limits.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

LineHistory With(u32 capacity, std::initializer_list<const char*> lines)
{
    LineHistory history;
    history.Reset(capacity);
    for (const char* line : lines)
        history.Add(line);
    return history;
}

std::string TextOf(const utf8string* line)
{
    return line ? std::string(*line) : "none";
}

// What so many steps back give, one after the other.
std::string Back(LineHistory& history, int steps)
{
    std::string lines;
    for (int step = 0; step < steps; ++step)
        lines += TextOf(history.Previous());
    return lines;
}

std::string Onward(LineHistory& history, int steps)
{
    std::string lines;
    for (int step = 0; step < steps; ++step)
        lines += TextOf(history.Next());
    return lines;
}

} // namespace

TEST(LineHistory, WithoutSlotsItKeepsNothing)
{
    LineHistory history;
    history.Add("a");
    EXPECT_EQ(nullptr, history.Previous());
    EXPECT_EQ(nullptr, history.Next());
    EXPECT_EQ(nullptr, history.Last());
    history.Reset(0);
    history.Add("a");
    EXPECT_EQ(nullptr, history.Last());
}

TEST(LineHistory, TheWayBackBeginsAtTheNewestLineAndGoesRound)
{
    LineHistory history = With(5, {"a", "b", "c"});
    EXPECT_EQ("cbacb", Back(history, 5));
    history.Add("d");
    EXPECT_EQ("dcb", Back(history, 3));
}

TEST(LineHistory, TheWayOnBeginsAtTheFirstSlot)
{
    LineHistory history = With(5, {"a", "b", "c"});
    EXPECT_EQ("abcab", Onward(history, 5));
    EXPECT_EQ("a", Back(history, 1));
}

TEST(LineHistory, AFullRingPutsNewLinesInThePlaceOfOldOnes)
{
    LineHistory history = With(3, {"", "a", "b", "c", "d"}); // c d b in their slots
    EXPECT_EQ(2u, history.Write);
    EXPECT_EQ("dcbd", Back(history, 4));
    EXPECT_EQ("b", TextOf(history.Last()));
}

TEST(LineHistory, TheLastSlotIsTheNewestLineUntilTheRingComesRound)
{
    LineHistory history = With(3, {""});
    EXPECT_EQ("", TextOf(history.Last()));
    history.Add("a");
    EXPECT_EQ("a", TextOf(history.Last()));
    history.Add("b");
    EXPECT_EQ("b", TextOf(history.Last()));
    history.Add("c");
    EXPECT_EQ("b", TextOf(history.Last()));
}

TEST(LineHistory, AlikeLinesAreAllKept)
{
    LineHistory history = With(4, {"a", "a", "b"});
    EXPECT_EQ("baab", Back(history, 4));
}

TEST(LineHistory, OneSlotIsWrittenAgainAndAgain)
{
    LineHistory history = With(1, {"a", "b"});
    EXPECT_EQ("bb", Back(history, 2));
    EXPECT_EQ("bb", Onward(history, 2));
}

TEST(LineHistory, AHugeCapacityTakesMemoryOnlyForItsLinesAndHasABound)
{
    LineHistory history = With(4294967295u, {"a"});
    EXPECT_EQ("a", TextOf(history.Last()));
    history.Reset(4294967295u);
    for (std::size_t line = 1; line < Limits::RingLines; ++line)
        history.Add("x");
    EXPECT_EQ(Limits::RingLines - 1, history.Count());
    history.Add("x");
    EXPECT_EQ(Limits::RingLines, history.Count());
    history.Add("x");
    EXPECT_EQ(Limits::RingLines, history.Count());
    EXPECT_EQ(1u, history.Write);
}

TEST(LineHistory, ALineMayBeOneOfItsOwn)
{
    LineHistory history = With(2, {"a", "b"});
    history.Add(*history.Last());
    EXPECT_EQ("bb", Back(history, 2));
}
