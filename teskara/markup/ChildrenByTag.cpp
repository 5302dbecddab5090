#include "teskara/markup/ChildrenByTag.h"

#include "teskara/markup/XMLNode.h"

void ChildrenByTag::Add(XMLNode* child)
{
    m_Tags.Reserve(m_TagCount + 1, [this](const Tag& tag) { return NameOf(tag); });
    m_Next.push_back(0);
    m_Nodes.push_back(child);
    const auto number = static_cast<u32>(m_Nodes.size());
    Tag& tag = Find(child->Name);
    if (!tag)
        ++m_TagCount;
    if (tag.First == 0)
        tag.First = number;
    else
        m_Next[tag.Last - 1] = number;
    tag.Last = number;
}

XMLNode* ChildrenByTag::TakeFirst(std::string_view tag)
{
    if (m_Tags.IsEmpty())
        return nullptr;

    Tag& known = Find(tag);
    if (known.First == 0)
        return nullptr;

    XMLNode* const first = m_Nodes[known.First - 1];
    known.First = m_Next[known.First - 1];
    return first;
}

const char* ChildrenByTag::NameOf(const Tag& tag) const
{
    return m_Nodes[tag.Last - 1]->Name;
}

// That of a new tag is free.
ChildrenByTag::Tag& ChildrenByTag::Find(std::string_view tag)
{
    return m_Tags.Find(tag, [&](const Tag& known) { return NameEqual()(NameOf(known), tag); });
}
