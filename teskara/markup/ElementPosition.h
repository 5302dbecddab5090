#pragma once

#include "teskara/core/Types.h"

#include <bit>

// How a coordinate or a dimension follows the parent.
enum : u32 {
    PositionAbsolute = 0, // keeps its value
    PositionShare = 2, // a share of the parent's dimension
    PositionFarEdge = 3, // the parent's dimension less an offset
};

struct ElementPosition {
    u32 Type = PositionAbsolute;
    u32 Factor = 0; // share: the bits of a float; far edge: the offset in pixels

    float Share() const { return std::bit_cast<float>(Factor); }
    void SetShare(float share) { Factor = std::bit_cast<u32>(share); }
};
