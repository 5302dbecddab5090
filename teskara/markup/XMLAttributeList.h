#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/NameSlots.h"
#include "teskara/markup/XMLArena.h"

// The attributes of a node that is given many: of the tag that is being read, or of a template that is merged. Adds at
// the end without a walk, and finds repeated names through an index once there are more than a few.
class XMLAttributeList
{
public:
    // Begins with a node and the attributes that it has.
    void Begin(XMLNode& node);

    // The same as the node's SetAttribute, with texts that lie in its arena. False if memory ran out.
    bool Set(XMLArena& arena, const XMLName& name, XMLText value);

    u32 Count() const { return m_Count; }

private:
    static constexpr u32 WalkedAtMost = 16;

    XMLAttribute* Find(const XMLName& name);
    void FillIndex();
    void AddToIndex(XMLAttribute& attribute);

    XMLNode* m_Node = nullptr;
    XMLAttribute* m_Last = nullptr;
    u32 m_Count = 0;
    NameSlots<XMLAttribute*> m_Index; // empty while there are few
};

inline void XMLAttributeList::Begin(XMLNode& node)
{
    m_Node = &node;
    m_Last = nullptr;
    m_Count = 0;
    for (XMLAttribute* attribute = node.Attributes; attribute; attribute = attribute->Next) {
        m_Last = attribute;
        ++m_Count;
    }
    m_Index.Clear();
}
