#pragma once

#include "host/display/GlyphAtlas.h"
#include "host/display/TextShaper.h"
#include "teskara/core/Types.h"

namespace host {

// Draws shaped texts out of the glyph atlas.
class TextPainter
{
public:
    // Where and how a text is drawn. Measures in pixels of the interface; Scale target pixels make one of them.
    struct Style {
        tagRECT Box;
        SDL_Color Color = {255, 255, 255, 255};
        u32 Format = 0; // DrawTextLeft and its neighbours
        float Scale = 1;
    };

    // All three are borrowed.
    TextPainter(Renderer& renderer, GlyphAtlas& atlas, TextShaper& shaper);

    // Returns the width drawn.
    u32 Draw(Font& font, const char* text, const Style& style);

private:
    void FindSlots(ShapedText& text, u32 emSize);

    Renderer& m_Renderer;
    GlyphAtlas& m_Atlas;
    TextShaper& m_Shaper;
};

} // namespace host
