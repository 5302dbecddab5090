// Rules about tags, attributes and names: what is left out without a word.

#include "host/lint/LintContext.h"
#include "host/lint/LintName.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "host/lint/NumberText.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <map>

namespace host {

namespace {

constexpr const char* NameAttribute = "name";

const char* NameOf(XMLNode* node)
{
    return XMLHelper::GetStringAttribute(node, NameAttribute, "");
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

// What may stand in a node, in all the kinds that it could be of.
std::vector<std::string> NamesIn(const LintContext& context, const XMLNode* node, Part part)
{
    std::vector<std::string> names;
    for (const SchemaShape* shape : context.Model().ShapesOf(node->Parent)) {
        for (const SchemaValue* each : context.Known().ValuesOf(*shape)) {
            if (part == Part::Attributes && IsSameName(each->Owner, node->Name))
                names.push_back(each->Name);
        }
    }
    if (!names.empty())
        return names;

    std::vector<const SchemaShape*> shapes = context.Model().ShapesOf(node);
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
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

// An attribute of that name that one of the values in a node has, as Resizable has MinWidth.
const SchemaValue* FindOwned(const LintContext& context, const XMLNode* around, std::string_view name)
{
    for (const SchemaShape* shape : context.Model().ShapesOf(around)) {
        for (const SchemaValue* value : context.Known().ValuesOf(*shape)) {
            if (value->IsAttribute() && !value->Owner.empty() && IsSameName(value->Name, name))
                return value;
        }
    }
    return nullptr;
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

std::string AsChild(const std::string& name, std::string_view text)
{
    return "<" + name + ">" + std::string(text) + "</" + name + ">";
}

std::string AsAttribute(const std::string& name, std::string_view text)
{
    return name + "=\"" + std::string(text) + "\"";
}

std::string AsOwned(const SchemaValue& value, std::string_view text)
{
    return "<" + value.Owner + " " + AsAttribute(value.Name, text) + ">";
}

// What was probably meant by an attribute that nobody reads: another one, or a child element.
std::string MeantBy(const LintContext& context, const LintValue& value)
{
    const XMLAttribute& attribute = *value.Attribute;
    if (const SchemaValue* owned = FindOwned(context, value.Node, attribute.Name))
        return AsOwned(*owned, attribute.Value);
    const std::string nearest = NearestName(attribute.Name, NamesIn(context, value.Node, Part::Attributes));
    const std::string child =
        nearest.empty() ? NearestName(attribute.Name, NamesIn(context, value.Node, Part::Tags)) : "";
    return child.empty() ? nearest : AsChild(child, attribute.Value);
}

// The attribute that was to be the name of an element without one; null if there is none.
const XMLAttribute* MisspeltName(const XMLNode* node)
{
    for (const XMLAttribute* attribute = node->Attributes; attribute; attribute = attribute->Next) {
        if (*attribute->Value && !NearestName(attribute->Name, {NameAttribute}).empty())
            return attribute;
    }
    return nullptr;
}

bool IsMisspeltName(const LintValue& value)
{
    return *NameOf(value.Node) == 0 && MisspeltName(value.Node) == value.Attribute;
}

std::string MeantName(const XMLNode* node)
{
    const XMLAttribute* attribute = MisspeltName(node);
    return AsAttribute(NameAttribute, attribute ? attribute->Value : "...");
}

bool IsTag(const XMLNode* node, const char* tag)
{
    return node->Type == XMLElementNode && IsSameName(node->Name, tag);
}

// Reports texts that stand beside the tags of what has only tags in it. shape: what it is; null if it is no kind.
void CheckTexts(LintContext& context, const XMLNode* node, const SchemaShape* shape)
{
    const SchemaValue* text = shape ? context.Known().FindChild(*shape, "Text") : nullptr;
    for (const XMLNode* child = node ? node->FirstChild : nullptr; child; child = child->Next) {
        const std::string_view words = child->Type == XMLTextNode ? NumberText::Trim(child->Name) : "";
        if (!words.empty())
            context.Report(context.PlaceInText(child, static_cast<std::size_t>(words.data() - child->Name)),
                "nobody reads the text " + Quoted(words) + " in " + Quoted(node->Name),
                text ? AsChild(text->Name, Quoted(words).substr(1, Quoted(words).size() - 2)) : "");
    }
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
    const XMLNode* around = nullptr;
    std::vector<std::string> names; // that may stand in it
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Tags) || FindAmong(context, value.Node->Parent, value.Node->Name, Part::Attributes)
            || FindOwned(context, value.Node->Parent, value.Node->Name))
            continue;
        if (around != value.Node->Parent) {
            around = value.Node->Parent;
            names = NamesIn(context, around, Part::Tags);
        }
        if (const SchemaValue* known = FindAmong(context, value.Node->Parent, value.Node->Name, Part::Tags))
            context.Report(value, Quoted(value.Node->Name) + " is read in a template only",
                "a template with " + AsChild(known->Name, "..."));
        else
            context.Report(value, "nobody reads " + Quoted(value.Node->Name) + " in " + Described(*value.Shape),
                NearestName(value.Node->Name, names));
    }
}

void LintChecks::UnknownAttribute(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Attributes) || FindAmong(context, value.Node, value.Attribute->Name, Part::Tags)
            || IsMisspeltName(value))
            continue;
        context.Report(value,
            "nobody reads the attribute " + Quoted(value.Attribute->Name) + " of " + Quoted(value.Node->Name),
            MeantBy(context, value));
    }
}

void LintChecks::AttributeForChild(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (IsUnread(value, Part::Attributes) && FindAmong(context, value.Node, value.Attribute->Name, Part::Tags))
            context.Report(value,
                Quoted(value.Attribute->Name) + " is a child element, and is not read as an attribute",
                AsChild(value.Attribute->Name, value.Attribute->Value));
    }
}

void LintChecks::ChildForAttribute(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsUnread(value, Part::Tags))
            continue;
        const std::string_view text = HoldsText(value) ? LintContext::TextOf(value) : "...";
        if (const SchemaValue* meant = FindAmong(context, value.Node->Parent, value.Node->Name, Part::Attributes))
            context.Report(value, Quoted(value.Node->Name) + " is an attribute, and is not read as a child element",
                AsAttribute(meant->Name, text));
        else if (const SchemaValue* owned = FindOwned(context, value.Node->Parent, value.Node->Name))
            context.Report(
                value, Quoted(value.Node->Name) + " is an attribute of another element", AsOwned(*owned, text));
    }
}

void LintChecks::NoName(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        if (*NameOf(element.Node) == 0)
            context.Report(element.Node, "an element without a name is left out", MeantName(element.Node));
    }
    XMLNode* markup = context.Markup();
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if ((IsTag(node, "Template") || IsTag(node, "Skin")) && *NameOf(node) == 0)
            context.Report(node, "a " + std::string(node->Name) + " without a name is left out", MeantName(node));
    }
}

void LintChecks::StrayText(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        if (element.Shape)
            CheckTexts(context, element.Node, element.Shape);
    }
    for (const LintValue& value : context.Values()) {
        const SchemaShape* inside =
            value.Attribute || !value.Value ? nullptr : context.Known().FindShape(value.Value->Form);
        if (inside && inside->Holds != "string" && value.Value->Place != SchemaPlace::NamedChild)
            CheckTexts(context, value.Node, inside);
    }
    XMLNode* markup = context.Markup();
    CheckTexts(context, markup, nullptr);
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if (IsTag(node, "Template") || IsTag(node, "Skin"))
            CheckTexts(context, node, nullptr);
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
