#include "teskara/collections/RowOrder.h"

#include "teskara/core/MoveEntry.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::size_t PrefixBytes = 8;

// A row with a piece of what it is sorted by, so that most comparisons look at no text.
struct SortKey {
    u64 Prefix; // the bytes behind those that all rows begin with, the first one on top; missing ones are 0
    ListBoxItem* Item;
};

bool SortsByValue(u32 type)
{
    return type == SortValue || type == SortValueReverse;
}

bool IsReverse(u32 type)
{
    return type == SortTextReverse || type == SortValueReverse;
}

bool IsSorting(u32 type)
{
    return type == SortText || IsReverse(type) || SortsByValue(type);
}

std::string_view KeyText(const ListBoxItem& item, bool byValue)
{
    if (byValue)
        return item.GetValue();
    return item.Text ? std::string_view(*item.Text) : std::string_view();
}

u64 PrefixOf(std::string_view text)
{
    u64 prefix = 0;
    for (std::size_t index = 0; index < PrefixBytes; ++index)
        prefix = prefix << 8 | (index < text.size() ? static_cast<unsigned char>(text[index]) : 0u);
    return prefix;
}

// Texts compare by unsigned bytes, and hold no 0.
struct KeyOrder {
    bool ByValue;
    bool Reverse;

    bool operator()(const SortKey& first, const SortKey& second) const
    {
        const SortKey& left = Reverse ? second : first;
        const SortKey& right = Reverse ? first : second;
        if (left.Prefix != right.Prefix)
            return left.Prefix < right.Prefix;

        const bool isWhole = (left.Prefix & 0xffu) == 0;
        return !isWhole && KeyText(*left.Item, ByValue) < KeyText(*right.Item, ByValue);
    }

    bool operator()(const ListBoxItem* first, const ListBoxItem* second) const
    {
        const ListBoxItem* left = Reverse ? second : first;
        const ListBoxItem* right = Reverse ? first : second;
        return KeyText(*left, ByValue) < KeyText(*right, ByValue);
    }
};

// How many bytes all rows begin with.
std::size_t CommonStart(std::span<ListBoxItem* const> rows, bool byValue)
{
    std::string_view common = rows.empty() ? std::string_view() : KeyText(*rows.front(), byValue);
    for (const ListBoxItem* item : rows) {
        const std::string_view text = KeyText(*item, byValue);
        const auto end = std::mismatch(common.begin(), common.end(), text.begin(), text.end()).first;
        common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
    }
    return common.size();
}

// Rows that stand in order already, as most do after one is added, are only merged with the rest.
void SortWithKeys(std::span<ListBoxItem*> rows, const KeyOrder& order)
{
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    const std::size_t start = CommonStart(rows, order.ByValue);
    for (ListBoxItem* item : rows)
        keys.push_back({PrefixOf(KeyText(*item, order.ByValue).substr(start)), item});

    const auto unsorted = std::is_sorted_until(keys.begin(), keys.end(), order);
    std::stable_sort(unsorted, keys.end(), order);
    std::inplace_merge(keys.begin(), unsorted, keys.end(), order);
    std::transform(keys.begin(), keys.end(), rows.begin(), [](const SortKey& key) { return key.Item; });
}

} // namespace

bool RowOrder::Append(ListBoxItem& item) noexcept
try {
    item.Order = Count();
    m_Rows.push_back(&item);
    ++m_Changes;
    return true;
} catch (...) {
    return false;
}

void RowOrder::Remove(const ListBoxItem& item)
{
    Settle();
    const u32 row = item.Order;
    m_Rows.erase(m_Rows.begin() + static_cast<std::ptrdiff_t>(row));
    Number(row, Count());
    ++m_Changes;
}

void RowOrder::Clear()
{
    m_Rows.clear();
    m_WaitingType = SortNone;
    ++m_Changes;
}

void RowOrder::Move(const ListBoxItem& item, u32 row)
{
    Settle();
    const u32 old = item.Order;
    MoveEntry(m_Rows, old, row);
    Number(std::min(old, row), std::max(old, row) + 1);
}

void RowOrder::Sort(u32 type) noexcept
{
    if (!IsSorting(type))
        return;

    if (m_WaitingType != type)
        Settle();
    m_WaitingType = type;
    m_WaitingCount = Count();
}

void RowOrder::Arrange(std::span<ListBoxItem* const> rows)
{
    m_WaitingType = SortNone;
    std::copy(rows.begin(), rows.end(), m_Rows.begin());
    Number(0, Count());
}

// Rows that were added after the sort was asked for stay where they are.
void RowOrder::Settle() noexcept
{
    if (m_WaitingType == SortNone)
        return;

    const KeyOrder order = {SortsByValue(m_WaitingType), IsReverse(m_WaitingType)};
    const std::span<ListBoxItem*> rows(m_Rows.data(), m_WaitingCount);
    m_WaitingType = SortNone;
    try {
        SortWithKeys(rows, order);
    } catch (...) {
        std::stable_sort(rows.begin(), rows.end(), order); // slower, and needs no memory
    }
    Number(0, m_WaitingCount);
}

u32 RowOrder::RowOf(const ListBoxItem& item)
{
    Settle();
    return item.Order;
}

ListBoxItem* RowOrder::At(u32 row)
{
    Settle();
    return row < m_Rows.size() ? m_Rows[row] : nullptr;
}

std::span<ListBoxItem* const> RowOrder::Rows()
{
    Settle();
    return m_Rows;
}

void RowOrder::Number(u32 first, u32 last)
{
    for (u32 row = first; row < last; ++row)
        m_Rows[row]->Order = row;
}
