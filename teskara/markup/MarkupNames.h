#pragma once

#include "teskara/markup/XMLHelper.h"

// The names of markup that belong to no kind. Names compare without regard to case.

// Of every element, template and skin.
inline constexpr char NameAttribute[] = "name";
inline constexpr char TemplateAttribute[] = "Template";

// Of a texture: the image.
inline constexpr char FilenameAttribute[] = "Filename";

// In a file, beside elements.
inline constexpr TagName TemplateTag = "Template";
inline constexpr TagName SkinTag = "Skin";

// Around the elements that stand in an element.
inline constexpr TagName ChildrenTag = "Children";
