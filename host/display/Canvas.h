#pragma once

#include "host/display/FontLibrary.h"
#include "host/display/Renderer.h"
#include "host/display/TextPainter.h"
#include "host/display/TextureCache.h"
#include "teskara/core/HostInterface.h"

namespace host {

// What the toolkit's draw calls mean: turns its records, in pixels of the interface, into quads in pixels of the
// target.
class Canvas
{
public:
    // The renderer is borrowed.
    explicit Canvas(SDL_Renderer* renderer);

    // Begins a frame of so many pixels of the interface, each scale pixels of the target in size.
    void BeginFrame(int width, int height, float scale);

    // Ends it. True if it has to be presented.
    bool EndFrame() { return m_Renderer.EndFrame(); }

    // The target lost its pixels; or the device lost its textures as well.
    void Invalidate() { m_Renderer.Invalidate(); }
    void ResetDevice();

    void DrawRect(const tagRECT& rect, u32 color);
    bool DrawTexturedRect(const TeskDrawRecord& record);
    bool DrawLine(const TeskDrawRecord& record, u32 width);
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format);

    // False, and the result as it was, if there is no such font.
    bool MeasureText(u32 font, const char* text, int& width);
    bool MeasureCharacter(u32 font, u32 character, int& width);

    FontLibrary& Fonts() { return m_Fonts; }
    const FontLibrary& Fonts() const { return m_Fonts; }
    TextureCache& Textures() { return m_Textures; }
    const TextureCache& Textures() const { return m_Textures; }

private:
    // What a record shows: a part of an image, to be turned clockwise.
    struct Piece {
        const Image* Picture = nullptr;
        tagRECT Part;
        u8 Turns = 0;
    };

    PixelRect ToTarget(const tagRECT& rect) const;

    // False: there is no such image.
    bool FindPiece(const TeskDrawRecord& record, Piece& piece);

    // For a piece that is drawn at a size in pixels of the target.
    TextureCorners CornersOf(const Piece& piece, float width, float height) const;

    Renderer m_Renderer;
    FontLibrary m_Fonts;
    TextShaper m_Shaper;
    TextureCache m_Textures;
    GlyphAtlas m_Atlas;
    TextPainter m_Painter;
    float m_Scale = 1;
};

} // namespace host
