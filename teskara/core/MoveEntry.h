#pragma once

#include "teskara/core/Types.h"

#include <algorithm>
#include <vector>

// Takes the entry at one index to another; those between close up.
template <class Entry> void MoveEntry(std::vector<Entry>& entries, u32 from, u32 to)
{
    Entry* const all = entries.data();
    if (from < to)
        std::rotate(all + from, all + from + 1, all + to + 1);
    else
        std::rotate(all + to, all + from, all + from + 1);
}
