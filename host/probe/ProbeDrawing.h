#pragma once

#include "teskara/core/Types.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

// The surface, the fonts and the images of the recording host. Nothing is ever drawn.
class ProbeDrawing
{
public:
    ProbeDrawing();

    // Every byte has a width of its own, the same in every font.
    void SetGlyphWidth(u8 byte, int width) { m_GlyphWidths[byte] = width; }
    int GlyphWidth(u8 byte) const { return m_GlyphWidths[byte]; }
    int TextWidth(std::string_view text) const;

    u32 AddFont() { return ++m_LastFont; }
    u32 AddTexture(const _Point2i& size);

    // Nothing if there is no image of that id.
    std::optional<_Point2i> TextureSize(u32 texture) const;
    void RemoveTexture(u32 texture) { m_Textures.erase(texture); }

    std::optional<_Point2i> DisplaySize = _Point2i{800, 600}; // nothing: it is not known

private:
    std::array<int, 256> m_GlyphWidths;
    u32 m_LastFont = 0;
    u32 m_LastTexture = 0;
    std::map<u32, _Point2i> m_Textures;
};
