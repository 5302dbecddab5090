#pragma once

#include "host/display/Renderer.h"
#include "host/display/Typeface.h"

#include <unordered_map>
#include <vector>

namespace host {

// The one texture that holds the drawn glyphs of all fonts. It grows as long as it may; then it is emptied and filled
// anew with what is in use.
class GlyphAtlas
{
public:
    // A glyph's place in the texture, in pixels, and where its image lies relative to its origin.
    struct Slot {
        int X = 0;
        int Y = 0;
        int Width = 0;
        int Height = 0;
        int Left = 0; // from the origin to the right
        int Top = 0; // from the baseline upward
    };

    // The renderer is borrowed.
    explicit GlyphAtlas(Renderer& renderer);
    ~GlyphAtlas();
    GlyphAtlas(const GlyphAtlas&) = delete;
    GlyphAtlas& operator=(const GlyphAtlas&) = delete;

    // Number of a glyph's slot, drawn now if it is not there yet. emSize in 64ths of a pixel. What is collected in the
    // renderer may be drawn by this.
    u32 FindSlot(const Typeface& face, u32 glyph, u32 emSize);
    const Slot& At(u32 slot) const { return m_Slots[slot]; }

    // Changes when the slots are given out anew. Never 0.
    u32 Generation() const { return m_Generation; }

    SDL_Texture* Texture() const { return m_Texture; }
    int Width() const;
    int Height() const { return m_Height; }

    // The device forgot its textures: starts anew.
    void Reset();

private:
    u32 DrawSlot(const Typeface& face, u32 glyph, u32 emSize);
    bool Place(Slot& slot);
    bool PlaceOnShelf(Slot& slot);
    bool MakeTexture(int height);
    void Upload(const Slot& slot, const FT_Bitmap& bitmap);

    Renderer& m_Renderer;
    SDL_Texture* m_Texture = nullptr;
    int m_Height = 0;
    int m_ShelfX = 0;
    int m_ShelfY = 0;
    int m_ShelfHeight = 0;
    u32 m_Generation = 1;
    std::unordered_map<u64, u32> m_SlotOf;
    std::vector<Slot> m_Slots;
    std::vector<u32> m_Pixels; // as uploaded, to fill a larger texture with
};

} // namespace host
