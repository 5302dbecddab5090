#include "teskara/controls/PressTextures.h"

#include "teskara/element/TeskTexture.h"
#include "teskara/markup/MarkupSource.h"

TeskTexture* PressTextures::Choose(bool isPressed, bool isMouseOver) const
{
    if (isPressed && Pressed)
        return Pressed;

    return isMouseOver && Hover ? Hover : Plain;
}

void MaskTextures(const MarkupSource& source, std::initializer_list<TeskTexture*> textures)
{
    constexpr char attribute[] = "ColorMask";
    const u32 mask = XMLHelper::GetHexAttribute(
        source.Node(), attribute, XMLHelper::GetHexAttribute(source.Template(), attribute, 0));
    if (mask == 0)
        return;

    for (TeskTexture* texture : textures) {
        if (!texture)
            continue;
        texture->Flags |= TextureHasColorMask;
        texture->ColorMask = mask;
    }
}
