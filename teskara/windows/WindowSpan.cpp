#include "teskara/windows/WindowSpan.h"

#include "teskara/core/Numbers.h"

#include <algorithm>

u32 WindowSpan::EdgesAt(i32 pointer, u32 border) const
{
    u32 edges = 0;
    if (pointer < WrapAdd(m_Start, border))
        edges |= Near;
    if (pointer > WrapAdd(Size - border, m_Start))
        edges |= Far;
    return edges;
}

u32 WindowSpan::Drag(u32 edges, i32 pointer, i32 distance)
{
    u32 moved = 0;
    if (edges & Near) {
        Position = WrapAdd(Position, distance);
        Grow(-static_cast<i64>(distance));
        moved |= Near;
    }
    if ((edges & Far) && pointer > WrapAdd(m_LeastSize, m_Start)) {
        Grow(distance);
        moved |= Far;
    }
    Size = std::max(Size, m_LeastSize);
    return moved;
}

// Nothing is smaller than nothing.
void WindowSpan::Grow(i64 pixels)
{
    Size = static_cast<u32>(std::max<i64>(static_cast<i64>(Size) + pixels, 0));
}
