#pragma once

#include "teskara/core/Types.h"

// The part of the world that a map shows.
struct MapArea {
    _Point3f Origin; // at the centre
    float SizeX = 0; // half of what is shown; of a circle the radius
    float SizeY = 0;
    bool IsRotated = false;
    float Rotation = 0; // radians
    bool ClipsZ = false;
    float LowZ = 0; // from the origin's z on
    float HighZ = 0;
};

// Where the points of a world come to lie on a map of so many pixels, in single precision.
//
// Without rotation the world's x runs to the right and its y downwards. With it, even by nothing, x runs upwards and y to
// the right. A box shows what it would show unrotated.
class MapProjection
{
public:
    // A box shows what lies on its edges; a circle does not.
    static MapProjection OfBox(const MapArea& area, u32 width, u32 height);
    static MapProjection OfCircle(const MapArea& area, u32 width, u32 height);

    // Whether a point is on the map. What is no number is beyond no edge.
    bool Shows(const _Point3f& point) const
    {
        if (m_ClipsZ && (point.z < m_LowZ || point.z > m_HighZ))
            return false;
        if (m_IsRound)
            return !(SquaredDistance(point) >= m_SquaredRadius);
        return !(point.x < m_Left || point.x > m_Right || point.y < m_Top || point.y > m_Bottom);
    }

    // The top left corner of a mark of this size on the point. Where there is no such number, 0x80000000.
    _Point2i Place(const _Point3f& point, u32 markWidth, u32 markHeight) const;

private:
    MapProjection(const MapArea& area, float sizeX, float sizeY, u32 width, u32 height);

    float SquaredDistance(const _Point3f& point) const
    {
        const float x = m_Origin.x - point.x;
        const float y = m_Origin.y - point.y;
        return x * x + y * y;
    }

    _Point3f m_Origin;
    float m_SizeX;
    float m_SizeY;
    float m_Left;
    float m_Right;
    float m_Top;
    float m_Bottom;
    float m_LowZ;
    float m_HighZ;
    float m_Width;
    float m_Height;
    float m_Cosine = 0;
    float m_Sine = 0;
    float m_SquaredRadius = 0;
    bool m_ClipsZ;
    bool m_IsRotated;
    bool m_IsRound = false;
};
