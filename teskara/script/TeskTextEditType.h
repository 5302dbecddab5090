#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/text/TeskTextEdit.h"

// tesktextedit: the lines of a text edit.
class TeskTextEditType : public ElementType<TeskTextEdit>
{
public:
    explicit TeskTextEditType(const char* name);
};
