#include "teskara/script/TeskTreeNodeType.h"

#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/script/ScriptActions.h"

#include <limits>

namespace {

// Adds a node by an operation, with a text and perhaps a colour. Null: nothing was added.
template <TeskTreeNode* (TeskTreeNode::*Operation)(const char* text, u32 color)>
TeskTreeNode* Added(TeskTreeNode& node, const Arguments& arguments)
{
    u32 color = node.pTree->DefaultTextColor;
    arguments.Color(1, color);
    return (node.*Operation)(arguments.Text(0), color);
}

template <TeskTreeNode* (TeskTreeNode::*Operation)(const char* text, u32 color)>
bool Add(TeskTreeNode& node, const Arguments& arguments)
{
    return Added<Operation>(node, arguments) != nullptr;
}

const char* GetMetadata(TeskTreeNode& node, const Arguments& arguments)
{
    return node.GetMetadata(arguments.Text(0));
}

bool SetMetadata(TeskTreeNode& node, const Arguments& arguments)
{
    node.SetMetadata(arguments.Text(0), arguments.Text(1));
    return true;
}

bool UnsetMetadata(TeskTreeNode& node, const Arguments& arguments)
{
    return node.UnsetMetadata(arguments.Text(0));
}

// What the root, which has no row, is not asked for.
bool SetText(TeskTreeNode& node, const Arguments& arguments)
{
    if (node.IsRoot())
        return false;

    node.SetText(arguments.Text(0));
    return true;
}

bool SetTextColor(TeskTreeNode& node, const Arguments& arguments)
{
    if (node.IsRoot())
        return false;

    arguments.Color(0, node.TextColor);
    return true;
}

template <void (TeskTreeNode::*Operation)()> bool OnRow(TeskTreeNode& node, const Arguments&)
{
    if (node.IsRoot())
        return false;

    (node.*Operation)();
    return true;
}

// Done, and yet it tells of failure.
bool Remove(TeskTreeNode& node, const Arguments&)
{
    if (!node.IsRoot())
        node.Remove();
    return false;
}

// The three that add a node are members, which give it, and methods.
// clang-format off
constexpr ScriptMember<TeskTreeNode> Members[] = {
    {0,  "Handle",              Script::Int<&TeskTreeNode::Handle>},
    {1,  "Text",                Script::String<&TeskTreeNode::Text>},
    {2,  "TextColor",           Script::Int<&TeskTreeNode::TextColor>},
    {3,  "Image",               Script::Texture<&TeskTreeNode::Image>},
    {4,  "ImageCollapsible",    Script::Texture<&TeskTreeNode::ImageCollapsible>},
    {5,  "ImageCollapsed",      Script::Texture<&TeskTreeNode::ImageCollapsed>},
    {6,  "Parent",              Script::TreeNode<&TeskTreeNode::Parent>},
    {7,  "Children",            Script::TreeNode<&TeskTreeNode::FirstChild>},
    {8,  "Next",                Script::TreeNode<&TeskTreeNode::Next>},
    {9,  "Previous",            Script::TreeNode<&TeskTreeNode::Previous>},
    {10, "Expanded",            Script::Bool<&TeskTreeNode::IsExpanded>},
    {11, "Tree",                Script::Nothing},
    {12, "GetMetadata",         Script::String<GetMetadata>, 1},
    {13, "IsSelected",          Script::Bool<&TeskTreeNode::IsSelected>},
    {14, "AddChild",            Script::TreeNode<Added<&TeskTreeNode::AddChild>>, 1},
    {15, "InsertSiblingBefore", Script::TreeNode<Added<&TeskTreeNode::InsertSiblingBefore>>, 1},
    {16, "InsertSiblingAfter",  Script::TreeNode<Added<&TeskTreeNode::InsertSiblingAfter>>, 1},
};

constexpr ScriptMethod<TeskTreeNode> Methods[] = {
    {0,  "AddChild",            Add<&TeskTreeNode::AddChild>, 1},
    {1,  "InsertSiblingBefore", Add<&TeskTreeNode::InsertSiblingBefore>, 1},
    {2,  "InsertSiblingAfter",  Add<&TeskTreeNode::InsertSiblingAfter>, 1},
    {3,  "SetText",             SetText, 1},
    {4,  "SetTextColor",        SetTextColor, 1},
    {5,  "Select",              Script::Call<&TeskTreeNode::Select>},
    {6,  "Remove",              Remove},
    {7,  "RemoveChildren",      Script::Call<&TeskTreeNode::RemoveChildren>},
    {8,  "Expand",              OnRow<&TeskTreeNode::Expand>},
    {9,  "Collapse",            OnRow<&TeskTreeNode::Collapse>},
    {10, "ToggleExpand",        OnRow<&TeskTreeNode::ToggleExpand>},
    {11, "SetMetadata",         SetMetadata, 2},
    {12, "UnsetMetadata",       UnsetMetadata, 1},
};
// clang-format on

} // namespace

TeskTreeNode* TreeNodeOf(MvValue value)
{
    const u64 handle = value.Words[0];
    const u64 treeID = value.Words[1];
    constexpr u64 most = std::numeric_limits<u32>::max();
    if (handle > most || treeID > most)
        return nullptr;

    const auto* tree = dynamic_cast<const TeskTree*>(g_UIManager.FindElementByID(static_cast<u32>(treeID)));
    return tree ? tree->FindNode(static_cast<u32>(handle)) : nullptr;
}

MvTypeDefinition* TreeNodeValue::Put(MvValue& value, const TeskTreeNode* node)
{
    if (!node)
        return nullptr;

    value = node->GetMvValue();
    return pTeskTreeNodeType;
}

TeskTreeNodeType::TeskTreeNodeType(const char* name) : TableType(name, Members, Methods) { }

bool TeskTreeNodeType::ToText(MvValue value, char* buffer, u32 size)
{
    const TeskTreeNode* node = TreeNodeOf(value);
    if (!node || !buffer)
        return false;

    WriteInteger(buffer, size, node->Handle);
    return true;
}
