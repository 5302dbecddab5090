#include "teskara/script/TeskButtonType.h"

namespace {

// clang-format off
constexpr ScriptMember<TeskButton> Members[] = {
    {0, "Text",            Script::String<&TeskButton::Text>},
    {1, "Down",            Script::Bool<&TeskButton::Pressed>},
    {2, "Font",            Script::Font<&TeskButton::Font>},
    {3, "BackgroundColor", Script::Int<&TeskButton::BackgroundColor>},
    {4, "Texture",         Script::Texture<&TeskButton::Texture>},
    {5, "TexturePressed",  Script::Texture<&TeskButton::TexturePressed>},
    {6, "TextureHover",    Script::Texture<&TeskButton::TextureHover>},
    {7, "Border",          Script::Int<&TeskButton::Border>},
    {8, "BorderColor",     Script::Int<&TeskButton::BorderColor>},
};

constexpr ScriptMethod<TeskButton> Methods[] = {
    {0, "SetText",            Script::SetSequence<&TeskButton::Text>},
    {1, "SetBackgroundColor", Script::SetColor<&TeskButton::BackgroundColor>},
    {2, "SetBorderColor",     Script::SetColor<&TeskButton::BorderColor>},
    {3, "SetBorder",          Script::SetInteger<&TeskButton::Border>},
    {4, "SetTexture",         Script::SetTexture<&TeskButton::Texture>},
    {5, "SetTexturePressed",  Script::SetTexture<&TeskButton::TexturePressed>},
    {6, "SetTextureHover",    Script::SetTexture<&TeskButton::TextureHover>},
};
// clang-format on

} // namespace

TeskButtonType::TeskButtonType(const char* name) : ElementType(name, Members, Methods) { }
