#pragma once

#include "teskara/core/Numbers.h"
#include "teskara/core/Types.h"

#include <algorithm>

// Where the parts of a dialog stand: its text at the top, a row of buttons at the bottom, its window around them. All
// in pixels; lengths wrap.
namespace DialogLayout {

inline constexpr u32 LeastWidth = 128;
inline constexpr u32 ButtonHeight = 20;
inline constexpr u32 NarrowButton = 32;
inline constexpr u32 WideButton = 64;
inline constexpr u32 ButtonGap = 5;

struct Sizes {
    u32 Width; // of the text and of the inside of the window
    u32 TextHeight;
    u32 WindowHeight; // inside
};

// fontHeight: stands to both sides of the text, half of it each. room: below the text. A text is cut to most of the
// parent's height, its window is not.
inline Sizes SizesFor(u64 lines, u64 textWidth, u32 fontHeight, u32 lineHeight, u32 room, u32 parentHeight)
{
    const u32 linesHeight = static_cast<u32>(lines) * lineHeight;
    const u32 mostHeight = TruncateToU32(static_cast<double>(0.75f * static_cast<float>(parentHeight)));
    return {std::max(fontHeight + static_cast<u32>(textWidth), LeastWidth), std::min(linesHeight + 1, mostHeight),
        linesHeight + room};
}

// The left edge of the first of the buttons that stand in the middle of the row, whose widths with the gaps are given.
constexpr u32 FirstButton(u32 rowWidth, u32 buttonsWidth)
{
    return (rowWidth - buttonsWidth) / 2;
}

// The top of the buttons.
constexpr u32 ButtonTop(u32 innerHeight)
{
    return innerHeight - ButtonHeight - ButtonGap;
}

} // namespace DialogLayout
