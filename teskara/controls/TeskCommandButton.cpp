#include "teskara/controls/TeskCommandButton.h"

#include "teskara/controls/ConsoleCommand.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"

namespace {

constexpr char Kind[] = "commandbutton";

// clang-format off
constexpr MarkupValue<TeskCommandButton> CommandButtonValues[] = {
    {"Console", Markup::Text<&TeskCommandButton::Console>, ""},
    {"Command", Markup::Text<&TeskCommandButton::Command>, ""},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "button",
    .Tables = {&RowsOf<CommandButtonValues>},
});

} // namespace

bool TeskCommandButton::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskButton::FromXML(node, templateNode))
        return false;

    return ReadMarkup<CommandButtonValues>(*this, {node, templateNode});
}

bool TeskCommandButton::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskButton::IsTypeOf(word);
}

// A click that ends the button runs no command.
bool TeskCommandButton::OnLMouseUp(_Point2i& point)
{
    const ElementWatch self(*this);
    TeskButton::OnLMouseUp(point);
    if (self.Exists() && !Command.empty())
        RunCommand(Command, Console);
    return true;
}
