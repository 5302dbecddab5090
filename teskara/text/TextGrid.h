#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <optional>

// Columns and rows of a pane of text, counted from 0. A row from RowLimit on is not meant.
struct TextBlock {
    i32 FirstColumn = 0;
    i32 ColumnCount = 0;
    i32 FirstRow = 0;
    i32 RowLimit = 0;
};

// The grid of characters in a pane of fixed-pitch text, and what a rectangle that is drawn over it with the mouse means.
// All arithmetic wraps at 32 bits.
struct TESKARA_EXPORT TextGrid {
    // Between the pane's edges and the text.
    static constexpr i32 LeftMargin = 3;
    static constexpr i32 TopMargin = 2;

    i32 X = 0; // of the pane on the screen
    i32 Y = 0;
    u32 Width = 0;
    u32 Height = 0;
    u32 Border = 0;
    i32 CharacterWidth = 0; // not known if 0
    i32 CharacterHeight = 0;

    // From one row to the next.
    i32 Pitch() const;

    // Moves a point of the screen to the corner of the character that it lies on, or to the border that it lies on or
    // beyond.
    void Snap(_Point2i& point) const;

    // Moves a point of the screen into the pane.
    void Clamp(_Point2i& point) const;

    // The characters under a selection on the screen; none for one without a size. Leaves the selection with its corners
    // in order and counted from the first character.
    std::optional<TextBlock> BlockUnder(tagRECT& selection) const;
};
