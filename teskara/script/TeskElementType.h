#pragma once

#include "teskara/script/ElementType.h"

// teskelement: what scripts can ask and do with every element.
class TeskElementType : public ElementType<TeskElement>
{
public:
    explicit TeskElementType(const char* name);
};
