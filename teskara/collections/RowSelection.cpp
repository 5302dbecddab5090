#include "teskara/collections/RowSelection.h"

#include <iterator>

bool RowSelection::Insert(u32 id) noexcept
try {
    m_IDs.insert(id);
    return true;
} catch (...) {
    return false;
}

u32 RowSelection::FirstAfter(u32 id) const
{
    const auto next = m_IDs.upper_bound(id);
    return next == m_IDs.end() ? 0 : *next;
}

u32 RowSelection::At(u32 place) const
{
    return place < m_IDs.size() ? *std::next(m_IDs.begin(), place) : 0;
}
