#pragma once

#include "teskara/element/TeskFont.h"
#include "teskara/script/TableType.h"

// The font that a value stands for; null if it has ended meanwhile.
TeskFont* FontOf(MvValue value);

// teskfont: a font of a control. As a text it is its face's name.
class TeskFontType : public TableType<TeskFont, FontOf>
{
public:
    explicit TeskFontType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
