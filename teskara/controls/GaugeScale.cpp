#include "teskara/controls/GaugeScale.h"

#include "teskara/core/QuietFloats.h"

#include <cmath>

float GaugeScale::Hold(float value, Overflow overflow) const
{
    const QuietFloats quiet;
    if (!(value >= 0) || m_Range == 0)
        return 0;
    if (!(value >= m_Range))
        return value;
    if (overflow == Overflow::Stops)
        return m_Range;

    const bool hasRemainder = std::isfinite(value);
    return hasRemainder ? std::fmod(value, m_Range) : 0;
}

float GaugeScale::ShareOf(float value) const
{
    const QuietFloats quiet;
    return m_Range == 0 ? 1 : value / m_Range;
}
