#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>
#include <vector>

// What an index of words is, written down as plainly as possible.
class IndexModel
{
public:
    using Word = std::optional<std::string>;

    // As those of the index. A word of nothing is one that the type refuses.
    u32 Add(const Word& word);
    bool Set(u32 position, const Word& word);
    bool Remove(u32 position);
    bool Collapse();
    bool Resize(u32 size);
    bool Swap(u32 a, u32 b);
    bool Move(u32 from, u32 to);
    bool Clear();

    bool Has(u32 position) const { return position > 0 && position <= Words.size(); }
    Word At(u32 position) const { return Has(position) ? Words[position - 1] : std::nullopt; }
    u32 Count() const;

    std::vector<Word> Words;
    bool Locked = false;
};

// A walk over it: where it stands, counted from 1, with 0 before the first position.
struct WalkModel {
    bool Forward = true;
    bool Reversible = true;
    u64 Position = 0;

    // Goes upwards or downwards to a word. False: there is none, and it stands outside.
    bool Go(const IndexModel& index, bool upwards);
};
