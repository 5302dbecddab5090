#include "teskara/element/TeskDataSequence.h"

#include "teskara/script/MvTypeVar.h"
#include "tests/unit/ToolkitTest.h"

class TeskDataSequenceTest : public ToolkitTest
{
protected:
    TeskDataSequenceTest() { Host.Recorded = RecordSequences; }
};

TEST_F(TeskDataSequenceTest, TheHostKeepsTheTextOfASequence)
{
    const TeskDataSequence sequence("a ${b}");
    EXPECT_NE(0u, sequence.Sequence);
    EXPECT_EQ("PreParseSequence \"a ${b}\" keep=1 -> 1\n", Host.TakeCalls());
}

TEST_F(TeskDataSequenceTest, ASequenceWithoutATextIsGivenBackAsNone)
{
    {
        const TeskDataSequence sequence;
        EXPECT_EQ(0u, sequence.Sequence);
    }
    EXPECT_EQ("FreeSequence 0\n", Host.TakeCalls());
}

TEST_F(TeskDataSequenceTest, ANewTextTakesThePlaceOfTheOld)
{
    {
        TeskDataSequence sequence;
        sequence.PreParse("a");
        sequence.PreParse("b");
        sequence.PreParse("");
    }
    EXPECT_EQ("PreParseSequence \"a\" keep=1 -> 1\nFreeSequence 1\n"
              "PreParseSequence \"b\" keep=1 -> 2\nFreeSequence 2\n"
              "PreParseSequence \"\" keep=1 -> 3\nFreeSequence 3\n",
        Host.TakeCalls());
}

TEST_F(TeskDataSequenceTest, NoTextLeavesNoSequence)
{
    TeskDataSequence sequence("a");
    sequence.PreParse(nullptr);
    EXPECT_EQ(0u, sequence.Sequence);
    Host.TakeCalls();
    sequence.PreParse(nullptr);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskDataSequenceTest, ClearGivesTheSequenceBackOnce)
{
    TeskDataSequence sequence("a");
    Host.TakeCalls();
    sequence.Clear();
    sequence.Clear();
    EXPECT_EQ(0u, sequence.Sequence);
    EXPECT_EQ("FreeSequence 1\n", Host.TakeCalls());
}

TEST_F(TeskDataSequenceTest, TheHostIsAskedForBothTexts)
{
    TeskDataSequence sequence("a ${b}");
    Host.Expand = [](const std::string&) { return "a 5"; };
    char text[16];
    EXPECT_TRUE(sequence.RetrieveOriginalText(text, sizeof(text)));
    EXPECT_STREQ("a ${b}", text);
    EXPECT_TRUE(sequence.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_STREQ("a 5", text);
}

TEST_F(TeskDataSequenceTest, ATextLongerThanItsBufferIsCutAndEnded)
{
    TeskDataSequence sequence("abcdef");
    char text[4];
    EXPECT_TRUE(sequence.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_STREQ("abc", text);
    EXPECT_TRUE(sequence.RetrieveOriginalText(text, 1));
    EXPECT_STREQ("", text);
    EXPECT_FALSE(sequence.RetrieveOriginalText(text, 0));
    EXPECT_FALSE(sequence.RetrieveOriginalText(nullptr, 4));
    EXPECT_FALSE(sequence.RetrieveProcessedText(nullptr, 4));
}

TEST_F(TeskDataSequenceTest, WhatTheHostCannotTellIsFalse)
{
    TeskDataSequence sequence("a");
    TeskDataSequence none;
    Host.RefusesValues = true;
    char text[4] = "xyz";
    _MvTypeVar result;
    EXPECT_FALSE(sequence.RetrieveOriginalText(text, sizeof(text)));
    EXPECT_FALSE(sequence.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_FALSE(sequence.RetrieveProcessedResult(result));
    EXPECT_FALSE(none.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_STREQ("", text);
}

TEST_F(TeskDataSequenceTest, ASequenceThatTheHostDoesNotParseIsNone)
{
    Host.RefusesSequences = true;
    {
        TeskDataSequence sequence("a");
        EXPECT_EQ(0u, sequence.Sequence);
        sequence.PreParse("b");
        EXPECT_EQ(0u, sequence.Sequence);
    }
    EXPECT_EQ(
        "PreParseSequence \"a\" keep=1 -> 0\nPreParseSequence \"b\" keep=1 -> 0\nFreeSequence 0\n", Host.TakeCalls());
}
