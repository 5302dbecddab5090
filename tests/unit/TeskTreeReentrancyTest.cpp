#include "tests/unit/TreeTest.h"

// What scripts do to a tree in the middle of its events.
class TeskTreeReentrancyTest : public TreeTest
{
protected:
    TeskTree& MakeActing()
    {
        TeskTree& tree = MakeTree(Events);
        Fill(tree, "a(b(c)d)e");
        return tree;
    }

    // The tree ends in its script, after which nothing is selected any more.
    void EndIn(const char* script, char selected, const std::function<void(TeskTree& tree)>& cause)
    {
        TeskTree& tree = MakeActing();
        if (selected != 0)
            Node(tree, selected).Select();
        Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "the tree was gone"; };
        int runs = 0;
        Host.Scripts[script] = [&](TeskElement& self) {
            if (++runs == 1)
                Parent.DeleteChild(&self);
        };
        cause(tree);
        EXPECT_TRUE(IsGone());
        Host.Scripts.clear();
    }
};

TEST_F(TeskTreeReentrancyTest, ATreeMayEndInItsScripts)
{
    EndIn("on", 0, [](TeskTree& tree) { Node(tree, 'a').Select(); });
    EndIn("on", 0, [](TeskTree& tree) { PressOn(tree, 0); });
    EndIn("off", 'e', [](TeskTree& tree) { PressOn(tree, 0); });
    EndIn("off", 'e', [](TeskTree& tree) { PressOn(tree, 1, 5); });
    EndIn("off", 'c', [](TeskTree& tree) { Node(tree, 'c').Remove(); });
    EndIn("off", 'c', [](TeskTree& tree) { Node(tree, 'a').Remove(); });
    EndIn("off", 'd', [](TeskTree& tree) { Node(tree, 'a').RemoveChildren(); });
    EndIn("off", 'd', [](TeskTree& tree) { tree.Root->RemoveChildren(); });
}

TEST_F(TeskTreeReentrancyTest, ANodeThatRemovesItselfAsItIsDeselectedGoesOnce)
{
    TeskTree& tree = MakeActing();
    Node(tree, 'b').Select();
    Host.Scripts["off"] = [this](TeskElement& self) {
        auto& acting = dynamic_cast<TeskTree&>(self);
        Heard += "-";
        EXPECT_EQ("b", acting.Selection->Text) << "it is whole";
        acting.Selection->Remove();
        acting.Selection->RemoveChildren();
    };
    Node(tree, 'b').Remove();
    EXPECT_EQ("-", Heard);
    EXPECT_EQ("a(d)e", Shape(tree));
    EXPECT_EQ("ade", Rows(tree));
}

TEST_F(TeskTreeReentrancyTest, ANodeThatRemovesWhatHoldsItIsToldOnce)
{
    for (const char letter : {'c', 'b', 'a'}) {
        TeskTree& tree = MakeActing();
        Node(tree, 'c').Select();
        Host.Scripts["off"] = [&](TeskElement& self) {
            auto& acting = dynamic_cast<TeskTree&>(self);
            Heard += Selected(acting);
            acting.Root->FirstChild->Remove();
        };
        Node(tree, letter).Remove();
        EXPECT_EQ("c", TakeHeardEvents());
        EXPECT_EQ("e", Shape(tree));
        EXPECT_EQ(nullptr, tree.Selection);
        EXPECT_EQ("e", Rows(tree));
    }
}

TEST_F(TeskTreeReentrancyTest, ANodeThatGoesTakesNoMoreChildrenOrSiblings)
{
    TeskTree& tree = MakeActing();
    Node(tree, 'c').Select();
    Host.Scripts["off"] = [](TeskElement& self) {
        auto& acting = dynamic_cast<TeskTree&>(self);
        EXPECT_EQ(nullptr, acting.Selection->AddChild("x", 0));
        EXPECT_EQ(nullptr, acting.Selection->InsertSiblingBefore("x", 0));
        EXPECT_EQ(nullptr, acting.Root->FirstChild->AddChild("x", 0));
        EXPECT_EQ(nullptr, acting.Root->FirstChild->FirstChild->Next->AddChild("x", 0));
        EXPECT_EQ(nullptr, acting.Root->FirstChild->InsertSiblingAfter("x", 0));
        EXPECT_NE(nullptr, acting.Root->AddChild("y", 0));
    };
    Node(tree, 'a').Remove();
    EXPECT_EQ("ey", Shape(tree));
    EXPECT_EQ("ey", Rows(tree));
}

TEST_F(TeskTreeReentrancyTest, ChildrenThatComeWhileOthersAreRemovedStay)
{
    TeskTree& tree = MakeActing();
    Host.Scripts["off"] = [this](TeskElement& self) {
        if (Heard.empty())
            dynamic_cast<TeskTree&>(self).Root->LastChild->InsertSiblingBefore("x", 0);
        Heard += "-";
    };
    Node(tree, 'a').Select();
    tree.Root->RemoveChildren();
    EXPECT_EQ("x", Shape(tree));
    EXPECT_EQ("x", Rows(tree));
}

TEST_F(TeskTreeReentrancyTest, RemovingAllFromWithinARemovalLeavesNothing)
{
    TeskTree& tree = MakeActing();
    Node(tree, 'b').Select();
    Host.Scripts["off"] = [](TeskElement& self) { dynamic_cast<TeskTree&>(self).Root->RemoveChildren(); };
    tree.Root->RemoveChildren();
    EXPECT_EQ("", Shape(tree));
    EXPECT_EQ(0u, tree.GetRowCount());
}

TEST_F(TeskTreeReentrancyTest, ANodeThatGoesAsTheOldOneIsDeselectedIsNotSelected)
{
    TeskTree& tree = MakeActing();
    Node(tree, 'a').Select();
    Host.Scripts["off"] = [](TeskElement& self) { Node(dynamic_cast<TeskTree&>(self), 'e').Remove(); };
    Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "there was nothing to select"; };
    Node(tree, 'e').Select();
    EXPECT_EQ(nullptr, tree.Selection);
}

TEST_F(TeskTreeReentrancyTest, TheNodesOfADyingTreeMayStillBeRead)
{
    TeskTree& tree = MakeActing();
    Node(tree, 'c').Select();
    Host.Scripts["off"] = [this](TeskElement& self) {
        auto& acting = dynamic_cast<TeskTree&>(self);
        Heard += acting.Selection->Text;
        EXPECT_EQ(nullptr, acting.Root->AddChild("x", 0));
        acting.Root->RemoveChildren();
        acting.Root->Remove();
        acting.Root->LastChild->Select();
        Heard += acting.Selection->Text;
    };
    Parent.DeleteChild(&tree);
    EXPECT_EQ("c", Heard.substr(0, 1));
    EXPECT_EQ('e', Heard.back());
}

TEST_F(TeskTreeReentrancyTest, ATreeMayEndInAFrame)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefgh");
    Host.Scripts["change"] = [&](TeskElement&) { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("T")); };
    Frame();
    EXPECT_EQ(nullptr, g_UIManager.FindElement("T"));
}

TEST_F(TeskTreeReentrancyTest, ABarMayEndInAFrame)
{
    TeskTree& tree = LoadTree();
    Fill(tree, "abcdefgh");
    Host.Scripts["change"] = [&](TeskElement&) { tree.DeleteChild(tree.ScrollBar); };
    Frame();
    EXPECT_EQ(nullptr, tree.ScrollBar);
    Frame();
}
