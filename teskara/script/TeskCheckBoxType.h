#pragma once

#include "teskara/controls/TeskCheckBox.h"
#include "teskara/script/ElementType.h"

// teskcheckbox: the label, the looks and the state of a check box, with a command or without.
class TeskCheckBoxType : public ElementType<TeskCheckBox>
{
public:
    explicit TeskCheckBoxType(const char* name);
};
