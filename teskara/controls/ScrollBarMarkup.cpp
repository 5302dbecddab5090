#include "teskara/controls/ScrollBarMarkup.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElementFactory.h"

#include <string_view>

namespace {

constexpr char Kind[] = "scrollbar";
constexpr char Name[] = "vertical";
constexpr u32 WidthWithoutMarkup = 16;

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// What the element names; null if it holds more than a text.
const char* TemplateNameIn(const XMLNode& node)
{
    const XMLNode* first = node.FirstChild;
    return first && first->Type == XMLTextNode && !IsBlank(first->Name) ? first->Name : nullptr;
}

TeskScrollBar* MakeFromTemplate(TeskElement& owner, const char* templateName, const _CreateScrollBar& values)
{
    auto* bar = TeskElementFactory::New<TeskScrollBar>(Kind, &owner, Name);
    if (!bar)
        return nullptr;

    const ElementWatch watch(*bar);
    bar->Create(values, g_UIManager.FindTemplate(templateName));
    return watch.Exists() ? bar : nullptr;
}

} // namespace

_CreateScrollBar UprightScrollBar()
{
    _CreateScrollBar values;
    values.Width = WidthWithoutMarkup;
    values.PositionHeight.Type = PositionShare;
    values.PositionHeight.SetShare(1.0f);
    values.Range = 1;
    values.Vertical = true;
    return values;
}

TeskScrollBar* LoadScrollBar(
    TeskElement& owner, const MarkupSource& source, TagName tag, const _CreateScrollBar& values)
{
    XMLNode* node = source.Child(tag);
    if (!node)
        return nullptr;
    if (const char* templateName = TemplateNameIn(*node))
        return MakeFromTemplate(owner, templateName, values);

    return dynamic_cast<TeskScrollBar*>(g_UIManager.LoadElement(&owner, Kind, Name, node, nullptr));
}
