#pragma once

#include "teskara/element/MarkupShape.h"

// A button of dialogs: its text, which is its name too, and the tags of its look in a dialog's template.
struct DialogButton {
    const char* Text;
    TagName Color; // of the text
    TagName Template; // names the template of the button itself
    TagName Texture;
    TagName TexturePressed;
    TagName TextureHover;
};

// clang-format off
inline constexpr DialogButton OKDialogButton =
    {"OK",     "OKColor",     "OKButton",     "OKTexture",     "OKTexturePressed",     "OKTextureHover"};
inline constexpr DialogButton CancelDialogButton =
    {"Cancel", "CancelColor", "CancelButton", "CancelTexture", "CancelTexturePressed", "CancelTextureHover"};
inline constexpr DialogButton YesDialogButton =
    {"Yes",    "YesColor",    "YesButton",    "YesTexture",    "YesTexturePressed",    "YesTextureHover"};
inline constexpr DialogButton NoDialogButton =
    {"No",     "NoColor",     "NoButton",     "NoTexture",     "NoTexturePressed",     "NoTextureHover"};
// clang-format on

// What a dialog's template may say of some buttons.
template <const DialogButton&... Buttons>
inline constexpr MarkupPart DialogButtonParts[] = {
    {Buttons.Color, "hex", MarkupPlace::TemplateChild}...,
    {Buttons.Template, "template", MarkupPlace::TemplateChild}...,
    {Buttons.Texture, "texture", MarkupPlace::TemplateChild}...,
    {Buttons.TexturePressed, "texture", MarkupPlace::TemplateChild}...,
    {Buttons.TextureHover, "texture", MarkupPlace::TemplateChild}...,
};
