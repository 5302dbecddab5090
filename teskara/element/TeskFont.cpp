#include "teskara/element/TeskFont.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/FontParts.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/XMLHelper.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr MarkupPart Parts[] = {
    {TemplateAttribute, "template", MarkupPlace::Attribute},
    FontParts::Name,
    FontParts::Bold,
    FontParts::Fixed,
    FontParts::Size,
    FontParts::Color,
    FontParts::SizeAttribute,
    FontParts::ColorAttribute,
};

const MarkupShape g_Shape({.Name = "font", .Use = MarkupUse::Value, .Parts = {Parts}});
const MarkupShape g_FixedShape({.Name = "fixed font", .Base = "font", .Use = MarkupUse::Value});

} // namespace

TeskFont::TeskFont(TeskElement* owner, const char* name, u8 size, bool fixed, bool bold)
    : Name(TextOrEmpty(name)), Size(size), Bold(bold), Fixed(fixed), Owner(owner)
{
}

TeskFont::~TeskFont()
{
    Release();
}

TeskFont* TeskFont::New(TeskElement* owner, const char* name, u8 size, bool fixed, bool bold)
{
    try {
        return new TeskFont(owner, name, size, fixed, bold);
    } catch (...) {
        return nullptr;
    }
}

TeskFont* TeskFont::New(TeskElement* owner, const TeskFont& source)
{
    TeskFont* font = New(owner, source.Name.c_str(), source.Size, source.Fixed, source.Bold);
    if (font)
        font->Color = source.Color;
    return font;
}

TeskFont* TeskFont::New(TeskElement* owner, const _CreateFont& record, XMLNode* templateNode)
{
    const _CreateFont full = WithFallbacks(record, templateNode);
    TeskFont* font = New(owner, full.Name, static_cast<u8>(full.Size), full.Fixed, full.Bold);
    if (font)
        font->Color = full.Color;
    return font;
}

// A template gives the name as a child element, but size and colour as attributes.
_CreateFont TeskFont::WithFallbacks(const _CreateFont& record, XMLNode* templateNode)
{
    _CreateFont full = record;
    if (!templateNode) {
        if (full.Color == 0)
            full.Color = 0xffffffffu;
        return full;
    }

    if (!full.Name)
        full.Name = XMLHelper::GetStringValue(templateNode, FontParts::Name.Name.Text, "");
    if (full.Color == 0)
        full.Color = XMLHelper::GetHexAttribute(templateNode, FontParts::ColorAttribute.Name.Text, 0);
    if (full.Size == 0)
        full.Size = XMLHelper::GetIntAttribute(templateNode, FontParts::SizeAttribute.Name.Text, 0);
    return full;
}

void TeskFont::Delete()
{
    delete this;
}

bool TeskFont::Prepare()
{
    if (FontID == 0)
        FontID = g_UIManager.LoadFontResource(Name.c_str(), Size, Fixed, Bold);
    return FontID != 0;
}

void TeskFont::Release()
{
    if (FontID == 0)
        return;

    g_UIManager.ReleaseFontResource(FontID);
    FontID = 0;
}

u64 TeskFont::Draw(const char* text, i32 x, i32 y, u64 width)
{
    return DrawInBox(text, x, y, width, DrawTextLeft);
}

u64 TeskFont::DrawCenter(const char* text, i32 x, i32 y, u64 width)
{
    return DrawInBox(text, x, y, width, DrawTextCenter);
}

u64 TeskFont::DrawRight(const char* text, i32 x, i32 y, u64 width)
{
    return DrawInBox(text, x, y, width, DrawTextRight);
}

// Only the bottom of the screen cuts a text from below.
u64 TeskFont::DrawInBox(const char* text, i32 x, i32 y, u64 width, u32 format)
{
    const TeskScreen* screen = g_UIManager.Screen;
    if (!screen || !EnsureFace())
        return 0;

    const tagRECT box = {x, y, WrapAdd(x, static_cast<u32>(width)), static_cast<i32>(screen->Height)};
    const u32 color = Owner ? Owner->AdjustColor(Color) : Color;
    return Host::DrawText(FontID, TextOrEmpty(text), box, color, width == 0 ? format | DrawTextUnclipped : format);
}

u64 TeskFont::MeasureFace(const char* text) const
{
    return static_cast<u64>(Host::MeasureText(FontID, text, UnknownWidth));
}

u64 TeskFont::GetTextWidth(const char* text)
{
    if (!text)
        return 0;
    if (!EnsureFace())
        return std::strlen(text) * UnknownWidth;

    return MeasureFace(text);
}

// A longer part is measured as if it were the whole text.
u64 TeskFont::GetTextWidth(const char* text, u64 length)
{
    if (!text)
        return 0;
    if (!EnsureFace())
        return length * UnknownWidth;
    if (length > Limits::TextBuffer4096)
        return MeasureFace(text);

    char part[Limits::TextBuffer4096 + 1];
    CopyBounded(part, sizeof(part), std::string_view(text, strnlen(text, static_cast<std::size_t>(length))));
    return MeasureFace(part);
}

float TeskFont::GetAdvance(u8 character) const
{
    float advance = 0;
    if (!Host::GetGlyphAdvance(FontID, character, advance))
        return UnknownWidth;
    return advance;
}

u32 TeskFont::GetCharByOffset(const char* text, u64 offset)
{
    if (!text || !EnsureFace())
        return 0;

    if (Fixed)
        return GetColumnByOffset(text, offset);

    u32 index = 0;
    for (; text[index]; ++index) {
        const i32 width = std::max(TruncateToI32(static_cast<double>(GetAdvance(static_cast<u8>(text[index])))), 0);
        if (static_cast<u64>(width) > offset)
            break;
        offset -= static_cast<u64>(width);
    }
    return index;
}

// The same where all characters are as wide as the space.
u32 TeskFont::GetColumnByOffset(const char* text, u64 offset) const
{
    const float advance = GetAdvance(' ');
    const double column = static_cast<double>(offset) / static_cast<double>(advance > 0 ? advance : UnknownWidth);
    const std::size_t length = std::strlen(text);
    return column < static_cast<double>(length) ? TruncateToU32(column) : static_cast<u32>(length);
}

bool TeskFont::IsFixedFont()
{
    return EnsureFace() && Fixed;
}

void TeskFont::SetBold(bool bold)
{
    if (Bold == bold)
        return;

    Release();
    Bold = bold;
    TellOwner();
}

void TeskFont::SetHeight(u8 height)
{
    if (Size == height)
        return;

    Release();
    Size = height;
    TellOwner();
}

void TeskFont::SetName(const char* name)
{
    if (EqualsNoCase(Name, TextOrEmpty(name)) || !TryAssign(Name, name))
        return;

    Release();
    TellOwner();
}

// Texts that are laid out by this font want to know. The owner may end by that, and this font with it.
void TeskFont::TellOwner()
{
    if (Owner)
        Owner->Notify(nullptr, NotifyFontChanged, reinterpret_cast<std::uintptr_t>(this));
}
