#include "host/display/Renderer.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace host {

namespace {

// Two triangles make a shape.
constexpr int ShapeIndices[] = {0, 1, 2, 0, 2, 3};
constexpr int IndicesPerShape = static_cast<int>(std::size(ShapeIndices));

void AppendIndices(std::vector<int>& indices, int shape)
{
    for (const int index : ShapeIndices)
        indices.push_back(shape * FrameGeometry::VerticesPerShape + index);
}

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
    if (clip.Contains(rect))
        return !rect.IsEmpty();

    const PixelRect part = {std::max(rect.Left, clip.Left), std::max(rect.Top, clip.Top),
        std::min(rect.Right, clip.Right), std::min(rect.Bottom, clip.Bottom)};
    if (part.IsEmpty())
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

} // namespace

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
    m_Frame.Add(texture, vertices);
}

void Renderer::Flush()
{
    Submit();
    m_Frame.Clear();
    m_Invalid = true;
}

bool Renderer::EndFrame()
{
    // What was flushed is not in the kept frame, so the next one has nothing to be compared with.
    const bool wasSplit = m_Cleared;
    if (m_Invalid || !m_Frame.HasFormOf(m_LastFrame)) {
        Submit();
    } else {
        const PixelRect difference = m_Frame.DifferenceFrom(m_LastFrame);
        if (difference.IsEmpty())
            return false;
        m_Software ? SubmitPart(difference) : Submit();
    }
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
    for (const FrameGeometry::Batch& batch : m_Frame.Batches())
        DrawBatch(batch);
}

// What lies outside of the part is still in the target.
void Renderer::SubmitPart(const PixelRect& part)
{
    const SDL_Rect clip = {static_cast<int>(std::floor(part.Left)), static_cast<int>(std::floor(part.Top)),
        static_cast<int>(std::ceil(part.Width())) + 1, static_cast<int>(std::ceil(part.Height())) + 1};
    SDL_RenderSetClipRect(m_Renderer, &clip);
    SDL_SetRenderDrawBlendMode(m_Renderer, SDL_BLENDMODE_NONE);
    SDL_SetRenderDrawColor(m_Renderer, m_Background.r, m_Background.g, m_Background.b, m_Background.a);
    SDL_RenderFillRect(m_Renderer, &clip);
    SDL_SetRenderDrawBlendMode(m_Renderer, SDL_BLENDMODE_BLEND);

    const PixelRect drawn = {static_cast<float>(clip.x), static_cast<float>(clip.y),
        static_cast<float>(clip.x + clip.w), static_cast<float>(clip.y + clip.h)};
    for (const FrameGeometry::Batch& batch : m_Frame.Batches())
        DrawBatchPart(batch, drawn);
    SDL_RenderSetClipRect(m_Renderer, nullptr);
}

void Renderer::DrawBatch(const FrameGeometry::Batch& batch)
{
    for (int shape = static_cast<int>(m_Indices.size()) / IndicesPerShape; shape < batch.ShapeCount; ++shape)
        AppendIndices(m_Indices, shape);
    DrawShapes(batch, m_Indices, batch.ShapeCount);
}

void Renderer::DrawBatchPart(const FrameGeometry::Batch& batch, const PixelRect& part)
{
    m_PartIndices.clear();
    for (int shape = 0; shape < batch.ShapeCount; ++shape)
        if (m_Frame.BoundsOf(batch.FirstShape + shape).Meets(part))
            AppendIndices(m_PartIndices, shape);
    if (!m_PartIndices.empty())
        DrawShapes(batch, m_PartIndices, static_cast<int>(m_PartIndices.size()) / IndicesPerShape);
}

void Renderer::DrawShapes(const FrameGeometry::Batch& batch, const std::vector<int>& indices, int count)
{
    SDL_RenderGeometry(m_Renderer, batch.Texture, m_Frame.ShapeAt(batch.FirstShape),
        batch.ShapeCount * FrameGeometry::VerticesPerShape, indices.data(), count * IndicesPerShape);
}

} // namespace host
