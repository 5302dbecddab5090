#include "host/display/FrameGeometry.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

PixelRect Union(const PixelRect& a, const PixelRect& b)
{
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right), std::max(a.Bottom, b.Bottom)};
}

bool SameShape(const SDL_Vertex* a, const SDL_Vertex* b)
{
    static_assert(sizeof(SDL_Vertex) == 20, "no padding, so that vertices compare as bytes");
    return std::memcmp(a, b, sizeof(SDL_Vertex) * FrameGeometry::VerticesPerShape) == 0;
}

} // namespace

void FrameGeometry::Clear()
{
    m_Vertices.clear();
    m_Batches.clear();
}

void FrameGeometry::Add(SDL_Texture* texture, const SDL_Vertex (&vertices)[VerticesPerShape])
{
    if (m_Batches.empty() || m_Batches.back().Texture != texture)
        m_Batches.push_back({texture, static_cast<int>(m_Vertices.size()) / VerticesPerShape, 0});
    m_Vertices.insert(m_Vertices.end(), std::begin(vertices), std::end(vertices));
    ++m_Batches.back().ShapeCount;
}

const SDL_Vertex* FrameGeometry::ShapeAt(int shape) const
{
    return m_Vertices.data() + static_cast<std::ptrdiff_t>(shape) * VerticesPerShape;
}

PixelRect FrameGeometry::BoundsOf(int shape) const
{
    const SDL_Vertex* vertices = ShapeAt(shape);
    PixelRect bounds = {vertices[0].position.x, vertices[0].position.y, vertices[0].position.x, vertices[0].position.y};
    for (int index = 1; index < VerticesPerShape; ++index) {
        const SDL_FPoint& point = vertices[index].position;
        bounds = {std::min(bounds.Left, point.x), std::min(bounds.Top, point.y), std::max(bounds.Right, point.x),
            std::max(bounds.Bottom, point.y)};
    }
    return bounds;
}

PixelRect FrameGeometry::DifferenceFrom(const FrameGeometry& other) const
{
    PixelRect difference;
    const int shapes = static_cast<int>(m_Vertices.size()) / VerticesPerShape;
    for (int shape = 0; shape < shapes; ++shape)
        if (!SameShape(ShapeAt(shape), other.ShapeAt(shape)))
            difference = Union(difference, Union(BoundsOf(shape), other.BoundsOf(shape)));
    return difference;
}

} // namespace host
