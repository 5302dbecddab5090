#include "teskara/collections/TreeLayout.h"

#include "teskara/core/Numbers.h"

// One row less than fits is reckoned with.
u32 TreeLayout::ScrollRange(u32 rows, u32 height) const
{
    const u32 fitting = ItemHeight != 0 ? height / ItemHeight : 0;
    return fitting != 0 && fitting - 1 < rows ? rows - (fitting - 1) : 0;
}

bool TreeLayout::HasRoom(i32 top, i32 bottom) const
{
    return ItemHeight != 0 && i64{top} + ItemHeight < bottom;
}

// The last pixel of a row is the first one of the next row's rectangle.
u32 TreeLayout::RowAt(i32 offset) const
{
    return offset < 1 || ItemHeight == 0 ? 0 : static_cast<u32>(offset - 1) / ItemHeight;
}

i32 TreeLayout::IndentOf(u32 depth) const
{
    return WrapMul(depth, IndentPerDepth);
}

bool TreeLayout::IsOnImage(i32 offset) const
{
    return i64{offset} <= i64{TextMargin} + ImageSize;
}

u32 TreeLayout::Centered(u32 height) const
{
    return ItemHeight > height ? (ItemHeight - height) / 2 : 0;
}
