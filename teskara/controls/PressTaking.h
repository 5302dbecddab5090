#pragma once

#include "teskara/core/Types.h"

class TeskElement;

// What a control that takes every press does with one, and with its release: it tells its parent, and then answers as
// every element does, unless it has ended by that. Afterwards it may have ended.
void TakePress(TeskElement& control, _Point2i& point);
void TakeRelease(TeskElement& control, _Point2i& point);
