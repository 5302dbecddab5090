#pragma once

#include "teskara/core/Types.h"

#include <ctime>

namespace host {

// The host's time: the system's, or a time that stands still until it is moved.
class HostClock
{
public:
    // From now on the clock stands at a fixed moment, the same in every run.
    void HoldStill();

    // Moves a clock that stands still.
    void Advance(u32 milliseconds) { m_Elapsed += milliseconds; }

    // Milliseconds; wraps after 2^32.
    u32 Ticks() const;

    // Time of day and date at the user's place.
    std::tm LocalTime() const;

private:
    bool m_Still = false;
    u32 m_Elapsed = 0;
};

} // namespace host
