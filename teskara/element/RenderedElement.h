#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

// The element that draws at present, by id: what the host is asked to draw is its. 0 outside of a frame, and while
// nothing below the screen draws.
TESKARA_EXPORT u32 GetRenderedElementID();
