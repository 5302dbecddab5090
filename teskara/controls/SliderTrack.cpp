#include "teskara/controls/SliderTrack.h"

#include "teskara/core/Numbers.h"

#include <algorithm>

namespace {

// What part of whole, at most all of it, makes of an amount. Large amounts have no exact float, and rounding must not
// lead beyond them.
u32 Share(u32 part, u32 whole, u32 amount)
{
    if (part == whole)
        return amount;

    const float share = static_cast<float>(part) / static_cast<float>(whole) * static_cast<float>(amount);
    return share < static_cast<float>(amount) ? TruncateToU32(share) : amount;
}

} // namespace

u32 SliderTrack::PositionOf(u32 value) const
{
    if (m_Range == 0)
        return 0;

    const u32 position = Share(value, m_Range, m_Travel);
    return m_Direction == Direction::Onward ? position : m_Travel - position;
}

u32 SliderTrack::ValueAt(u32 position) const
{
    const u32 value = Share(std::min(position, m_Travel), m_Travel, m_Range);
    return m_Direction == Direction::Onward ? value : m_Range - value;
}
