// Rules about images, fonts and texts: what is drawn otherwise than it was written, or not at all.

#include "host/lint/LintContext.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "teskara/core/Limits.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"

#include <filesystem>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr const char* FilenameAttribute = "Filename";

// Names that begin so are the host's own images.
constexpr char OwnImage = '#';

bool IsFont(const LintValue& value)
{
    return value.Value && !value.Attribute && (value.Value->Form == "font" || value.Value->Form == "fixed font");
}

void AddFilesIn(const fs::path& folder, std::vector<std::string>& names)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        names.push_back(entry->path().filename().string());
}

// The names under which images may be found.
std::vector<std::string> ImageNames(const LintContext& context)
{
    std::vector<std::string> names;
    std::error_code error;
    AddFilesIn(fs::absolute(context.Source().Path(), error).parent_path(), names);
    AddFilesIn(context.Model().Skin().Folder, names);
    AddFilesIn(context.Paths().InterfacesFolder(), names);
    return names;
}

bool IsLikeFilename(const char* name)
{
    return !NearestName(name, {FilenameAttribute}).empty();
}

// Whether the name of the file is written as something else, of which another rule tells.
bool HasMisspeltFile(const XMLNode& texture)
{
    for (const XMLAttribute* attribute = texture.Attributes; attribute; attribute = attribute->Next) {
        if (*attribute->Value && IsLikeFilename(attribute->Name))
            return true;
    }
    for (const XMLNode* child = texture.FirstChild; child; child = child->Next) {
        if (child->Type == XMLElementNode && IsLikeFilename(child->Name))
            return true;
    }
    return false;
}

// One that is empty, with nothing said of it, may well stand in the way of that of a template.
bool IsTextureWithoutFile(const LintContext& context, const LintValue& value)
{
    const bool isTexture = value.Value && !value.Attribute && value.Value->Form == "texture";
    if (!isTexture || (!value.Node->FirstChild && !value.Node->Attributes) || HasMisspeltFile(*value.Node))
        return false;

    XMLNode* base = context.Templates().Find(XMLHelper::GetStringAttribute(value.Node, "Template", ""), context.File());
    return !context.Templates().HasAttribute(base, FilenameAttribute, context.File());
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
        if (IsTextureWithoutFile(context, value))
            context.Report(value, "the image has no Filename, so nothing is drawn", "Filename=\"...\"");
        if (name.empty() || name.front() == OwnImage || context.Paths().FindResource(name))
            continue;
        context.Report(value, "there is no image " + Quoted(name) + ", so nothing is drawn",
            NearestName(name, ImageNames(context)));
    }
}

void LintChecks::FontColor(LintContext& context)
{
    for (const LintValue& value : context.Values()) {
        if (!IsFont(value))
            continue;
        if (!context.Templates().FindValue(value.Node, "Color", LintTemplates::DefaultFont, context.File()))
            context.Report(value, "the font has no colour, which makes its text clear", "<Color>ffffffff</Color>");
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
