#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/windows/TeskMessageBox.h"

// teskmessagebox: its one member is known and never has a value.
class TeskMessageBoxType : public ElementType<TeskMessageBox>
{
public:
    explicit TeskMessageBoxType(const char* name);
};
