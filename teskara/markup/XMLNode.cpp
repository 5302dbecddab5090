#include "teskara/markup/XMLNode.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/markup/XMLArena.h"

#include <cstring>

namespace {

// The node that follows in the order of the markup inside the tree under top, or null behind the last.
const XMLNode* NextInTree(const XMLNode* node, const XMLNode* top)
{
    if (node->FirstChild)
        return node->FirstChild;
    while (node != top && !node->Next)
        node = node->Parent;
    return node == top ? nullptr : node->Next;
}

std::size_t BytesForCopy(const XMLNode* top)
{
    std::size_t bytes = 0;
    for (const XMLNode* node = top; node; node = NextInTree(node, top)) {
        bytes += XMLArena::BytesForNode() + XMLArena::BytesForText(std::string_view(node->Name).size());
        for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next)
            bytes += XMLArena::BytesForAttribute() + XMLArena::BytesForText(std::string_view(attribute->Name).size())
                + XMLArena::BytesForText(std::string_view(attribute->Value).size());
    }
    return bytes;
}

// Copies one node without its children. Null if memory ran out.
XMLNode* CopyOne(XMLArena& arena, const XMLNode& node, XMLNode* parent)
{
    const char* const name = arena.Store(std::string_view(node.Name)).Text;
    XMLNode* const copy =
        parent ? arena.NewNode(name, node.Type, node.NameHash, *parent) : arena.NewNode(name, node.Type, node.NameHash);
    if (!copy)
        return nullptr;

    XMLAttribute** end = &copy->Attributes;
    for (const XMLAttribute* attribute = node.Attributes; attribute; attribute = attribute->Next) {
        const XMLName attributeName = arena.StoreName(attribute->Name);
        *end = arena.NewAttribute(attributeName, arena.Store(std::string_view(attribute->Value)));
        if (!*end)
            return nullptr;
        end = &(*end)->Next;
    }
    return copy;
}

// Copies a tree without linking it to anything, which also lets a node be copied below itself. Walks both trees in
// step instead of calling itself, since a tree may be deep. Null if memory ran out.
XMLNode* CopyTree(XMLArena& arena, const XMLNode* top)
{
    XMLNode* const copy = CopyOne(arena, *top, nullptr);
    const XMLNode* node = top;
    for (XMLNode* target = copy; target;) {
        if (node->FirstChild) {
            node = node->FirstChild;
            target = CopyOne(arena, *node, target);
            continue;
        }
        for (; node != top && !node->Next; node = node->Parent)
            target = target->Parent;
        if (node == top)
            return copy;
        node = node->Next;
        target = CopyOne(arena, *node, target->Parent);
    }
    return nullptr;
}

// Makes an arena that holds the copies of everything under top in its first block.
XMLArena* ArenaForCopy(const XMLNode* top)
{
    return XMLArena::Create(BytesForCopy(top));
}

} // namespace

XMLNode* XMLNode::Create(XMLNode* parent, std::string_view name, u32 type)
{
    const u32 hash = type == XMLElementNode ? FoldedHash(name) : 0;
    if (parent) {
        XMLArena& arena = XMLArena::Of(*parent);
        return arena.NewNode(arena.Store(name).Text, type, hash, *parent);
    }

    XMLArena* const arena = XMLArena::Create(XMLArena::BytesForNode() + XMLArena::BytesForText(name.size()));
    if (!arena)
        return nullptr;
    XMLNode* const node = arena->NewNode(arena->Store(name).Text, type, hash);
    arena->First = node;
    if (!node)
        arena->Destroy();
    return node;
}

XMLNode::~XMLNode() = default;

void XMLNode::Delete()
{
    XMLArena& arena = XMLArena::Of(*this);
    if (arena.First == this)
        arena.Destroy();
}

void XMLNode::Delete(XMLNode* node)
{
    if (node)
        node->Delete();
}

void XMLNode::SetAttribute(const char* name, const char* value)
{
    XMLArena& arena = XMLArena::Of(*this);
    const XMLText valueText = arena.Store(std::string_view(TextOrEmpty(value)));
    if (!valueText.Text)
        return;

    if (XMLAttribute* const known = FindAttribute(TextOrEmpty(name))) {
        known->Value = valueText.Text;
        return;
    }
    XMLAttribute** end = &Attributes;
    while (*end)
        end = &(*end)->Next;
    *end = arena.NewAttribute(arena.StoreName(TextOrEmpty(name)), valueText);
}

XMLNode* XMLNode::Clone(XMLNode* parent) const
{
    XMLArena* const arena = parent ? &XMLArena::Of(*parent) : ArenaForCopy(this);
    if (!arena)
        return nullptr;

    XMLNode* const copy = CopyTree(*arena, this);
    if (parent) {
        if (copy)
            arena->LinkLast(*copy, *parent);
        return copy;
    }
    arena->First = copy;
    if (!copy)
        arena->Destroy();
    return copy;
}

bool XMLNode::IsNamed(std::string_view name) const
{
    const bool isSpelledAlike = std::strncmp(Name, name.data(), name.size()) == 0 && Name[name.size()] == 0;
    return isSpelledAlike || EqualsNoCase(Name, name);
}

XMLAttribute* XMLNode::FindAttribute(std::string_view name) const
{
    return FindAttribute(name, FoldedHash(name));
}

XMLAttribute* XMLNode::FindAttribute(std::string_view name, u32 foldedHash) const
{
    for (XMLAttribute* attribute = Attributes; attribute; attribute = attribute->Next)
        if (attribute->HasName(name, foldedHash))
            return attribute;
    return nullptr;
}
