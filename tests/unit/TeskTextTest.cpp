#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <cstring>
#include <memory>

namespace {

class TeskTextTest : public ToolkitTest
{
protected:
    // A text 60 wide in a font of size 9, so that a line takes 10 and ten characters fit on it.
    TeskText& MakeText(const std::string& markup, int height = 50)
    {
        Load("<text name='T'><X>100</X><Y>200</Y><Width>60</Width><Height>" + std::to_string(height)
            + "</Height><Font><Size>9</Size><Color>ffffffff</Color></Font>" + markup + "</text>");
        Host.TakeCalls();
        return As<TeskText>("T");
    }

    // The line of a text drawn there.
    static std::string Drawn(const char* text, int y, int format = 32)
    {
        return "DrawText \"" + std::string(text) + "\" (100," + std::to_string(y)
            + ",160,600) ffffffff format=" + std::to_string(format) + " font 1\n";
    }
};

} // namespace

TEST_F(TeskTextTest, MarkupWithoutValuesGivesEveryDefault)
{
    Load("<text name='T'/>");
    const TeskText& text = As<TeskText>("T");
    EXPECT_EQ("", text.Text);
    EXPECT_EQ(12, text.Font->Size);
    EXPECT_EQ(0xffffffffu, text.Font->Color);
    EXPECT_FALSE(text.Wrap);
    EXPECT_EQ(AlignLeft, text.Alignment);
    EXPECT_EQ(AlignTop, text.VerticalAlignment);
    EXPECT_EQ(1u, text.NumLines);
}

TEST_F(TeskTextTest, WordsOfAlignmentInAnyCase)
{
    struct Row {
        const char* Word;
        eTextAlign Horizontal;
        eTextAlign Vertical;
    };
    constexpr Row rows[] = {
        {"CENTER", AlignCenter, AlignVerticalCenter},
        {"right", AlignRight, AlignTop},
        {"Bottom", AlignLeft, AlignBottom},
        {"left", AlignLeft, AlignTop},
        {"", AlignLeft, AlignTop},
    };
    for (const Row& row : rows) {
        g_UIManager.Reset();
        const std::string word = row.Word;
        const TeskText& text =
            MakeText("<Alignment>" + word + "</Alignment><VerticalAlignment>" + word + "</VerticalAlignment>");
        EXPECT_EQ(row.Horizontal, text.Alignment) << word;
        EXPECT_EQ(row.Vertical, text.VerticalAlignment) << word;
    }
}

TEST_F(TeskTextTest, WithoutWrapTheBrokenTextIsDrawnAsOneLine)
{
    MakeText("<Text>one two three</Text>");
    EXPECT_EQ(Drawn("one two\nthree", 200), Frame());
}

TEST_F(TeskTextTest, OneLineLiesAtTheTopTheMiddleOrTheBottom)
{
    TeskText& text = MakeText("<Text>one</Text>");
    EXPECT_EQ(Drawn("one", 200), Frame());
    text.SetVerticalAlignment(AlignVerticalCenter);
    EXPECT_EQ(Drawn("one", 220), Frame());
    text.SetVerticalAlignment(AlignBottom);
    EXPECT_EQ(Drawn("one", 241), Frame());
}

TEST_F(TeskTextTest, OneLineLiesLeftInTheMiddleOrRight)
{
    TeskText& text = MakeText("<Text>one</Text>");
    text.SetHorizontalAlignment(AlignCenter);
    EXPECT_EQ(Drawn("one", 200, 33), Frame());
    text.SetHorizontalAlignment(AlignRight);
    EXPECT_EQ(Drawn("one", 200, 34), Frame());
    text.SetHorizontalAlignment(AlignBottom);
    EXPECT_EQ(Drawn("one", 200, 32), Frame());
}

TEST_F(TeskTextTest, WrappedLinesFollowEachOther)
{
    const TeskText& text = MakeText("<Wrap>1</Wrap><Text>one two three four</Text>");
    EXPECT_EQ(2u, text.NumLines);
    EXPECT_EQ(Drawn("one two", 200) + Drawn("three four", 210), Frame());
}

TEST_F(TeskTextTest, WrappedLinesLieInTheMiddleOrAtTheBottom)
{
    TeskText& text = MakeText("<Wrap>1</Wrap><VerticalAlignment>bottom</VerticalAlignment><Text>a\nb\nc</Text>");
    EXPECT_EQ(Drawn("a", 220) + Drawn("b", 230) + Drawn("c", 240), Frame());
    text.SetVerticalAlignment(AlignVerticalCenter);
    EXPECT_EQ(Drawn("a", 210) + Drawn("b", 220) + Drawn("c", 230), Frame());
}

TEST_F(TeskTextTest, ThreeLinesOfHeightTenAtTheBottomOfFiftyBeginAtSeventeen)
{
    TeskText& text = MakeText("<Wrap>1</Wrap><VerticalAlignment>bottom</VerticalAlignment><Text>a\nb\nc</Text>");
    text.Font->Size = 10;
    EXPECT_EQ(Drawn("a", 217) + Drawn("b", 228) + Drawn("c", 239), Frame());
}

TEST_F(TeskTextTest, LinesThatDoNotFitAreLeftOut)
{
    MakeText("<Wrap>1</Wrap><Text>a\nb\nc\nd</Text>", 29);
    EXPECT_EQ(Drawn("a", 200) + Drawn("b", 210), Frame());
}

TEST_F(TeskTextTest, WhereTwoLinesDoNotFitOneLineIsDrawn)
{
    MakeText("<Wrap>1</Wrap><Text>a\nb</Text>", 19);
    EXPECT_EQ(Drawn("a\nb", 200), Frame());
}

TEST_F(TeskTextTest, EmptyLinesKeepTheirRoom)
{
    TeskText& text = MakeText("<Wrap>1</Wrap><Text>a\n\nb</Text>");
    EXPECT_EQ(Drawn("a", 200) + Drawn("", 210) + Drawn("b", 220), Frame());
    text.SetHorizontalAlignment(AlignCenter);
    EXPECT_EQ(Drawn("a", 200, 33) + Drawn("b", 220, 33), Frame());
}

TEST_F(TeskTextTest, IsBrokenAnewForItsNewWidth)
{
    TeskText& text = MakeText("<Wrap>1</Wrap><Text>one two three</Text>");
    text.Width = 30;
    text.RecalculateSize(false);
    EXPECT_EQ(3u, text.NumLines);
    EXPECT_STREQ("one\ntwo\nthree", text.SplitText.get());
    text.Width = 0;
    text.SetWrap(true);
    EXPECT_EQ(2048u, text.NumLines);
    EXPECT_EQ("", Frame());
}

TEST_F(TeskTextTest, AFixedFontIsBrokenByColumns)
{
    Host.Recorded = RecordMeasures;
    TeskText& text = MakeText("<Font><Fixed>1</Fixed></Font>");
    text.Font->Fixed = true;
    text.SetText("one two three");
    EXPECT_EQ("MeasureText 1 \" \"\n", Host.TakeCalls());
    EXPECT_STREQ("one two\nthree", text.SplitText.get());
    Host.Widths[' '] = 0;
    text.SetText("one two three");
    EXPECT_STREQ("one\ntwo\nthree", text.SplitText.get());
    text.Width = 1;
    text.SetText("one");
    EXPECT_STREQ("one", text.SplitText.get());
    EXPECT_EQ(1u, text.NumLines);
}

TEST_F(TeskTextTest, EachByteIsMeasuredAlone)
{
    TeskText& text = MakeText("<Text>a</Text>");
    Host.Recorded = RecordMeasures;
    text.SetText("ab");
    EXPECT_EQ("MeasureText 1 \"a\"\nMeasureText 1 \"b\"\n", Host.TakeCalls());
}

TEST_F(TeskTextTest, ADynamicTextIsEvaluatedInEveryFrame)
{
    TeskText& text = MakeText("<Text>${Name}</Text>");
    EXPECT_FALSE(text.SplitText);
    Host.Recorded |= RecordSequences;
    Host.Expand = [](const std::string&) { return "one"; };
    EXPECT_EQ("DataParse \"${Name}\"\n" + Drawn("one", 200), Frame());
    EXPECT_EQ("DataParse \"${Name}\"\n" + Drawn("one", 200), Frame());
}

TEST_F(TeskTextTest, ADynamicTextIsWrappedInEveryFrame)
{
    const TeskText& text = MakeText("<Wrap>1</Wrap><Text>${Name}</Text>");
    Host.Expand = [](const std::string&) { return "one two three four"; };
    EXPECT_EQ(Drawn("one two", 200) + Drawn("three four", 210), Frame());
    EXPECT_EQ(2u, text.NumLines);
}

TEST_F(TeskTextTest, ADynamicTextThatIsEmptyDrawsNothingButItsChildrenAreDrawn)
{
    MakeText("<Text>${Name}</Text><Children><frame name='C'><Width>5</Width><Height>5</Height></frame></Children>");
    Host.Expand = [](const std::string&) { return ""; };
    EXPECT_EQ("DrawRect (100,200,105,205) 00000000\n", Frame());
}

TEST_F(TeskTextTest, ADynamicTextMayDeleteItsElement)
{
    MakeText("<Text>${Name}</Text><Children><frame name='C'/></Children>");
    Host.Expand = [](const std::string&) {
        g_UIManager.Reset();
        return "one";
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("T"));
}

TEST_F(TeskTextTest, ADynamicTextMaySetItself)
{
    MakeText("<Text>${Name}</Text>");
    Host.Expand = [&](const std::string& text) {
        As<TeskText>("T").SetText("other");
        return text;
    };
    EXPECT_EQ(Drawn("${Name}", 200), Frame());
    EXPECT_EQ(Drawn("other", 200), Frame());
}

TEST_F(TeskTextTest, ALongDynamicTextReachesTheHostWhole)
{
    TeskText& text = MakeText("");
    const std::string longText = "${" + std::string(5000, 'a') + "}";
    text.SetText(longText.c_str());
    std::string asked;
    Host.Expand = [&](const std::string& source) {
        asked = source;
        return "one";
    };
    Frame();
    EXPECT_EQ(longText, asked);
}

TEST_F(TeskTextTest, ALongStaticTextIsCut)
{
    TeskText& text = MakeText("");
    text.Width = 1000000;
    text.SetText(std::string(5000, 'a').c_str());
    EXPECT_EQ(5000u, text.Text.size());
    EXPECT_EQ(2047u, std::strlen(text.SplitText.get()));
}

TEST_F(TeskTextTest, SetTextChoosesBetweenStaticAndDynamic)
{
    TeskText& text = MakeText("<Text>one</Text>");
    text.SetText("${x}");
    EXPECT_FALSE(text.SplitText);
    text.SetText("two");
    EXPECT_STREQ("two", text.SplitText.get());
    text.SetText(text.Text.c_str() + 1);
    EXPECT_EQ("wo", text.Text);
    text.SetText(nullptr);
    EXPECT_EQ("", text.Text);
    EXPECT_EQ("", Frame());
}

TEST_F(TeskTextTest, ATextWithoutAFontDrawsNothing)
{
    auto& text = dynamic_cast<TeskText&>(*g_UIManager.LoadElement(g_UIManager.Screen, "text", "T"));
    text.Width = 100;
    text.SetText("one two");
    EXPECT_EQ(1u, text.NumLines);
    EXPECT_EQ("", Frame());
}

TEST_F(TeskTextTest, ARecordFillsItWithTheFontOfTheTemplate)
{
    g_UIManager.AddTemplate("text", "<Template Size='8'><Name>Sans</Name></Template>");
    auto& text = dynamic_cast<TeskText&>(*g_UIManager.LoadElement(g_UIManager.Screen, "text", "T"));
    _CreateText record;
    record.Width = 30;
    record.Text = "one two";
    record.Wrap = true;
    record.Alignment = AlignRight;
    text.Create(record, nullptr);
    EXPECT_EQ("Sans", text.Font->Name);
    EXPECT_EQ(8, text.Font->Size);
    EXPECT_EQ(AlignRight, text.Alignment);
    EXPECT_EQ(AlignTop, text.VerticalAlignment);
    EXPECT_TRUE(text.Wrap);
    EXPECT_STREQ("one\ntwo", text.SplitText.get());
    EXPECT_TRUE(text.IsTypeOf("Text"));
}

TEST_F(TeskTextTest, TheStaticSplitTellsTheWidthReached)
{
    const std::unique_ptr<TeskFont> font(TeskFont::New(nullptr, "Mono", 9, true, false));
    char buffer[2048] = "one two three";
    u64 reached = 1;
    EXPECT_EQ(2u, TeskText::Split(buffer, 62, font.get(), &reached));
    EXPECT_EQ(60u, reached);
    EXPECT_EQ(0u, TeskText::SplitFixed(nullptr, 5, nullptr));
    EXPECT_EQ(1u, TeskText::Split(nullptr, 5, nullptr, nullptr));
}
