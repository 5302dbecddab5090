#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ConsoleTest.h"

#include <algorithm>

class TeskConsoleTest : public ConsoleTest
{
};

TEST_F(TeskConsoleTest, MarkupWithoutValuesGivesEveryDefault)
{
    Load("<console name='C'><ScrollBar>bar</ScrollBar></console>");
    const TeskConsole& console = As<TeskConsole>("C");
    EXPECT_EQ(0u, console.BackgroundColor);
    EXPECT_EQ(0u, console.ScrollbackColor);
    EXPECT_EQ(0u, console.BorderColor);
    EXPECT_EQ(0u, console.SelectionColor);
    EXPECT_EQ(0u, console.Border);
    EXPECT_EQ(12, console.Font->Size);
    EXPECT_TRUE(console.Font->Fixed);
    EXPECT_EQ(nullptr, console.Texture);
    EXPECT_EQ(nullptr, console.ScrollbackTexture);
    EXPECT_EQ(100u, console.BackBufferSize);
    EXPECT_EQ(-1, console.ScrollLine);
    EXPECT_FALSE(console.Selecting);
    EXPECT_EQ(100u, console.ScrollBar->Range);
    EXPECT_EQ(0u, console.ScrollBar->GetValue());
    EXPECT_TRUE(Lines(console).empty());
}

TEST_F(TeskConsoleTest, MarkupGivesEveryValue)
{
    const TeskConsole& console = Place(10,
        "<BackgroundColor>1</BackgroundColor><ScrollbackColor>2</ScrollbackColor><BorderColor>3</BorderColor>"
        "<SelectionColor>4</SelectionColor><Border>5</Border><Texture Filename='#t'/>"
        "<ScrollbackTexture Filename='#s'/><BackBufferSize>345</BackBufferSize><ScrollBar>bar</ScrollBar>");
    EXPECT_EQ(1u, console.BackgroundColor);
    EXPECT_EQ(2u, console.ScrollbackColor);
    EXPECT_EQ(3u, console.BorderColor);
    EXPECT_EQ(4u, console.SelectionColor);
    EXPECT_EQ(5u, console.Border);
    EXPECT_EQ("#t", console.Texture->Filename);
    EXPECT_EQ("#s", console.ScrollbackTexture->Filename);
    EXPECT_EQ(345u, console.BackBufferSize);
    EXPECT_EQ(345, console.Lines.Size());
    EXPECT_EQ(345u, console.ScrollBar->Range);
}

TEST_F(TeskConsoleTest, ItsOwnTemplateIsUsedWithoutAnother)
{
    g_UIManager.AddTemplate("console", "<Template><BackgroundColor>7</BackgroundColor></Template>");
    g_UIManager.AddTemplate("other", "<Template><BackgroundColor>8</BackgroundColor></Template>");
    Load("<console name='a'><ScrollBar>bar</ScrollBar></console>"
         "<console name='b' Template='other'><ScrollBar>bar</ScrollBar></console>");
    EXPECT_EQ(7u, As<TeskConsole>("a").BackgroundColor);
    EXPECT_EQ(8u, As<TeskConsole>("b").BackgroundColor);
}

TEST_F(TeskConsoleTest, TheBackBufferHasAtLeastAHundredLines)
{
    constexpr struct {
        const char* Text;
        u32 Size;
    } rows[] = {{"0", 100}, {"50", 100}, {"99", 100}, {"100", 100}, {"101", 101}, {"4294967295", 0xffffffffu}};
    for (const auto& row : rows) {
        const std::string markup = std::string("<BackBufferSize>") + row.Text + "</BackBufferSize>" + Usual;
        TeskConsole& console = Place(10, markup);
        EXPECT_EQ(row.Size, console.BackBufferSize) << row.Text;
        EXPECT_EQ(row.Size, console.ScrollBar->Range);
        PrintLines(console, 150);
        EXPECT_EQ(std::min<std::size_t>(row.Size, 150), Lines(console).size());
        EXPECT_EQ("149", Lines(console).back());
        g_UIManager.Reset();
    }
}

TEST_F(TeskConsoleTest, AConsoleWithoutAScrollBarIsAFailedLoad)
{
    Load("<console name='C'/><frame name='F'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("F"));
}

TEST_F(TeskConsoleTest, AScrollBarFromATemplateStandsAtTheFarEdge)
{
    const TeskConsole& console = Place(10);
    const TeskScrollBar& bar = *console.ScrollBar;
    EXPECT_EQ("vertical", bar.Name);
    EXPECT_EQ("scrollbar", bar.Type);
    EXPECT_TRUE(bar.Vertical);
    EXPECT_TRUE(bar.Visible);
    EXPECT_EQ(16u, bar.Width);
    EXPECT_EQ(60, bar.X);
    EXPECT_EQ(100u, bar.Height);
    EXPECT_EQ(100u, bar.Slider->Height);
    EXPECT_EQ(100u, bar.Slider->Range);
}

TEST_F(TeskConsoleTest, TheScrollBarMayBeAnElementOfItsOwn)
{
    const TeskConsole& console =
        Place(10, "<ScrollBar><Width>9</Width><Slider><Width>9</Width><Height>100%</Height></Slider></ScrollBar>");
    EXPECT_EQ("vertical", console.ScrollBar->Name);
    EXPECT_EQ(9u, console.ScrollBar->Width);
    EXPECT_EQ(67, console.ScrollBar->X);
    EXPECT_EQ(100u, console.ScrollBar->Height);
    EXPECT_EQ(100u, console.ScrollBar->Slider->Height);
    EXPECT_EQ(100u, console.ScrollBar->Range);
}

TEST_F(TeskConsoleTest, ANewSizeCountsTheRowsAndKeepsTheScrollBarInsideTheBorder)
{
    for (const char* bar : {"<ScrollBar>bar</ScrollBar>",
             "<ScrollBar><Width>16</Width><Height>100%</Height><Slider><Height>100%</Height></Slider></ScrollBar>"}) {
        Load(std::string("<frame name='F'><Width>400</Width><Height>300</Height><Children><console name='C'>"
                         "<Width>100%</Width><Height>100%</Height><Border>2</Border><Font><Size>9</Size></Font>")
            + bar + "</console></Children></frame>");
        TeskElement& frame = Element("F");
        const TeskConsole& console = As<TeskConsole>("C@F");
        for (const u32 size : {300u, 250u, 500u}) {
            frame.Width = frame.Height = size;
            frame.RecalculateChildrenSize();
            EXPECT_EQ(static_cast<i32>((size - 4) / 10), console.VisibleLines);
            EXPECT_EQ(static_cast<i32>(size - 18), console.ScrollBar->X);
            EXPECT_EQ(size - 4, console.ScrollBar->Height);
            EXPECT_EQ(size - 4, console.ScrollBar->Slider->Height);
        }
        g_UIManager.Reset();
    }
}

TEST_F(TeskConsoleTest, APaneWithoutHeightInsideItsBorderHasNoRows)
{
    TeskConsole& console = Place(10);
    constexpr struct {
        u32 Height;
        u32 Border;
        i32 Rows;
    } rows[] = {
        {100, 0, 10}, {109, 0, 10}, {110, 0, 11}, {9, 0, 0}, {20, 10, 0}, {20, 11, 0}, {24, 2, 2}, {0xffffffffu, 0, 0}};
    for (const auto& row : rows) {
        console.Height = row.Height;
        console.Border = row.Border;
        console.SizeRecalculated(true);
        EXPECT_EQ(row.Rows, console.VisibleLines) << row.Height << ' ' << row.Border;
    }
}

TEST_F(TeskConsoleTest, AnotherFontCountsTheRowsAnew)
{
    TeskConsole& console = Place(10);
    console.Font->SetHeight(19);
    EXPECT_EQ(5, console.VisibleLines);
    for (const auto& [size, taken, rows] : {std::tuple{0u, 8, 11}, {7u, 8, 11}, {24u, 24, 4}, {97u, 96, 1}}) {
        console.SetFontSize(size);
        EXPECT_EQ(taken, console.Font->Size);
        EXPECT_EQ(rows, console.VisibleLines);
    }
    console.SetFontSize(0xffffffffu);
    EXPECT_EQ(96, console.Font->Size);
}

TEST_F(TeskConsoleTest, KnowsTheWordsOfItsKind)
{
    TeskConsole& console = Place(10);
    EXPECT_TRUE(console.IsTypeOf("CONSOLE"));
    EXPECT_TRUE(console.IsTypeOf("teskelement"));
    EXPECT_FALSE(console.IsTypeOf("frame"));
    EXPECT_FALSE(console.IsTypeOf(nullptr));
}

TEST_F(TeskConsoleTest, PrintingBreaksLinesAtTheWidthOfThePane)
{
    TeskConsole& console = Place(5);
    console.Print("abc def");
    console.Print("abcdefgh\n");
    console.Print("");
    console.Print(nullptr);
    console.Print("a\n\nb");
    EXPECT_EQ((Strings{"abc", "def", "abcde", "fgh", "a", "", "b"}), Lines(console));
}

TEST_F(TeskConsoleTest, PartsOfACharacterMakeNoColumn)
{
    TeskConsole& console = Place(5);
    console.Width += 5;
    console.Print("abcdef");
    EXPECT_EQ((Strings{"abcde", "f"}), Lines(console));
    console.Width = 16 + 5;
    console.Print("lost");
    EXPECT_EQ((Strings{"abcde", "f"}), Lines(console));
}

// The width wraps, so nothing is broken but by the length of a line.
TEST_F(TeskConsoleTest, APaneThatIsNarrowerThanItsScrollBarBreaksNothing)
{
    TeskConsole& console = Place(5);
    console.Width = 15;
    console.Print(std::string(3000, 'x').c_str());
    EXPECT_EQ((Strings{std::string(2047, 'x')}), Lines(console));
}

TEST_F(TeskConsoleTest, AFontWhoseWidthIsUnknownCountsAs12)
{
    TeskConsole& console = Place(10);
    Host.RefusesMeasures = true;
    console.Print("abcdef");
    EXPECT_EQ((Strings{"abcde", "f"}), Lines(console));
}

TEST_F(TeskConsoleTest, PrintfCutsWhatIsLongerThanItsBuffer)
{
    TeskConsole& console = Place(100);
    console.Printf("%s and %d", "text", 12);
    EXPECT_EQ((Strings{"text and 12"}), Lines(console));
    for (const std::size_t length : {4094u, 4095u, 4096u, 5000u}) {
        console.Clear();
        console.Printf("%s", std::string(length, 'x').c_str());
        ASSERT_EQ(41u, Lines(console).size());
        EXPECT_EQ(std::min<std::size_t>(length, 4095) - 4000, Lines(console).back().size());
    }
}

TEST_F(TeskConsoleTest, ClearingLeavesTheViewAndTheScrollBar)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 30);
    console.ScrollBar->SetValue(5);
    console.Clear();
    EXPECT_TRUE(Lines(console).empty());
    EXPECT_EQ(24, console.ScrollLine);
    EXPECT_EQ(5u, console.ScrollBar->GetValue());
    EXPECT_EQ(-1, console.Lines.Newest());
}

TEST_F(TeskConsoleTest, TheRingWrapsAtItsSize)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 103);
    EXPECT_EQ(2, console.Lines.Newest());
    EXPECT_EQ(100u, Lines(console).size());
    EXPECT_EQ("3", Lines(console).front());
    EXPECT_EQ("102", Lines(console).back());
}

TEST_F(TeskConsoleTest, AConsoleMadeWithoutMarkupDoesNothing)
{
    auto& console = dynamic_cast<TeskConsole&>(*g_UIManager.LoadElement(g_UIManager.Screen, "console", "C"));
    EXPECT_EQ(500u, console.BackBufferSize);
    console.Width = console.Height = 100;
    console.Print("text");
    console.SplitFixed("more text", 4);
    EXPECT_EQ((Strings{"more", "text"}), Lines(console));
    console.SetFontSize(10);
    console.HandlePageUp();
    console.HandlePageDown();
    console.HandleUp();
    console.HandleDown();
    console.SizeRecalculated(true);
    console.OnNotify(nullptr, NotifyFontChanged, 0);
    console.OnNotify(nullptr, NotifyValueChanged, 4);
    EXPECT_TRUE(console.OnMouseWheel(120));
    _Point2i point = {1, 2};
    EXPECT_TRUE(console.OnLMouseDown(point));
    point = {50, 50};
    EXPECT_TRUE(console.OnMouseMove(point));
    EXPECT_TRUE(console.OnLMouseUp(point));
    Frame();
    console.Clear();
}

TEST_F(TeskConsoleTest, ItLivesOnWithoutItsScrollBar)
{
    TeskConsole& console = Place(5);
    console.DeleteChild(console.ScrollBar);
    EXPECT_EQ(nullptr, console.ScrollBar);
    console.Print("abcdefghi"); // the bar's place is free now
    EXPECT_EQ((Strings{"abcdefg", "hi"}), Lines(console));
    console.HandlePageUp();
    EXPECT_TRUE(console.OnMouseWheel(120));
    EXPECT_EQ(-1, console.ScrollLine);
    Frame();
}

namespace {

// A kind of its own that keeps lines to itself and ends at one of them.
class EndingConsole : public TeskConsole
{
public:
    using TeskConsole::TeskConsole;

    void AddLineInternal(const char* text) override
    {
        s_Lines.emplace_back(text);
        if (s_Lines.back() == "end")
            Parent->DeleteChild(this);
    }

    static inline std::vector<std::string> s_Lines;
};

} // namespace

TEST_F(TeskConsoleTest, AKindOfItsOwnMayTakeTheLinesAndEndByOne)
{
    const TeskFactory<EndingConsole> factory("ending");
    auto* console = g_UIManager.LoadElement(g_UIManager.Screen, "ending", "E");
    EndingConsole::s_Lines.clear();
    dynamic_cast<TeskConsole&>(*console).SplitFixed("one\ntwo\nend\nmore", 10);
    EXPECT_EQ((Strings{"one", "two", "end"}), EndingConsole::s_Lines);
    EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
}
