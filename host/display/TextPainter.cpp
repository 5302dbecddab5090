#include "host/display/TextPainter.h"

#include "teskara/core/HostInterface.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

enum class Alignment {
    Left,
    Center,
    Right,
};

Alignment AlignmentOf(u32 format)
{
    switch (format & ~u32{DrawTextUnclipped}) {
    case DrawTextCenter:
        return Alignment::Center;
    case DrawTextRight:
        return Alignment::Right;
    default:
        return Alignment::Left;
    }
}

bool IsClipped(u32 format)
{
    return (format & DrawTextUnclipped) == 0;
}

// A box may be as wide as numbers go, so its arithmetic is done in more bits than its edges have.
i64 StartOf(const TextPainter::Style& style, int width)
{
    const i64 left = style.Box.left;
    const i64 boxWidth = IsClipped(style.Format) ? i64{style.Box.right} - left : 0;
    switch (AlignmentOf(style.Format)) {
    case Alignment::Center:
        // A text that is too wide shows its beginning.
        return IsClipped(style.Format) ? left + std::max<i64>(0, (boxWidth - width) / 2) : left - width / 2;
    case Alignment::Right:
        return left + boxWidth - width;
    case Alignment::Left:
        break;
    }
    return left;
}

PixelRect ClipOf(const TextPainter::Style& style)
{
    constexpr float Far = 1e9f;
    PixelRect clip = {-Far, -Far, Far, Far};
    if (IsClipped(style.Format)) {
        clip.Left = std::round(static_cast<float>(style.Box.left) * style.Scale);
        clip.Right = std::round(static_cast<float>(style.Box.right) * style.Scale);
    }
    return clip;
}

TextureCorners CornersOf(const GlyphAtlas::Slot& slot, float width, float height)
{
    const float left = static_cast<float>(slot.X) / width;
    const float top = static_cast<float>(slot.Y) / height;
    const float right = static_cast<float>(slot.X + slot.Width) / width;
    const float bottom = static_cast<float>(slot.Y + slot.Height) / height;
    return {{left, top}, {right, top}, {left, bottom}};
}

} // namespace

TextPainter::TextPainter(Renderer& renderer, GlyphAtlas& atlas, TextShaper& shaper)
    : m_Renderer(renderer), m_Atlas(atlas), m_Shaper(shaper)
{
}

u32 TextPainter::Draw(Font& font, const char* text, const Style& style)
{
    if (!text || !*text)
        return 0;

    ShapedText& shaped = m_Shaper.Shape(font, text);
    FindSlots(shaped, static_cast<u32>(std::lround(font.EmSize() * 64 * style.Scale)));

    const auto start = static_cast<float>(StartOf(style, shaped.Width));
    const float baseline =
        std::round(static_cast<float>(style.Box.top) * style.Scale) + std::round(font.Baseline() * style.Scale);
    const PixelRect clip = ClipOf(style);
    const auto atlasWidth = static_cast<float>(m_Atlas.Width());
    const auto atlasHeight = static_cast<float>(m_Atlas.Height());
    for (const ShapedGlyph& glyph : shaped.Glyphs) {
        const GlyphAtlas::Slot& slot = m_Atlas.At(glyph.Slot);
        if (slot.Width == 0)
            continue;

        PixelRect rect;
        rect.Left = std::round((start + static_cast<float>(glyph.X)) * style.Scale) + static_cast<float>(slot.Left);
        rect.Top = baseline + std::round(static_cast<float>(glyph.Y) * style.Scale) - static_cast<float>(slot.Top);
        rect.Right = rect.Left + static_cast<float>(slot.Width);
        rect.Bottom = rect.Top + static_cast<float>(slot.Height);
        m_Renderer.AddQuad(m_Atlas.Texture(), rect, CornersOf(slot, atlasWidth, atlasHeight), style.Color, clip);
    }

    if (!IsClipped(style.Format))
        return static_cast<u32>(shaped.Width);
    const i64 boxWidth = std::max<i64>(0, i64{style.Box.right} - style.Box.left);
    return static_cast<u32>(std::min<i64>(shaped.Width, boxWidth));
}

void TextPainter::FindSlots(ShapedText& text, u32 emSize)
{
    // While slots are looked up the atlas may be emptied; then those already found are looked up again. A text whose
    // glyphs alone fill the atlas is drawn with what holds at the end.
    constexpr int Attempts = 3;
    for (int attempt = 0; attempt < Attempts && text.AtlasGeneration != m_Atlas.Generation(); ++attempt) {
        const u32 generation = m_Atlas.Generation();
        for (ShapedGlyph& glyph : text.Glyphs)
            glyph.Slot = m_Atlas.FindSlot(*glyph.Face, glyph.Glyph, emSize);
        text.AtlasGeneration = generation;
    }
}

} // namespace host
