#pragma once

#include "teskara/controls/TeskText.h"
#include "teskara/script/ElementType.h"

// tesktext: a text, and how it lies in its element.
class TeskTextType : public ElementType<TeskText>
{
public:
    explicit TeskTextType(const char* name);
};
