#include "teskara/controls/PressTextures.h"

TeskTexture* PressTextures::Choose(bool isPressed, bool isMouseOver) const
{
    if (isPressed && Pressed)
        return Pressed;

    return isMouseOver && Hover ? Hover : Plain;
}
