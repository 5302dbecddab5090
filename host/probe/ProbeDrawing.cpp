#include "host/probe/ProbeDrawing.h"

ProbeDrawing::ProbeDrawing()
{
    constexpr int DefaultGlyphWidth = 6;
    m_GlyphWidths.fill(DefaultGlyphWidth);
}

int ProbeDrawing::TextWidth(std::string_view text) const
{
    int width = 0;
    for (const char byte : text)
        width += GlyphWidth(static_cast<u8>(byte));
    return width;
}

u32 ProbeDrawing::AddTexture(const _Point2i& size)
{
    m_Textures[++m_LastTexture] = size;
    return m_LastTexture;
}

std::optional<_Point2i> ProbeDrawing::TextureSize(u32 texture) const
{
    const auto found = m_Textures.find(texture);
    if (found == m_Textures.end())
        return std::nullopt;
    return found->second;
}
