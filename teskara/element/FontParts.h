#pragma once

#include "teskara/element/MarkupShape.h"

// What the markup of a font says.
namespace FontParts {

inline constexpr MarkupPart Name = {"Name", "string"};
inline constexpr MarkupPart Bold = {"Bold", "toggle"};
inline constexpr MarkupPart Fixed = {"Fixed", "toggle"};
inline constexpr MarkupPart Size = {"Size", "integer"};
inline constexpr MarkupPart Color = {"Color", "hex"};

// Of a template that serves a control without markup of its own.
inline constexpr MarkupPart SizeAttribute = {"Size", "integer", MarkupPlace::TemplateAttribute};
inline constexpr MarkupPart ColorAttribute = {"Color", "hex", MarkupPlace::TemplateAttribute};

} // namespace FontParts
