#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/text/TeskConsole.h"

// teskconsole: the looks of a console, and a way to print there.
class TeskConsoleType : public ElementType<TeskConsole>
{
public:
    explicit TeskConsoleType(const char* name);
};
