// Which nodes a tree has, and which of them is selected. Scripts run by the selection's events and by queries, so nodes
// are looked up again by their handles behind each.

#include "teskara/collections/TeskTree.h"
#include "teskara/collections/TreeWalk.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/TypeGlobals.h"

#include <utility>

TeskTreeNode* TeskTree::FindNode(u32 handle) const
{
    const auto found = m_Nodes.find(handle);
    return found != m_Nodes.end() && found->second->Stage != LifeStage::Gone ? found->second.get() : nullptr;
}

TeskTreeNode* TeskTree::FindNodeByQuery(const char* query)
{
    const ElementWatch self(*this);
    const u32 id = Host::CreateQuery(pTeskTreeNodeType, query);
    if (id == 0)
        return nullptr;

    const u32 found = self.Exists() ? AskNodes(id) : 0;
    Host::FreeQuery(id);
    return self.Exists() ? FindNode(found) : nullptr;
}

// The handle of the first node for which the query holds; 0 if there is none, or if the tree is gone.
u32 TeskTree::AskNodes(u32 query)
{
    const ElementWatch self(*this);
    const u32 last = m_Nodes.empty() ? 0 : m_Nodes.rbegin()->first;
    for (u32 handle = 0; self.Exists() && handle < last;) {
        const auto next = m_Nodes.upper_bound(handle);
        if (next == m_Nodes.end())
            break;

        handle = next->first;
        _MvTypeVar object;
        object.Type = pTeskTreeNodeType;
        object.Value = next->second->GetMvValue();
        if (handle <= last && FindNode(handle) && Host::EvaluateQuery(query, object))
            return handle;
    }
    return 0;
}

TeskTreeNode* TeskTree::AddNode(TeskTreeNode* parent, const char* text, u32 color) noexcept
try {
    auto node = std::make_unique<TeskTreeNode>(this, parent, text, color);
    const u32 handle = node->Handle;
    return m_Nodes.emplace_hint(m_Nodes.end(), handle, std::move(node))->second.get();
} catch (...) {
    return nullptr;
}

// A script that hears that the old node is deselected still finds it selected.
void TeskTree::Select(TeskTreeNode* node)
{
    if (node == Selection)
        return;

    const u32 handle = node ? node->Handle : 0;
    const ElementWatch self(*this);
    if (Selection)
        RunScript(OnDeSelect);
    if (!self.Exists())
        return;

    Selection = FindNode(handle);
    if (Selection)
        RunScript(OnSelect);
}

void TeskTree::RemoveNode(TeskTreeNode& node)
{
    if (node.Stage == LifeStage::Alive)
        Destroy(node);
}

// Not what scripts add meanwhile: it has higher handles.
void TeskTree::RemoveChildren(TeskTreeNode& node)
{
    const ElementWatch self(*this);
    const u32 parent = node.Handle;
    const u32 last = m_Nodes.rbegin()->first;
    for (TeskTreeNode* child = node.FirstChild; child;) {
        if (child->Stage != LifeStage::Alive || child->Handle > last) {
            child = child->Next;
            continue;
        }
        Destroy(*child);
        const TeskTreeNode* present = self.Exists() ? FindNode(parent) : nullptr;
        child = present ? present->FirstChild : nullptr;
    }
}

// First all of it is on its way out, so that no script can make it longer, and shows no more. Each node is deselected
// before those below it go, and ends after them.
void TeskTree::Destroy(TeskTreeNode& top)
{
    if (top.IsRoot())
        m_Rows.Clear();
    else
        m_Rows.Remove(top);
    for (TeskTreeNode* node = &top; node; node = TreeWalk::NextBelow(top, *node)) {
        if (node->Stage == LifeStage::Alive)
            node->Stage = LifeStage::Going;
    }

    const u32 handle = top.Handle;
    for (TeskTreeNode* node = &top; node && Dismiss(*node, handle);) {
        if (node->FirstChild) {
            node = node->FirstChild;
            continue;
        }
        TeskTreeNode* parent = node != &top ? node->Parent : nullptr;
        Discard(*node);
        node = parent;
    }
}

// Deselects a node that is to end with all below top, and takes it from all who know its handle. False: a script has
// ended the tree, or all below top. It is not told twice of one node, even if it removes what holds it.
bool TeskTree::Dismiss(TeskTreeNode& node, u32 top)
{
    if (Selection == &node && m_Leaving != node.Handle) {
        const ElementWatch self(*this);
        const u32 before = std::exchange(m_Leaving, node.Handle);
        Select(nullptr);
        if (!self.Exists())
            return false;

        m_Leaving = before;
        if (m_Nodes.count(top) == 0)
            return false;
    }
    node.Stage = LifeStage::Gone;
    return true;
}

// A node without children.
void TeskTree::Discard(TeskTreeNode& node)
{
    if (Selection == &node)
        Selection = nullptr;
    if (Root == &node)
        Root = nullptr;
    node.Unlink();
    m_Nodes.erase(node.Handle);
}
