#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/windows/TeskWindow.h"

// teskwindow: what a window is like, and what its title bar does.
class TeskWindowType : public ElementType<TeskWindow>
{
public:
    explicit TeskWindowType(const char* name);
};
