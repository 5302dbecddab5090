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

// How many bytes of a text with sequences are shown: in general, and of values that have more room.
constexpr std::size_t MostShownBytes = Limits::TextBuffer2048 - 1;

constexpr struct {
    std::string_view Shape, Value;
    std::size_t MostBytes;
} RoomierTexts[] = {
    {"element", "AutoTooltip", Limits::TextBuffer4096 - 1},
    {"hudelement", "Text", Limits::TextBuffer8192 - 1},
};

// 0: as long as one likes.
std::size_t MostBytes(const LintContext& context, const LintValue& value)
{
    if (value.Value->Form != "sequence")
        return 0;
    for (const auto& text : RoomierTexts) {
        if (text.Value == value.Value->Name && context.Model().IsKind(value.Shape, text.Shape))
            return text.MostBytes;
    }
    return MostShownBytes;
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
        const std::size_t most = value.Value ? MostBytes(context, value) : 0;
        const std::size_t length = LintContext::TextOf(value).size();
        if (most != 0 && length > most)
            context.Report(value,
                "the text has " + std::to_string(length) + " bytes; what is behind " + std::to_string(most)
                    + " of them is cut off");
    }
}

} // namespace host
