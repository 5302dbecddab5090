// Rules about tags, attributes and names: what is left out without a word.

#include "host/lint/LintContext.h"
#include "host/lint/LintName.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <map>

namespace host {

namespace {

const char* NameOf(XMLNode* node)
{
    return XMLHelper::GetStringAttribute(node, "name", "");
}

// As messages name what a tag stands in.
std::string Described(const SchemaShape& shape)
{
    const std::string& name = shape.Name;
    const bool isVowel = std::string_view("aeiou").find(name.front()) != std::string_view::npos;
    return (isVowel ? "an " : "a ") + name;
}

std::vector<std::string> KindNames(const Schema& schema)
{
    std::vector<std::string> names;
    for (const SchemaShape& shape : schema.Shapes) {
        if (shape.Use == SchemaUse::Element)
            names.push_back(shape.Name);
    }
    return names;
}

enum class Part { Tags, Attributes };

// What may stand where a node stands that nobody reads, in all the kinds that it could be of.
std::vector<std::string> NamesAround(const LintContext& context, const LintValue& value, Part part)
{
    std::vector<std::string> names;
    const XMLNode* around = part == Part::Tags ? value.Node->Parent : value.Node;
    std::vector<const SchemaShape*> shapes = context.Model().ShapesOf(around);
    if (shapes.empty()) {
        for (const SchemaShape& shape : context.Known().Shapes)
            shapes.push_back(&shape);
    }
    for (const SchemaShape* shape : shapes) {
        for (const SchemaValue* each : context.Known().ValuesOf(*shape)) {
            if (each->IsAttribute() == (part == Part::Attributes) && each->Owner.empty())
                names.push_back(each->Name);
        }
    }
    return names;
}

const SchemaValue* FindAmong(const LintContext& context, const XMLNode* around, std::string_view name, Part part)
{
    for (const SchemaShape* shape : context.Model().ShapesOf(around)) {
        const SchemaValue* value = part == Part::Tags ? context.Known().FindChild(*shape, name)
                                                      : context.Known().FindAttribute(*shape, name, "");
        if (value)
            return value;
    }
    return nullptr;
}

bool IsUnread(const LintValue& value, Part part)
{
    return !value.Value && (value.Attribute != nullptr) == (part == Part::Attributes);
}

bool HoldsText(const LintValue& value)
{
    return value.Node->FirstChild && value.Node->FirstChild->Type == XMLTextNode && !value.Node->FirstChild->Next;
}

std::string AsChild(const XMLAttribute& attribute)
{
    const std::string name = attribute.Name;
    return "<" + name + ">" + attribute.Value + "</" + name + ">";
}

bool IsTag(const XMLNode* node, const char* tag)
{
    return node->Type == XMLElementNode && IsSameName(node->Name, tag);
}

// Reports what bears a name that another bore before it.
void CheckNames(LintContext& context, XMLNode* around, bool areTemplates)
{
    std::map<std::string, XMLNode*> names;
    for (XMLNode* node = around ? around->FirstChild : nullptr; node; node = node->Next) {
        if (node->Type != XMLElementNode || *NameOf(node) == 0 || IsTag(node, "Skin")
            || IsTag(node, "Template") != areTemplates)
            continue;
        std::string name = FoldedName(NameOf(node));
        if (!names.emplace(name, node).second)
            context.Report(node,
                areTemplates ? "the template " + Quoted(NameOf(node)) + " replaces the one before it"
                             : "there is an element " + Quoted(NameOf(node)) + " here already: this one is left out",
                "a name of its own");
    }
}

} // namespace

void LintChecks::UnknownKind(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        if (!element.Shape)
            context.Report(element.Node, "there is no kind " + Quoted(element.Node->Name) + ": the element is left out",
                NearestName(element.Node->Name, KindNames(context.Known())));
    }
}

void LintChecks::MisplacedKind(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        if (!element.Shape || element.Shape->Use == SchemaUse::Element)
            continue;
        const bool isPart = element.Shape->Use == SchemaUse::Part;
        context.Report(element.Node,
            isPart ? Quoted(element.Node->Name) + " is a part of other kinds, and none by itself"
                   : Quoted(element.Node->Name) + " is made by programs, not by markup",
            isPart ? "the kind that has such a part" : "");
    }
}

void LintChecks::UnknownTag(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Tags) || FindAmong(context, value.Node->Parent, value.Node->Name, Part::Attributes))
            continue;
        context.Report(value, "nobody reads " + Quoted(value.Node->Name) + " in " + Described(*value.Shape),
            NearestName(value.Node->Name, NamesAround(context, value, Part::Tags)));
    }
}

void LintChecks::UnknownAttribute(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Attributes) || FindAmong(context, value.Node, value.Attribute->Name, Part::Tags))
            continue;
        context.Report(value,
            "nobody reads the attribute " + Quoted(value.Attribute->Name) + " of " + Quoted(value.Node->Name),
            NearestName(value.Attribute->Name, NamesAround(context, value, Part::Attributes)));
    }
}

void LintChecks::AttributeForChild(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (IsUnread(value, Part::Attributes) && FindAmong(context, value.Node, value.Attribute->Name, Part::Tags))
            context.Report(value,
                Quoted(value.Attribute->Name) + " is a child element, and is not read as an attribute",
                AsChild(*value.Attribute));
    }
}

void LintChecks::ChildForAttribute(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Tags))
            continue;
        const SchemaValue* meant = FindAmong(context, value.Node->Parent, value.Node->Name, Part::Attributes);
        if (meant)
            context.Report(value, Quoted(value.Node->Name) + " is an attribute, and is not read as a child element",
                HoldsText(value) ? meant->Name + "=\"" + std::string(LintContext::TextOf(value)) + "\"" : "");
    }
}

void LintChecks::NoName(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        if (*NameOf(element.Node) == 0)
            context.Report(element.Node, "an element without a name is left out", "name=\"...\"");
    }
    XMLNode* markup = context.Markup();
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if ((IsTag(node, "Template") || IsTag(node, "Skin")) && *NameOf(node) == 0)
            context.Report(node, "a " + std::string(node->Name) + " without a name is left out", "name=\"...\"");
    }
}

void LintChecks::SameName(LintContext& context)
{
    CheckNames(context, context.Markup(), false);
    CheckNames(context, context.Markup(), true);
    for (const LintValue& value : context.Values()) {
        const SchemaShape* inside =
            value.Attribute || !value.Value ? nullptr : context.Known().FindShape(value.Value->Form);
        if (inside && inside->Holds == "element")
            CheckNames(context, value.Node, false);
    }
}

} // namespace host
