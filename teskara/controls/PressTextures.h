#pragma once

class TeskTexture;

// The images of a control that can be pressed; any may be null.
struct PressTextures {
    TeskTexture* Plain;
    TeskTexture* Pressed;
    TeskTexture* Hover;

    // The image to draw. A pressed control that has none for it looks as it does when it is not.
    TeskTexture* Choose(bool isPressed, bool isMouseOver) const;
};
