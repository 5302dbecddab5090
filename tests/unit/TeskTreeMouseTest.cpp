#include "tests/unit/TreeTest.h"

class TeskTreeMouseTest : public TreeTest
{
protected:
    TeskTree& MakeFilled()
    {
        WriteEvents();
        TeskTree& tree = MakeTree(Events);
        Fill(tree, "a(b)c");
        return tree;
    }
};

TEST_F(TeskTreeMouseTest, APressOnATextSelects)
{
    TeskTree& tree = MakeFilled();
    EXPECT_TRUE(PressOn(tree, 1));
    EXPECT_EQ("+b", TakeHeardEvents());
    EXPECT_TRUE(PressOn(tree, 2));
    EXPECT_EQ("-b+c", TakeHeardEvents());
    EXPECT_TRUE(PressOn(tree, 4));
    EXPECT_EQ("-c", TakeHeardEvents()) << "beside all rows";
}

TEST_F(TeskTreeMouseTest, ARightPressSelectsToo)
{
    TeskTree& tree = MakeFilled();
    _Point2i point = PointOn(tree, 0);
    EXPECT_TRUE(tree.OnRMouseDown(point));
    EXPECT_EQ("+a", TakeHeardEvents());
}

TEST_F(TeskTreeMouseTest, APressOnAnImageTurnsItsNode)
{
    TeskTree& tree = MakeFilled();
    Node(tree, 'c').Select();
    TakeHeardEvents();
    PressOn(tree, 0, 10);
    EXPECT_FALSE(Node(tree, 'a').IsExpanded());
    EXPECT_EQ("ac", Rows(tree));
    PressOn(tree, 0, 10);
    PressOn(tree, 2, 0);
    EXPECT_FALSE(Node(tree, 'c').IsExpanded()) << "even one without children";
    EXPECT_EQ("", TakeHeardEvents());
    PressOn(tree, 0, 11);
    EXPECT_EQ("-c+a", TakeHeardEvents()) << "right of the image's margin";
}

TEST_F(TeskTreeMouseTest, LeftOfANodeThereIsNone)
{
    TeskTree& tree = MakeFilled();
    bool onImage = false;
    EXPECT_EQ(nullptr, tree.GetNodeFromPoint(PointOn(tree, 1, 9), onImage));
    EXPECT_EQ(&Node(tree, 'b'), tree.GetNodeFromPoint(PointOn(tree, 1, 10), onImage));
    EXPECT_TRUE(onImage);
    EXPECT_EQ(nullptr, tree.GetNodeFromPoint({50, 1000}, onImage));
}

TEST_F(TeskTreeMouseTest, OutsideOfTheTreeNothingIsPressed)
{
    TeskTree& tree = MakeFilled();
    _Point2i point = {500, 500};
    EXPECT_FALSE(tree.OnLMouseDown(point));
    EXPECT_FALSE(tree.OnRMouseDown(point));
}

TEST_F(TeskTreeMouseTest, AVisibleBarIsInTheWay)
{
    TeskTree& tree = LoadTree(Events);
    WriteEvents();
    Fill(tree, "abcdefgh");
    Frame();
    _Point2i point = {95, 10};
    EXPECT_TRUE(tree.OnLMouseDown(point));
    EXPECT_EQ("", TakeHeardEvents());
    tree.ScrollBar->Show(false);
    EXPECT_TRUE(tree.OnLMouseDown(point));
    EXPECT_EQ("+a", TakeHeardEvents());
}

TEST_F(TeskTreeMouseTest, TheWheelScrollsBySteps)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefghijkl");
    Frame();
    EXPECT_TRUE(tree.OnMouseWheel(-80));
    EXPECT_EQ(2u, tree.TopRow);
    EXPECT_TRUE(tree.OnMouseWheel(40));
    EXPECT_EQ(1u, tree.TopRow);
    EXPECT_TRUE(tree.OnMouseWheel(39));
    EXPECT_EQ(1u, tree.TopRow);
    EXPECT_EQ("b", Rows(tree).substr(0, 1));
}

TEST_F(TeskTreeMouseTest, AnyReleaseRunsTheLeftOnesScript)
{
    TeskTree& tree = MakeTree("<OnLeftClick>left</OnLeftClick><OnRightClick>right</OnRightClick>");
    std::string ran;
    Host.Scripts["left"] = [&](TeskElement&) { ran += "l"; };
    Host.Scripts["right"] = [&](TeskElement&) { ran += "r"; };
    _Point2i point = PointOn(tree, 0);
    EXPECT_TRUE(tree.OnLMouseUp(point));
    tree.OnRMouseUp(point);
    EXPECT_EQ("ll", ran);
    EXPECT_TRUE(tree.OnLMouseDoubleClick(point));
    EXPECT_TRUE(tree.OnMouseMove(point));
    EXPECT_TRUE(Parent.Heard.empty());
}
