#pragma once

#include "teskara/controls/TeskHudElement.h"
#include "teskara/script/ElementType.h"

// teskhudelement: the text of a HUD element, and how often it is evaluated.
class TeskHudElementType : public ElementType<TeskHudElement>
{
public:
    explicit TeskHudElementType(const char* name);
};
