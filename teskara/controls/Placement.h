#pragma once

#include "teskara/core/Numbers.h"
#include "teskara/element/TeskElement.h"

// Where something of that height begins if it lies halfway between top and bottom of an element, in screen pixels. What
// is higher than the element wraps, as all lengths do.
inline i32 MiddleOf(const TeskElement& element, u32 height)
{
    return WrapAdd(element.AbsoluteY, (element.Height - height) >> 1);
}
