#pragma once

#include "teskara/collections/TeskTreeNode.h"
#include "teskara/script/ScriptResults.h"
#include "teskara/script/TableType.h"

// The node that a value stands for; null if the tree has none of that handle, or no longer.
TeskTreeNode* TreeNodeOf(MvValue value);

// tesktreenode: a node of a tree. As a text it is the node's handle.
class TeskTreeNodeType : public TableType<TeskTreeNode, TreeNodeOf>
{
public:
    explicit TeskTreeNodeType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};

struct TreeNodeValue {
    static constexpr const char* Name = "tesktreenode";
    static MvTypeDefinition* Put(MvValue& value, const TeskTreeNode* node);
};

namespace Script {

template <auto Source> inline constexpr ResultOf<TreeNodeValue, Source> TreeNode;

} // namespace Script
