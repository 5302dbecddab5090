#pragma once

#include "teskara/core/Types.h"

#include <ctime>
#include <string>

namespace host {

// What is known of the present frame. Sizes and positions are in pixels of the interface.
struct FrameState {
    u32 Number = 0; // counts from 1
    u32 Ticks = 0; // milliseconds
    u32 FramesPerSecond = 0;
    int Width = 0;
    int Height = 0;
    _Point2i Mouse;
    std::tm Time = {};
    std::string Skin; // the name of the one in use
};

} // namespace host
