#include "tests/unit/ConsoleTest.h"

class TeskConsoleDrawingTest : public ConsoleTest
{
protected:
    // What a console of ten characters looks like whose bar draws nothing.
    TeskConsole& PlaceBare(const std::string& markup = {})
    {
        return Place(10, markup + "<ScrollBar><Width>16</Width></ScrollBar>");
    }

    static std::string Row(const std::string& text, int row, int left = 103, const char* color = "ffffffff")
    {
        return "DrawText \"" + text + "\" (" + std::to_string(left) + "," + std::to_string(202 + row * 10)
            + ",163,600) " + color + " format=32 font 1\n";
    }

    static constexpr char Live[] = "DrawRect (100,200,160,300) ff000001\n";
    static constexpr char Scrolled[] = "DrawRect (100,200,160,300) ff000002\n";
    static constexpr char Colors[] = "<BackgroundColor>ff000001</BackgroundColor>"
                                     "<ScrollbackColor>ff000002</ScrollbackColor>";
};

TEST_F(TeskConsoleDrawingTest, AnEmptyConsoleDrawsNoLines)
{
    PlaceBare(Colors);
    EXPECT_EQ(Live, Frame());
}

TEST_F(TeskConsoleDrawingTest, LinesStandOnTheLowestRows)
{
    TeskConsole& console = PlaceBare(Colors);
    PrintLines(console, 3);
    EXPECT_EQ(Live + Row("0", 7) + Row("1", 8) + Row("2", 9), Frame());
}

TEST_F(TeskConsoleDrawingTest, TheNewestLinesFillThePane)
{
    TeskConsole& console = PlaceBare(Colors);
    PrintLines(console, 105);
    std::string expected = Live;
    for (int row = 0; row < 10; ++row)
        expected += Row(std::to_string(95 + row), row);
    EXPECT_EQ(expected, Frame());
}

TEST_F(TeskConsoleDrawingTest, AnEmptyLineUsesItsRow)
{
    TeskConsole& console = PlaceBare(Colors);
    console.Print("a\n\nb");
    EXPECT_EQ(Live + Row("a", 7) + Row("b", 9), Frame());
}

TEST_F(TeskConsoleDrawingTest, ABorderDoesNotMoveTheText)
{
    TeskConsole& console = PlaceBare(std::string(Colors) + "<Border>4</Border><BorderColor>ff0000ff</BorderColor>");
    console.VisibleLines = 10;
    console.Print("x");
    const std::string drawn = Frame();
    EXPECT_NE(std::string::npos, drawn.find(Row("x", 9)));
    EXPECT_NE(std::string::npos, drawn.find("ff0000ff"));
}

TEST_F(TeskConsoleDrawingTest, ColorCodesColorThePiecesOfALine)
{
    TeskConsole& console = PlaceBare(Colors);
    console.Print("a\arbc\ax d");
    EXPECT_EQ(Live + Row("a", 9) + Row("bc", 9, 109, "ffff0000") + Row(" d", 9, 121), Frame());
}

TEST_F(TeskConsoleDrawingTest, ColorCodesMayBeCutAnywhere)
{
    const std::string text = "a\ar\a-r\a#112233\ax\a";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        TeskConsole& console = PlaceBare(Colors);
        console.Width = 500;
        console.Print(text.substr(0, length).c_str());
        Frame();
        g_UIManager.Reset();
    }
}

TEST_F(TeskConsoleDrawingTest, OlderLinesHaveTheirOwnBackground)
{
    TeskConsole& console = PlaceBare(Colors);
    PrintLines(console, 20);
    console.ScrollLine = 2;
    EXPECT_EQ(Scrolled + Row("0", 7) + Row("1", 8) + Row("2", 9), Frame());
}

TEST_F(TeskConsoleDrawingTest, TheTextureIsDrawnBehindOlderLinesOnly)
{
    TeskConsole& console = PlaceBare(std::string(Colors) + "<Texture Filename='#t'/>");
    EXPECT_EQ(Live, Frame());
    console.ScrollLine = 0;
    const std::string drawn = Frame();
    EXPECT_EQ(0u, drawn.find("DrawTexturedRect texture 1 to=(100,200,160,300)")) << drawn;
}

TEST_F(TeskConsoleDrawingTest, TheScrollbackTextureComesBeforeTheTexture)
{
    TeskConsole& console = PlaceBare("<Border>2</Border><BorderColor>ff0000ff</BorderColor><Texture Filename='#t'/>"
                                     "<ScrollbackTexture Filename='#s'/>");
    console.ScrollLine = 0;
    const std::string drawn = Frame();
    EXPECT_NE(0u, console.ScrollbackTexture->TextureID);
    EXPECT_EQ(0u, console.Texture->TextureID);
    EXPECT_NE(std::string::npos, drawn.find("ff0000ff")) << drawn;
    console.ScrollbackTexture->Border = 3;
    EXPECT_EQ(std::string::npos, Frame().find("ff0000ff"));
}

TEST_F(TeskConsoleDrawingTest, TheSelectionLiesUnderTheText)
{
    TeskConsole& console = PlaceBare(Colors);
    console.Print("x");
    console.SelectionColor = 0xff00ff00;
    console.Selection = {103, 202, 109, 212};
    EXPECT_EQ(Live + Row("x", 9), Frame());
    console.Selecting = true;
    EXPECT_EQ(std::string(Live) + "DrawRect (103,202,109,212) ff00ff00\n" + Row("x", 9), Frame());
}

TEST_F(TeskConsoleDrawingTest, SlotsBeyondTheRingDrawNothing)
{
    TeskConsole& console = PlaceBare(Colors);
    PrintLines(console, 3);
    console.ScrollLine = 100;
    EXPECT_EQ(Scrolled, Frame());
    console.ScrollLine = 99;
    EXPECT_EQ(Scrolled, Frame());
    console.ScrollLine = -1;
    console.VisibleLines = 0;
    EXPECT_EQ(Live, Frame());
    console.VisibleLines = -1;
    EXPECT_EQ(Live, Frame());
}

TEST_F(TeskConsoleDrawingTest, APaneOfBillionsOfRowsIsDrawnAtOnce)
{
    TeskConsole& console = PlaceBare("<BackBufferSize>4294967295</BackBufferSize>" + std::string(Colors));
    PrintLines(console, 2);
    console.VisibleLines = 0x7fffffff;
    const std::string drawn = Frame();
    EXPECT_NE(std::string::npos, drawn.find("\"0\""));
    EXPECT_NE(std::string::npos, drawn.find("\"1\""));
}

namespace {

// A host that prints while it draws, and reads the text afterwards.
class PrintingHost : public TestHost
{
public:
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) override
    {
        if (Console)
            Console->Print("0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n");
        return TestHost::DrawText(font, text, box, color, format);
    }

    TeskConsole* Console = nullptr;
};

} // namespace

TEST_F(TeskConsoleDrawingTest, TheHostMayPrintWhileItDraws)
{
    PrintingHost host;
    TeskConsole& console = PlaceBare();
    PrintLines(console, 100);
    host.Console = &console;
    F1(&host);
    g_UIManager.Render();
    const std::string drawn = host.TakeCalls();
    EXPECT_NE(std::string::npos, drawn.find(Row("90", 0))) << drawn;
    F1(&Host);
}
