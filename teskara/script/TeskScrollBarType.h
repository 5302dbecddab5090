#pragma once

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/script/ElementType.h"

// teskscrollbar: the range and the value of a scroll bar.
class TeskScrollBarType : public ElementType<TeskScrollBar>
{
public:
    explicit TeskScrollBarType(const char* name);
};
