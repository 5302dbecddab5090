#include "tests/fuzz/TreeActs.h"

#include "teskara/collections/TeskTree.h"
#include "teskara/collections/TreeWalk.h"
#include "teskara/core/CUIManager.h"
#include "tests/fuzz/HostileActs.h"

#include <iterator>

namespace {

TeskTree* FindTree(TeskElement& self)
{
    if (auto* tree = dynamic_cast<TeskTree*>(&self))
        return tree;
    auto* parent = dynamic_cast<TeskTree*>(self.Parent);
    return parent ? parent : dynamic_cast<TeskTree*>(g_UIManager.FindElement("tree"));
}

// The node so many places behind the root.
TeskTreeNode& NodeAt(const TeskTree& tree, u8 place)
{
    TeskTreeNode* node = tree.Root;
    for (; place > 0; --place) {
        TeskTreeNode* next = TreeWalk::Next(*node, true);
        node = next ? next : tree.Root;
    }
    return *node;
}

void Add(TeskTree& tree, u8 argument)
{
    NodeAt(tree, argument % 8).AddChild("a node", argument);
    NodeAt(tree, argument % 5).AddChild("", argument);
}

void Insert(TeskTree& tree, u8 argument)
{
    TeskTreeNode& node = NodeAt(tree, argument % 16);
    node.InsertSiblingBefore("before", argument);
    node.InsertSiblingAfter("after", argument);
}

void Remove(TeskTree& tree, u8 argument)
{
    NodeAt(tree, argument % 16).Remove();
}

void RemoveChildren(TeskTree& tree, u8 argument)
{
    NodeAt(tree, argument % 4).RemoveChildren();
}

void Select(TeskTree& tree, u8 argument)
{
    NodeAt(tree, argument % 16).Select();
}

void Turn(TeskTree& tree, u8 argument)
{
    NodeAt(tree, argument % 8).ToggleExpand();
    tree.ItemHeight = argument % 5 == 0 ? static_cast<u32>(NumberFrom(argument)) : 10;
    tree.TopRow = argument % 7;
}

void Search(TeskTree& tree, u8)
{
    if (TeskTreeNode* found = tree.FindNodeByQuery("a query"))
        found->Select();
}

void Press(TeskTree& tree, u8 argument)
{
    _Point2i point = {tree.AbsoluteX + argument % 64, tree.AbsoluteY + argument / 4};
    if (argument % 2 == 0)
        tree.OnLMouseDown(point);
    else
        tree.OnRMouseDown(point);
}

constexpr void (*Acts[])(TeskTree& tree, u8 argument) = {
    Add, Insert, Remove, RemoveChildren, Select, Turn, Search, Press};

} // namespace

void ShakeFuzzTree(TeskElement& self, u8 argument)
{
    TeskTree* tree = FindTree(self);
    if (tree && tree->Root)
        Acts[argument % std::size(Acts)](*tree, argument / 2);
}
