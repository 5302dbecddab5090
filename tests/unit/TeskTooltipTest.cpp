#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <new>

namespace {

class TeskTooltipTest : public ToolkitTest
{
protected:
    // A tooltip at 100, 200 with a border of 4 and a font of size 9, so that a line takes 10.
    TeskTooltip& MakeTooltip(const std::string& markup = {})
    {
        Load("<tooltip name='T'><X>100</X><Y>200</Y><Border>4</Border><BackgroundColor>ff000000</BackgroundColor>"
             "<BorderColor>ff000001</BorderColor><Font><Size>9</Size><Color>ffffffff</Color></Font>"
            + markup + "</tooltip>");
        Host.TakeCalls();
        Tip().Show(true);
        return Tip();
    }

    TeskTooltip& Tip() { return As<TeskTooltip>("T"); }

    // What a frame draws of the lines.
    std::string DrawnLines()
    {
        std::string lines;
        g_UIManager.Render();
        for (const std::string& call : Host.Calls) {
            if (call.rfind("DrawText", 0) == 0)
                lines += call + "\n";
        }
        Host.Calls.clear();
        return lines;
    }

    // What a frame draws first: the upper border, or without one the background.
    std::string FirstDrawn()
    {
        const std::string all = Frame();
        return all.substr(0, all.find('\n'));
    }

    // The call that draws a text at a height.
    static std::string Drawn(const std::string& text, int y)
    {
        return "DrawText \"" + text + "\" (104," + std::to_string(y) + ",104,600) ffffffff format=288 font 1\n";
    }

    // Texts by place; a free place is "-".
    std::string Places()
    {
        std::string places;
        for (std::size_t place = 0; place < Tip().Lines.Size(); ++place) {
            const TeskTooltipLine* line = Tip().Lines.Get(place);
            places += (place > 0 ? "|" : "") + (line ? line->Text : "-");
        }
        return places;
    }
};

} // namespace

TEST_F(TeskTooltipTest, MarkupWithoutValuesGivesEveryDefault)
{
    Load("<tooltip name='T'/>");
    const TeskTooltip& tooltip = Tip();
    EXPECT_EQ(12, tooltip.Font->Size);
    EXPECT_EQ(0xffffffffu, tooltip.Font->Color);
    EXPECT_EQ(0u, tooltip.Border);
    EXPECT_EQ(0u, tooltip.Lines.Size());
    EXPECT_EQ(0u, tooltip.LineCount);
    EXPECT_FALSE(tooltip.Visible);
}

TEST_F(TeskTooltipTest, MarkupThatSaysVisibleStartsHiddenAllTheSame)
{
    Load("<tooltip name='T'><Visible>1</Visible></tooltip><tooltip name='U'><Visible/></tooltip>");
    EXPECT_FALSE(Tip().Visible);
    EXPECT_FALSE(Element("U").Visible);
    EXPECT_EQ("", Frame());
}

TEST_F(TeskTooltipTest, WhatTheNodeLacksComesFromTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate(
        "tooltip", "<Template><Border>3</Border><Font><Size>8</Size></Font><Visible>1</Visible></Template>");
    g_UIManager.AddTemplate("frame", "<Template><Border>7</Border></Template>");
    Load("<tooltip name='T'><BackgroundColor>ff00ff00</BackgroundColor></tooltip>");
    EXPECT_EQ(3u, Tip().Border);
    EXPECT_EQ(8, Tip().Font->Size);
    EXPECT_EQ(0xff00ff00u, Tip().BackgroundColor);
    EXPECT_FALSE(Tip().Visible);
}

TEST_F(TeskTooltipTest, KnowsTheWordsOfItsKindAndOfAFrame)
{
    TeskTooltip& tooltip = MakeTooltip();
    EXPECT_TRUE(tooltip.IsTypeOf("Tooltip"));
    EXPECT_TRUE(tooltip.IsTypeOf("frame"));
    EXPECT_TRUE(tooltip.IsTypeOf("teskelement"));
    EXPECT_FALSE(tooltip.IsTypeOf("text"));
    EXPECT_FALSE(tooltip.IsTypeOf(nullptr));
}

TEST_F(TeskTooltipTest, WithoutLinesItIsThirtyWideAndAsHighAsItsBorders)
{
    TeskTooltip& tooltip = MakeTooltip("<Width>500</Width><Height>500</Height>");
    EXPECT_EQ("DrawRect (100,200,600,204) ff000001", FirstDrawn());
    EXPECT_EQ(30u, tooltip.Width);
    EXPECT_EQ(8u, tooltip.Height);
    EXPECT_EQ("DrawRect (100,200,130,204) ff000001", FirstDrawn());
}

TEST_F(TeskTooltipTest, ALessWidthBecomesThirtyBeforeItIsDrawn)
{
    MakeTooltip("<Width>29</Width>");
    EXPECT_EQ("DrawRect (100,200,130,204) ff000001", FirstDrawn());
}

TEST_F(TeskTooltipTest, ItsBackgroundFollowsItsTextOneFrameLate)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Border = 0;
    tooltip.AddLine("ten bytes.");
    EXPECT_EQ("DrawRect (100,200,130,210) ff000000\n"
              "DrawText \"ten bytes.\" (100,200,100,600) ffffffff format=288 font 1\n",
        Frame());
    EXPECT_EQ(69u, tooltip.Width); // 60 of text, and the height of the font
    EXPECT_EQ("DrawRect (100,200,169,210) ff000000", FirstDrawn());
    tooltip.Reset();
    EXPECT_EQ("DrawRect (100,200,169,200) ff000000", FirstDrawn());
    EXPECT_EQ("DrawRect (100,200,130,200) ff000000", FirstDrawn());
}

TEST_F(TeskTooltipTest, LinesStandBelowEachOtherInsideOfTheBorder)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("one\n\nthree three");
    EXPECT_EQ(Drawn("one", 204) + Drawn("three three", 224), DrawnLines());
    EXPECT_EQ(3u * 10 + 2 * 4, tooltip.Height);
    EXPECT_EQ(11u * 6 + 9 + 4, tooltip.Width);
}

TEST_F(TeskTooltipTest, ALineThatIsNoWiderThanTheLeastWidthLeavesIt)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.AddLine("12");
    Frame();
    EXPECT_EQ(30u, tooltip.Width);
    tooltip.AddLine("123");
    Frame();
    EXPECT_EQ(31u, tooltip.Width);
}

TEST_F(TeskTooltipTest, ColourCodesAreDrawnPieceByPiece)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.AddLine("on\ar-red");
    const std::string drawn = DrawnLines();
    EXPECT_EQ("DrawText \"on\" (104,204,104,600) ffffffff format=288 font 1\n"
              "DrawText \"-red\" (116,204,116,600) ffff0000 format=288 font 1\n",
        drawn);
    EXPECT_EQ(36u + 9 + 4, tooltip.Width);
}

TEST_F(TeskTooltipTest, ChildrenAreDrawnAboveTheBackgroundAndBelowTheText)
{
    TeskTooltip& tooltip =
        MakeTooltip("<Children><frame name='C'><Width>5</Width><Height>5</Height></frame></Children>");
    tooltip.Border = 0;
    tooltip.AddLine("one");
    EXPECT_EQ("DrawRect (100,200,130,210) ff000000\nDrawRect (100,200,105,205) 00000000\n"
              "DrawText \"one\" (100,200,100,600) ffffffff format=288 font 1\n",
        Frame());
}

TEST_F(TeskTooltipTest, AChildMayDeleteItWhileItIsDrawn)
{
    TeskTooltip& tooltip = MakeTooltip("<Children><frame name='C'><OnRender>die</OnRender></frame></Children>");
    tooltip.AddLine("one");
    Host.Scripts["die"] = [this](TeskElement&) { g_UIManager.Screen->DeleteChild(&Tip()); };
    EXPECT_EQ("", DrawnLines());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("T"));
}

TEST_F(TeskTooltipTest, AddLineTakesTheFirstFreePlace)
{
    TeskTooltip& tooltip = MakeTooltip();
    for (const char* text : {"a", "b", "c"})
        tooltip.AddLine(text);
    EXPECT_EQ("a|b|c|-|-|-|-|-|-|-", Places());
    delete tooltip.Lines.Get(1);
    tooltip.Lines.Set(1, nullptr);
    tooltip.LineCount = 2;
    EXPECT_EQ(Drawn("a", 204) + Drawn("c", 214), DrawnLines());
    tooltip.AddLine("d");
    EXPECT_EQ("a|d|c|-|-|-|-|-|-|-", Places());
    EXPECT_EQ(3u, tooltip.LineCount);
}

TEST_F(TeskTooltipTest, TheArrayGrowsByTenPlaces)
{
    TeskTooltip& tooltip = MakeTooltip();
    for (u32 count = 1; count <= 21; ++count) {
        tooltip.AddLine("x");
        EXPECT_EQ((count + 9) / 10 * 10, tooltip.Lines.Size());
        EXPECT_EQ(count, tooltip.LineCount);
    }
}

TEST_F(TeskTooltipTest, ANullLineIsAnEmptyOne)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.AddLine(nullptr);
    EXPECT_EQ(1u, tooltip.LineCount);
    EXPECT_EQ("", tooltip.Lines.Get(0)->Text);
    EXPECT_EQ("", DrawnLines());
    EXPECT_EQ(18u, tooltip.Height);
    EXPECT_EQ(30u, tooltip.Width);
}

TEST_F(TeskTooltipTest, PrintMakesALineOfEachPiece)
{
    struct Row {
        const char* Text;
        const char* Places;
    };
    constexpr Row rows[] = {
        {"", "|-|-|-|-|-|-|-|-|-"},
        {"a", "a|-|-|-|-|-|-|-|-|-"},
        {"a\nb", "a|b|-|-|-|-|-|-|-|-"},
        {"a\n", "a||-|-|-|-|-|-|-|-"},
        {"\n\na", "||a|-|-|-|-|-|-|-"},
        {"a\r\nb", "a\r|b|-|-|-|-|-|-|-|-"},
    };
    TeskTooltip& tooltip = MakeTooltip();
    for (const Row& row : rows) {
        tooltip.Reset();
        tooltip.Print(row.Text);
        EXPECT_EQ(row.Places, Places());
    }
    tooltip.Reset();
    tooltip.Print(nullptr);
    EXPECT_EQ(0u, tooltip.LineCount);
}

TEST_F(TeskTooltipTest, ABreakAtTheEndAddsHeightAndNothingElse)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("one two");
    const std::string drawn = DrawnLines();
    const u32 height = tooltip.Height;
    const u32 width = tooltip.Width;
    tooltip.Reset();
    tooltip.Print("one two\n");
    EXPECT_EQ(drawn, DrawnLines());
    EXPECT_EQ(height + 10, tooltip.Height);
    EXPECT_EQ(width, tooltip.Width);
}

TEST_F(TeskTooltipTest, PrintTakesATextOfTheTooltipItself)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("a");
    tooltip.Lines.Get(0)->Set("b\nc");
    tooltip.Print(tooltip.Lines.Get(0)->Text.c_str());
    EXPECT_EQ("b\nc|b|c|-|-|-|-|-|-|-", Places());
}

TEST_F(TeskTooltipTest, PrintfFormatsAndCutsItsText)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Printf("%s is %d\nof %u%%", "%n", -1, 3u);
    EXPECT_EQ("%n is -1|of 3%|-|-|-|-|-|-|-|-", Places());
    for (const std::size_t length : {4094u, 4095u, 4096u, 100000u}) {
        tooltip.Reset();
        tooltip.Printf("%s", std::string(length, 'a').c_str());
        EXPECT_EQ(std::string(std::min<std::size_t>(length, 4095), 'a'), tooltip.Lines.Get(0)->Text);
    }
    const char* volatile nothing = nullptr;
    tooltip.Reset();
    tooltip.Printf(nothing, 1);
    EXPECT_EQ(0u, tooltip.LineCount);
}

TEST_F(TeskTooltipTest, ResetKeepsThePlacesAndPrintfFillsThemAgain)
{
    TeskTooltip& tooltip = MakeTooltip();
    for (int count = 0; count < 11; ++count)
        tooltip.AddLine("x");
    tooltip.Reset();
    EXPECT_EQ(0u, tooltip.LineCount);
    EXPECT_EQ("-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-", Places());
    EXPECT_EQ("", DrawnLines());
    EXPECT_EQ(8u, tooltip.Height);
    tooltip.Printf("%s\n%s", "a", "b");
    EXPECT_EQ("a|b|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-", Places());
    EXPECT_EQ(2u, tooltip.LineCount);
}

TEST_F(TeskTooltipTest, ShowOnlyReplacesWhatThereWas)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("a\nb\nc");
    tooltip.ShowOnly("100%s\nd");
    EXPECT_EQ("100%s|d|-|-|-|-|-|-|-|-", Places());
    tooltip.ShowOnly(nullptr);
    EXPECT_EQ("|-|-|-|-|-|-|-|-|-", Places());
}

TEST_F(TeskTooltipTest, StepsAwayFromAMouseThatReachesItAndLetsTheMoveFallThrough)
{
    Load("<frame name='Below'><Width>300</Width><Height>300</Height><OnMouseMove>below</OnMouseMove></frame>");
    MakeTooltip("<OnMouseMove>tip</OnMouseMove>");
    Frame();
    std::string heard;
    Host.Scripts["below"] = [&](TeskElement&) { heard += "below "; };
    Host.Scripts["tip"] = [&](TeskElement&) { heard += "tip "; };
    _Point2i point = {105, 205};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    EXPECT_EQ("below ", heard);
    EXPECT_FALSE(Tip().Visible);
}

TEST_F(TeskTooltipTest, OtherMouseEventsAreThoseOfAFrame)
{
    TeskTooltip& tooltip = MakeTooltip("<OnLeftClick>click</OnLeftClick>");
    int clicks = 0;
    Host.Scripts["click"] = [&](TeskElement&) { ++clicks; };
    _Point2i point = {105, 205};
    EXPECT_TRUE(tooltip.OnLMouseDown(point));
    EXPECT_TRUE(tooltip.OnLMouseUp(point));
    EXPECT_TRUE(tooltip.OnMouseWheel(120));
    EXPECT_EQ(1, clicks);
    EXPECT_TRUE(tooltip.Visible);
}

TEST_F(TeskTooltipTest, SequencesOfLinesAreEvaluatedInEveryFrame)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("plain\n${x}\n$\n${y}");
    int values = 0;
    Host.Recorded |= RecordSequences;
    Host.Expand = [&](const std::string& text) { return text == "${y}" ? "" : std::to_string(++values); };
    EXPECT_EQ(Drawn("plain", 204) + Drawn("1", 214) + Drawn("$", 224), DrawnLines());
    EXPECT_EQ(Drawn("plain", 204) + Drawn("2", 214) + Drawn("$", 224), DrawnLines());
}

TEST_F(TeskTooltipTest, ASequenceMayTakeAllLinesAway)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("one\n${x}\nthree");
    Host.Expand = [this](const std::string&) {
        Tip().Reset();
        return "the last";
    };
    EXPECT_EQ(Drawn("one", 204) + Drawn("the last", 214), DrawnLines());
    EXPECT_EQ("", DrawnLines());
    EXPECT_EQ(0u, tooltip.LineCount);
}

TEST_F(TeskTooltipTest, ASequenceMayReplaceTheLines)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("${x}\ntwo");
    Host.Expand = [this](const std::string&) {
        Tip().ShowOnly("a\nb\nc");
        return "first";
    };
    EXPECT_EQ(Drawn("first", 204) + Drawn("b", 214) + Drawn("c", 224), DrawnLines());
    EXPECT_EQ(Drawn("a", 204) + Drawn("b", 214) + Drawn("c", 224), DrawnLines());
}

TEST_F(TeskTooltipTest, ASequenceMayChangeItsOwnLine)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("${x}");
    Host.Expand = [this](const std::string& text) {
        Tip().Lines.Get(0)->Set("new");
        return text;
    };
    EXPECT_EQ(Drawn("${x}", 204), DrawnLines());
    EXPECT_EQ(Drawn("new", 204), DrawnLines());
}

TEST_F(TeskTooltipTest, ASequenceMayDeleteItsTooltip)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("one\n${x}\nthree");
    Host.Expand = [](const std::string&) {
        g_UIManager.Reset();
        return "two";
    };
    EXPECT_EQ(Drawn("one", 204), DrawnLines());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("T"));
}

TEST_F(TeskTooltipTest, LinesThatKeepAddingLinesDoNotHoldUpTheFrame)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("${x}");
    Host.Expand = [this](const std::string&) {
        Tip().AddLine("${x}");
        return "";
    };
    Frame();
    EXPECT_EQ(11u, tooltip.LineCount); // one for each place that there was
    Frame();
    EXPECT_EQ(118u, tooltip.Height);
}

TEST_F(TeskTooltipTest, ASequenceMayEvaluateAnotherTooltip)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("${x}");
    Load("<tooltip name='U'/>");
    Host.TakeCalls();
    As<TeskTooltip>("U").Print("${y}");
    Host.Expand = [this](const std::string& text) -> std::string {
        if (text == "${y}")
            return "the other's text";
        As<TeskTooltip>("U").Lines.Get(0)->Parse();
        return "own text";
    };
    EXPECT_EQ(Drawn("own text", 204), DrawnLines());
}

TEST_F(TeskTooltipTest, WithoutMarkupItHasNoFontAndDrawsItsPanelOnly)
{
    auto& tooltip = dynamic_cast<TeskTooltip&>(*g_UIManager.LoadElement(g_UIManager.Screen, "tooltip", "T"));
    EXPECT_TRUE(tooltip.Visible);
    tooltip.Print("one\ntwo");
    EXPECT_EQ("DrawRect (0,0,30,2) 00000000\n", Frame());
    EXPECT_EQ(30u, tooltip.Width);
}

TEST_F(TeskTooltipTest, BordersAtTheEndsOfTheirRangeWrap)
{
    TeskTooltip& tooltip = MakeTooltip();
    tooltip.Print("one\n${x}");
    tooltip.X = tooltip.Y = 0x7fffffff;
    for (const u32 border : {0x7fffffffu, 0x80000000u, 0xffffffffu}) {
        tooltip.Border = border;
        Frame();
        EXPECT_EQ(20u + 2 * border, tooltip.Height);
    }
}

TEST(TeskTooltipLine, KnowsWhetherItHasSequences)
{
    EXPECT_FALSE(TeskTooltipLine("a $ { b").HasData);
    EXPECT_TRUE(TeskTooltipLine("a ${ b").HasData);
    TeskTooltipLine line(static_cast<const char*>(nullptr));
    EXPECT_EQ("", line.Text);
    EXPECT_FALSE(line.HasData);
    EXPECT_STREQ("", line.Parse());
    line.Set("${x}");
    EXPECT_TRUE(line.HasData);
    line.Set(line.Text.c_str() + 1);
    EXPECT_EQ("{x}", line.Text);
    EXPECT_FALSE(line.HasData);
    EXPECT_EQ(line.Text.c_str(), line.Parse());
    line.Set("${x}");
    line.Set(nullptr);
    EXPECT_EQ("", line.Text);
    EXPECT_FALSE(line.HasData);
}

TEST_F(TeskTooltipTest, TheValueOfALineIsCutAndIsGoodUntilTheNextIsEvaluated)
{
    const TeskTooltipLine line("${x}");
    const std::string longText(5000, 'a');
    Host.Expand = [&](const std::string&) { return longText; };
    const char* first = line.Parse();
    EXPECT_EQ(std::string(2047, 'a'), first);
    Host.Expand = [](const std::string& text) { return text; };
    EXPECT_EQ(first, TeskTooltipLine("${y}").Parse());
    EXPECT_STREQ("${y}", first);
}

TEST_F(TeskTooltipTest, ALineReachesTheHostWhole)
{
    const std::string longText = "${" + std::string(5000, 'a') + "}";
    std::string asked;
    Host.Expand = [&](const std::string& text) {
        asked = text;
        return "one";
    };
    EXPECT_STREQ("one", TeskTooltipLine(longText.c_str()).Parse());
    EXPECT_EQ(longText, asked);
}
