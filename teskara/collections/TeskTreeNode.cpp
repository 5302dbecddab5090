#include "teskara/collections/TeskTreeNode.h"

#include "teskara/collections/TeskTree.h"
#include "teskara/core/BoundedText.h"

#include <limits>
#include <new>
#include <string_view>

namespace {

u32 g_LastHandle = 0;

u32 NewHandle()
{
    if (g_LastHandle == std::numeric_limits<u32>::max())
        throw std::bad_alloc();
    return ++g_LastHandle;
}

std::unique_ptr<TeskTexture> CopyOf(const std::unique_ptr<TeskTexture>& image)
{
    return image ? std::make_unique<TeskTexture>(*image) : nullptr;
}

} // namespace

TeskTreeNode::TeskTreeNode(TeskTree* tree, TeskTreeNode* parent, const char* text, u32 color)
    : Parent(parent), Image(CopyOf(tree->ImageTexture)), ImageCollapsible(CopyOf(tree->ImageTextureCollapsible)),
      ImageCollapsed(CopyOf(tree->ImageTextureCollapsed)), Text(TextOrEmpty(text)), TextColor(color), pTree(tree),
      Handle(NewHandle())
{
}

// The images are given back in the order that hosts expect.
TeskTreeNode::~TeskTreeNode()
{
    Image.reset();
    ImageCollapsible.reset();
    ImageCollapsed.reset();
}

// Between two children of this node, or at an end for null.
void TeskTreeNode::LinkChild(TeskTreeNode& child, TeskTreeNode* previous, TeskTreeNode* next)
{
    child.Previous = previous;
    child.Next = next;
    (previous ? previous->Next : FirstChild) = &child;
    (next ? next->Previous : LastChild) = &child;
}

void TeskTreeNode::Unlink()
{
    if (Next)
        Next->Previous = Previous;
    else if (Parent)
        Parent->LastChild = Previous;
    if (Previous)
        Previous->Next = Next;
    else if (Parent)
        Parent->FirstChild = Next;
}

TeskTreeNode* TeskTreeNode::AddChild(const char* text, u32 color)
{
    TeskTreeNode* child = Stage == LifeStage::Alive ? pTree->AddNode(this, text, color) : nullptr;
    if (!child)
        return nullptr;

    LinkChild(*child, LastChild, nullptr);
    if (IsRoot())
        pTree->m_Rows.Append(*child);
    else
        pTree->m_Rows.AppendTo(*this, *child);
    return child;
}

TeskTreeNode* TeskTreeNode::AddSibling(const char* text, u32 color)
{
    return !IsRoot() && Stage == LifeStage::Alive ? pTree->AddNode(Parent, text, color) : nullptr;
}

TeskTreeNode* TeskTreeNode::InsertSiblingBefore(const char* text, u32 color)
{
    TeskTreeNode* sibling = AddSibling(text, color);
    if (!sibling)
        return nullptr;

    Parent->LinkChild(*sibling, Previous, this);
    pTree->m_Rows.InsertBefore(*this, *sibling);
    return sibling;
}

TeskTreeNode* TeskTreeNode::InsertSiblingAfter(const char* text, u32 color)
{
    TeskTreeNode* sibling = AddSibling(text, color);
    if (!sibling)
        return nullptr;

    Parent->LinkChild(*sibling, this, Next);
    pTree->m_Rows.InsertBehind(*this, *sibling);
    return sibling;
}

void TeskTreeNode::Remove()
{
    pTree->RemoveNode(*this);
}

void TeskTreeNode::RemoveChildren()
{
    pTree->RemoveChildren(*this);
}

void TeskTreeNode::SetExpanded(bool expanded)
{
    if (expanded != IsExpanded())
        pTree->m_Rows.SetExpanded(*this, expanded);
}

void TeskTreeNode::SetText(const char* text) noexcept
{
    TryAssign(Text, text);
}

void TeskTreeNode::Select()
{
    pTree->Select(this);
}

bool TeskTreeNode::IsSelected() const
{
    return pTree->Selection == this;
}

const char* TeskTreeNode::GetMetadata(const char* key) const
{
    if (!Metadata)
        return nullptr;

    const auto found = Metadata->find(std::string_view(TextOrEmpty(key)));
    return found != Metadata->end() ? found->second.c_str() : nullptr;
}

void TeskTreeNode::SetMetadata(const char* key, const char* value) noexcept
try {
    if (!Metadata)
        Metadata = std::make_unique<NameMap<utf8string>>();
    Metadata->insert_or_assign(utf8stringnocase(TextOrEmpty(key)), TextOrEmpty(value));
} catch (...) {
    return; // no memory
}

bool TeskTreeNode::UnsetMetadata(const char* key)
{
    if (!Metadata)
        return false;

    const auto found = Metadata->find(std::string_view(TextOrEmpty(key)));
    if (found != Metadata->end())
        Metadata->erase(found);
    return true;
}

MvValue TeskTreeNode::GetMvValue() const
{
    MvValue value;
    value.Words[0] = Handle;
    value.Words[1] = pTree->ID;
    return value;
}
