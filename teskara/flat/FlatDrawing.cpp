// The third table of a host that is a flat table of functions, and the places of elements.

#include "teskara/core/CUIManager.h"
#include "teskara/core/Utf8.h"
#include "teskara/element/TeskElement.h"
#include "teskara/flat/FlatHost.h"
#include "teskara/flat/FlatTable.h"

#include <bit>
#include <string>

static_assert(sizeof(teskara_rect) == sizeof(tagRECT));
static_assert(sizeof(teskara_draw_record) == sizeof(TeskDrawRecord));
static_assert(offsetof(teskara_draw_record, texture) == offsetof(TeskDrawRecord, TextureID));
static_assert(offsetof(teskara_draw_record, color) == offsetof(TeskDrawRecord, ColorMask));
static_assert(u32{TESKARA_TEXT_LEFT} == u32{DrawTextLeft} && u32{TESKARA_TEXT_CENTER} == u32{DrawTextCenter}
    && u32{TESKARA_TEXT_RIGHT} == u32{DrawTextRight} && u32{TESKARA_TEXT_UNCLIPPED} == u32{DrawTextUnclipped});

namespace {

// That of a program that makes none.
constexpr u32 OnlyFont = 1;

} // namespace

void FlatHost::DrawRect(const tagRECT& rect, u32 color)
{
    const auto flat = std::bit_cast<teskara_rect>(rect);
    CallFlat(m_Table, m_Table.draw_rect, &flat, color);
}

bool FlatHost::DrawTexturedRect(const TeskDrawRecord& record)
{
    const auto flat = std::bit_cast<teskara_draw_record>(record);
    return CallFlat(m_Table, m_Table.draw_texture, false, &flat);
}

bool FlatHost::DrawTexturedRects(u32 count, const TeskDrawRecord* records)
{
    if (m_Table.draw_textures)
        return m_Table.draw_textures(m_Table.user, count, reinterpret_cast<const teskara_draw_record*>(records));

    bool isDrawn = true;
    for (u32 index = 0; index < count; ++index)
        isDrawn = DrawTexturedRect(records[index]) && isDrawn;
    return isDrawn;
}

bool FlatHost::DrawLine(const TeskDrawRecord& record, u32 width)
{
    const auto flat = std::bit_cast<teskara_draw_record>(record);
    return CallFlat(m_Table, m_Table.draw_line, false, &flat, width);
}

u32 FlatHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return CallFlat(m_Table, m_Table.create_font, OnlyFont, name, height, fixed, bold);
}

void FlatHost::ReleaseFontResource(u32 font)
{
    if (m_Table.create_font)
        CallFlat(m_Table, m_Table.release_font, font);
}

u32 FlatHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    const auto flat = std::bit_cast<teskara_rect>(box);
    return CallFlat(m_Table, m_Table.draw_text, 0u, font, text, &flat, color, format);
}

void FlatHost::MeasureText(u32 font, const char* text, int& width)
{
    if (m_Table.measure_text)
        width = m_Table.measure_text(m_Table.user, font, text);
}

// One that measures texts but no glyphs has glyphs without space around them.
bool FlatHost::GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after)
{
    if (m_Table.glyph_metrics)
        return m_Table.glyph_metrics(m_Table.user, font, first, last, before, glyph, after);
    if (!m_Table.measure_text || last < first)
        return false;

    for (u32 offset = 0; offset <= last - first; ++offset) {
        const char16_t unit = static_cast<char16_t>(first + offset);
        const std::string text = ToUtf8({&unit, 1});
        before[offset] = after[offset] = 0;
        glyph[offset] = static_cast<float>(m_Table.measure_text(m_Table.user, font, text.c_str()));
    }
    return true;
}

bool FlatHost::GetDisplaySize(int& width, int& height)
{
    return CallFlat(m_Table, m_Table.display_size, false, &width, &height);
}

u32 FlatHost::LoadTextureResource(const char* path, u32 colorKey)
{
    return CallFlat(m_Table, m_Table.load_texture, 0u, path, colorKey);
}

bool FlatHost::GetTextureResourceSize(u32 texture, _Point2i& size)
{
    return CallFlat(m_Table, m_Table.texture_size, false, texture, &size.x, &size.y);
}

void FlatHost::ReleaseTextureResource(u32 texture)
{
    CallFlat(m_Table, m_Table.release_texture, texture);
}

// --- Places of elements

void FlatHost::SaveElementPosition(TeskElement* element)
{
    int x = 0;
    int y = 0;
    unsigned int width = 0;
    unsigned int height = 0;
    const utf8string name = element->FullName;
    if (element->GetStoragePosition(x, y, width, height))
        CallFlat(m_Table, m_Table.save_place, name.c_str(), x, y, width, height);
}

void FlatHost::LoadElementPosition(TeskElement* element)
{
    i32 x = element->X;
    i32 y = element->Y;
    u32 width = element->Width;
    u32 height = element->Height;
    const utf8string name = element->FullName;
    const u32 id = element->ID;
    if (!CallFlat(m_Table, m_Table.load_place, false, name.c_str(), &x, &y, &width, &height)
        || g_UIManager.FindElementByID(id) != element)
        return;

    element->X = x;
    element->Y = y;
    element->Width = width;
    element->Height = height;
}
