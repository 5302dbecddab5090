#include "teskara/collections/TreeWalk.h"

#include "tests/unit/TreeTest.h"

class TreeWalkTest : public TreeTest
{
protected:
    static std::string WalkAll(const TeskTree& tree, bool includeCollapsed)
    {
        std::string letters;
        for (const TeskTreeNode* node = TreeWalk::Next(*tree.Root, includeCollapsed); node;
             node = TreeWalk::Next(*node, includeCollapsed))
            letters += node->Text;
        return letters;
    }

    static std::string WalkBelow(const TeskTreeNode& top)
    {
        std::string letters;
        for (const TeskTreeNode* node = TreeWalk::NextBelow(top, top); node; node = TreeWalk::NextBelow(top, *node))
            letters += node->Text;
        return letters;
    }
};

TEST_F(TreeWalkTest, GoesDownThenOnThenBackUp)
{
    TeskTree& tree = MakeTree();
    EXPECT_EQ("", WalkAll(tree, true));
    Fill(tree, "ab(cd(ef))g");
    EXPECT_EQ("abcdefg", WalkAll(tree, false));
}

TEST_F(TreeWalkTest, PassesOverWhatIsCollapsedUnlessItIsIncluded)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "ab(cd(ef))g(h)");
    Node(tree, 'd').Collapse();
    Node(tree, 'g').Collapse();
    EXPECT_EQ("abcdg", WalkAll(tree, false));
    EXPECT_EQ("abcdefgh", WalkAll(tree, true));
    Node(tree, 'b').Collapse();
    EXPECT_EQ("abg", WalkAll(tree, false));
}

TEST_F(TreeWalkTest, StaysBelowItsTop)
{
    TeskTree& tree = MakeTree();
    Fill(tree, "ab(cd(ef))g");
    Node(tree, 'd').Collapse();
    EXPECT_EQ("", WalkBelow(Node(tree, 'a')));
    EXPECT_EQ("cdef", WalkBelow(Node(tree, 'b')));
    EXPECT_EQ("ef", WalkBelow(Node(tree, 'd')));
    EXPECT_EQ("", WalkBelow(Node(tree, 'f')));
    EXPECT_EQ("abcdefg", WalkBelow(*tree.Root));
}
