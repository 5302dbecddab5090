// Rules about templates and skins: what is looked up, and found too late or not at all.

#include "host/lint/LintContext.h"
#include "host/lint/LintName.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "host/lint/TemplateCycles.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace host {

namespace {

const char* AttributeOf(XMLNode* node, const char* name)
{
    return XMLHelper::GetStringAttribute(node, name, "");
}

bool IsTag(const XMLNode* node, const char* tag)
{
    return node->Type == XMLElementNode && IsSameName(node->Name, tag);
}

template <class Check> void ForEachAtTop(const LintContext& context, const char* tag, Check check)
{
    XMLNode* markup = context.Markup();
    for (XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next) {
        if (IsTag(node, tag))
            check(node);
    }
}

// The element, template or skin at the top of the file in which a node stands.
const XMLNode* TopOf(const XMLNode* node, const XMLNode* markup)
{
    while (node && node->Parent != markup)
        node = node->Parent;
    return node;
}

// What stands at the top of a file, by its order.
using Order = std::unordered_map<const XMLNode*, std::size_t>;

Order OrderAtTop(const XMLNode* markup)
{
    Order order;
    for (const XMLNode* node = markup ? markup->FirstChild : nullptr; node; node = node->Next)
        order.emplace(node, order.size());
    return order;
}

// Whether every template of that name stands in the file, and behind what stands at its top.
bool StandsOnlyBehind(const LintContext& context, std::string_view name, const XMLNode* top, const Order& order)
{
    const std::vector<LintTemplate>& named = context.Templates().Named(name);
    return !named.empty() && std::all_of(named.begin(), named.end(), [&](const LintTemplate& each) {
        return each.File == context.File() && order.at(each.Node) > order.at(top);
    });
}

// Attributes and tags that name a template.
template <class Check> void ForEachName(const LintContext& context, Check check)
{
    for (const LintValue& value : context.Values()) {
        if (!value.Value)
            continue;
        const std::string_view text = LintContext::TextOf(value);
        if (value.Value->Form == "templates") {
            for (const std::string_view name : TemplateNamesIn(text))
                check(value, name);
        } else if (value.Value->Form == "template" && !text.empty()) {
            check(value, text);
        }
    }
}

bool IsInSkinLine(const LintValue& value)
{
    return IsTag(value.Node, "SkinTemplate");
}

TemplateCycles CyclesOf(const LintContext& context)
{
    return TemplateCycles(context.Templates(), context.File(), context.Markup());
}

std::string NamesWith(std::string_view list)
{
    return std::string(list) + ",";
}

bool HasElements(XMLNode* children)
{
    XMLNode* child = children ? children->FirstChild : nullptr;
    while (child && child->Type != XMLElementNode)
        child = child->Next;
    return child != nullptr;
}

} // namespace

void LintChecks::TemplateList(LintContext& context)
{
    ForEachAtTop(context, "Template", [&](XMLNode* node) {
        const std::string_view list = AttributeOf(node, "Template");
        const std::size_t comma = list.rfind(',');
        if (comma != list.npos && comma + 1 < list.size())
            context.Report(node,
                "the part of the list behind the last comma, " + Quoted(list.substr(comma + 1)) + ", is not read",
                NamesWith(list));
    });
    for (const LintValue& value : context.Values()) {
        const bool isOne = value.Value && value.Value->Form == "template";
        if (isOne && LintContext::TextOf(value).find(',') != std::string_view::npos)
            context.Report(value, "only a template can build upon a list: this is one name with a comma in it",
                "a template that builds upon the list");
    }
}

// What a template holds is looked up when an element is made of it, and what a skin names when it is in force.
void LintChecks::TemplateOrder(LintContext& context)
{
    const Order order = OrderAtTop(context.Markup());
    const TemplateCycles cycles = CyclesOf(context);
    ForEachName(context, [&](const LintValue& value, std::string_view name) {
        const XMLNode* top = TopOf(value.Node, context.Markup());
        const bool isLate = !top || IsInSkinLine(value) || (IsTag(top, "Template") && top != value.Node);
        if (isLate || cycles.Find(top) || !StandsOnlyBehind(context, name, top, order))
            return;
        context.Report(
            value, "the template " + Quoted(name) + " does not stand yet here", "the template further up in the file");
    });
}

void LintChecks::TemplateCycle(LintContext& context)
{
    const TemplateCycles cycles = CyclesOf(context);
    std::set<const TemplateCycles::Cycle*> told;
    ForEachAtTop(context, "Template", [&](XMLNode* node) {
        const TemplateCycles::Cycle* cycle = cycles.Find(node);
        if (!cycle || !told.insert(cycle).second)
            return;
        const std::string others = cycle->size() == 1
            ? ""
            : ", over " + std::to_string(cycle->size() - 1) + (cycle->size() == 2 ? " other" : " others");
        context.Report(
            node, "the template " + Quoted(AttributeOf(node, "name")) + " builds upon itself" + others, "another base");
    });
}

void LintChecks::UnknownTemplate(LintContext& context)
{
    ForEachName(context, [&](const LintValue& value, std::string_view name) {
        const bool isList = value.Value->Form == "template" && name.find(',') != name.npos;
        if (!IsInSkinLine(value) && !isList && context.Templates().Named(name).empty())
            context.Report(
                value, "there is no template " + Quoted(name), NearestName(name, context.Templates().Names()));
    });
}

void LintChecks::SkinTemplate(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        XMLNode* line = value.Node;
        if (value.Attribute || !value.Value || !IsTag(line, "SkinTemplate"))
            continue;
        const std::string base = AttributeOf(line, "Base");
        const std::string name = SkinnedNameOf(line);
        if (base.empty() || name.empty())
            context.Report(line,
                "a line of a skin without a " + std::string(base.empty() ? "Base" : "Skin") + " is left out",
                base.empty() ? "Base=\"...\"" : "Skin=\"...\"");
        else if (context.Templates().Named(name).empty())
            context.Report(line,
                "there is no template " + Quoted(name) + ": in this skin " + Quoted(base) + " finds nothing at all",
                NearestName(name, context.Templates().Names()));
    }
}

void LintChecks::HiddenChildren(LintContext& context)
{
    for (const LintElement& element : context.Elements()) {
        XMLNode* own = XMLHelper::GetChild(element.Node, "Children");
        if (!element.Shape || !HasElements(own))
            continue;
        XMLNode* hidden = context.Templates().FindInherited(element.Node, "Children", "", context.File());
        if (hidden && hidden != own && HasElements(hidden))
            context.Report(own,
                "these children stand in place of those of the template "
                    + Quoted(AttributeOf(element.Node, "Template")),
                "the template's children as well");
    }
}

} // namespace host
