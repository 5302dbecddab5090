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
    if (!m_Index.IsEmpty())
        AddToIndex(*attribute);
    return true;
}

XMLAttribute* XMLAttributeList::Find(const XMLName& name)
{
    if (m_Count < WalkedAtMost)
        return m_Node->FindAttribute(name.View(), name.Hash);

    if (m_Index.IsEmpty())
        FillIndex();
    return m_Index.Find(
        name.View(), [&](const XMLAttribute* attribute) { return attribute->HasName(name.View(), name.Hash); });
}

void XMLAttributeList::FillIndex()
{
    for (XMLAttribute* attribute = m_Node->Attributes; attribute; attribute = attribute->Next)
        AddToIndex(*attribute);
}

void XMLAttributeList::AddToIndex(XMLAttribute& attribute)
{
    m_Index.Reserve(m_Count, [](const XMLAttribute* other) { return other->Name; });
    m_Index.FindFree(attribute.Name) = &attribute;
}
