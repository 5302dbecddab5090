#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Utf8.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/FontParts.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFixedFont.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/MarkupSource.h"
#include "teskara/markup/SkinScope.h"
#include "teskara/markup/XMLDocument.h"

#include <memory>
#include <optional>
#include <utility>

namespace {

// The font of a control that names none.
constexpr u8 PlainFontSize = 12;

// The template that fonts fall back to.
constexpr char DefaultFontTemplate[] = "Default Font";

// What the markup of a font says.
struct FontMarkup {
    FontMarkup(XMLNode* node, XMLNode* templateNode)
    {
        const MarkupSource source(node, templateNode);
        Name = source.Text(FontParts::Name.Name, "");
        Bold = source.Toggle(FontParts::Bold.Name, false);
        Fixed = source.Toggle(FontParts::Fixed.Name, false);
        Size = static_cast<u8>(source.Integer(FontParts::Size.Name, 0));
        Color = source.Hex(FontParts::Color.Name, 0);
    }

    const char* Name;
    bool Bold;
    bool Fixed;
    u8 Size;
    u32 Color;
};

XMLNode* FindFontTemplate(XMLNode* font)
{
    XMLNode* named = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(font, TemplateAttribute, ""));
    return named ? named : g_UIManager.FindTemplate(DefaultFontTemplate);
}

// A path too long for the system names nothing.
bool FileExists(const utf8string& path)
{
    const std::u16string wide = ToUtf16(path);
    return wide.size() <= Limits::MarkupPathUnits && System::FileExists(wide.c_str());
}

// The file of that name in the folder of the interface file that was loaded last; empty if there is none. Only a
// backslash parts folders here; on other systems the host looks beside the interface file.
utf8string FindBesideInterface(const char* name)
{
    const std::string_view file = g_UIManager.CurrentFile;
    const std::size_t separator = file.rfind('\\');
    if (separator == std::string_view::npos)
        return {};

    utf8string path(file.substr(0, separator + 1));
    path += name;
    return path.size() < Limits::TextBuffer1024 && FileExists(path) ? path : utf8string();
}

// What the host is to load for an image's name. "#fill" is an image without a file, other names that begin with "#" are
// the host's own. Null: there is no such file.
std::optional<utf8string> FindImage(const char* name)
{
    if (*name == '#')
        return EqualsNoCase(name, "#fill") ? "" : name;

    utf8string path = FindBesideInterface(name);
    if (!path.empty())
        return path;

    char found[Limits::TextBuffer1024];
    path = Host::FindResourceFile(name, found, sizeof(found)) ? found : name;
    if (!FileExists(path))
        return std::nullopt;
    return path;
}

// The texture that a tag describes; null if it names no image that is there.
TeskTexture* MakeTexture(XMLNode* markup)
{
    if (!markup)
        return nullptr;

    XMLNode* templateNode = nullptr;
    const char* name = XMLHelper::GetStringAttribute(markup, FilenameAttribute, "");
    if (!*name) {
        templateNode = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(markup, TemplateAttribute, ""));
        name = XMLHelper::GetStringAttribute(templateNode, FilenameAttribute, "");
        if (!*name)
            return nullptr;
    }

    const std::optional<utf8string> file = FindImage(name);
    std::unique_ptr<TeskTexture> texture(file ? TeskTexture::New(file->c_str()) : nullptr);
    if (!texture || !texture->FromXML(markup, templateNode))
        return nullptr;

    return texture.release();
}

} // namespace

TeskTexture* TeskElement::TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode)
{
    try {
        return MakeTexture(FindMarkup(node, tag, templateNode));
    } catch (...) {
        return nullptr;
    }
}

TeskFont* TeskElement::FontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode)
{
    XMLNode* markup = FindMarkup(node, tag, templateNode);
    if (!markup)
        return TeskFont::New(this, "", PlainFontSize, false, false);

    const FontMarkup values(markup, FindFontTemplate(markup));
    TeskFont* font = TeskFont::New(this, values.Name, values.Size, values.Fixed, values.Bold);
    if (font)
        font->Color = values.Color;
    return font;
}

TeskFixedFont* TeskElement::FixedFontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode)
{
    XMLNode* markup = FindMarkup(node, tag, templateNode);
    if (!markup)
        return TeskFixedFont::New(this, "", PlainFontSize, false);

    const FontMarkup values(markup, FindFontTemplate(markup));
    TeskFixedFont* font = TeskFixedFont::New(this, values.Name, values.Size, values.Bold);
    if (font)
        font->Color = values.Color;
    return font;
}

// The old texture goes in any case.
bool TeskElement::TextureFromArgs(int argc, char** argv, TeskTexture** texture)
try {
    if (!texture)
        return false;

    TeskTexture::Delete(*texture);
    *texture = nullptr;
    if (argc < 1 || !argv)
        return false;

    TeskSkin* skin = argc > 1 ? g_UIManager.FindSkin(argv[1]) : nullptr;
    XMLDocument document;
    if (!document.ParseBuffer(argv[0]) || !document.Root)
        return false;

    const SkinScope inForce(skin);
    *texture = TextureFromXML(document.Root->FirstChild, nullptr, nullptr);
    return *texture != nullptr;
} catch (...) {
    return false; // no memory
}

// A kind that reads textures in its own way may end by it.
bool TeskElement::TextureFromArgs(int argc, char** argv, std::unique_ptr<TeskTexture>& texture)
{
    const ElementWatch self(*this);
    TeskTexture* raw = texture.release();
    TextureFromArgs(argc, argv, &raw);
    std::unique_ptr<TeskTexture> made(raw);
    if (!self.Exists())
        return false;

    texture = std::move(made);
    return texture != nullptr;
}
