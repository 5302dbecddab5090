#include "teskara/windows/DialogBuilder.h"

#include "teskara/element/MarkupTable.h"
#include "teskara/windows/TeskWindow.h"

namespace {

constexpr u32 ButtonFontSize = 12;
constexpr i32 TextTop = 5;

constexpr MarkupPart BorderPart = {"Border", "integer", MarkupPlace::TemplateChild};
constexpr MarkupPart BackgroundPart = {"BackgroundColor", "hex", MarkupPlace::TemplateChild};
constexpr MarkupPart DialogParts[] = {BorderPart, BackgroundPart};

const MarkupShape g_Shape({.Name = "dialog", .Base = "dialog window", .Use = MarkupUse::Base, .Parts = {DialogParts}});

u32 HeightOf(const TeskFont* font)
{
    return font ? font->Size : 0;
}

const char* NameOf(const TeskFont* font)
{
    return font ? font->Name.c_str() : nullptr;
}

} // namespace

DialogBuilder::DialogBuilder(TeskWindow& window, XMLNode* templateNode, TeskFont* font)
    : m_Window(window), m_Watch(window), m_Source(nullptr, templateNode), m_Font(font)
{
}

bool DialogBuilder::BreakText(const char* text, Measures measures)
{
    m_Text.Set(text);
    m_Text.Expand();
    if (!m_Watch.Exists())
        return false;

    m_Text.Split(m_Font);
    const u32 parentHeight = m_Window.Parent ? m_Window.Parent->Height : 0;
    m_Sizes = DialogLayout::SizesFor(
        m_Text.LineCount(), m_Text.Width(), HeightOf(m_Font), measures.LineHeight, measures.Room, parentHeight);
    return true;
}

bool DialogBuilder::MakeWindow(const char* title, u32 borderColor)
{
    _CreateWindow record;
    record.Width = m_Sizes.Width;
    record.Height = m_Sizes.WindowHeight;
    record.Border = m_Source.Integer(BorderPart.Name, 0);
    record.Title = title;
    m_Window.Create(record, m_Source.Template());
    if (!m_Watch.Exists())
        return false;

    m_Window.SetTitle(title);
    m_Window.BackgroundColor = m_Source.Hex(BackgroundPart.Name, 0);
    m_Window.BorderColor = borderColor;
    m_Window.RecalculateChildrenSize();
    if (!m_Watch.Exists())
        return false;

    m_Window.OnResize();
    return m_Watch.Exists();
}

TeskElement& DialogBuilder::Area() const
{
    if (m_Window.Client)
        return *m_Window.Client;
    return m_Window;
}

u32 DialogBuilder::AreaWidth() const
{
    return m_Window.Client ? m_Window.Client->Width : m_Window.Width - 2 * m_Window.Border;
}

u32 DialogBuilder::AreaHeight() const
{
    return m_Window.Client ? m_Window.Client->Height : m_Window.Height - 2 * m_Window.Border;
}

_CreateText DialogBuilder::TextRecord() const
{
    _CreateText record;
    record.Y = TextTop;
    record.Width = m_Sizes.Width;
    record.Height = m_Sizes.TextHeight;
    record.Text = m_Text.Lines();
    record.Font = {NameOf(m_Font), HeightOf(m_Font), m_Font ? m_Font->Color : 0};
    record.Wrap = true;
    record.Alignment = AlignCenter;
    record.VerticalAlignment = AlignVerticalCenter;
    return record;
}

_CreateButton DialogBuilder::ButtonRecord(const DialogButton& look, u32 x, u32 width) const
{
    _CreateButton record;
    record.X = static_cast<i32>(x);
    record.Y = static_cast<i32>(DialogLayout::ButtonTop(AreaHeight()));
    record.Width = width;
    record.Height = DialogLayout::ButtonHeight;
    record.Text = look.Text;
    record.Font = {NameOf(m_Font), ButtonFontSize, m_Source.Hex(look.Color, 0)};
    return record;
}

TeskTexture* DialogBuilder::ReadTexture(TagName tag) const
{
    return m_Window.TextureFromXML(m_Source.Template(), tag.Text, nullptr);
}

void DialogBuilder::SetFaces(TeskButton& button, const DialogButton& look, Faces faces) const
{
    struct Face {
        std::unique_ptr<TeskTexture> TeskButton::*Texture;
        TagName Tag;
    };
    const Face rows[] = {
        {&TeskButton::Texture, look.Texture},
        {&TeskButton::TexturePressed, look.TexturePressed},
        {&TeskButton::TextureHover, look.TextureHover},
    };
    const ElementWatch watch(button);
    for (const Face& face : rows) {
        if (faces == Faces::Missing && button.*face.Texture)
            continue;
        Markup::KeepMade(button, button.*face.Texture, [&] { return ReadTexture(face.Tag); });
        if (!watch.Exists() || !m_Watch.Exists())
            return;
    }
}
