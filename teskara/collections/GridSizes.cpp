#include "teskara/collections/GridSizes.h"

#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"

#include <algorithm>
#include <utility>

u32 SizeSpecification::PixelsOf(u32 tableSize) const
{
    const QuietFloats quiet;
    switch (Mode) {
    case SizeFactor:
        return TruncateToU32(static_cast<float>(tableSize) * Factor());
    case SizeLess:
        return tableSize - Value;
    default:
        return Value;
    }
}

GridLines::GridLines(std::vector<u32> ends) : m_Ends(std::move(ends)) { }

void GridSizes::Assign(std::size_t count, SizeMode mode)
{
    m_Sizes.assign(count, {mode, 0});
}

void GridSizes::Merge(std::size_t index, const SizeSpecification& wish)
{
    if (wish == SizeSpecification())
        return;

    const QuietFloats quiet;
    SizeSpecification& size = m_Sizes[index];
    if (size.Mode != wish.Mode)
        size = wish;
    else if (wish.Mode == SizePixels)
        size.Value = std::max(size.Value, wish.Value);
    else if (wish.Mode == SizeFactor && wish.Factor() > size.Factor())
        size.Value = wish.Value;
    else if (wish.Mode == SizeLess)
        size.Value = std::min(size.Value, wish.Value);
}

GridLines GridSizes::ShareOut(u32 tableSize)
{
    u32 left = tableSize;
    for (const SizeSpecification& size : m_Sizes) {
        if (size.Mode != SizeShared)
            left -= size.PixelsOf(tableSize);
    }
    DivideAmongShared(left);

    std::vector<u32> ends;
    ends.reserve(m_Sizes.size());
    u32 end = 0;
    for (const SizeSpecification& size : m_Sizes)
        ends.push_back(end += size.PixelsOf(tableSize));
    return GridLines(std::move(ends));
}

void GridSizes::DivideAmongShared(u32 left)
{
    const auto isShared = [](const SizeSpecification& size) { return size.Mode == SizeShared; };
    const u32 count = static_cast<u32>(std::count_if(m_Sizes.begin(), m_Sizes.end(), isShared));
    if (count == 0)
        return;

    const u32 share = left / count;
    for (SizeSpecification& size : m_Sizes) {
        if (isShared(size))
            size.Value = share;
    }
    std::find_if(m_Sizes.begin(), m_Sizes.end(), isShared)->Value = left - share * (count - 1);
}
