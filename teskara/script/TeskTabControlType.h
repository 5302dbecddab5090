#pragma once

#include "teskara/collections/TeskTabControl.h"
#include "teskara/script/ElementType.h"

// tesktabcontrol: the looks and the tabs of a tab control.
class TeskTabControlType : public ElementType<TeskTabControl>
{
public:
    explicit TeskTabControlType(const char* name);
};
