#pragma once

#include "teskara/core/Types.h"

class TeskElement;
class TeskTexture;

// What fills the rectangle of a control: an image, or without one a colour, and a border.
struct Panel {
    TeskTexture* Texture; // may be null
    u32 BackgroundColor;
    u32 Border;
    u32 BorderColor;
};

// Fills an element's rectangle, or another one. An image with a border of its own replaces the plain border.
void DrawPanel(TeskElement& element, const Panel& panel);
void DrawPanel(TeskElement& element, const tagRECT& rect, const Panel& panel);
