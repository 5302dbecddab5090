#pragma once

#include "teskara/core/Types.h"

#include <algorithm>

namespace host {

// What had to be stopped is left alone for a while, for the longer the more often that happens in a row: else what runs
// in every frame would hold up each of them.
class ScriptRest
{
public:
    bool IsOver(u32 frame) const { return static_cast<i32>(frame - m_End) >= 0; }

    // It ran in a frame, and had to be stopped or not.
    void Note(bool wasStopped, u32 frame)
    {
        m_Stops = wasStopped ? std::min(m_Stops + 1, MostStops) : 0;
        m_End = frame + (wasStopped ? FewestFrames << m_Stops : 0);
    }

private:
    static constexpr u32 FewestFrames = 8;
    static constexpr u32 MostStops = 7; // a rest of about 16 seconds

    u32 m_Stops = 0;
    u32 m_End = 0;
};

} // namespace host
