#include "host/display/LineShape.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

// Beyond this a line cannot be seen, and its triangles would lose their precision.
constexpr float FarthestPoint = 32000;

bool IsNear(const SDL_FPoint& point)
{
    return std::abs(point.x) <= FarthestPoint && std::abs(point.y) <= FarthestPoint;
}

SDL_FPoint Away(const SDL_FPoint& point, const SDL_FPoint& direction, float distance)
{
    return {point.x + direction.x * distance, point.y + direction.y * distance};
}

// The texture's point at a share of the way along the line and of the way across it.
SDL_FPoint TextureAt(const TextureCorners& corners, float along, float across)
{
    return {corners.TopLeft.x + (corners.TopRight.x - corners.TopLeft.x) * along
            + (corners.BottomLeft.x - corners.TopLeft.x) * across,
        corners.TopLeft.y + (corners.TopRight.y - corners.TopLeft.y) * along
            + (corners.BottomLeft.y - corners.TopLeft.y) * across};
}

} // namespace

void LineShape::AddTo(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const
{
    if (From.x == To.x || From.y == To.y)
        AddSharp(renderer, texture, corners, color);
    else if (IsNear(From) && IsNear(To))
        AddSoft(renderer, texture, corners, color);
}

void LineShape::AddSharp(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const
{
    const float before = std::floor(Width / 2);
    const bool level = From.y == To.y;
    PixelRect rect = {std::floor(std::min(From.x, To.x)), std::floor(std::min(From.y, To.y)),
        std::floor(std::max(From.x, To.x)) + 1, std::floor(std::max(From.y, To.y)) + 1};
    if (level) {
        rect.Top -= before;
        rect.Bottom = rect.Top + Width;
    } else {
        rect.Left -= before;
        rect.Right = rect.Left + Width;
    }
    renderer.AddQuad(texture, rect, corners, color);
}

// A core of full colour with a strip on each side that fades out over one pixel.
void LineShape::AddSoft(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const
{
    const float length = std::hypot(To.x - From.x, To.y - From.y);
    const SDL_FPoint across = {-(To.y - From.y) / length, (To.x - From.x) / length};
    const SDL_Color clear = {color.r, color.g, color.b, 0};
    const float core = std::max(0.0f, (Width - 1) / 2);
    const float edge = core + 1;

    const struct {
        float Near, Far;
        SDL_Color NearColor, FarColor;
    } strips[] = {{-edge, -core, clear, color}, {-core, core, color, color}, {core, edge, color, clear}};
    for (const auto& strip : strips) {
        if (strip.Near == strip.Far)
            continue;
        const float near = (strip.Near + edge) / (2 * edge);
        const float far = (strip.Far + edge) / (2 * edge);
        renderer.AddShape(texture,
            {{Away(From, across, strip.Near), strip.NearColor, TextureAt(corners, 0, near)},
                {Away(To, across, strip.Near), strip.NearColor, TextureAt(corners, 1, near)},
                {Away(To, across, strip.Far), strip.FarColor, TextureAt(corners, 1, far)},
                {Away(From, across, strip.Far), strip.FarColor, TextureAt(corners, 0, far)}});
    }
}

} // namespace host
