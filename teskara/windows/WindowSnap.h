#pragma once

#include "teskara/core/Types.h"

// Where a window that is dragged comes to stand along one axis: it sticks to an edge of its parent that is less than
// five pixels away.
class WindowSnap
{
public:
    // room: the parent's size along the axis.
    WindowSnap(u32 size, u32 room) : m_Size(size), m_Room(room) { }

    // For a position in the parent. The window may leave it on either side.
    i32 Stick(i32 position) const;

    // The same for a window that must not get lost: four pixels stay in sight at the far edge, and at the near one so
    // many pixels, counted from its start, as belong to what the user takes it by.
    i32 StickInside(i32 position, u32 handle, u32 leastInSight) const;

    // How much of a window stays in sight, but for where a handle says otherwise.
    static constexpr u32 InSight = 4;

private:
    bool ReachesFarEdge(i32 position) const;
    bool IsPastFarEdge(i32 position) const;

    u32 m_Size;
    u32 m_Room;
};
