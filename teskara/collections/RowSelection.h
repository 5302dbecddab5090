#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <set>

// Which rows of a list box are selected, by their ids and in the order of the ids.
class TESKARA_EXPORT RowSelection
{
public:
    // False: there is no memory. An id that is in already stays in.
    bool Insert(u32 id) noexcept;

    // False: it was not in.
    bool Remove(u32 id) { return m_IDs.erase(id) != 0; }
    void Clear() { m_IDs.clear(); }
    bool Contains(u32 id) const { return m_IDs.count(id) != 0; }
    u32 Count() const { return static_cast<u32>(m_IDs.size()); }

    // 0: there is none. A walk by this bears with every change meanwhile.
    u32 FirstAfter(u32 id) const;
    u32 Last() const { return m_IDs.empty() ? 0 : *m_IDs.rbegin(); }

    // place: from 0. 0: there are not so many.
    u32 At(u32 place) const;

private:
    std::set<u32> m_IDs;
};
