#include "teskara/markup/TemplateChain.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/core/utf8string.h"
#include "teskara/markup/ChildrenByTag.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLAttributeList.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

// A merged tree of so much is copied into a block of its size; beside a larger one the room that it leaves is little.
constexpr std::size_t SmallBytes = 16 * 1024;

const char* BaseNames(XMLNode* node)
{
    return XMLHelper::GetStringAttribute(node, TemplateAttribute, "");
}

// child: may be null.
void RemoveChild(XMLNode* parent, XMLNode* child)
{
    if (!child)
        return;

    (child->Prev ? child->Prev->Next : parent->FirstChild) = child->Next;
    (child->Next ? child->Next->Prev : parent->LastChild) = child->Prev;
    XMLNode::Delete(child);
}

// What a copy of the node and all below it takes, roughly. Counts no further than beyond most.
std::size_t BytesOf(const XMLNode* top, std::size_t most)
{
    std::size_t bytes = 0;
    const XMLNode* node = top;
    while (node && bytes <= most) {
        bytes += sizeof(XMLNode) + std::strlen(node->Name);
        for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next)
            bytes += sizeof(XMLAttribute) + std::strlen(attribute->Name) + std::strlen(attribute->Value);

        if (node->FirstChild) {
            node = node->FirstChild;
            continue;
        }
        while (node != top && !node->Next)
            node = node->Parent;
        node = node == top ? nullptr : node->Next;
    }
    return bytes;
}

// The template that comes of a chain, entry by entry. Knows its attributes by name and its children by tag, so that many
// of them cost no search.
class MergedTemplate
{
public:
    explicit MergedTemplate(XMLNode* root) : m_Root(root)
    {
        m_Attributes.Begin(*root);
        for (XMLNode* child = root->FirstChild; child; child = child->Next)
            Note(child);
    }

    // An element takes the place of the first one of its tag, and stands at the end. Texts and comments add up.
    void Merge(XMLNode* source)
    {
        for (XMLAttribute* attribute = source->Attributes; attribute; attribute = attribute->Next)
            SetAttribute(*attribute);
        for (XMLNode* child = source->FirstChild; child; child = child->Next) {
            if (child->Type == XMLElementNode)
                RemoveChild(m_Root, m_ByTag.TakeFirst(child->Name));
            if (XMLNode* copy = child->Clone(m_Root))
                Note(copy);
        }
    }

private:
    void SetAttribute(const XMLAttribute& attribute)
    {
        XMLArena& arena = XMLArena::Of(*m_Root);
        m_Attributes.Set(arena, arena.StoreName(attribute.Name), arena.Store(std::string_view(attribute.Value)));
    }

    void Note(XMLNode* child)
    {
        if (child->Type == XMLElementNode)
            m_ByTag.Add(child);
    }

    XMLNode* m_Root;
    XMLAttributeList m_Attributes;
    ChildrenByTag m_ByTag; // those that are gone stay good as long as the root
};

} // namespace

TemplateChain::TemplateChain(XMLNode* node, TemplateRoom& room) : m_BaseRoom(room), m_Room(Limits::TemplateChainBytes)
{
    m_Room -= std::min(m_Room, BytesOf(node, m_Room));
    m_Entries.Push(node);
    m_Passes.push_back({node, nullptr, BaseNames(node)});
    Collect();
}

// Bases that hold too much together are left out from there on, so that circles, lists of lists and long lines of
// templates come to an end before memory does.
void TemplateChain::Enter(XMLNode* base)
{
    const bool isFirst = m_Entries.Count() == 1;
    std::size_t& baseRoom = isFirst ? m_BaseRoom.FirstBases : m_BaseRoom.OtherBases;
    const std::size_t most = std::min(m_Room, baseRoom);
    const std::size_t bytes = std::max(BytesOf(base, most), isFirst ? 0 : Limits::TemplateBaseBytes);
    m_Full = bytes > most;
    if (m_Full)
        return;

    m_Room -= bytes;
    baseRoom -= bytes;
    m_Entries.Push(base);
}

// A name without a comma leads to the next node, until a node names the one just found. With commas only the names
// that a comma ends count, each a chain of its own; the node stays, so its list is taken twice.
void TemplateChain::Collect()
{
    while (!m_Passes.empty() && !m_Full && m_Entries.Count() < Limits::TemplateChainEntries) {
        Pass& pass = m_Passes.back();
        if (std::strchr(pass.NextName, ',')) {
            if (XMLNode* listed = NextListed(pass)) {
                Enter(listed);
                m_Passes.push_back({listed, nullptr, BaseNames(listed)});
            }
            continue;
        }

        const char* names = BaseNames(pass.Node);
        XMLNode* next = std::strchr(names, ',') ? pass.Node : g_UIManager.FindTemplate(names);
        if (!next || next == pass.LastBase) {
            m_Passes.pop_back();
            continue;
        }
        Enter(next);
        pass = {next, next, BaseNames(next)};
    }
}

// Takes the next name off a list and looks it up.
XMLNode* TemplateChain::NextListed(Pass& pass)
{
    const char* comma = std::strchr(pass.NextName, ',');
    const utf8string name(pass.NextName, comma);
    pass.NextName = comma + 1;
    return g_UIManager.FindTemplate(name.c_str());
}

XMLNode* TemplateChain::Merge()
{
    XMLTree root(m_Entries.Pop()->Clone(nullptr));
    if (!root || m_Entries.IsEmpty())
        return root.release();

    MergedTemplate merged(root.get());
    while (!m_Entries.IsEmpty())
        merged.Merge(m_Entries.Pop());
    return HeldBytes() <= SmallBytes ? root->Clone(nullptr) : root.release();
}
