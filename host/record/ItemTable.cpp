#include "host/record/ItemTable.h"

namespace host {

ItemTable::ItemTable()
{
    m_Next.fill(Nothing);
}

std::optional<u32> ItemTable::Find(std::string_view item) const
{
    const auto found = m_Numbers.find(item);
    return found == m_Numbers.end() ? std::nullopt : std::optional(found->second);
}

std::optional<u32> ItemTable::Prediction() const
{
    const u32 next = m_Next[Context()];
    return next == Nothing ? std::nullopt : std::optional(next);
}

void ItemTable::Repeat(u32 number)
{
    Remember(number);
}

void ItemTable::Add(std::string_view item)
{
    if (item.size() > LongestKept)
        return;
    if (m_Items.size() == MostKept)
        Clear();

    const auto number = static_cast<u32>(m_Items.size());
    m_Numbers.emplace(m_Items.emplace_back(item), number);
    Remember(number);
}

// The latest three items, mixed into a place of the table. Two that share a place only predict worse.
std::size_t ItemTable::Context() const
{
    constexpr u64 Odd = 0x9e3779b97f4a7c15u;
    u64 mixed = 0;
    for (const u32 number : m_Latest)
        mixed = (mixed ^ number) * Odd;
    return static_cast<std::size_t>(mixed >> 48);
}

void ItemTable::Remember(u32 number)
{
    m_Next[Context()] = number;
    m_Latest = {m_Latest[1], m_Latest[2], number};
}

void ItemTable::Clear()
{
    m_Numbers.clear();
    m_Items.clear();
    m_Next.fill(Nothing);
    m_Latest.fill(Nothing);
}

} // namespace host
