#include "teskara/controls/TextureMask.h"

#include "teskara/element/TeskTexture.h"
#include "teskara/markup/MarkupSource.h"

void MaskTextures(const MarkupSource& source, std::initializer_list<TeskTexture*> textures)
{
    const u32 mask = source.HexAttribute(MaskAttribute.Name.Text, 0);
    if (mask == 0)
        return;

    for (TeskTexture* texture : textures) {
        if (!texture)
            continue;
        texture->Flags |= TextureHasColorMask;
        texture->ColorMask = mask;
    }
}
