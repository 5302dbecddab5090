#include "tests/unit/TreeTest.h"

using TeskTreeDrawingTest = TreeTest;

TEST_F(TeskTreeDrawingTest, TextsStandBehindTheirImagesAndAreIndented)
{
    TeskTree& tree = LoadTree("<ImageTexture Filename='#a'/>");
    Fill(tree, "a(b)c");
    const std::string frame = Frame();
    for (const char* text : {"\"a\" (12,3,", "\"b\" (22,13,", "\"c\" (12,23,"})
        EXPECT_NE(std::string::npos, frame.find(text)) << text << '\n' << frame;
}

TEST_F(TeskTreeDrawingTest, ACollapsedNodeHasAnotherImage)
{
    TeskTree& tree = LoadTree("<ImageTexture Filename='#plain'/><ImageTextureCollapsible Filename='#open'/>"
                              "<ImageTextureCollapsed Filename='#closed'/>");
    Fill(tree, "a(b)");
    Host.Recorded = RecordResources;
    const std::string open = Frame();
    EXPECT_NE(std::string::npos, open.find("#open")) << open;
    EXPECT_NE(std::string::npos, open.find("#plain")) << open;
    Node(tree, 'a').Collapse();
    Host.TakeCalls();
    EXPECT_NE(std::string::npos, Frame().find("#closed"));
}

TEST_F(TeskTreeDrawingTest, OnlyRowsThatFitAreDrawn)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefgh");
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("\"e\"")) << frame;
    EXPECT_EQ(std::string::npos, frame.find("\"f\"")) << frame;
}

TEST_F(TeskTreeDrawingTest, TheSelectionIsFilledAndKeepsTheFontsColour)
{
    TeskTree& tree = LoadTree("<SelectionBackgroundColor>ff112233</SelectionBackgroundColor>"
                              "<SelectionTextColor>ff445566</SelectionTextColor>");
    Fill(tree, "ab");
    tree.Font->Color = 0xff010101u;
    Node(tree, 'b').TextColor = 0xff020202u;
    Node(tree, 'a').Select();
    const std::string frame = Frame();
    EXPECT_NE(std::string::npos, frame.find("(10,3,99,11) ff112233")) << frame;
    EXPECT_NE(std::string::npos, frame.find("ff445566")) << frame;
    EXPECT_NE(std::string::npos, frame.find("ff020202")) << frame;
    EXPECT_EQ(0xff010101u, tree.Font->Color);
}

TEST_F(TeskTreeDrawingTest, TheBarShowsWhileRowsCanBeScrolled)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abc");
    Frame();
    EXPECT_FALSE(tree.ScrollBar->Visible);
    EXPECT_EQ(0u, tree.ScrollBar->Range);
    Fill(tree, "def");
    Frame();
    EXPECT_TRUE(tree.ScrollBar->Visible);
    EXPECT_EQ(2u, tree.ScrollBar->Range);
    EXPECT_EQ(2u, tree.ScrollBar->GetValue()) << "the top is the bar's high end";
    EXPECT_EQ(0u, tree.TopRow);
}

TEST_F(TeskTreeDrawingTest, ABarAtItsTopStaysThereAndAnotherKeepsItsValue)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefgh");
    Frame();
    tree.ScrollBar->SetValue(1);
    EXPECT_EQ(tree.ScrollBar->Range - 1, tree.TopRow);
    EXPECT_NE(std::string::npos, Frame().find("\"e\""));
    Fill(tree, "ij");
    Frame();
    EXPECT_EQ(1u, tree.ScrollBar->GetValue());
    EXPECT_EQ(tree.ScrollBar->Range - 1, tree.TopRow);
    tree.Root->RemoveChildren();
    Frame();
    EXPECT_EQ(0u, tree.TopRow);
    EXPECT_FALSE(tree.ScrollBar->Visible);
}

TEST_F(TeskTreeDrawingTest, WithoutItsBarATreeDrawsWhatItHas)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefgh");
    Frame();
    tree.ScrollBar->SetValue(0);
    tree.DeleteChild(tree.ScrollBar);
    EXPECT_EQ(nullptr, tree.ScrollBar);
    EXPECT_NE(std::string::npos, Frame().find("\"h\""));
    tree.Root->RemoveChildren();
    Frame();
    EXPECT_EQ(0u, tree.TopRow);
    tree.OnMouseWheel(40);
    PressOn(tree, 0);
}

TEST_F(TeskTreeDrawingTest, ARowFromBelowNothingIsTheFirst)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "ab");
    tree.TopRow = 0xffffffffu;
    bool onImage = false;
    EXPECT_EQ(&Node(tree, 'b'), tree.GetNodeFromPoint(PointOn(tree, 1), onImage));
    tree.TopRow = 0x7fffffffu;
    EXPECT_EQ(nullptr, tree.GetNodeFromPoint(PointOn(tree, 0), onImage));
}
