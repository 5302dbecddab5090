#pragma once

#include "teskara/controls/TeskButton.h"
#include "teskara/script/ElementType.h"

// teskbutton: the label and the looks of a button, with a command or without.
class TeskButtonType : public ElementType<TeskButton>
{
public:
    explicit TeskButtonType(const char* name);
};
