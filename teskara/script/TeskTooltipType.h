#pragma once

#include "teskara/controls/TeskTooltip.h"
#include "teskara/script/ElementType.h"

// tesktooltip: the lines of a tooltip, counted from 1.
class TeskTooltipType : public ElementType<TeskTooltip>
{
public:
    explicit TeskTooltipType(const char* name);
};
