#include "teskara/windows/WindowSnap.h"

#include "teskara/core/Numbers.h"

namespace {

// From so far away an edge of the parent does not attract any more.
constexpr i32 Reach = 5;

i32 StickToStart(i32 position)
{
    return position > -Reach ? 0 : position;
}

} // namespace

bool WindowSnap::ReachesFarEdge(i32 position) const
{
    return WrapAdd<u32>(position, m_Size) + Reach > m_Room;
}

bool WindowSnap::IsPastFarEdge(i32 position) const
{
    return WrapAdd<u32>(position, m_Size) - Reach >= m_Room;
}

i32 WindowSnap::Stick(i32 position) const
{
    if (position < Reach)
        return StickToStart(position);
    if (!ReachesFarEdge(position) || IsPastFarEdge(position))
        return position;

    return WrapSub(m_Room, m_Size);
}

i32 WindowSnap::StickInside(i32 position, u32 handle, u32 leastInSight) const
{
    if (position < Reach) {
        const bool isLost = WrapAdd(WrapSub(position, leastInSight), handle) < 0;
        return isLost ? WrapSub(leastInSight, handle) : StickToStart(position);
    }
    if (ReachesFarEdge(position) && WrapAdd(position, InSight) > static_cast<i32>(m_Room))
        return WrapSub(m_Room, InSight);

    return Stick(position);
}
