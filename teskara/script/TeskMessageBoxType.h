#pragma once

#include "teskara/script/ElementType.h"

// teskmessagebox: its one member is known and never has a value.
class TeskMessageBoxType : public ElementType<TeskElement>
{
public:
    explicit TeskMessageBoxType(const char* name);
};
