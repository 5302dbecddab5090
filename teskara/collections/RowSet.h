#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <array>
#include <vector>

// Some of the rows of a list box, by their ids and in the order of the ids. Each id has a bit of its own, so that one
// among a million comes, is found and goes as fast as one among ten.
class TESKARA_EXPORT RowSet
{
public:
    // False: there is no memory. An id that is in already stays in.
    bool Insert(u32 id) noexcept;

    // False: it was not in.
    bool Remove(u32 id);
    void Clear();
    bool Contains(u32 id) const;
    u32 Count() const { return m_Count; }

    // 0: there is none. A walk by this bears with every change meanwhile.
    u32 FirstAfter(u32 id) const;
    u32 Last() const { return m_Count != 0 ? At(m_Count - 1) : 0; }

    // place: from 0. 0: there are not so many.
    u32 At(u32 place) const;

private:
    static constexpr u32 BitsPerWord = 64;
    static constexpr u32 WordsPerBlock = 64;
    static constexpr u32 BitsPerBlock = BitsPerWord * WordsPerBlock;

    // The bits of ids that follow each other, counted so that walks skip them as a whole.
    struct Block {
        u64& WordOf(u32 id) { return Words[id / BitsPerWord % WordsPerBlock]; }
        u64 WordOf(u32 id) const { return Words[id / BitsPerWord % WordsPerBlock]; }

        std::array<u64, WordsPerBlock> Words = {};
        u32 Count = 0;
    };

    static u64 BitOf(u32 id) { return u64{1} << id % BitsPerWord; }

    std::vector<Block> m_Blocks;
    u32 m_Count = 0;
};
