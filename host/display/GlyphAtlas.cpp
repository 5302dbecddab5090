#include "host/display/GlyphAtlas.h"

#include <algorithm>

namespace host {

namespace {

constexpr int AtlasWidth = 1024;
constexpr int FirstHeight = 256;
constexpr int LastHeight = 2048;

// Free pixels around each glyph, so that none shows at its neighbour's edge.
constexpr int Gap = 1;

u64 KeyOf(const Typeface& face, u32 glyph, u32 emSize)
{
    return u64{face.ID()} << 44 | u64{emSize & 0xFFFFF} << 24 | (glyph & 0xFFFFFF);
}

u32 WhiteWithAlpha(u8 alpha)
{
    return u32{alpha} << 24 | 0xFFFFFF;
}

} // namespace

GlyphAtlas::GlyphAtlas(Renderer& renderer) : m_Renderer(renderer) { }

GlyphAtlas::~GlyphAtlas()
{
    if (m_Texture)
        SDL_DestroyTexture(m_Texture);
}

int GlyphAtlas::Width() const
{
    return AtlasWidth;
}

u32 GlyphAtlas::FindSlot(const Typeface& face, u32 glyph, u32 emSize)
{
    const u64 key = KeyOf(face, glyph, emSize);
    const auto found = m_SlotOf.find(key);
    if (found != m_SlotOf.end())
        return found->second;

    const u32 slot = DrawSlot(face, glyph, emSize);
    m_SlotOf[key] = slot;
    return slot;
}

void GlyphAtlas::Reset()
{
    m_Renderer.Flush();
    if (m_Texture)
        SDL_DestroyTexture(m_Texture);
    m_Texture = nullptr;
    m_Height = m_ShelfX = m_ShelfY = m_ShelfHeight = 0;
    m_SlotOf.clear();
    m_Slots.clear();
    m_Pixels.clear();
    ++m_Generation;
}

// A glyph that cannot be drawn gets a slot all the same, an empty one, so that it is not tried at each use.
u32 GlyphAtlas::DrawSlot(const Typeface& face, u32 glyph, u32 emSize)
{
    Slot slot;
    const FT_GlyphSlot image = face.Rasterize(glyph, emSize);
    if (image && image->bitmap.pixel_mode == FT_PIXEL_MODE_GRAY) {
        slot.Width = static_cast<int>(image->bitmap.width);
        slot.Height = static_cast<int>(image->bitmap.rows);
        slot.Left = image->bitmap_left;
        slot.Top = image->bitmap_top;
    }
    if (slot.Width > 0 && slot.Height > 0) {
        if (Place(slot))
            Upload(slot, image->bitmap);
        else
            slot = {};
    }
    m_Slots.push_back(slot);
    return static_cast<u32>(m_Slots.size() - 1);
}

bool GlyphAtlas::Place(Slot& slot)
{
    if (slot.Width + Gap > AtlasWidth || slot.Height + Gap > LastHeight)
        return false;

    while (!PlaceOnShelf(slot)) {
        const int height = m_Height == 0 ? FirstHeight : m_Height * 2;
        if (height > LastHeight)
            Reset();
        else if (!MakeTexture(height))
            return false;
    }
    return true;
}

bool GlyphAtlas::PlaceOnShelf(Slot& slot)
{
    if (m_ShelfX + slot.Width + Gap > AtlasWidth) {
        m_ShelfX = 0;
        m_ShelfY += m_ShelfHeight;
        m_ShelfHeight = 0;
    }
    if (m_ShelfY + slot.Height + Gap > m_Height)
        return false;

    slot.X = m_ShelfX;
    slot.Y = m_ShelfY;
    m_ShelfX += slot.Width + Gap;
    m_ShelfHeight = std::max(m_ShelfHeight, slot.Height + Gap);
    return true;
}

bool GlyphAtlas::MakeTexture(int height)
{
    m_Renderer.Flush();
    if (m_Texture)
        SDL_DestroyTexture(m_Texture);
    m_Texture =
        SDL_CreateTexture(m_Renderer.Target(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STATIC, AtlasWidth, height);
    m_Height = m_Texture ? height : 0;
    if (!m_Texture)
        return false;

    m_Pixels.resize(static_cast<std::size_t>(AtlasWidth) * static_cast<std::size_t>(height), WhiteWithAlpha(0));
    SDL_UpdateTexture(m_Texture, nullptr, m_Pixels.data(), AtlasWidth * static_cast<int>(sizeof(u32)));
    SDL_SetTextureBlendMode(m_Texture, SDL_BLENDMODE_BLEND);
    SDL_SetTextureScaleMode(m_Texture, SDL_ScaleModeNearest);
    return true;
}

void GlyphAtlas::Upload(const Slot& slot, const FT_Bitmap& bitmap)
{
    for (int y = 0; y < slot.Height; ++y) {
        const u8* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
        u32* to = &m_Pixels[static_cast<std::size_t>((slot.Y + y) * AtlasWidth + slot.X)];
        std::transform(row, row + slot.Width, to, WhiteWithAlpha);
    }
    const SDL_Rect rect = {slot.X, slot.Y, slot.Width, slot.Height};
    SDL_UpdateTexture(m_Texture, &rect, &m_Pixels[static_cast<std::size_t>(slot.Y * AtlasWidth + slot.X)],
        AtlasWidth * static_cast<int>(sizeof(u32)));
}

} // namespace host
