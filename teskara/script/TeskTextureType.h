#pragma once

#include "teskara/element/TeskTexture.h"
#include "teskara/script/TableType.h"

// The texture that a value stands for; null if it has ended meanwhile.
TeskTexture* TextureOf(MvValue value);

// tesktexture: an image of a control. As a text it is what the host makes of its file name.
class TeskTextureType : public TableType<TeskTexture, TextureOf>
{
public:
    explicit TeskTextureType(const char* name);

    bool ToText(MvValue value, char* buffer, u32 size) override;
};
