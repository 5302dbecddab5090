#pragma once

#include "teskara/collections/TreeRows.h"
#include "teskara/core/Export.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/script/MvTypeVar.h"

#include <memory>

class TeskTree;

// A node of a tree control: a row, and what lies below it. The tree owns it, and knows it by a handle. Scripts run as
// nodes are selected and removed, and may remove any node, this one included, or the tree.
class TESKARA_EXPORT TeskTreeNode : public TreeRow
{
public:
    // Takes copies of the tree's images. The node is in no chain yet. Throws when there is no memory.
    TeskTreeNode(TeskTree* tree, TeskTreeNode* parent, const char* text, u32 color);
    ~TeskTreeNode();

    // --- Adding nodes. Null: nothing was added, since this node is about to end, has no siblings because it is the
    // root, or because there is no memory.

    TeskTreeNode* AddChild(const char* text, u32 color); // behind the last one
    TeskTreeNode* InsertSiblingBefore(const char* text, u32 color);
    TeskTreeNode* InsertSiblingAfter(const char* text, u32 color);

    // --- Removing, with all that lies below. A node is deselected first, and is whole while the script runs.

    void Remove();
    void RemoveChildren();

    // --- The row. What is below a collapsed node doesn't show; below the root it always does.

    void SetExpanded(bool expanded);
    void Expand() { SetExpanded(true); }
    void Collapse() { SetExpanded(false); }
    void ToggleExpand() { SetExpanded(!IsExpanded()); }

    // Null is empty. If there is no memory the text stays as it is.
    void SetText(const char* text) noexcept;

    // Does nothing if it is selected already.
    void Select();
    bool IsSelected() const;
    bool IsRoot() const { return !Parent; }

    // --- Named texts that scripts keep with the node; names without regard to case

    // Null: there is none.
    const char* GetMetadata(const char* key) const;
    void SetMetadata(const char* key, const char* value) noexcept;
    bool UnsetMetadata(const char* key); // false: none was ever set

    // What scripts hold: the handle and, in the second word, the id of the tree.
    MvValue GetMvValue() const;

    TeskTreeNode* Parent;
    TeskTreeNode* FirstChild = nullptr;
    TeskTreeNode* LastChild = nullptr;
    TeskTreeNode* Previous = nullptr;
    TeskTreeNode* Next = nullptr;
    std::unique_ptr<TeskTexture> Image; // null for none
    std::unique_ptr<TeskTexture> ImageCollapsible; // of an expanded node that has children
    std::unique_ptr<TeskTexture> ImageCollapsed; // of a collapsed one
    utf8string Text;
    u32 TextColor; // ARGB
    TeskTree* pTree;
    u32 Handle; // from 1; never used twice, in whatever tree
    LifeStage Stage = LifeStage::Alive;
    std::unique_ptr<NameMap<utf8string>> Metadata; // null until there is some

private:
    friend class TeskTree;

    TeskTreeNode* AddSibling(const char* text, u32 color);
    void LinkChild(TeskTreeNode& child, TeskTreeNode* previous, TeskTreeNode* next);
    void Unlink();
};
