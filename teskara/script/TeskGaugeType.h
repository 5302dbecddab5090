#pragma once

#include "teskara/controls/TeskGauge.h"
#include "teskara/script/ElementType.h"

// teskgauge: the range and the value of a gauge, whether it follows a variable or not.
class TeskGaugeType : public ElementType<TeskGauge>
{
public:
    explicit TeskGaugeType(const char* name);
};
