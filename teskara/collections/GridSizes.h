#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <vector>

// How a row or a column comes by its size.
enum SizeMode : u32 {
    SizePixels = 0,
    SizeShared = 1, // an even share of what the others leave
    SizeFactor = 2, // a share of the table's size, truncated
    SizeLess = 3, // the table's size less so many pixels
};

struct SizeSpecification {
    u32 Mode = SizePixels; // of SizeMode
    u32 Value = 0; // pixels; of a factor the bits of a float

    float Factor() const { return std::bit_cast<float>(Value); }

    // What it comes to in a table of that size. For a shared one that is what the last share-out gave it.
    u32 PixelsOf(u32 tableSize) const;

    bool operator==(const SizeSpecification&) const = default;
};

// A stretch of pixels along one side of a table.
struct GridStretch {
    u32 Start;
    u32 Length;
};

// Where the rows of a table end, or its columns, in pixels from its corner. Sums wrap.
class TESKARA_EXPORT GridLines
{
public:
    explicit GridLines(std::vector<u32> ends);

    // From the start of one of them over as many as are spanned. What lies beyond the last one counts as the last.
    GridStretch Spanned(u32 first, u32 span) const
    {
        const u32 start = first == 0 ? 0 : m_Ends[Held(u64{first} - 1)];
        return {start, m_Ends[Held(u64{first} + span - 1)] - start};
    }

    std::size_t Count() const { return m_Ends.size(); }

private:
    std::size_t Held(u64 index) const { return static_cast<std::size_t>(std::min<u64>(index, m_Ends.size() - 1)); }

    std::vector<u32> m_Ends; // never empty
};

// The sizes of the rows of a table, or of its columns.
class TESKARA_EXPORT GridSizes
{
public:
    // Makes so many anew, of one mode and without a value.
    void Assign(std::size_t count, SizeMode mode);

    // Makes one share what the others leave.
    void Share(std::size_t index) { m_Sizes[index] = {SizeShared, 0}; }

    // Lets one suit a cell in it. A cell that asks for nothing changes nothing; one of another mode has its way; of the
    // same mode the larger result stands.
    void Merge(std::size_t index, const SizeSpecification& wish);

    // Gives each shared one its even share of what the others leave of a table of that size, and the first of them what
    // the division leaves over. All of it is unsigned, so where the others take more than there is the shares are huge.
    // There must be one at least.
    GridLines ShareOut(u32 tableSize);

    std::size_t Count() const { return m_Sizes.size(); }
    const SizeSpecification& operator[](std::size_t index) const { return m_Sizes[index]; }

private:
    void DivideAmongShared(u32 left);

    std::vector<SizeSpecification> m_Sizes;
};
