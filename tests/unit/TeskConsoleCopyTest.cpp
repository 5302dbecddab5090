#include "tests/unit/ConsoleTest.h"

#include <algorithm>
#include <optional>

namespace {

// A system with a clipboard.
class ClipboardPlatform : public TestPlatform
{
public:
    bool EmptyClipboard() override
    {
        Text.reset();
        return !Refuses;
    }
    bool SetClipboardText(const std::string& text) override
    {
        if (!Refuses)
            Text = text;
        return !Refuses;
    }
    void CloseClipboard() override { ++Closings; }

    std::optional<std::string> Text = "before";
    bool Refuses = false;
    int Closings = 0;
};

// A host that lets the clipboard be opened, and may do anything at a printed line.
class CopyingHost : public TestHost
{
public:
    bool OpenClipboard() override { return Opens; }
    void PrintLine(const char* format, ...) override
    {
        std::va_list arguments;
        va_start(arguments, format);
        char line[200];
        std::vsnprintf(line, sizeof(line), format, arguments);
        va_end(arguments);
        Printed.emplace_back(line);
        if (OnPrint)
            OnPrint();
    }

    bool Opens = true;
    std::vector<std::string> Printed;
    std::function<void()> OnPrint;
};

} // namespace

class TeskConsoleCopyTest : public ConsoleTest
{
protected:
    TeskConsoleCopyTest() { SetPlatform(&Clipboard); }
    ~TeskConsoleCopyTest() override { SetPlatform(&System); }

    // Selects from one character of the pane to before another one.
    void Select(TeskConsole& console, i32 firstColumn, i32 firstRow, i32 column, i32 row)
    {
        Drag(console, {103 + firstColumn * 6, 202 + firstRow * 10}, {103 + column * 6, 202 + row * 10});
    }

    void Drag(TeskConsole& console, _Point2i from, _Point2i to)
    {
        F1(&Copier);
        console.OnLMouseDown(from);
        console.OnMouseMove(to);
        console.OnLMouseUp(to);
        F1(&Host);
    }

    std::string Copied() const { return Clipboard.Text.value_or("(none)"); }

    CopyingHost Copier;
    ClipboardPlatform Clipboard;
};

TEST_F(TeskConsoleCopyTest, ABlockOfTheNewestLinesIsCopied)
{
    TeskConsole& console = Place(10);
    for (int line = 10; line < 60; ++line)
        console.Printf("%d abcdef\n", line);
    Select(console, 1, 2, 5, 5);
    EXPECT_EQ("2 ab\r\n3 ab\r\n4 ab", Copied());
    EXPECT_EQ(1, Clipboard.Closings);
    EXPECT_TRUE(Copier.Printed.empty());
    EXPECT_FALSE(console.Selecting);
}

TEST_F(TeskConsoleCopyTest, ABlockOfOlderLinesIsCopied)
{
    TeskConsole& console = Place(10);
    for (int line = 10; line < 60; ++line)
        console.Printf("%d\n", line);
    console.ScrollBar->SetValue(30);
    Select(console, 0, 0, 2, 2);
    EXPECT_EQ("20\r\n21", Copied());
}

TEST_F(TeskConsoleCopyTest, ASelectionMayBeDrawnBackwards)
{
    TeskConsole& console = Place(10);
    for (int line = 10; line < 60; ++line)
        console.Printf("%d abcdef\n", line);
    Select(console, 5, 5, 1, 2);
    EXPECT_EQ("2 ab\r\n3 ab\r\n4 ab", Copied());
}

TEST_F(TeskConsoleCopyTest, AClickCopiesNothing)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 50);
    Select(console, 1, 2, 1, 2);
    Select(console, 1, 2, 3, 2);
    Select(console, 1, 2, 1, 4);
    EXPECT_EQ("before", Copied());
    EXPECT_EQ(0, Clipboard.Closings);
}

TEST_F(TeskConsoleCopyTest, ColorCodesAreLeftOutAndCountNoColumns)
{
    TeskConsole& console = Place(20);
    PrintLines(console, 49);
    console.Print("ab\arcd\a#112233ef\ax");
    Select(console, 1, 9, 5, 10);
    EXPECT_EQ("bcde", Copied());
}

TEST_F(TeskConsoleCopyTest, ShortLinesAddTheirLineBreak)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 40);
    console.Print("x\nlonger\nx\n\nlonger\nx");
    Select(console, 2, 4, 9, 10);
    EXPECT_EQ("nger\r\n\r\n\r\nnger\r\n", Copied());
}

TEST_F(TeskConsoleCopyTest, RowsWithoutALineAddNothing)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 3);
    console.Lines.SetSize(13); // the seam lies above the pane's rows
    PrintLines(console, 12);
    console.ScrollLine = 12;
    Select(console, 0, 7, 2, 10);
    EXPECT_EQ("10\r\n11", Copied());
}

TEST_F(TeskConsoleCopyTest, AcrossTheSeamTheFirstSlotIsLostAndALineTellsOfIt)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 104); // 4 lines behind the seam
    Select(console, 0, 4, 3, 9);
    EXPECT_EQ("98\r\n99\r\n\r\n101\r\n102", Copied());
    EXPECT_EQ((Strings{"Bad nLine 100"}), Copier.Printed);
}

TEST_F(TeskConsoleCopyTest, TheFirstLinesOfANewConsoleLieBehindTheSeam)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 3);
    Select(console, 0, 0, 2, 10);
    EXPECT_EQ("1\r\n2", Copied());
    EXPECT_EQ((Strings{"Bad nLine 100"}), Copier.Printed);
}

TEST_F(TeskConsoleCopyTest, AnEmptyConsoleEmptiesTheClipboard)
{
    Select(Place(10), 0, 2, 2, 8);
    EXPECT_EQ("", Copied());
}

TEST_F(TeskConsoleCopyTest, FromTheVeryEdgeTheFirstColumnIsThePlaceOnTheScreen)
{
    TeskConsole& console = Place(40, std::string("<Border>2</Border>") + Usual);
    for (int line = 0; line < 50; ++line)
        console.Print("0123456789abcdefghijklmnopqrst");
    Drag(console, {101, 224}, {225, 234}); // columns 17 to 20
    EXPECT_EQ("hij", Copied());
}

TEST_F(TeskConsoleCopyTest, AHostThatRefusesTheClipboardLeavesItAlone)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 50);
    Copier.Opens = false;
    Select(console, 0, 2, 2, 8);
    EXPECT_EQ("before", Copied());
    EXPECT_EQ(0, Clipboard.Closings);
}

TEST_F(TeskConsoleCopyTest, ASystemThatRefusesTheTextStillClosesTheClipboard)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 50);
    Clipboard.Refuses = true;
    Select(console, 0, 2, 2, 8);
    EXPECT_EQ("(none)", Copied());
    EXPECT_EQ(1, Clipboard.Closings);
}

TEST_F(TeskConsoleCopyTest, TheHostMayPrintIntoTheConsoleThatIsCopied)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 105);
    Copier.OnPrint = [&] { console.Printf("%s\n", Copier.Printed.back().c_str()); };
    Select(console, 0, 3, 3, 10);
    EXPECT_EQ("98\r\n99\r\n\r\n101\r\n102\r\n103\r\n104", Copied());
    EXPECT_EQ("Bad nLine", Lines(console)[98]);
    EXPECT_EQ("100", Lines(console)[99]);
}

TEST_F(TeskConsoleCopyTest, TheHostMayClearTheConsoleThatIsCopied)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 105);
    Copier.OnPrint = [&] { console.Clear(); };
    Select(console, 0, 3, 3, 10);
    EXPECT_EQ("98\r\n99\r\n", Copied());
}

TEST_F(TeskConsoleCopyTest, AConsoleThatEndsInTheMiddleCopiesNothing)
{
    TeskConsole& console = Place(10, std::string("<OnLeftClick>click</OnLeftClick>") + Usual);
    PrintLines(console, 105);
    Copier.Scripts["click"] = [](TeskElement&) { ADD_FAILURE() << "the console was gone"; };
    Copier.OnPrint = [] { g_UIManager.Reset(); };
    Select(console, 0, 3, 3, 10);
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
    EXPECT_EQ("before", Copied());
}

TEST_F(TeskConsoleCopyTest, LongLinesAreCutAtTheirBuffer)
{
    TeskConsole& console = Place(10);
    PrintLines(console, 49);
    console.Width = 60000;
    for (const std::size_t length : {4094u, 4095u, 4096u, 5000u}) {
        console.Lines.Add(std::string(length, 'x'));
        Select(console, 0, 9, 9000, 10);
        EXPECT_EQ(std::min<std::size_t>(length, 4095), Copied().size());
    }
}
