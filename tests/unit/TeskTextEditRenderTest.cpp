// How a text edit is drawn: 79 by 52 pixels at 10, 50, its text from 13, 53 to 73, rows 12 high, every byte 6 wide.

#include "tests/unit/Allocations.h"
#include "tests/unit/TextEditTest.h"

namespace {

constexpr char Background[] = "DrawRect (10,50,89,102) 00000000\n";

class TeskTextEditRenderTest : public TextEditTest
{
protected:
    static std::string Words(const std::string& text, int row, int left = 13, int right = 73)
    {
        return "DrawText \"" + text + "\" (" + std::to_string(left) + "," + std::to_string(53 + row * 12) + ","
            + std::to_string(right) + ",600) ffffffff format=32 font 1\n";
    }

    static std::string Rect(int left, int top, int right, int bottom, const char* color)
    {
        return "DrawRect (" + std::to_string(left) + "," + std::to_string(top) + "," + std::to_string(right) + ","
            + std::to_string(bottom) + ") " + color + "\n";
    }

    static std::string Selected(int row, int from, int to)
    {
        return Rect(13 + from * 6, 53 + row * 12, 13 + to * 6, 63 + row * 12, "ff0000cc");
    }

    // The caret in insert mode; its border is drawn first.
    static std::string Caret(
        int row, int column, int width = 6, const char* inner = "ff0000bb", const char* outer = "ff0000aa")
    {
        const int left = 13 + column * 6;
        const int right = left + width;
        const int top = 53 + row * 12;
        return Rect(left, top, right, top + 1, outer) + Rect(left, top + 1, left + 1, top + 9, outer)
            + Rect(right - 1, top + 1, right, top + 9, outer) + Rect(left, top + 9, right, top + 10, outer)
            + Rect(left + 1, top + 1, right - 1, top + 9, inner);
    }
};

} // namespace

TEST_F(TeskTextEditRenderTest, RowsThatFitAreDrawnUpToTheScrollBar)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird\nfourth");
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(Background + Words("first", 0) + Words("second", 1) + Words("third", 2), Frame());
    EXPECT_EQ(3u, edit.View.DrawnRows);
    EXPECT_EQ(4u, edit.View.VisibleRows);
    EXPECT_EQ(10u, edit.View.VisibleColumns);
    EXPECT_EQ("2:0", At(edit.View.ViewBottom));
}

TEST_F(TeskTextEditRenderTest, EmptyLinesTakeARow)
{
    TeskTextEdit& edit = Show("first\n\nthird");
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(Background + Words("first", 0) + Words("third", 2), Frame());
    EXPECT_EQ("2:0", At(edit.View.ViewBottom));
}

TEST_F(TeskTextEditRenderTest, TheCaretLiesUnderTheText)
{
    TeskTextEdit& edit = Show("first\nsecond");
    PutCaret(edit, 1, 2);
    EXPECT_EQ(Background + Words("first", 0) + Caret(1, 2) + Words("second", 1), Frame());
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(Background + Words("first", 0) + Words("second", 1), Frame());
}

TEST_F(TeskTextEditRenderTest, OverwritingExchangesTheColoursOfTheCaret)
{
    TeskTextEdit& edit = Show();
    EXPECT_EQ(Background + Caret(0, 0), Frame());
    edit.InsertMode = false;
    EXPECT_EQ(Background + Caret(0, 0, 6, "ff0000aa", "ff0000bb"), Frame());
}

TEST_F(TeskTextEditRenderTest, TheCaretIsAsWideAsTheByteUnderIt)
{
    Host.Widths['W'] = 10;
    TeskTextEdit& edit = Show("aWa");
    edit.View.Caret.Column = 1;
    EXPECT_EQ(Background + Caret(0, 1, 10) + Words("aWa", 0), Frame());
}

TEST_F(TeskTextEditRenderTest, AtTheEndOfALineTheCaretIsAsWideAsASpaceAndHeldThere)
{
    TeskTextEdit& edit = Show("abc");
    edit.View.Caret.Column = 9;
    EXPECT_EQ(Background + Caret(0, 3) + Words("abc", 0), Frame());
    EXPECT_EQ("0:3", CaretOf(edit));
}

TEST_F(TeskTextEditRenderTest, TheSelectionLiesUnderCaretAndText)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    PutCaret(edit, 0, 2);
    g_UIManager.ShiftDown = true;
    edit.HandleDown(2);
    EXPECT_EQ(Background + Selected(0, 2, 5) + Words("first", 0) + Selected(1, 0, 6) + Words("second", 1)
            + Selected(2, 0, 2) + Caret(2, 2) + Words("third", 2),
        Frame());
}

TEST_F(TeskTextEditRenderTest, AnEmptyLineThatIsTouchedShowsASpace)
{
    TeskTextEdit& edit = Show("ab\n\nc");
    g_UIManager.SetFocusElement(nullptr);
    edit.Selection.SelectionStart = TextEditPos{edit.Lines.First(), 1};
    edit.Selection.SelectionEnd = TextEditPos{edit.Lines.First()->Next, 0};
    EXPECT_EQ(Background + Selected(0, 1, 2) + Words("ab", 0) + Selected(1, 0, 1) + Words("c", 2), Frame());
}

TEST_F(TeskTextEditRenderTest, AScrolledViewBeginsAtItsFirstColumn)
{
    TeskTextEdit& edit = Show("0123456789abcdef\nab\n0123456789");
    Press(edit, KeyEnd);
    EXPECT_EQ(7u, edit.View.ViewTop.Column);
    EXPECT_EQ(Background + Caret(0, 9) + Words("789abcdef", 0) + Words("789", 2), Frame());
}

TEST_F(TeskTextEditRenderTest, ASelectionIsCutAtBothEdgesOfTheView)
{
    TeskTextEdit& edit = Show("0123456789abcdefghij");
    g_UIManager.SetFocusElement(nullptr);
    edit.Selection.SelectionStart = TextEditPos{edit.Lines.First(), 2};
    edit.Selection.SelectionEnd = TextEditPos{edit.Lines.First(), 18};
    edit.View.ViewTop.Column = 5;
    EXPECT_EQ(Background + Selected(0, 0, 10) + Words("56789abcdefghij", 0), Frame());
    edit.Selection.SelectionStart.Column = 15;
    EXPECT_EQ(Background + Words("56789abcdefghij", 0), Frame()) << "it begins behind the right edge";
}

TEST_F(TeskTextEditRenderTest, ALineThatIsScrolledAwayShowsNoText)
{
    TeskTextEdit& edit = Show("ab");
    g_UIManager.SetFocusElement(nullptr);
    edit.View.ViewTop.Column = 3;
    EXPECT_EQ(Background, Frame());
    g_UIManager.SetFocusElement(&edit);
    edit.View.Caret.Column = 2;
    EXPECT_EQ(Background + Caret(0, 0), Frame());
}

TEST_F(TeskTextEditRenderTest, TheBorderMovesTheTextIn)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird\nfourth", "<Border>2</Border><BorderColor>ff000033</BorderColor>");
    g_UIManager.SetFocusElement(nullptr);
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("DrawText \"first\" (15,55,71,600)")) << frame;
    EXPECT_NE(std::string::npos, frame.find("DrawText \"second\" (15,67,71,600)")) << frame;
    EXPECT_EQ(3u, edit.View.DrawnRows);
    EXPECT_EQ(4u, edit.View.VisibleRows);
    EXPECT_EQ(9u, edit.View.VisibleColumns);
}

TEST_F(TeskTextEditRenderTest, WithoutARowTheViewEndsAboveItsFirstLine)
{
    TeskTextEdit& edit = Show("0\n1\n2");
    edit.View.ViewTop.Line = edit.Lines.Last();
    edit.Height = 10;
    Frame();
    EXPECT_EQ(0u, edit.View.DrawnRows);
    EXPECT_EQ(0u, edit.View.VisibleRows);
    EXPECT_EQ("1:0", At(edit.View.ViewBottom));
    edit.View.ViewTop.Line = edit.Lines.First();
    Frame();
    EXPECT_EQ("0:0", At(edit.View.ViewBottom));
}

TEST_F(TeskTextEditRenderTest, ABorderThatLeavesNoRoomLeavesNoRowsAndColumns)
{
    TeskTextEdit& edit = Show("0\n1\n2");
    for (const u32 border : {40u, 1000u, 0x7fffffffu, 0xffffffffu}) {
        edit.Border = border;
        Frame();
        EXPECT_EQ(0u, edit.View.VisibleRows) << border;
        EXPECT_EQ(0u, edit.View.VisibleColumns) << border;
        _Point2i point = {13, 53};
        edit.OnLMouseDown(point);
    }
}

TEST_F(TeskTextEditRenderTest, AFontWithoutWidthCountsASpaceAsTwelve)
{
    Host.Widths[' '] = 0;
    const TeskTextEdit& edit = Show("ab");
    Frame();
    EXPECT_EQ(5u, edit.View.VisibleColumns);
}

TEST_F(TeskTextEditRenderTest, OpacityIsInAllColours)
{
    TeskTextEdit& edit = Show("a", "<Alpha>0.5</Alpha>");
    edit.SelectAll();
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("7f0000cc")) << frame;
    EXPECT_NE(std::string::npos, frame.find("7f0000bb")) << frame;
    EXPECT_NE(std::string::npos, frame.find("7fffffff")) << frame;
}

TEST_F(TeskTextEditRenderTest, AFrameAllocatesNothing)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird\nfourth");
    edit.SelectAll();
    Host.Recorded = 0;
    Frame();
    const std::size_t before = Allocations::Count();
    for (int frame = 0; frame < 100; ++frame)
        g_UIManager.Render();
    EXPECT_EQ(before, Allocations::Count());
}

TEST_F(TeskTextEditRenderTest, AHeldKeyThatEndsTheEditEndsItsFrame)
{
    TeskTextEdit& edit = Show("first\nsecond");
    Press(edit, KeyDown);
    Press(edit, KeyUp);
    Host.Scripts["change"] = [](TeskElement&) { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("E")); };
    edit.Repeat.HeldKey = KeyDown;
    System.Ticks += 1000;
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
}
