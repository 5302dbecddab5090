#include "teskara/text/EditSelection.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class EditSelectionTest : public testing::Test
{
protected:
    EditSelectionTest()
    {
        for (const char* text : {"first", "", "third line", "fourth"})
            Lines.Append(text);
    }

    CTextEditLine* Line(std::size_t number)
    {
        CTextEditLine* line = Lines.First();
        while (number-- > 0)
            line = line->Next;
        return line;
    }

    void Select(std::size_t startLine, u64 startColumn, std::size_t endLine, u64 endColumn)
    {
        Selection.SelectionStart = TextEditPos{Line(startLine), startColumn};
        Selection.SelectionEnd = TextEditPos{Line(endLine), endColumn};
    }

    // What is selected of a line, as from-to.
    std::string On(std::size_t line)
    {
        const auto columns = Selection.On(*Line(line));
        return columns ? std::to_string(columns->Begin) + "-" + std::to_string(columns->End) : "none";
    }

    LineStore Lines;
    EditSelection Selection = EditSelection(Lines);
};

} // namespace

TEST_F(EditSelectionTest, WithoutAStartOrWithEqualEndsThereIsNone)
{
    EXPECT_FALSE(Selection.Exists());
    Select(0, 2, 0, 2);
    EXPECT_FALSE(Selection.Exists());
    EXPECT_EQ("none", On(0));
    EXPECT_EQ("", Selection.Text());
    Selection.SelectionStart.Clear();
    EXPECT_FALSE(Selection.Exists());
}

TEST_F(EditSelectionTest, AStartWithoutAnEndIsNone)
{
    Selection.SelectionStart = TextEditPos{Line(0), 0};
    EXPECT_FALSE(Selection.Exists());
    EXPECT_EQ("none", On(0));
    EXPECT_EQ("", Selection.Text());
}

TEST_F(EditSelectionTest, OnOneLineItLiesBetweenTheColumnsInEitherOrder)
{
    Select(2, 2, 2, 5);
    EXPECT_EQ("2-5", On(2));
    EXPECT_EQ("ird", Selection.Text());
    Select(2, 5, 2, 2);
    EXPECT_EQ("2-5", On(2));
    EXPECT_EQ("ird", Selection.Text());
    EXPECT_EQ("none", On(1));
    EXPECT_EQ("none", On(3));
}

TEST_F(EditSelectionTest, AcrossLinesItCoversTheLinesBetweenWhole)
{
    Select(0, 3, 3, 2);
    EXPECT_EQ("3-5", On(0));
    EXPECT_EQ("0-0", On(1));
    EXPECT_EQ("0-10", On(2));
    EXPECT_EQ("0-2", On(3));
    EXPECT_EQ("st\r\n\r\nthird line\r\nfo", Selection.Text());
    Select(3, 2, 0, 3);
    EXPECT_EQ("3-5", On(0));
    EXPECT_EQ("st\r\n\r\nthird line\r\nfo", Selection.Text());
}

TEST_F(EditSelectionTest, TheLastLineMayBeTouchedAtItsStartOnly)
{
    Select(2, 10, 3, 0);
    EXPECT_EQ("10-10", On(2));
    EXPECT_EQ("0-0", On(3));
    EXPECT_EQ("\r\n", Selection.Text());
}

TEST_F(EditSelectionTest, EndsBeyondALineThatHasBecomeShorterAreHeldAtItsEnd)
{
    Select(0, 4, 2, 8);
    Line(0)->Cut(2);
    Line(2)->Cut(3);
    EXPECT_EQ("2-2", On(0));
    EXPECT_EQ("0-3", On(2));
    EXPECT_EQ("\r\n\r\nthi", Selection.Text());
}

TEST_F(EditSelectionTest, CollapsingPutsBothEndsOnAPosition)
{
    Selection.Collapse(TextEditPos{Line(1), 0});
    EXPECT_EQ(Line(1), Selection.SelectionStart.Line);
    EXPECT_EQ(Line(1), Selection.SelectionEnd.Line);
    Selection.Clear();
    EXPECT_EQ(nullptr, Selection.SelectionStart.Line);
    EXPECT_EQ(nullptr, Selection.SelectionEnd.Line);
}
