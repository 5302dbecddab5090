#include "tests/unit/TreeTest.h"

#include "tests/unit/Allocations.h"

class TeskTreeTest : public TreeTest
{
protected:
    // Whether a tree of that markup could be loaded.
    bool Loads(const std::string& markup)
    {
        Load("<tree name='T'>" + markup + "</tree>");
        TeskElement* tree = g_UIManager.FindElement("T");
        if (tree)
            g_UIManager.Screen->DeleteChild(tree);
        return tree;
    }
};

TEST_F(TeskTreeTest, ValuesComeFromMarkup)
{
    const TeskTree& tree =
        MakeTree("<ImageBorder>3</ImageBorder><SelectionBackgroundColor>ff000001</SelectionBackgroundColor>"
                 "<SelectionTextColor>ff000002</SelectionTextColor><ImageTexture Filename='#a'/>"
                 "<ImageTextureCollapsible Filename='#b'/><ImageTextureCollapsed Filename='#c'/><Border>4</Border>");
    EXPECT_EQ(3u, tree.ImageBorder);
    EXPECT_EQ(0xff000001u, tree.SelectionBackgroundColor);
    EXPECT_EQ(0xff000002u, tree.SelectionTextColor);
    EXPECT_EQ("#a", tree.ImageTexture->Filename);
    EXPECT_EQ("#b", tree.ImageTextureCollapsible->Filename);
    EXPECT_EQ("#c", tree.ImageTextureCollapsed->Filename);
    EXPECT_EQ(4u, tree.Border);
    EXPECT_EQ(8u, tree.ImageSize);
    EXPECT_EQ(2u, tree.TextMargin);
    EXPECT_EQ(1u, tree.ScrollBar->Range);
    EXPECT_EQ(1u, tree.ScrollBar->GetValue());
    EXPECT_EQ("", tree.Root->Text);
    EXPECT_EQ(0u, tree.Root->TextColor);
}

TEST_F(TeskTreeTest, AnswersToItsWords)
{
    TeskTree& tree = MakeTree();
    EXPECT_TRUE(tree.IsTypeOf("Tree"));
    EXPECT_TRUE(tree.IsTypeOf("frame"));
    EXPECT_FALSE(tree.IsTypeOf("listbox"));
    EXPECT_FALSE(tree.IsTypeOf(nullptr));
}

TEST_F(TeskTreeTest, NeedsAFontAndAScrollBar)
{
    EXPECT_TRUE(Loads("<ScrollBar/>"));
    EXPECT_FALSE(Loads(""));
    g_UIManager.AddTemplate("tree", "<Template><ScrollBar/></Template>");
    EXPECT_TRUE(Loads(""));
}

TEST_F(TeskTreeTest, WithoutMarkupItHasNoNodesAndStands)
{
    auto& tree = dynamic_cast<TeskTree&>(*g_UIManager.LoadElement(g_UIManager.Screen, "tree", "T"));
    EXPECT_EQ(nullptr, tree.Root);
    EXPECT_EQ(16u, tree.ImageSize);
    EXPECT_EQ(5u, tree.TextMargin);
    tree.Width = tree.Height = 100;
    Frame();
    EXPECT_TRUE(PressOn(tree, 0));
    tree.OnMouseWheel(40);
    EXPECT_EQ(nullptr, tree.FindNode(1));
}

TEST_F(TeskTreeTest, WithoutARowHeightNoRowIsDrawnOrHit)
{
    TeskTree& tree = LoadTree("<OnLoad>x</OnLoad>");
    Fill(tree, "abcdefgh");
    tree.ItemHeight = 0;
    Frame();
    EXPECT_FALSE(tree.ScrollBar->Visible);
    EXPECT_EQ("????????", Rows(tree));
}

TEST_F(TeskTreeTest, NodesAreAddedBesideAndBelowEachOther)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "ab(cd)");
    Node(tree, 'a').InsertSiblingBefore("x", 0);
    Node(tree, 'c').InsertSiblingBefore("y", 0);
    Node(tree, 'd').InsertSiblingAfter("z", 0);
    Node(tree, 'a').InsertSiblingAfter("w", 0);
    Node(tree, 'a').AddChild("v", 5);
    EXPECT_EQ("xa(v)wb(ycdz)", Shape(tree));
    EXPECT_EQ("xavwbycdz", Rows(tree));
    EXPECT_EQ(5u, Node(tree, 'v').TextColor);
}

TEST_F(TeskTreeTest, TheRootHasNoSiblings)
{
    TeskTree& tree = MakeTree();
    EXPECT_EQ(nullptr, tree.Root->InsertSiblingBefore("x", 0));
    EXPECT_EQ(nullptr, tree.Root->InsertSiblingAfter("x", 0));
    EXPECT_EQ(1u, tree.GetNodeCount());
}

TEST_F(TeskTreeTest, HandlesAreNeverUsedTwice)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "ab");
    const u32 last = Node(tree, 'b').Handle;
    EXPECT_EQ(Node(tree, 'a').Handle + 1, last);
    Node(tree, 'b').Remove();
    EXPECT_FALSE(Has(tree, last));
    Fill(tree, "c");
    EXPECT_EQ(last + 1, Node(tree, 'c').Handle);
    EXPECT_FALSE(Has(tree, last));
    TeskTree& other = MakeTree();
    EXPECT_EQ(last + 2, other.Root->Handle);
    EXPECT_FALSE(Has(other, last + 1)) << "it is another tree's";
}

TEST_F(TeskTreeTest, ANodeGoesWithAllThatLiesBelowIt)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "a(b(cd)e)f(g)");
    const u32 inner = Node(tree, 'c').Handle;
    Node(tree, 'b').Remove();
    EXPECT_EQ("a(e)f(g)", Shape(tree));
    EXPECT_EQ("aefg", Rows(tree));
    EXPECT_FALSE(Has(tree, inner));
    Node(tree, 'f').RemoveChildren();
    EXPECT_EQ("a(e)f", Shape(tree));
    tree.Root->RemoveChildren();
    EXPECT_EQ("", Shape(tree));
    EXPECT_EQ(0u, tree.GetRowCount());
    Fill(tree, "z");
    EXPECT_EQ("z", Rows(tree));
}

TEST_F(TeskTreeTest, ATreeThatLosesItsRootIsEmptyForEver)
{
    TeskTree& tree = MakeTree(Events);
    WriteEvents();
    Fill(tree, "a(b)");
    Node(tree, 'b').Select();
    TakeHeardEvents();
    tree.Root->Remove();
    EXPECT_EQ("-b", TakeHeardEvents());
    EXPECT_EQ(nullptr, tree.Root);
    EXPECT_EQ(0u, tree.GetNodeCount());
    EXPECT_EQ(0u, tree.GetRowCount());
}

TEST_F(TeskTreeTest, CollapsedNodesKeepWhatLiesBelow)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "a(b(c))d");
    Node(tree, 'a').Collapse();
    EXPECT_EQ("ad", Rows(tree));
    Node(tree, 'b').ToggleExpand();
    Node(tree, 'a').Expand();
    EXPECT_EQ("abd", Rows(tree));
    tree.Root->Collapse();
    EXPECT_EQ("abd", Rows(tree)) << "the root holds all rows, whatever it says";
}

TEST_F(TeskTreeTest, ASelectionIsToldOnceInEachDirection)
{
    TeskTree& tree = MakeTree(Events);
    WriteEvents();
    Fill(tree, "ab");
    Node(tree, 'a').Select();
    Node(tree, 'a').Select();
    EXPECT_EQ("+a", TakeHeardEvents());
    Node(tree, 'b').Select();
    EXPECT_EQ("-a+b", TakeHeardEvents());
    tree.Select(nullptr);
    tree.Select(nullptr);
    EXPECT_EQ("-b", TakeHeardEvents());
    EXPECT_TRUE(Parent.Heard.empty()) << "parents are not told";
}

TEST_F(TeskTreeTest, TheSelectedNodeIsDeselectedAsItGoes)
{
    TeskTree& tree = MakeTree(Events);
    WriteEvents();
    Fill(tree, "a(b(c))");
    Node(tree, 'c').Select();
    Node(tree, 'a').Collapse();
    EXPECT_TRUE(Node(tree, 'c').IsSelected());
    TakeHeardEvents();
    Node(tree, 'a').Remove();
    EXPECT_EQ("-c", TakeHeardEvents());
    EXPECT_EQ(nullptr, tree.Selection);
}

TEST_F(TeskTreeTest, TheSelectedNodeIsDeselectedAsTheTreeGoes)
{
    TeskTree& tree = MakeTree(Events);
    WriteEvents();
    Fill(tree, "a(b)c");
    Node(tree, 'b').Select();
    TakeHeardEvents();
    Parent.DeleteChild(&tree);
    EXPECT_EQ("-b", TakeHeardEvents());
}

TEST_F(TeskTreeTest, MetadataHasNamesWithoutRegardToCase)
{
    TeskTree& tree = MakeTree();
    TeskTreeNode& root = *tree.Root;
    EXPECT_EQ(nullptr, root.GetMetadata("Key"));
    EXPECT_FALSE(root.UnsetMetadata("Key"));
    root.SetMetadata("Key", "one");
    root.SetMetadata("KEY", "two");
    EXPECT_STREQ("two", root.GetMetadata("key"));
    EXPECT_EQ(nullptr, root.GetMetadata(nullptr));
    EXPECT_TRUE(root.UnsetMetadata("kEY"));
    EXPECT_EQ(nullptr, root.GetMetadata("Key"));
}

TEST_F(TeskTreeTest, NodesTakeCopiesOfTheImagesOfTheirTime)
{
    TeskTree& tree = MakeTree("<ImageTexture Filename='#a'/><ImageTextureCollapsed Filename='#c'/>");
    Fill(tree, "a");
    tree.ImageTexture->Set("#other", 0);
    Fill(tree, "b");
    EXPECT_EQ("#a", Node(tree, 'a').Image->Filename);
    EXPECT_EQ("#other", Node(tree, 'b').Image->Filename);
    EXPECT_EQ(nullptr, Node(tree, 'a').ImageCollapsible);
    EXPECT_EQ("#c", Node(tree, 'a').ImageCollapsed->Filename);
}

TEST_F(TeskTreeTest, AChainOfManyNodesIsDrawnCountedAndEndedWithoutRecursion)
{
    constexpr u32 Depth = 300000;
    TeskTree& tree = LoadTree("<ImageTexture Filename='#a'/>");
    TeskTreeNode* node = tree.Root;
    for (u32 depth = 0; depth < Depth; ++depth)
        node = node->AddChild("n", 0);
    EXPECT_EQ(Depth, tree.GetRowCount());
    node->Select();
    Frame();
    tree.ScrollBar->SetValue(0);
    Frame();
    EXPECT_EQ(tree.ScrollBar->Range, tree.TopRow);
    Node(tree, 'n').FirstChild->RemoveChildren();
    EXPECT_EQ(2u, tree.GetRowCount());
    for (u32 depth = 0; depth < Depth / 4; ++depth)
        node = (depth == 0 ? tree.Root : node)->AddChild("n", 0);
    g_UIManager.Screen->DeleteChild(&tree);
}

// Each allocation fails in turn; what was added must be whole.
TEST_F(TeskTreeTest, WithoutMemoryANodeIsNotAdded)
{
    TeskTree& tree = MakeTree("<ImageTexture Filename='a file with a name that is not short.png'/>");
    Fill(tree, "ab");
    const std::string text(100, 'x');
    bool isAdded = false;
    for (std::size_t failure = 0; !isAdded; ++failure) {
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        const TeskTreeNode* added = Node(tree, 'a').InsertSiblingAfter(text.c_str(), 0);
        Allocations::Allow();
        isAdded = added;
        EXPECT_EQ(isAdded ? "a" + text + "b" : "ab", Shape(tree));
        ASSERT_LT(failure, 40u);
    }
}
