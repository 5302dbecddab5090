#include "teskara/controls/TextSplit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

// A text in a buffer that is large enough, broken with bytes that are 6 wide.
class Broken
{
public:
    Broken(const std::string& text, u64 width, u64 reached = 0) : Reached(reached)
    {
        std::memcpy(m_Buffer, text.c_str(), text.size() + 1);
        Lines = TextSplit::ByPixels(m_Buffer, width, &Reached, [](char) { return u64{6}; });
        Text = m_Buffer;
    }

    u64 Lines;
    u64 Reached;
    std::string Text;

private:
    char m_Buffer[TextSplit::BufferSize];
};

u64 SplitColumns(std::string& text, u64 columns, u64* reached = nullptr)
{
    char buffer[TextSplit::BufferSize];
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    const u64 lines = TextSplit::ByColumns(buffer, columns, reached);
    text = buffer;
    return lines;
}

} // namespace

TEST(TextSplit, AnEmptyTextIsOneLine)
{
    const Broken broken("", 60);
    EXPECT_EQ(1u, broken.Lines);
    EXPECT_EQ("", broken.Text);
}

TEST(TextSplit, ATextThatFitsStaysAsItIs)
{
    const Broken broken("seven b", 42);
    EXPECT_EQ(1u, broken.Lines);
    EXPECT_EQ("seven b", broken.Text);
}

TEST(TextSplit, AFullLineBreaksAtItsLastSpace)
{
    const Broken broken("one two three", 60);
    EXPECT_EQ(2u, broken.Lines);
    EXPECT_EQ("one two\nthree", broken.Text);
}

TEST(TextSplit, ASpaceBehindAFullLineIsDropped)
{
    const Broken broken("one two", 18);
    EXPECT_EQ(2u, broken.Lines);
    EXPECT_EQ("one\ntwo", broken.Text);
}

TEST(TextSplit, AWordLongerThanTheWidthIsBrokenInsideTheWord)
{
    const Broken broken("abcdefgh", 18);
    EXPECT_EQ(3u, broken.Lines);
    EXPECT_EQ("abc\ndef\ngh", broken.Text);
}

TEST(TextSplit, ALineMayPassTheWidthByOneCharacter)
{
    EXPECT_EQ("abc\nd", Broken("abcd", 13).Text);
}

TEST(TextSplit, BreaksOfTheTextItselfStay)
{
    const Broken broken("a\n\nb", 60);
    EXPECT_EQ(3u, broken.Lines);
    EXPECT_EQ("a\n\nb", broken.Text);
}

TEST(TextSplit, TheLastSpaceOfOneLineIsForgottenOnTheNext)
{
    EXPECT_EQ("a b\ncdef\ngh", Broken("a b\ncdefgh", 24).Text);
}

TEST(TextSplit, WithoutWidthBreaksFillTheBuffer)
{
    const Broken broken("abc", 0);
    EXPECT_EQ(std::string(TextSplit::BufferSize - 1, '\n'), broken.Text);
    EXPECT_EQ(TextSplit::BufferSize, broken.Lines);
}

TEST(TextSplit, WithoutWidthSpacesAndBreaksAreStillConsumed)
{
    const Broken broken("  \n", 0);
    EXPECT_EQ("\n\n\n", broken.Text);
    EXPECT_EQ(4u, broken.Lines);
}

TEST(TextSplit, WhatBreaksPushOutOfTheBufferIsCut)
{
    const Broken broken(std::string(2047, 'a'), 1);
    EXPECT_EQ(2047u, broken.Text.size());
    EXPECT_EQ("a\na\na", broken.Text.substr(0, 5));
}

TEST(TextSplit, ATextOfTheWholeBufferSurvives)
{
    const std::string text(2047, 'a');
    EXPECT_EQ(text, Broken(text, 100000).Text);
}

TEST(TextSplit, ReachedKeepsALargerWidthAtTheEndOfALine)
{
    EXPECT_EQ(12u, Broken("ab\na", 60).Reached);
    EXPECT_EQ(90u, Broken("ab\na", 60, 90).Reached);
}

TEST(TextSplit, ReachedTakesTheWidthOfABrokenLineInAnyCase)
{
    EXPECT_EQ(18u, Broken("abcd", 13, 90).Reached);
}

TEST(TextSplit, ColumnsCountBytes)
{
    std::string text = "one two";
    u64 reached = 0;
    EXPECT_EQ(2u, SplitColumns(text, 5, &reached));
    EXPECT_EQ("one\ntwo", text);
    EXPECT_EQ(5u, reached);
}

TEST(TextSplit, WithoutColumnsThereAreNoLinesAndTheTextStays)
{
    std::string text = "one two";
    EXPECT_EQ(0u, SplitColumns(text, 0));
    EXPECT_EQ("one two", text);
}
