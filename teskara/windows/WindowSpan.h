#pragma once

#include "teskara/core/Types.h"

// A window along one axis, as its edges are found and dragged. The near edge is the left or the upper one.
class WindowSpan
{
public:
    // Edges, as bits.
    static constexpr u32 Near = 1;
    static constexpr u32 Far = 2;

    // position: in the parent. start: on the screen, as the window was drawn last.
    WindowSpan(i32 position, u32 size, i32 start, u32 leastSize)
        : Position(position), Size(size), m_Start(start), m_LeastSize(leastSize)
    {
    }

    // The edges whose border a pointer is in; of a narrow window it may be both.
    u32 EdgesAt(i32 pointer, u32 border) const;

    // Moves edges by the distance that the pointer went, and then holds the least size. The near edge leaves the far one
    // in its place, but for a window that cannot shrink any more: it is pushed along. The far edge follows a pointer
    // that stands beyond the least size only. Tells which edges moved.
    u32 Drag(u32 edges, i32 pointer, i32 distance);

    i32 Position;
    u32 Size;

private:
    void Grow(i64 pixels);

    i32 m_Start;
    u32 m_LeastSize;
};
