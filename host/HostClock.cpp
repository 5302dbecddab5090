#include "host/HostClock.h"

#include "teskara/core/platform/Platform.h"

namespace host {

namespace {

// Where a clock that is held still begins: the moment of every picture.
constexpr u32 StillTicks = 100000;
constexpr int StillHour = 10;
constexpr int StillMinute = 24;
constexpr int StillYear = 2026;
constexpr int StillMonth = 6;
constexpr int StillDay = 15;

std::tm StillTime(u32 elapsed)
{
    const int seconds = static_cast<int>(elapsed / 1000 % 86400) + (StillHour * 60 + StillMinute) * 60;
    std::tm time = {};
    time.tm_hour = seconds / 3600 % 24;
    time.tm_min = seconds / 60 % 60;
    time.tm_sec = seconds % 60;
    time.tm_year = StillYear - 1900;
    time.tm_mon = StillMonth - 1;
    time.tm_mday = StillDay;
    return time;
}

} // namespace

void HostClock::HoldStill()
{
    m_Still = true;
    m_Elapsed = 0;
}

u32 HostClock::Ticks() const
{
    return m_Still ? StillTicks + m_Elapsed : SystemPlatform().GetTickCount();
}

std::tm HostClock::LocalTime() const
{
    if (m_Still)
        return StillTime(m_Elapsed);

    const std::time_t now = std::time(nullptr);
    std::tm time = {};
    localtime_r(&now, &time);
    return time;
}

} // namespace host
