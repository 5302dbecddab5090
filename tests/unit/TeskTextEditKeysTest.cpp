// What keys do to a text edit.

#include "tests/unit/TextEditTest.h"

namespace {

class TeskTextEditKeysTest : public TextEditTest
{
};

} // namespace

TEST_F(TeskTextEditKeysTest, CharactersGoInAtTheCaretInEitherMode)
{
    TeskTextEdit& edit = Show("ad");
    Press(edit, KeyRight);
    EXPECT_TRUE(Press(edit, 'B'));
    EXPECT_TRUE(Press(edit, KeyInsert));
    EXPECT_FALSE(edit.InsertMode);
    EXPECT_TRUE(Press(edit, 'C'));
    EXPECT_EQ((Strings{"abcd"}), Texts(edit));
    EXPECT_EQ("0:3", CaretOf(edit));
    EXPECT_TRUE(Press(edit, KeyInsert));
    EXPECT_TRUE(edit.InsertMode);
}

TEST_F(TeskTextEditKeysTest, ACharacterBeyondAsciiGoesInAsItsBytes)
{
    TeskTextEdit& edit = Show();
    System.KeyTexts[0xba] = "\xe9";
    EXPECT_TRUE(Press(edit, 0xba));
    EXPECT_EQ((Strings{"\xc3\xa9"}), Texts(edit));
    EXPECT_EQ("0:2", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, AKeyWithoutACharacterIsNotTakenAndNotHeld)
{
    TeskTextEdit& edit = Show();
    EXPECT_FALSE(Press(edit, 112));
    EXPECT_EQ(0u, edit.Repeat.HeldKey);
}

TEST_F(TeskTextEditKeysTest, KeysBeyondAllCharactersAreTakenAndHeld)
{
    TeskTextEdit& edit = Show();
    System.KeyTexts[256] = "x";
    EXPECT_TRUE(Press(edit, 256));
    EXPECT_EQ(256u, edit.Repeat.HeldKey);
    EXPECT_EQ((Strings{""}), Texts(edit));
}

TEST_F(TeskTextEditKeysTest, TypingBeyondTheRightEdgeDoesNotMoveTheView)
{
    TeskTextEdit& edit = Show();
    Type(edit, "more than ten columns");
    EXPECT_EQ("0:21", CaretOf(edit));
    EXPECT_EQ("0:0", At(edit.View.ViewTop));
}

TEST_F(TeskTextEditKeysTest, TheCaretGoesOnWhereTheLineRefusesTheByte)
{
    TeskTextEdit& edit = Show("ab");
    edit.View.Caret.Column = 5;
    Type(edit, "x");
    EXPECT_EQ((Strings{"ab"}), Texts(edit));
    EXPECT_EQ("0:6", CaretOf(edit));
    edit.HandleBackspace();
    EXPECT_EQ("0:5", CaretOf(edit));
    EXPECT_EQ((Strings{"ab"}), Texts(edit));
    Frame();
    EXPECT_EQ("0:2", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, BackspaceTakesTheByteBeforeTheCaret)
{
    TeskTextEdit& edit = Show("abc");
    PutCaret(edit, 0, 2);
    Press(edit, KeyBackspace);
    EXPECT_EQ((Strings{"ac"}), Texts(edit));
    EXPECT_EQ("0:1", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, BackspaceAtTheStartOfALineJoinsItToTheOneBefore)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    PutCaret(edit, 1, 0);
    Press(edit, KeyBackspace);
    EXPECT_EQ((Strings{"firstsecond", "third"}), Texts(edit));
    EXPECT_EQ("0:5", CaretOf(edit));
    EXPECT_EQ(2u, edit.ScrollBar->Range);
    EXPECT_EQ(2u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditKeysTest, BackspaceAtTheStartOfTheTextOnlyClearsTheSelection)
{
    TeskTextEdit& edit = Show("ab");
    PutCaret(edit, 0, 1);
    PressShift(edit, KeyHome);
    EXPECT_EQ("0:1-0:0", SelectionOf(edit));
    Press(edit, KeyBackspace);
    EXPECT_EQ((Strings{"ab"}), Texts(edit));
    EXPECT_EQ("none-none", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, JoiningTheFirstLineOfTheViewTakesTheViewToTheLineBefore)
{
    TeskTextEdit& edit = Show("0\n1\n2\n3\n4\n5\n6");
    PressControl(edit, KeyEnd);
    EXPECT_EQ("3:0", At(edit.View.ViewTop));
    PutCaret(edit, 3, 0);
    Press(edit, KeyBackspace);
    EXPECT_EQ("2:1", CaretOf(edit));
    EXPECT_EQ("2:0", At(edit.View.ViewTop));
    EXPECT_TRUE(edit.Lines.IsConsistent());
}

TEST_F(TeskTextEditKeysTest, DeleteTakesTheByteBehindTheCaret)
{
    TeskTextEdit& edit = Show("abc");
    PutCaret(edit, 0, 1);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"ac"}), Texts(edit));
    EXPECT_EQ("0:1", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, DeleteAtTheEndOfALineJoinsTheNextToIt)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    PutCaret(edit, 0, 5);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"firstsecond", "third"}), Texts(edit));
    EXPECT_EQ("0:5", CaretOf(edit));
    EXPECT_EQ(2u, edit.ScrollBar->Range);
}

TEST_F(TeskTextEditKeysTest, DeleteAtTheEndOfTheTextChangesNothing)
{
    TeskTextEdit& edit = Show("first\nlast");
    PutCaret(edit, 1, 4);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"first", "last"}), Texts(edit));
    EXPECT_EQ("1:4", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, DeleteOnAnEmptyLineRemovesItAndTheCaretGoesToTheNext)
{
    TeskTextEdit& edit = Show("a\n\nb");
    PutCaret(edit, 1, 0);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"a", "b"}), Texts(edit));
    EXPECT_EQ("1:0", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, DeleteOnAnEmptyLastLineLeavesTheCaretOnTheOneBefore)
{
    TeskTextEdit& edit = Show("a\n");
    PutCaret(edit, 1, 0);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"a"}), Texts(edit));
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
    edit.SetText("");
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{""}), Texts(edit));
}

TEST_F(TeskTextEditKeysTest, EnterCutsALineAtTheCaret)
{
    TeskTextEdit& edit = Show("first\nlast");
    PutCaret(edit, 0, 2);
    Press(edit, KeyEnter);
    EXPECT_EQ((Strings{"fi", "rst", "last"}), Texts(edit));
    EXPECT_EQ("1:0", CaretOf(edit));
    EXPECT_EQ(3u, edit.ScrollBar->Range);
    EXPECT_EQ(2u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditKeysTest, EnterAtTheEndsOfALineMakesAnEmptyOne)
{
    TeskTextEdit& edit = Show("ab");
    PutCaret(edit, 0, 2);
    Press(edit, KeySeparator);
    EXPECT_EQ((Strings{"ab", ""}), Texts(edit));
    PutCaret(edit, 0, 0);
    Press(edit, KeyEnter);
    EXPECT_EQ((Strings{"", "ab", ""}), Texts(edit));
    EXPECT_EQ("1:0", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, EnterLeavesAViewThatIsScrolledSideways)
{
    TeskTextEdit& edit = Show("a line of more than ten columns");
    Press(edit, KeyEnd);
    const u64 column = edit.View.ViewTop.Column;
    EXPECT_EQ(22u, column);
    Press(edit, KeyEnter);
    EXPECT_EQ(column, edit.View.ViewTop.Column);
    Press(edit, KeyHome);
    EXPECT_EQ(0u, edit.View.ViewTop.Column);
}

TEST_F(TeskTextEditKeysTest, EnterOnTheLastRowScrolls)
{
    TeskTextEdit& edit = Show("0\n1\n2\n3");
    PutCaret(edit, 2, 1);
    EXPECT_EQ("2:0", At(edit.View.ViewBottom));
    Press(edit, KeyEnter);
    EXPECT_EQ("1:0", At(edit.View.ViewTop));
    EXPECT_EQ("3:0", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, LeftAndRightStayInTheLine)
{
    TeskTextEdit& edit = Show("ab\ncd");
    PutCaret(edit, 1, 0);
    EXPECT_TRUE(Press(edit, KeyLeft));
    EXPECT_EQ("1:0", CaretOf(edit));
    PutCaret(edit, 0, 2);
    EXPECT_TRUE(Press(edit, KeyRight));
    EXPECT_EQ("0:2", CaretOf(edit));
    EXPECT_TRUE(Press(edit, KeyLeft));
    EXPECT_EQ("0:1", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, HomeAndEndGoToTheEndsOfTheLineAndWithControlOfTheText)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    PutCaret(edit, 1, 3);
    Press(edit, KeyEnd);
    EXPECT_EQ("1:6", CaretOf(edit));
    Press(edit, KeyHome);
    EXPECT_EQ("1:0", CaretOf(edit));
    PressControl(edit, KeyEnd);
    EXPECT_EQ("2:5", CaretOf(edit));
    EXPECT_EQ(1u, edit.ScrollBar->GetValue());
    PressControl(edit, KeyHome);
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ(3u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditKeysTest, UpAndDownTellTheBar)
{
    TeskTextEdit& edit = Show("0\n1\n2");
    Press(edit, KeyDown);
    EXPECT_EQ("1:0", CaretOf(edit));
    EXPECT_EQ(2u, edit.ScrollBar->GetValue());
    Press(edit, KeyUp);
    Press(edit, KeyUp);
    EXPECT_EQ("0:0", CaretOf(edit));
    EXPECT_EQ(3u, edit.ScrollBar->GetValue());
}

TEST_F(TeskTextEditKeysTest, PagesAreAsManyRowsAsTheLastFrameDrew)
{
    TeskTextEdit& edit = Show("0\n1\n2\n3\n4\n5\n6");
    EXPECT_EQ(3u, edit.View.DrawnRows);
    Press(edit, KeyPageDown);
    EXPECT_EQ("3:0", CaretOf(edit));
    Press(edit, KeyPageDown);
    Press(edit, KeyPageDown);
    EXPECT_EQ("6:0", CaretOf(edit));
    Press(edit, KeyPageUp);
    EXPECT_EQ("3:0", CaretOf(edit));
    edit.View.DrawnRows = 0;
    Press(edit, KeyPageUp);
    EXPECT_EQ("3:0", CaretOf(edit));
}

TEST_F(TeskTextEditKeysTest, ShiftSelectsFromWhereTheCaretStood)
{
    TeskTextEdit& edit = Show("words\nmore");
    PressShift(edit, KeyRight);
    PressShift(edit, KeyRight);
    EXPECT_EQ("0:0-0:2", SelectionOf(edit));
    EXPECT_EQ("wo", edit.Selection.Text());
    PressShift(edit, KeyDown);
    EXPECT_EQ("0:0-1:2", SelectionOf(edit));
    PressShift(edit, KeyEnd);
    EXPECT_EQ("0:0-1:4", SelectionOf(edit));
    PressShift(edit, KeyUp);
    PressShift(edit, KeyHome);
    EXPECT_EQ("0:0-0:0", SelectionOf(edit));
    Press(edit, KeyRight);
    EXPECT_EQ("none-none", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, ShiftSelectsToTheEndsOfTheText)
{
    TeskTextEdit& edit = Show("words\nmore\nlast");
    PutCaret(edit, 1, 2);
    g_UIManager.CtrlDown = true;
    PressShift(edit, KeyEnd);
    EXPECT_EQ("1:2-2:4", SelectionOf(edit));
    PressShift(edit, KeyHome);
    EXPECT_EQ("1:2-0:0", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, LeftAtTheStartOfALineLeavesTheSelection)
{
    TeskTextEdit& edit = Show("words");
    PutCaret(edit, 0, 2);
    PressShift(edit, KeyHome);
    Press(edit, KeyLeft);
    EXPECT_EQ("0:2-0:0", SelectionOf(edit));
    Press(edit, KeyEnd);
    PressShift(edit, KeyHome);
    PutCaret(edit, 0, 5);
    Press(edit, KeyRight);
    EXPECT_EQ("0:5-0:0", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, AMoveThatEndsAtOnceHasBegunTheSelectionAllTheSame)
{
    TeskTextEdit& edit = Show("words");
    PressShift(edit, KeyLeft);
    EXPECT_FALSE(edit.Selection.Exists());
    Type(edit, "ab");
    PressShift(edit, KeyRight);
    EXPECT_EQ("0:0-0:3", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, TypingLeavesWhatIsSelectedAndDeletingOnlyClearsTheSelection)
{
    TeskTextEdit& edit = Show("words");
    PressShift(edit, KeyEnd);
    Type(edit, "x");
    EXPECT_EQ((Strings{"wordsx"}), Texts(edit));
    EXPECT_EQ("0:0-0:5", SelectionOf(edit));
    Press(edit, KeyBackspace);
    EXPECT_EQ((Strings{"words"}), Texts(edit));
    EXPECT_EQ("none-none", SelectionOf(edit));
    PressShift(edit, KeyHome);
    Press(edit, KeyDelete);
    EXPECT_EQ((Strings{"ords"}), Texts(edit));
    EXPECT_EQ("none-none", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, ControlASelectsAllAndPutsTheCaretAtTheEnd)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    PutCaret(edit, 1, 1);
    EXPECT_TRUE(PressControl(edit, KeyA));
    EXPECT_EQ("2:5", CaretOf(edit));
    EXPECT_EQ("0:0-2:5", SelectionOf(edit));
    EXPECT_EQ("first\r\nsecond\r\nthird", edit.Selection.Text());
    Press(edit, KeyA);
    EXPECT_EQ("thirda", Texts(edit)[2]);
}

TEST_F(TeskTextEditKeysTest, NothingIsPasted)
{
    TeskTextEdit& edit = Show("words");
    System.Clipboard = "clip";
    EXPECT_TRUE(PressControl(edit, KeyV));
    EXPECT_EQ(u32{KeyV}, edit.Repeat.HeldKey);
    EXPECT_TRUE(PressShift(edit, KeyInsert));
    EXPECT_TRUE(edit.InsertMode);
    EXPECT_EQ((Strings{"words"}), Texts(edit));
    Press(edit, KeyV);
    EXPECT_EQ((Strings{"vwords"}), Texts(edit));
}

TEST_F(TeskTextEditKeysTest, EscapeIsTakenAndHeldAndDoesNothing)
{
    TeskTextEdit& edit = Show("words");
    PressShift(edit, KeyEnd);
    EXPECT_TRUE(Press(edit, KeyEscape));
    EXPECT_EQ(u32{KeyEscape}, edit.Repeat.HeldKey);
    EXPECT_EQ("0:0-0:5", SelectionOf(edit));
}

TEST_F(TeskTextEditKeysTest, EveryKeyIsHeldAndAHeldEnterRepeats)
{
    TeskTextEdit& edit = Show("words");
    Press(edit, KeyEnter);
    EXPECT_EQ(u32{KeyEnter}, edit.Repeat.HeldKey);
    System.Ticks += 250;
    Frame();
    EXPECT_EQ(2u, edit.Lines.Count());
    System.Ticks += 1;
    Frame();
    EXPECT_EQ(3u, edit.Lines.Count());
    System.Ticks += 50;
    Frame();
    EXPECT_EQ(4u, edit.Lines.Count());
    EXPECT_TRUE(edit.OnKeyUp(KeyUp));
    EXPECT_EQ(u32{KeyEnter}, edit.Repeat.HeldKey);
    EXPECT_TRUE(edit.OnKeyUp(KeyEnter));
    System.Ticks += 500;
    Frame();
    EXPECT_EQ(4u, edit.Lines.Count());
}

TEST_F(TeskTextEditKeysTest, LosingTheKeyboardEndsTheRepeat)
{
    TeskTextEdit& edit = Show("words");
    Press(edit, KeyEnter);
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(0u, edit.Repeat.HeldKey);
}

TEST_F(TeskTextEditKeysTest, TabGoesOnToTheNextFieldAndIsNotHeld)
{
    TeskTextEdit& edit = Show("words");
    Load("<frame name='F'/><textentry name='Next'><MaxLength>5</MaxLength></textentry>");
    EXPECT_TRUE(Press(edit, KeyTab));
    EXPECT_EQ(&Element("Next"), g_UIManager.GetFocusElement());
    EXPECT_EQ(0u, edit.Repeat.HeldKey);
    g_UIManager.ShiftDown = true;
    g_UIManager.OnKeyDown(KeyTab);
    EXPECT_EQ(&edit, g_UIManager.GetFocusElement());
}

TEST_F(TeskTextEditKeysTest, WhileTheMouseSelectsAMoveTakesTheCaretToThePointer)
{
    TeskTextEdit& edit = Show("first\nsecond\nthird");
    _Point2i point = PointOn(1, 2);
    edit.OnLMouseDown(point);
    g_UIManager.MousePosition = PointOn(2, 3);
    Press(edit, KeyHome);
    EXPECT_EQ("2:3", CaretOf(edit));
    EXPECT_EQ("1:2-2:3", SelectionOf(edit));
}
