#pragma once

#include "teskara/core/Types.h"

class TeskElement;

// Does something to the blips of a map, which is the element, its parent, or one of the scene.
void FeedFuzzMap(TeskElement& self, u8 argument);
