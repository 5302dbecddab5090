// Rules about single kinds: values without which they do not do what they are there for.

#include "host/lint/LintContext.h"
#include "host/lint/LintName.h"
#include "host/lint/LintRule.h"
#include "host/lint/NumberText.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <optional>

namespace host {

namespace {

constexpr const char* TooltipName = "Auto Tooltip";

// The text of a value as the element gets it; nothing if neither it nor a template has it.
std::optional<std::string_view> TextOf(const LintContext& context, const LintElement& element, const char* tag)
{
    XMLNode* value = context.Model().FindValue(element, tag, context.File());
    if (!value)
        return std::nullopt;
    return XMLHelper::GetText(XMLHelper::GetFirstChild(value));
}

i32 NumberOf(const LintContext& context, const LintElement& element, const char* tag)
{
    return NumberText::Integer(TextOf(context, element, tag).value_or(""));
}

template <class Check> void ForEachOf(LintContext& context, std::string_view kind, Check check)
{
    for (const LintElement& element : context.Elements()) {
        if (context.Model().IsKind(element.Shape, kind))
            check(element);
    }
}

// Nothing: it follows another element's size.
std::optional<i32> PixelsOf(const LintContext& context, const LintElement& element, const char* tag)
{
    const std::string_view text = TextOf(context, element, tag).value_or("0");
    if (text.find_first_of("%.rR") != text.npos)
        return std::nullopt;
    return NumberText::Integer(text);
}

bool HasTooltipElement(const LintContext& context)
{
    const std::size_t files = context.Model().Files().size();
    for (std::size_t file = 0; file < files; ++file) {
        const std::vector<LintElement>& elements = context.Model().ElementsOf(file);
        const bool has = std::any_of(elements.begin(), elements.end(), [](const LintElement& element) {
            return IsSameName(XMLHelper::GetStringAttribute(element.Node, "name", ""), TooltipName);
        });
        if (has)
            return true;
    }
    return false;
}

} // namespace

void LintChecks::EntryLength(LintContext& context)
{
    ForEachOf(context, "textentry", [&](const LintElement& element) {
        if (NumberOf(context, element, "MaxLength") == 0)
            context.Report(element.Node, "the entry has no MaxLength, so nothing can be written in it",
                "<MaxLength>64</MaxLength>");
    });
}

void LintChecks::TreeRowHeight(LintContext& context)
{
    ForEachOf(context, "tree", [&](const LintElement& element) {
        if (NumberOf(context, element, "ItemHeight") == 0)
            context.Report(element.Node, "the rows of the tree have no height", "<ItemHeight>18</ItemHeight>");
    });
}

void LintChecks::ComboHeight(LintContext& context)
{
    ForEachOf(context, "combobox", [&](const LintElement& element) {
        const auto height = PixelsOf(context, element, "Height");
        const i32 full = NumberOf(context, element, "FullHeight");
        if (full <= height.value_or(0))
            context.Report(element.Node, "opened, the box is no higher than closed: its list has no room",
                "<FullHeight>" + std::to_string(height.value_or(24) + 96) + "</FullHeight>");
    });
}

void LintChecks::FadeDelay(LintContext& context)
{
    ForEachOf(context, "element", [&](const LintElement& element) {
        const bool fades = TextOf(context, element, "FadeAlpha") || TextOf(context, element, "FadeDuration");
        if (fades && NumberOf(context, element, "FadeDelay") == 0)
            context.Report(element.Node, "without a FadeDelay the element never fades", "<FadeDelay>1</FadeDelay>");
    });
}

// One is enough: one element shows them all.
void LintChecks::TooltipElement(LintContext& context)
{
    const auto& values = context.Values();
    const auto found = std::find_if(values.begin(), values.end(),
        [](const LintValue& value) { return value.Value && value.Value->Name == "AutoTooltip"; });
    if (found != values.end() && !HasTooltipElement(context))
        context.Report(*found, "no element named 'Auto Tooltip' is there to show it",
            "<tooltip name=\"Auto Tooltip\"/> in the file or beside it");
}

} // namespace host
