#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

// The measures of a tree's rows, and what follows from them. Offsets are pixels from the corner of the first row.
struct TESKARA_EXPORT TreeLayout {
    u32 ItemHeight; // with 0 there are no rows
    u32 IndentPerDepth;
    u32 ImageSize;
    u32 TextMargin;

    // How far the first of so many rows can be scrolled off; 0 if all fit.
    u32 ScrollRange(u32 rows, u32 height) const;

    // Whether a whole row fits between top and bottom, with a pixel to spare.
    bool HasRoom(i32 top, i32 bottom) const;

    // Which row lies at an offset, counted from the first one that shows. Above it is the first one, too.
    u32 RowAt(i32 offset) const;

    // Where the row's own part begins, images first.
    i32 IndentOf(u32 depth) const;

    // Whether an offset from there lies on the image rather than on the text.
    bool IsOnImage(i32 offset) const;

    // How far something of that height is moved down to stand in the middle of its row.
    u32 Centered(u32 height) const;
};
