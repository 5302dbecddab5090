#include "teskara/markup/TeskSkin.h"

#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"

namespace {

constexpr MarkupPart LinePart = {"SkinTemplate", "skin line"};
constexpr MarkupPart BaseAttribute = {"Base", "string", MarkupPlace::Attribute};
constexpr MarkupPart SkinAttribute = {"Skin", "template", MarkupPlace::Attribute};
constexpr MarkupPart PrefixAttribute = {"SkinPrefix", "string", MarkupPlace::Attribute};

constexpr MarkupPart SkinParts[] = {
    {NameAttribute, "string", MarkupPlace::Attribute},
    {TemplateAttribute, "template", MarkupPlace::Attribute},
    LinePart,
};
constexpr MarkupPart LineParts[] = {BaseAttribute, SkinAttribute, PrefixAttribute};

const MarkupShape g_Shape({.Name = "skin", .Use = MarkupUse::Value, .Parts = {SkinParts}});
const MarkupShape g_LineShape({.Name = LinePart.Form, .Use = MarkupUse::Value, .Parts = {LineParts}});

} // namespace

TeskSkin::TeskSkin(const char* name) : Name(TextOrEmpty(name)) { }

void TeskSkin::AddTemplate(const char* base, const char* skinned)
try {
    if (!base || !*base)
        return;

    Templates.insert_or_assign(utf8stringnocase(base), utf8string(TextOrEmpty(skinned)));
} catch (...) {
    return;
}

void TeskSkin::RemoveTemplate(const char* base)
{
    const auto line = Templates.find(std::string_view(TextOrEmpty(base)));
    if (line != Templates.end())
        Templates.erase(line);
}

bool TeskSkin::FromXML(XMLNode* node, XMLNode* templateNode)
{
    AddLines(templateNode);
    AddLines(node);
    return true;
}

void TeskSkin::AddLines(XMLNode* node)
{
    if (!node)
        return;

    for (XMLNode* line = node->FirstChild; line; line = line->Next) {
        if (line->Type != XMLElementNode || !line->HasName(LinePart.Name.Text, LinePart.Name.Hash))
            continue;

        const utf8string base = XMLHelper::GetStringAttribute(line, BaseAttribute.Name.Text, "");
        const char* skinned = XMLHelper::GetStringAttribute(line, SkinAttribute.Name.Text, "");
        const utf8string prefix = XMLHelper::GetStringAttribute(line, PrefixAttribute.Name.Text, "");
        if (*skinned)
            AddTemplate(base.c_str(), skinned);
        else if (!prefix.empty())
            AddTemplate(base.c_str(), (prefix + base).c_str());
    }
}

const char* TeskSkin::FindTemplate(const char* base) const
{
    const auto line = Templates.find(std::string_view(TextOrEmpty(base)));
    return line == Templates.end() ? nullptr : line->second.c_str();
}
