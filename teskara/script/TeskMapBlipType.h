#pragma once

#include "teskara/script/ElementType.h"
#include "teskara/windows/TeskMapBlip.h"

// teskmapblip: a point on a map, which as a text is its label.
class TeskMapBlipType : public ElementType<TeskMapBlip>
{
public:
    explicit TeskMapBlipType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
