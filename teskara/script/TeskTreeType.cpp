#include "teskara/script/TeskTreeType.h"

#include "teskara/script/TeskTreeNodeType.h"

namespace {

// By a handle or by a query.
TeskTreeNode* GetNode(TeskTree& tree, const Arguments& arguments)
{
    if (arguments.IsNumber(0))
        return tree.FindNode(static_cast<u32>(arguments.Integer(0)));
    return tree.FindNodeByQuery(arguments.Text(0));
}

// clang-format off
constexpr ScriptMember<TeskTree> Members[] = {
    {0, "Font",             Script::Font<&TeskTree::Font>},
    {1, "Selection",        Script::TreeNode<&TeskTree::Selection>},
    {2, "Root",             Script::TreeNode<&TeskTree::Root>},
    {3, "GetNode",          Script::TreeNode<GetNode>, 1},
    {4, "Image",            Script::Texture<&TeskTree::ImageTexture>},
    {5, "ImageCollapsible", Script::Texture<&TeskTree::ImageTextureCollapsible>},
    {6, "ImageCollapsed",   Script::Texture<&TeskTree::ImageTextureCollapsed>},
};
// clang-format on

} // namespace

TeskTreeType::TeskTreeType(const char* name) : ElementType(name, Members, {}) { }
