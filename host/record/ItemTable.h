#pragma once

#include "teskara/core/Types.h"

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

// The items of a recording that were there already, and which of them came last time after the same ones as now: an
// interface draws almost the same from frame to frame. Who writes and who reads keep the same table by telling it of
// each item.
class ItemTable
{
public:
    // Longer items are written out each time.
    static constexpr std::size_t LongestKept = 4096;

    // A table with so many begins anew.
    static constexpr std::size_t MostKept = 1u << 18;

    ItemTable();

    // Nothing if it is not there.
    std::optional<u32> Find(std::string_view item) const;
    std::optional<u32> Prediction() const;

    // Null if there is no such item. Valid until the next item is told of.
    const std::string* At(u64 number) const { return number < m_Items.size() ? &m_Items[number] : nullptr; }

    // The next item is one that is here, or a new one.
    void Repeat(u32 number);
    void Add(std::string_view item);

private:
    static constexpr u32 Nothing = ~0u;
    static constexpr std::size_t Contexts = 1u << 16;

    std::size_t Context() const;
    void Remember(u32 number);
    void Clear();

    std::deque<std::string> m_Items;
    std::unordered_map<std::string_view, u32> m_Numbers;
    std::array<u32, 3> m_Latest = {Nothing, Nothing, Nothing};
    std::array<u32, Contexts> m_Next;
};

} // namespace host
