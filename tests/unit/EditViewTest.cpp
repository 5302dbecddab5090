#include "teskara/text/EditView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

// A view of lines, which is three lines of four columns unless a test says something else.
class EditViewTest : public testing::Test
{
protected:
    EditViewTest()
    {
        View.VisibleRows = 3;
        View.VisibleColumns = 4;
        View.DrawnRows = 3;
    }

    void Show(const std::vector<std::string>& texts)
    {
        for (const std::string& text : texts)
            Lines.Append(text.c_str());
        View.ShowFirst();
        View.ViewBottom.Line = Line(std::min<std::size_t>(texts.size(), 3) - 1);
    }

    CTextEditLine* Line(std::size_t number)
    {
        CTextEditLine* line = Lines.First();
        while (number-- > 0)
            line = line->Next;
        return line;
    }

    static std::string At(const TextEditPos& position)
    {
        return position.Line ? std::to_string(position.Line->GetNumber()) + ":" + std::to_string(position.Column)
                             : "none";
    }

    // The lines that show, and the first column.
    std::string Window() const { return At(View.ViewTop) + "-" + std::to_string(View.ViewBottom.Line->GetNumber()); }

    LineStore Lines;
    EditView View = EditView(Lines);
};

} // namespace

TEST_F(EditViewTest, LeftEndsAtTheStartOfALine)
{
    Show({"ab", "cd"});
    View.Caret = TextEditPos{Line(1), 1};
    EXPECT_TRUE(View.MoveLeft());
    EXPECT_EQ("1:0", At(View.Caret));
    EXPECT_FALSE(View.MoveLeft());
    EXPECT_EQ("1:0", At(View.Caret));
}

TEST_F(EditViewTest, RightEndsAtTheEndOfALine)
{
    Show({"ab", "cd"});
    EXPECT_TRUE(View.MoveRight());
    EXPECT_TRUE(View.MoveRight());
    EXPECT_FALSE(View.MoveRight());
    EXPECT_EQ("0:2", At(View.Caret));
}

TEST_F(EditViewTest, TheViewFollowsTheCaretToTheRightAsSoonAsItLeavesTheLastColumn)
{
    Show({"abcdefgh"});
    for (int step = 0; step < 3; ++step)
        View.MoveRight();
    EXPECT_EQ("0:0", At(View.ViewTop));
    View.MoveRight();
    EXPECT_EQ("0:1", At(View.ViewTop));
    View.MoveRight();
    EXPECT_EQ("0:2", At(View.ViewTop));
}

TEST_F(EditViewTest, TheViewFollowsTheCaretToTheLeftAsSoonAsItReachesTheFirstColumn)
{
    Show({"abcdefgh"});
    View.Caret.Column = 5;
    View.ViewTop.Column = 4;
    View.MoveLeft();
    EXPECT_EQ("0:4", At(View.ViewTop));
    View.MoveLeft();
    EXPECT_EQ("0:3", At(View.ViewTop));
}

TEST_F(EditViewTest, MovingRightWhereTheCaretIsLeftOfTheViewBringsTheViewToIt)
{
    Show({"abcdefgh"});
    View.ViewTop.Column = 6;
    View.MoveRight();
    EXPECT_EQ("0:1", At(View.ViewTop));
}

TEST_F(EditViewTest, HomeGoesToTheFirstColumnAndTheViewToo)
{
    Show({"abcdefgh"});
    View.Caret.Column = 6;
    View.ViewTop.Column = 4;
    View.MoveToLineStart();
    EXPECT_EQ("0:0", At(View.Caret));
    EXPECT_EQ("0:0", At(View.ViewTop));
}

TEST_F(EditViewTest, EndGoesBehindTheLastByteAndTheViewFollows)
{
    Show({"abcdefgh", "abc"});
    View.MoveToLineEnd();
    EXPECT_EQ("0:8", At(View.Caret));
    EXPECT_EQ("0:5", At(View.ViewTop));
    View.MoveToLineStart();
    View.MoveDown(1);
    View.MoveToLineEnd();
    EXPECT_EQ("1:3", At(View.Caret));
    EXPECT_EQ("0:0", At(View.ViewTop));
}

TEST_F(EditViewTest, WithoutAVisibleColumnTheCaretStandsLeftOfTheView)
{
    Show({"abcdefgh"});
    View.VisibleColumns = 0;
    View.MoveRight();
    EXPECT_EQ("0:2", At(View.ViewTop));
}

TEST_F(EditViewTest, DownScrollsOneLineWhenItLeavesTheLastLineThatShows)
{
    Show({"0", "1", "2", "3", "4"});
    View.MoveDown(2);
    EXPECT_EQ("0:0-2", Window());
    View.MoveDown(1);
    EXPECT_EQ("3:0", At(View.Caret));
    EXPECT_EQ("1:0-3", Window());
    View.MoveDown(9);
    EXPECT_EQ("4:0", At(View.Caret));
    EXPECT_EQ("2:0-4", Window());
}

TEST_F(EditViewTest, UpScrollsOneLineWhenItLeavesTheFirstLineThatShows)
{
    Show({"0", "1", "2", "3", "4"});
    View.MoveDown(4);
    View.MoveUp(2);
    EXPECT_EQ("2:0-4", Window());
    View.MoveUp(1);
    EXPECT_EQ("1:0", At(View.Caret));
    EXPECT_EQ("1:0-3", Window());
    View.MoveUp(9);
    EXPECT_EQ("0:0-2", Window());
}

TEST_F(EditViewTest, AShorterLineTakesTheColumnBackForGood)
{
    Show({"long line", "ab", "long line"});
    View.Caret.Column = 7;
    View.MoveDown(1);
    EXPECT_EQ("1:2", At(View.Caret));
    View.MoveDown(1);
    EXPECT_EQ("2:2", At(View.Caret));
    View.Caret.Column = 9;
    View.MoveUp(2);
    EXPECT_EQ("0:2", At(View.Caret)) << "lines that are passed count as well";
}

TEST_F(EditViewTest, ZeroLinesChangeNothing)
{
    Show({"0", "1"});
    View.MoveDown(0);
    View.MoveUp(0);
    EXPECT_EQ("0:0", At(View.Caret));
}

TEST_F(EditViewTest, ACaretOutsideOfTheViewDoesNotBringItBack)
{
    Show({"0", "1", "2", "3", "4", "5", "6"});
    View.ViewTop.Line = Line(4);
    View.ViewBottom.Line = Line(6);
    View.MoveDown(1);
    EXPECT_EQ("4:0-6", Window());
}

TEST_F(EditViewTest, TheStartOfTheTextIsItsFirstLineAndThePageFromThere)
{
    Show({"0", "1", "2", "3", "4", "5"});
    View.MoveDown(5);
    View.MoveToStart();
    EXPECT_EQ("0:0", At(View.Caret));
    EXPECT_EQ("0:0-3", Window());
    View.VisibleRows = 100;
    View.MoveToStart();
    EXPECT_EQ("0:0-5", Window());
}

TEST_F(EditViewTest, TheEndOfTheTextIsTheEndOfItsLastLineAndThePageUpToThere)
{
    Show({"0", "1", "2", "3", "4", "the last"});
    View.MoveToEnd();
    EXPECT_EQ("5:8", At(View.Caret));
    EXPECT_EQ("3:5-5", Window());
    EXPECT_EQ("5:8", At(View.ViewBottom));
    View.VisibleRows = 6;
    View.MoveToEnd();
    EXPECT_EQ("0:5-5", Window());
}

TEST_F(EditViewTest, BeforeItWasDrawnTheEndIsTheLastLineAlone)
{
    Show({"0", "1", "2"});
    View.VisibleRows = 0;
    View.MoveToEnd();
    EXPECT_EQ("2:0-2", Window());
}

TEST_F(EditViewTest, TheColumnThatIsHeldLiesInTheLine)
{
    Show({"abc"});
    View.Caret.Column = 7;
    EXPECT_EQ(3u, View.HeldColumn());
    View.Caret.Column = 2;
    EXPECT_EQ(2u, View.HeldColumn());
}

TEST_F(EditViewTest, WithoutLinesNothingMoves)
{
    EXPECT_FALSE(View.MoveLeft());
    EXPECT_FALSE(View.MoveRight());
    View.MoveToLineStart();
    View.MoveToLineEnd();
    View.MoveUp(1);
    View.MoveDown(1);
    View.MoveToStart();
    View.MoveToEnd();
    EXPECT_EQ("none", At(View.Caret));
    EXPECT_EQ("none", At(View.ViewTop));
    EXPECT_EQ(0u, View.HeldColumn());
}
