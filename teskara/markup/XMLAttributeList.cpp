#include "teskara/markup/XMLAttributeList.h"

bool XMLAttributeList::Set(XMLArena& arena, const XMLName& name, XMLText value)
{
    if (!name.Text || !value.Text)
        return false;
    if (XMLAttribute* const known = Find(name)) {
        known->Value = value.Text;
        return true;
    }

    XMLAttribute* const attribute = arena.NewAttribute(name, value);
    if (!attribute)
        return false;
    (m_Last ? m_Last->Next : m_Node->Attributes) = attribute;
    m_Last = attribute;
    ++m_Count;
    if (!m_Index.empty())
        m_Index.emplace(attribute->Name, attribute);
    return true;
}

XMLAttribute* XMLAttributeList::Find(const XMLName& name)
{
    if (m_Count < WalkedAtMost)
        return m_Node->FindAttribute(name.View(), name.Hash);

    if (m_Index.empty())
        for (XMLAttribute* attribute = m_Node->Attributes; attribute; attribute = attribute->Next)
            m_Index.emplace(attribute->Name, attribute);
    const auto found = m_Index.find(name.View());
    return found != m_Index.end() ? found->second : nullptr;
}
