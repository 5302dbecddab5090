#include "host/display/Renderer.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

constexpr int VerticesPerQuad = 4;
constexpr int QuadIndices[] = {0, 1, 2, 0, 2, 3};

// Moves the far corners of an edge pair so that they show the part of the texture between two shares of the edge.
void CutCorners(TextureCorners& corners, float left, float top, float right, float bottom)
{
    const TextureCorners whole = corners;
    const auto at = [&whole](float x, float y) {
        return SDL_FPoint{
            whole.TopLeft.x + (whole.TopRight.x - whole.TopLeft.x) * x + (whole.BottomLeft.x - whole.TopLeft.x) * y,
            whole.TopLeft.y + (whole.TopRight.y - whole.TopLeft.y) * x + (whole.BottomLeft.y - whole.TopLeft.y) * y};
    };
    corners = {at(left, top), at(right, top), at(left, bottom)};
}

// Cuts a rectangle and what it shows to a clip. False: nothing is left.
bool Cut(PixelRect& rect, TextureCorners& corners, const PixelRect& clip)
{
    const PixelRect part = {std::max(rect.Left, clip.Left), std::max(rect.Top, clip.Top),
        std::min(rect.Right, clip.Right), std::min(rect.Bottom, clip.Bottom)};
    if (part.Left >= part.Right || part.Top >= part.Bottom)
        return false;

    CutCorners(corners, (part.Left - rect.Left) / rect.Width(), (part.Top - rect.Top) / rect.Height(),
        (part.Right - rect.Left) / rect.Width(), (part.Bottom - rect.Top) / rect.Height());
    rect = part;
    return true;
}

// The processor drops the fractions of the pixels that corners stand for, and rounding may have left them a little
// below the whole pixel.
void Nudge(TextureCorners& corners, SDL_Texture* texture)
{
    constexpr float Share = 1.0f / 64;
    int width = 1;
    int height = 1;
    SDL_QueryTexture(texture, nullptr, nullptr, &width, &height);
    const SDL_FPoint by = {Share / static_cast<float>(width), Share / static_cast<float>(height)};
    for (SDL_FPoint* corner : {&corners.TopLeft, &corners.TopRight, &corners.BottomLeft})
        *corner = {corner->x + by.x, corner->y + by.y};
}

// SDL refuses a whole batch for one corner outside of its texture, be it by a rounding.
SDL_FPoint Inside(const SDL_FPoint& corner)
{
    return {std::clamp(corner.x, 0.0f, 1.0f), std::clamp(corner.y, 0.0f, 1.0f)};
}

bool SameBytes(const std::vector<SDL_Vertex>& a, const std::vector<SDL_Vertex>& b)
{
    static_assert(sizeof(SDL_Vertex) == 20, "no padding, so that vertices compare as bytes");
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(SDL_Vertex)) == 0);
}

} // namespace

void Renderer::Frame::Clear()
{
    Vertices.clear();
    Batches.clear();
}

bool Renderer::Frame::Equals(const Frame& other) const
{
    return Batches == other.Batches && SameBytes(Vertices, other.Vertices);
}

Renderer::Renderer(SDL_Renderer* renderer) : m_Renderer(renderer)
{
    SDL_RendererInfo info = {};
    if (SDL_GetRendererInfo(renderer, &info) == 0)
        m_Software = (info.flags & SDL_RENDERER_SOFTWARE) != 0;
}

void Renderer::BeginFrame(int width, int height, SDL_Color background)
{
    const PixelRect bounds = {0, 0, static_cast<float>(width), static_cast<float>(height)};
    if (bounds.Right != m_Bounds.Right || bounds.Bottom != m_Bounds.Bottom)
        m_Invalid = true;
    m_Bounds = bounds;
    m_Background = background;
    m_Cleared = false;
    m_Frame.Clear();
}

void Renderer::AddQuad(SDL_Texture* texture, PixelRect rect, TextureCorners corners, SDL_Color color)
{
    if (color.a == 0 || !Cut(rect, corners, m_Bounds))
        return;

    if (m_Software && texture)
        Nudge(corners, texture);
    const SDL_FPoint topLeft = Inside(corners.TopLeft);
    const SDL_FPoint topRight = Inside(corners.TopRight);
    const SDL_FPoint bottomLeft = Inside(corners.BottomLeft);
    const SDL_FPoint bottomRight = Inside({corners.TopRight.x + corners.BottomLeft.x - corners.TopLeft.x,
        corners.TopRight.y + corners.BottomLeft.y - corners.TopLeft.y});
    AddShape(texture,
        {{{rect.Left, rect.Top}, color, topLeft}, {{rect.Right, rect.Top}, color, topRight},
            {{rect.Right, rect.Bottom}, color, bottomRight}, {{rect.Left, rect.Bottom}, color, bottomLeft}});
}

void Renderer::AddQuad(
    SDL_Texture* texture, PixelRect rect, TextureCorners corners, SDL_Color color, const PixelRect& clip)
{
    if (Cut(rect, corners, clip))
        AddQuad(texture, rect, corners, color);
}

void Renderer::AddShape(SDL_Texture* texture, const SDL_Vertex (&vertices)[4])
{
    if (m_Frame.Batches.empty() || m_Frame.Batches.back().Texture != texture)
        m_Frame.Batches.push_back({texture, static_cast<int>(m_Frame.Vertices.size()), 0});
    m_Frame.Vertices.insert(m_Frame.Vertices.end(), std::begin(vertices), std::end(vertices));
    m_Frame.Batches.back().VertexCount += VerticesPerQuad;
}

void Renderer::Flush()
{
    Submit();
    m_Frame.Clear();
    m_Invalid = true;
}

bool Renderer::EndFrame()
{
    if (!m_Invalid && m_Frame.Equals(m_LastFrame))
        return false;

    // What was flushed is not in the kept frame, so the next one has nothing to be compared with.
    const bool wasSplit = m_Cleared;
    Submit();
    std::swap(m_Frame, m_LastFrame);
    m_Invalid = wasSplit;
    return true;
}

void Renderer::Submit()
{
    if (!m_Cleared) {
        SDL_SetRenderDrawColor(m_Renderer, m_Background.r, m_Background.g, m_Background.b, m_Background.a);
        SDL_RenderClear(m_Renderer);
        SDL_SetRenderDrawBlendMode(m_Renderer, SDL_BLENDMODE_BLEND);
        m_Cleared = true;
    }
    for (const Batch& batch : m_Frame.Batches)
        DrawBatch(batch);
}

void Renderer::DrawBatch(const Batch& batch)
{
    const int quads = batch.VertexCount / VerticesPerQuad;
    for (int quad = static_cast<int>(m_Indices.size() / std::size(QuadIndices)); quad < quads; ++quad)
        for (const int index : QuadIndices)
            m_Indices.push_back(quad * VerticesPerQuad + index);

    SDL_RenderGeometry(m_Renderer, batch.Texture, &m_Frame.Vertices[static_cast<std::size_t>(batch.FirstVertex)],
        batch.VertexCount, m_Indices.data(), quads * static_cast<int>(std::size(QuadIndices)));
}

} // namespace host
