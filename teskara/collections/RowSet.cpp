#include "teskara/collections/RowSet.h"

#include <bit>

namespace {

u32 CountBits(u64 word)
{
    return static_cast<u32>(std::popcount(word));
}

// The place-th of the bits that are set, from 0.
u32 FindBit(u64 word, u32 place)
{
    for (; place > 0; --place)
        word &= word - 1;
    return static_cast<u32>(std::countr_zero(word));
}

} // namespace

bool RowSet::Insert(u32 id) noexcept
try {
    const u32 index = id / BitsPerBlock;
    if (index >= m_Blocks.size())
        m_Blocks.resize(index + 1u);
    if (Contains(id))
        return true;

    Block& block = m_Blocks[index];
    block.WordOf(id) |= BitOf(id);
    ++block.Count;
    ++m_Count;
    return true;
} catch (...) {
    return false;
}

bool RowSet::Remove(u32 id)
{
    if (!Contains(id))
        return false;

    Block& block = m_Blocks[id / BitsPerBlock];
    block.WordOf(id) &= ~BitOf(id);
    --block.Count;
    --m_Count;
    return true;
}

void RowSet::Clear()
{
    m_Blocks.clear();
    m_Count = 0;
}

bool RowSet::Contains(u32 id) const
{
    const u32 index = id / BitsPerBlock;
    return index < m_Blocks.size() && (m_Blocks[index].WordOf(id) & BitOf(id)) != 0;
}

u32 RowSet::FirstAfter(u32 id) const
{
    const u64 end = u64{m_Blocks.size()} * BitsPerBlock;
    for (u64 next = 1 + u64{id}; next < end;) {
        const Block& block = m_Blocks[static_cast<std::size_t>(next / BitsPerBlock)];
        const u64 rest = block.WordOf(static_cast<u32>(next)) >> next % BitsPerWord;
        if (rest != 0)
            return static_cast<u32>(next) + FindBit(rest, 0);

        const u32 step = block.Count != 0 ? BitsPerWord : BitsPerBlock;
        next = (next / step + 1) * step;
    }
    return 0;
}

u32 RowSet::At(u32 place) const
{
    if (place >= m_Count)
        return 0;

    u32 index = 0;
    for (; place >= m_Blocks[index].Count; ++index)
        place -= m_Blocks[index].Count;
    const auto& words = m_Blocks[index].Words;
    u32 word = 0;
    for (; place >= CountBits(words[word]); ++word)
        place -= CountBits(words[word]);
    return index * BitsPerBlock + word * BitsPerWord + FindBit(words[word], place);
}
