#pragma once

#include "teskara/controls/TeskSlider.h"
#include "teskara/script/ElementType.h"

// teskslider: the range, the value and the looks of a slider, whether it follows a variable or not.
class TeskSliderType : public ElementType<TeskSlider>
{
public:
    explicit TeskSliderType(const char* name);
};
