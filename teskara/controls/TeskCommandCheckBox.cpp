#include "teskara/controls/TeskCommandCheckBox.h"

#include "teskara/controls/ConsoleCommand.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/ProcessedText.h"

namespace {

constexpr char Kind[] = "commandcheckbox";

// clang-format off
constexpr MarkupValue<TeskCommandCheckBox> CommandCheckBoxValues[] = {
    {"Console",        Markup::Text<&TeskCommandCheckBox::Console>,        ""},
    {"Command",        Markup::Text<&TeskCommandCheckBox::Command>,        ""},
    {"CommandChecked", Markup::Text<&TeskCommandCheckBox::CommandChecked>, ""},
    {"Data",           Markup::Sequence<&TeskCommandCheckBox::Data>,       ""},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "checkbox",
    .Tables = {&RowsOf<CommandCheckBoxValues>},
});

} // namespace

bool TeskCommandCheckBox::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskCheckBox::FromXML(node, templateNode))
        return false;

    return ReadMarkup<CommandCheckBoxValues>(*this, {node, templateNode});
}

bool TeskCommandCheckBox::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskCheckBox::IsTypeOf(word);
}

void TeskCommandCheckBox::Render()
{
    if (FollowData())
        TeskCheckBox::Render();
}

// Data that is no number leaves the box as it is. False: the check box has died of its data.
bool TeskCommandCheckBox::FollowData()
{
    const ElementWatch self(*this);
    UseProcessedText(*this, Data, [this, &self](const char* text) {
        double number;
        if (Host::Calculate(text, number) && self.Exists())
            Checked = number != 0;
    });
    return self.Exists();
}

// The command sees the box as it was before the click.
bool TeskCommandCheckBox::OnLMouseUp(_Point2i& point)
{
    const ElementWatch self(*this);
    const utf8string& command = Checked && !CommandChecked.empty() ? CommandChecked : Command;
    if (!command.empty())
        RunCommand(command, Console);
    if (self.Exists())
        TeskCheckBox::OnLMouseUp(point);
    return true;
}
