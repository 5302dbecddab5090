#include "teskara/text/LineRing.h"

#include <algorithm>
#include <limits>
#include <utility>

void LineRing::SetSize(u32 size)
{
    m_Size = std::max<i64>(size, 1);
    Clear();
}

void LineRing::Clear()
{
    m_Lines = std::vector<Line>(); // the storage goes too
    m_Newest = NoSlot;
    m_Last = -1;
}

void LineRing::Add(std::string_view line) noexcept
try {
    Line copy(new char[line.size() + 1]);
    *std::copy(line.begin(), line.end(), copy.get()) = 0;
    if (Held() < MostLines()) {
        m_Lines.push_back(std::move(copy));
        m_Last = Held() - 1;
    } else {
        m_Last = m_Last + 1 < Held() ? m_Last + 1 : 0;
        m_Lines[static_cast<std::size_t>(m_Last)] = std::move(copy);
    }
    m_Newest = After(m_Newest, 1);
} catch (...) {
    return;
}

const char* LineRing::At(i64 slot) const
{
    const i64 age = AgeOf(slot);
    if (age < 0 || age >= Held())
        return nullptr;

    const i64 place = age <= m_Last ? m_Last - age : m_Last - age + Held();
    return m_Lines[static_cast<std::size_t>(place)].get();
}

// How many lines ago the slot was filled, if it is; negative if there is no such slot, or nothing at all.
i64 LineRing::AgeOf(i64 slot) const
{
    return Has(slot) && m_Newest != NoSlot ? Before(m_Newest, slot) : -1;
}

i64 LineRing::EmptyFrom(i64 slot) const
{
    if (Held() == 0)
        return std::numeric_limits<i64>::max();
    if (slot < 0)
        return -slot;

    const i64 age = AgeOf(slot);
    return age < Held() ? 0 : age - Held() + 1;
}

i64 LineRing::MostLines() const
{
    return std::min(m_Size, static_cast<i64>(Limits::RingLines));
}
