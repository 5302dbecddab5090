// What the mouse, the scroll bar and the clipboard have to do with a text edit.

#include "tests/unit/TextEditTest.h"

namespace {

class TeskTextEditMouseTest : public TextEditTest
{
protected:
    static bool PressOn(TeskTextEdit& edit, int row, int column)
    {
        _Point2i point = PointOn(row, column);
        return edit.OnLMouseDown(point);
    }

    static bool DragTo(TeskTextEdit& edit, int row, int column)
    {
        _Point2i point = PointOn(row, column);
        return edit.OnMouseMove(point);
    }

    static bool ReleaseOn(TeskTextEdit& edit, int row, int column)
    {
        _Point2i point = PointOn(row, column);
        return edit.OnLMouseUp(point);
    }

    static std::string Hit(TeskTextEdit& edit, int x, int y)
    {
        _Point2i point = {x, y};
        TextEditPos position;
        edit.GetPositionFromPoint(point, position);
        return At(position);
    }

    // The wheel by so much; then the line of the caret.
    static u64 Turn(TeskTextEdit& edit, int offset)
    {
        EXPECT_TRUE(edit.OnMouseWheel(offset));
        return edit.View.Caret.Line->GetNumber();
    }
};

constexpr char TenLines[] = "line 0\nline 1\nline 2\nline 3\nline 4\nline 5\nline 6\nline 7\nline 8\nline 9";

} // namespace

TEST_F(TeskTextEditMouseTest, APressPutsTheCaretUnderThePointerAndTakesTheKeyboard)
{
    TeskTextEdit& edit = Show(TenLines);
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_TRUE(PressOn(edit, 2, 4));
    EXPECT_EQ(&edit, g_UIManager.GetFocusElement());
    EXPECT_EQ("2:4", CaretOf(edit));
    EXPECT_EQ("2:4-2:4", SelectionOf(edit));
    EXPECT_TRUE(edit.Selecting);
    EXPECT_EQ(8u, edit.ScrollBar->GetValue());
    EXPECT_TRUE(ReleaseOn(edit, 2, 4));
    EXPECT_FALSE(edit.Selecting);
    EXPECT_EQ("none-none", SelectionOf(edit));
}

TEST_F(TeskTextEditMouseTest, APressBehindALineGoesToItsEnd)
{
    TeskTextEdit& edit = Show("abc\ndefgh");
    PressOn(edit, 0, 9);
    EXPECT_EQ("0:3", CaretOf(edit));
}

TEST_F(TeskTextEditMouseTest, APressBelowTheLastLineGoesToIt)
{
    TeskTextEdit& edit = Show("abc\ndefgh");
    PressControl(edit, KeyHome);
    PressOn(edit, 3, 1);
    EXPECT_EQ("1:1", CaretOf(edit));
}

TEST_F(TeskTextEditMouseTest, APressWhoseValueTheBarHasAlreadyLeavesTheLine)
{
    TeskTextEdit& edit = Show("first\nsecond");
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
    PressOn(edit, 1, 2);
    EXPECT_EQ("0:2", CaretOf(edit)) << "a new text has not told the bar of its caret";
}

TEST_F(TeskTextEditMouseTest, DraggingSelectsAndAClickClears)
{
    TeskTextEdit& edit = Show(TenLines);
    PressOn(edit, 1, 2);
    EXPECT_TRUE(DragTo(edit, 2, 4));
    EXPECT_EQ("2:4", CaretOf(edit));
    EXPECT_EQ("1:2-2:4", SelectionOf(edit));
    ReleaseOn(edit, 2, 4);
    EXPECT_EQ("1:2-2:4", SelectionOf(edit));
    DragTo(edit, 0, 0);
    EXPECT_EQ("2:4", CaretOf(edit)) << "the button is up";
    PressOn(edit, 1, 1);
    ReleaseOn(edit, 1, 1);
    EXPECT_EQ("none-none", SelectionOf(edit));
}

TEST_F(TeskTextEditMouseTest, DraggingDoesNotMoveTheBar)
{
    TeskTextEdit& edit = Show(TenLines);
    PressOn(edit, 0, 0);
    const u32 value = edit.ScrollBar->GetValue();
    DragTo(edit, 2, 0);
    EXPECT_EQ(value, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditMouseTest, LeftOfAScrolledViewTheOffsetCountsFromTheStartOfTheLine)
{
    TeskTextEdit& edit = Show("a line of more than ten columns");
    Press(edit, KeyEnd);
    EXPECT_EQ(22u, edit.View.ViewTop.Column);
    PressOn(edit, 0, 2);
    EXPECT_EQ("0:2", CaretOf(edit));
}

TEST_F(TeskTextEditMouseTest, PointsAreTakenToTheNearestLineAndColumn)
{
    TeskTextEdit& edit = Show(TenLines);
    EXPECT_EQ("0:0", Hit(edit, 13, 53));
    EXPECT_EQ("0:0", Hit(edit, 10, 50)) << "in the margin";
    EXPECT_EQ("0:0", Hit(edit, -1000, -1000));
    EXPECT_EQ("9:6", Hit(edit, 1000, 1000));
    EXPECT_EQ("9:0", Hit(edit, -2147483648, 2147483647));
    EXPECT_EQ("0:6", Hit(edit, 2147483647, -2147483648));
    EXPECT_EQ("1:0", Hit(edit, 13, 65));
}

TEST_F(TeskTextEditMouseTest, RowsCountFromTheFirstLineThatShows)
{
    TeskTextEdit& edit = Show(TenLines);
    PressControl(edit, KeyEnd);
    Frame();
    EXPECT_EQ("6:0", Hit(edit, 13, 53));
    EXPECT_EQ("6:0", Hit(edit, 13, 0)) << "above the view";
    EXPECT_EQ("8:0", Hit(edit, 13, 53 + 24));
}

TEST_F(TeskTextEditMouseTest, TheRowsShareTheHeightOfTheElement)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.Height = 103;
    EXPECT_EQ(4u, edit.View.VisibleRows) << "of the last frame";
    EXPECT_EQ("0:0", Hit(edit, 13, 53 + 24));
    EXPECT_EQ("1:0", Hit(edit, 13, 53 + 25));
}

TEST_F(TeskTextEditMouseTest, BeforeTheFirstFrameEveryPointIsOnTheFirstLine)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.View.VisibleRows = 0;
    EXPECT_EQ("0:0", Hit(edit, 13, 1000));
}

TEST_F(TeskTextEditMouseTest, AnEditThatIsTooLowForItsRowsHasRowsOfOnePixel)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.Height = 2;
    EXPECT_EQ("4:0", Hit(edit, 13, 57));
    edit.Height = 0;
    EXPECT_EQ("9:0", Hit(edit, 13, 1000));
}

TEST_F(TeskTextEditMouseTest, MovingTheBarMovesTheCaretAndTheView)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.ScrollBar->SetValue(5);
    EXPECT_EQ("5:0", CaretOf(edit));
    EXPECT_EQ("3:0", At(edit.View.ViewTop));
    edit.ScrollBar->SetValue(10);
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ("0:0", At(edit.View.ViewTop));
}

TEST_F(TeskTextEditMouseTest, TheBarIsPushedBackFromItsLowestValue)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.ScrollBar->SetValue(5);
    edit.ScrollBar->SetValue(0);
    EXPECT_EQ("9:0", CaretOf(edit));
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditMouseTest, ABarWithAnotherRangeComesToRest)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.ScrollBar->SetValue(5);
    edit.ScrollBar->SetRange(1000);
    edit.ScrollBar->SetValue(1000);
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ(10u, edit.ScrollBar->GetValue());
    edit.ScrollBar->SetRange(4);
    EXPECT_EQ("6:0", CaretOf(edit));
    PressControl(edit, KeyHome);
    EXPECT_EQ("0:0", CaretOf(edit)) << "the bar cannot tell any difference";
    EXPECT_EQ(4u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditMouseTest, OthersThanTheBarChangeNothing)
{
    TeskTextEdit& edit = Show(TenLines);
    edit.OnNotify(nullptr, NotifyValueChanged, 3);
    edit.OnNotify(&edit, NotifyValueChanged, 3);
    edit.OnNotify(edit.ScrollBar, NotifyLeftPressed, 3);
    EXPECT_EQ("0:0", CaretOf(edit));
}

TEST_F(TeskTextEditMouseTest, FortyUnitsOfTheWheelAreALine)
{
    TeskTextEdit& edit = Show(TenLines);
    PressControl(edit, KeyHome);
    EXPECT_EQ(3u, Turn(edit, -120));
    EXPECT_EQ(1u, Turn(edit, 80));
    EXPECT_EQ(1u, Turn(edit, 39));
    EXPECT_EQ(1u, Turn(edit, 0));
    EXPECT_EQ(1u, Turn(edit, -39));
    EXPECT_EQ(9u, Turn(edit, -2147483647 - 1));
    EXPECT_EQ(0u, Turn(edit, 2147483647));
}

TEST_F(TeskTextEditMouseTest, ASelectionIsCopiedWithItsLineEnds)
{
    TeskTextEdit& edit = Show("first\n\nthird");
    Host.OpensClipboard = true;
    PutCaret(edit, 0, 2);
    g_UIManager.ShiftDown = true;
    edit.HandleDown(2);
    edit.HandleEnd();
    g_UIManager.ShiftDown = false;
    EXPECT_TRUE(PressControl(edit, KeyC));
    EXPECT_EQ("rst\r\n\r\nthird", System.Clipboard);
    EXPECT_FALSE(System.ClipboardIsOpen);
}

TEST_F(TeskTextEditMouseTest, CopyingNothingEmptiesTheClipboardAndLeavesItOpen)
{
    TeskTextEdit& edit = Show("first");
    Host.OpensClipboard = true;
    System.Clipboard = "before";
    PressControl(edit, KeyC);
    EXPECT_FALSE(System.Clipboard.has_value());
    EXPECT_TRUE(System.ClipboardIsOpen);
}

TEST_F(TeskTextEditMouseTest, AClipboardThatTheHostDoesNotOpenStays)
{
    TeskTextEdit& edit = Show("first");
    System.Clipboard = "before";
    edit.CopySelection();
    edit.SelectAll();
    edit.CopySelection();
    EXPECT_EQ("before", System.Clipboard);
}

TEST_F(TeskTextEditMouseTest, WithoutMemoryForTheCopyTheClipboardStays)
{
    TeskTextEdit& edit = Show("first\nsecond");
    Host.OpensClipboard = true;
    System.RefusesClipboard = true;
    System.Clipboard = "before";
    edit.SelectAll();
    edit.CopySelection();
    EXPECT_EQ("before", System.Clipboard);
}
