#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/windows/TeskMap.h"

// teskmap: a map and its blips. It has no text.
class TeskMapType : public ElementType<TeskMap>
{
public:
    explicit TeskMapType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
