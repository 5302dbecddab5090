#include "teskara/collections/TreeWalk.h"

#include "teskara/collections/TeskTreeNode.h"

namespace {

// Behind a node and all that lies below it. Stops at top, from where there is no way on.
TeskTreeNode* NextBehind(const TeskTreeNode* top, const TeskTreeNode* node)
{
    for (; node && node != top; node = node->Parent) {
        if (node->Next)
            return node->Next;
    }
    return nullptr;
}

} // namespace

TeskTreeNode* TreeWalk::Next(const TeskTreeNode& node, bool includeCollapsed)
{
    if (node.FirstChild && (includeCollapsed || node.IsExpanded()))
        return node.FirstChild;
    return NextBehind(nullptr, &node);
}

TeskTreeNode* TreeWalk::NextBelow(const TeskTreeNode& top, const TeskTreeNode& node)
{
    return node.FirstChild ? node.FirstChild : NextBehind(&top, &node);
}
