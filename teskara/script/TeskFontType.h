#pragma once

#include "teskara/element/TeskFont.h"
#include "teskara/script/HeldObject.h"
#include "teskara/script/TableType.h"

// teskfont: a font of a control. As a text it is its face's name.
class TeskFontType : public TableType<TeskFont, HeldObject<TeskFont>>
{
public:
    explicit TeskFontType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
