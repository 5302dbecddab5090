// Rules about images, fonts and texts: what is drawn otherwise than it was written, or not at all.

#include "host/lint/LintContext.h"
#include "host/lint/LintRule.h"
#include "teskara/core/Limits.h"
#include "teskara/markup/XMLHelper.h"

namespace host {

namespace {

// Names that begin so are the host's own images.
constexpr char OwnImage = '#';

bool IsFont(const LintValue& value)
{
    return value.Value && !value.Attribute && (value.Value->Form == "font" || value.Value->Form == "fixed font");
}

// Bytes of a text that is shown with its sequences evaluated.
constexpr std::size_t MostSequenceBytes = Limits::TextBuffer2048 - 1;
constexpr std::size_t MostTooltipBytes = Limits::TextBuffer4096 - 1;

std::size_t MostBytes(const LintValue& value)
{
    if (value.Value->Form == "sequence")
        return MostSequenceBytes;
    return value.Value->Name == "AutoTooltip" ? MostTooltipBytes : 0;
}

} // namespace

void LintChecks::TextureFile(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        const std::string name(value.Value && value.Value->Form == "file" ? LintContext::TextOf(value) : "");
        if (name.empty() || name.front() == OwnImage || context.Paths().FindResource(name))
            continue;
        context.Report(value, "there is no image " + Quoted(name) + ", so nothing is drawn");
    }
}

void LintChecks::FontColor(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsFont(value))
            continue;
        if (!context.Templates().FindValue(value.Node, "Color", LintTemplates::DefaultFont, context.File()))
            context.Report(value, "the font has no colour, which makes it black", "<Color>ffffffff</Color>");
    }
}

void LintChecks::LongText(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        const std::size_t most = value.Value ? MostBytes(value) : 0;
        const std::size_t length = LintContext::TextOf(value).size();
        if (most != 0 && length > most)
            context.Report(value,
                "the text has " + std::to_string(length) + " bytes; what is behind " + std::to_string(most)
                    + " of them is cut off");
    }
    for (const LintElement& element : context.Elements()) {
        if (!context.Model().IsKind(element.Shape, "textentry"))
            continue;
        const std::size_t length = std::string_view(XMLHelper::GetStringValue(element.Node, "Text", "")).size();
        XMLNode* most = context.Model().FindValue(element, "MaxLength", context.File());
        const u32 room = most ? XMLHelper::GetIntValue(most->Parent, "MaxLength", 0) : 0;
        if (room > 0 && length >= room)
            context.Report(element.Node,
                "the entry's text has " + std::to_string(length) + " bytes, of which " + std::to_string(room - 1)
                    + " fit",
                "<MaxLength>" + std::to_string(length + 1) + "</MaxLength>");
    }
}

} // namespace host
