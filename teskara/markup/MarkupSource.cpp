#include "teskara/markup/MarkupSource.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/MarkupQuestions.h"

namespace {

constexpr u64 NameBit(u32 hash)
{
    return u64{1} << (hash & 63u);
}

} // namespace

MarkupSource::MarkupSource(XMLNode* node, XMLNode* templateNode)
    : m_Node(node), m_Template(templateNode), m_NodeNames(NamesOf(node)), m_TemplateNames(NamesOf(templateNode))
{
}

u64 MarkupSource::NamesOf(const XMLNode* node)
{
    u64 names = 0;
    for (const XMLNode* child = node ? node->FirstChild : nullptr; child; child = child->Next) {
        if (child->Type == XMLElementNode)
            names |= NameBit(child->NameHash);
    }
    return names;
}

XMLNode* MarkupSource::Child(TagName tag) const
{
    MarkupQuestions::Tell({m_Node, tag.Text, false});
    const u64 bit = NameBit(tag.Hash);
    if (m_NodeNames & bit) {
        if (XMLNode* child = XMLHelper::GetChild(m_Node, tag))
            return child;
    }
    return m_TemplateNames & bit ? XMLHelper::GetChild(m_Template, tag) : nullptr;
}

const char* MarkupSource::Value(TagName tag) const
{
    const XMLNode* child = Child(tag);
    if (!child)
        return nullptr;

    return child->FirstChild ? child->FirstChild->Name : "";
}

u32 MarkupSource::Integer(TagName tag, u32 fallback) const
{
    const char* value = Value(tag);
    return value ? static_cast<u32>(ReadInteger(value)) : fallback;
}

u32 MarkupSource::Hex(TagName tag, u32 fallback) const
{
    const char* value = Value(tag);
    if (!value)
        return fallback;

    u32 number = 0;
    ReadHex(value, number);
    return number;
}

float MarkupSource::Float(TagName tag, float fallback) const
{
    const char* value = Value(tag);
    return value ? ReadFloat(value) : fallback;
}

const char* MarkupSource::Text(TagName tag, const char* fallback) const
{
    const char* value = Value(tag);
    return value ? value : fallback;
}

bool MarkupSource::Toggle(TagName tag, bool fallback) const
{
    const XMLNode* child = Child(tag);
    if (!child)
        return fallback;

    return !child->FirstChild || ReadInteger(child->FirstChild->Name) != 0;
}

u32 MarkupSource::HexAttribute(const char* name, u32 fallback) const
{
    return XMLHelper::GetHexAttribute(m_Node, name, XMLHelper::GetHexAttribute(m_Template, name, fallback));
}

u32 MarkupSource::Position(TagName tag, ElementPosition& position) const
{
    MarkupQuestions::Tell({m_Node, tag.Text, false});
    u32 value = 0;
    position = {};
    const u64 bit = NameBit(tag.Hash);
    if (m_TemplateNames & bit)
        XMLHelper::GetElementPositionValueEx(m_Template, tag, position, value);
    if (m_NodeNames & bit)
        XMLHelper::GetElementPositionValueEx(m_Node, tag, position, value);
    return value;
}

XMLNode* FindMarkup(XMLNode* node, const char* name, XMLNode* templateNode)
{
    if (!name)
        return node;

    const u32 hash = FoldedHash(name);
    XMLNode* child = XMLHelper::GetChild(node, name, hash);
    return child ? child : XMLHelper::GetChild(templateNode, name, hash);
}

XMLNode* TemplateFor(XMLNode* node, XMLNode* templateNode, const char* kind)
{
    if (templateNode)
        return templateNode;

    XMLNode* named = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, TemplateAttribute, ""));
    return named ? named : g_UIManager.FindTemplate(kind);
}
