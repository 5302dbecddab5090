#pragma once

#include "teskara/element/TeskTexture.h"
#include "teskara/script/HeldObject.h"
#include "teskara/script/TableType.h"

// tesktexture: an image of a control. As a text it is what the host makes of its file name.
class TeskTextureType : public TableType<TeskTexture, HeldObject<TeskTexture>>
{
public:
    explicit TeskTextureType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
