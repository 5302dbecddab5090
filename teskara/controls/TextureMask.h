#pragma once

#include "teskara/element/MarkupShape.h"

#include <initializer_list>

class MarkupSource;
class TeskTexture;

inline constexpr MarkupPart MaskAttribute = {"ColorMask", "hex", MarkupPlace::Attribute};

// Colours the images of a control, any of which may be null, by its own ColorMask attribute instead of by their own,
// unless that is 0.
void MaskTextures(const MarkupSource& source, std::initializer_list<TeskTexture*> textures);
