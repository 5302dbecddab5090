#pragma once

#include "teskara/core/Types.h"

// The track of a slider: where the handle stands for a value, and which value it stands for. In pixels and in single
// precision.
class SliderTrack
{
public:
    enum class Direction { Onward, Backward }; // where the range lies: at the end of the track, or at its start

    // length: of the control along the track. used: what handle and borders take of it.
    SliderTrack(u32 length, u32 used, u32 range, Direction direction)
        : m_IsTooShort(used > length), m_Travel(m_IsTooShort ? 0 : length - used), m_Range(range),
          m_Direction(direction)
    {
    }

    // Not even the handle finds room.
    bool IsTooShort() const { return m_IsTooShort; }

    // How far the handle can move.
    u32 Travel() const { return m_Travel; }

    // The value is at most the range. Without a range the handle stands at the start.
    u32 PositionOf(u32 value) const;

    // Positions beyond the travel are as far as the handle gets. There must be some travel.
    u32 ValueAt(u32 position) const;

private:
    bool m_IsTooShort;
    u32 m_Travel;
    u32 m_Range;
    Direction m_Direction;
};
