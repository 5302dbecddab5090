#include "teskara/windows/MapProjection.h"

#include "teskara/core/Numbers.h"

#include <cmath>
#include <limits>

namespace {

// A share of nothing is no number.
float ToPixels(float distance, float extent, float pixels)
{
    return extent == 0 ? std::numeric_limits<float>::quiet_NaN() : distance / extent * pixels;
}

// With half of the mark to either side.
i32 Centred(float middle, u32 size)
{
    return TruncateToI32(middle - static_cast<float>(size >> 1));
}

} // namespace

MapProjection::MapProjection(const MapArea& area, float sizeX, float sizeY, u32 width, u32 height)
    : m_Origin(area.Origin), m_SizeX(sizeX), m_SizeY(sizeY), m_Left(m_Origin.x - sizeX), m_Right(m_Origin.x + sizeX),
      m_Top(m_Origin.y - sizeY), m_Bottom(m_Origin.y + sizeY), m_LowZ(m_Origin.z + area.LowZ),
      m_HighZ(m_Origin.z + area.HighZ), m_Width(static_cast<float>(width)), m_Height(static_cast<float>(height)),
      m_ClipsZ(area.ClipsZ), m_IsRotated(area.IsRotated)
{
    if (!m_IsRotated)
        return;

    m_Cosine = std::cos(-area.Rotation);
    m_Sine = std::sin(-area.Rotation);
}

MapProjection MapProjection::OfBox(const MapArea& area, u32 width, u32 height)
{
    return {area, area.SizeX, area.SizeY, width, height};
}

MapProjection MapProjection::OfCircle(const MapArea& area, u32 width, u32 height)
{
    MapProjection circle(area, area.SizeX, area.SizeX, width, height);
    circle.m_IsRound = true;
    circle.m_SquaredRadius = area.SizeX * area.SizeX;
    return circle;
}

_Point2i MapProjection::Place(const _Point3f& point, u32 markWidth, u32 markHeight) const
{
    float across = point.x - m_Left;
    float down = point.y - m_Top;
    if (m_IsRotated) {
        const float x = point.x - m_Origin.x;
        const float y = point.y - m_Origin.y;
        across = m_Sine * x + m_Cosine * y + m_SizeX;
        down = -(m_Cosine * x - m_Sine * y) + m_SizeY;
    }
    return {Centred(ToPixels(across, 2 * m_SizeX, m_Width), markWidth),
        Centred(ToPixels(down, 2 * m_SizeY, m_Height), markHeight)};
}
