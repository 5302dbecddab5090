#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/XMLHelper.h"

// Where the values of one object come from: its node, else its template, else the default. Both may be null. Texts
// belong to the tree that they were read from.
class MarkupSource
{
public:
    MarkupSource(XMLNode* node, XMLNode* templateNode);

    XMLNode* Node() const { return m_Node; }
    XMLNode* Template() const { return m_Template; }

    // The child element of that name, of the node or else of the template; null if neither has one.
    XMLNode* Child(TagName tag) const;

    // The text of that child: empty if it has no content, null if there is no such child.
    const char* Value(TagName tag) const;

    u32 Integer(TagName tag, u32 fallback) const;
    u32 Hex(TagName tag, u32 fallback) const;
    float Float(TagName tag, float fallback) const;
    const char* Text(TagName tag, const char* fallback) const;

    // A child without content is true.
    bool Toggle(TagName tag, bool fallback) const;

    // An attribute of the node or else of the template. A text that is no hexadecimal number gives 0.
    u32 HexAttribute(const char* name, u32 fallback) const;

    // A position or size. A child without content does not hide the template's.
    u32 Position(TagName tag, ElementPosition& position) const;

private:
    static u64 NamesOf(const XMLNode* node);

    XMLNode* m_Node;
    XMLNode* m_Template;
    u64 m_NodeNames; // one bit for each name among the children, so that most tags are known to be absent
    u64 m_TemplateNames; // without a search
};

// The child element of that name, of node or else of templateNode; for a null name node itself. Null: there is none.
XMLNode* FindMarkup(XMLNode* node, const char* name, XMLNode* templateNode);

// The template of an element: the one it was given, else the one that its own Template attribute names, else the one
// named after its kind.
XMLNode* TemplateFor(XMLNode* node, XMLNode* templateNode, const char* kind);
