#include "teskara/element/TeskPreParse.h"

#include "tests/unit/ToolkitTest.h"

class TeskPreParseTest : public ToolkitTest
{
protected:
    TeskPreParseTest() { Host.Recorded = RecordSequences; }
};

TEST_F(TeskPreParseTest, TheTextIsKeptHereAndNotByTheHost)
{
    std::string text = "a ${b}";
    const TeskPreParse parsed(text.c_str());
    text = "changed";
    EXPECT_STREQ("a ${b}", parsed.Text.get());
    EXPECT_EQ(1u, parsed.Sequence);
    EXPECT_EQ("PreParseSequence \"a ${b}\" keep=0 -> 1\n", Host.TakeCalls());
}

TEST_F(TeskPreParseTest, NothingIsParsedWithoutAText)
{
    {
        const TeskPreParse none;
        const TeskPreParse null(nullptr);
        EXPECT_EQ(nullptr, none.Text);
        EXPECT_EQ(nullptr, null.Text);
        EXPECT_EQ(0u, null.Sequence);
    }
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskPreParseTest, ANewTextTakesThePlaceOfTheOld)
{
    {
        TeskPreParse parsed("a");
        parsed.PreParse("b");
        EXPECT_STREQ("b", parsed.Text.get());
        EXPECT_EQ(2u, parsed.Sequence);
    }
    EXPECT_EQ("PreParseSequence \"a\" keep=0 -> 1\nFreeSequence 1\n"
              "PreParseSequence \"b\" keep=0 -> 2\nFreeSequence 2\n",
        Host.TakeCalls());
}

TEST_F(TeskPreParseTest, TheTextMayBeGivenToItself)
{
    TeskPreParse parsed("abc");
    parsed.PreParse(parsed.Text.get() + 1);
    EXPECT_STREQ("bc", parsed.Text.get());
    EXPECT_EQ(2u, parsed.Sequence);
}

TEST_F(TeskPreParseTest, NoTextAndClearLeaveNothing)
{
    TeskPreParse parsed("a");
    parsed.PreParse(nullptr);
    EXPECT_EQ(nullptr, parsed.Text);
    EXPECT_EQ(0u, parsed.Sequence);
    parsed.PreParse("b");
    Host.TakeCalls();
    parsed.Clear();
    parsed.Clear();
    EXPECT_EQ(nullptr, parsed.Text);
    EXPECT_EQ(0u, parsed.Sequence);
    EXPECT_EQ("FreeSequence 2\n", Host.TakeCalls());
}

TEST_F(TeskPreParseTest, TheTextStaysThoughTheHostDoesNotParseIt)
{
    Host.RefusesSequences = true;
    TeskPreParse parsed("a");
    EXPECT_STREQ("a", parsed.Text.get());
    EXPECT_EQ(0u, parsed.Sequence);
    parsed.Clear();
    EXPECT_EQ("PreParseSequence \"a\" keep=0 -> 0\n", Host.TakeCalls());
}

TEST_F(TeskPreParseTest, TheHostIsAskedForTheTextToShow)
{
    TeskPreParse parsed("a ${b}");
    Host.Expand = [](const std::string&) { return "a 5"; };
    char text[3];
    EXPECT_TRUE(parsed.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_STREQ("a ", text);
    EXPECT_FALSE(parsed.RetrieveProcessedText(nullptr, 3));
    Host.RefusesValues = true;
    EXPECT_FALSE(parsed.RetrieveProcessedText(text, sizeof(text)));
    EXPECT_STREQ("", text);
}
