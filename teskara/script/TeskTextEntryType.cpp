#include "teskara/script/TeskTextEntryType.h"

namespace {

const char* TextOf(const TeskTextEntry& entry)
{
    return entry.Text.Bytes();
}

// This type alone gives its font as a text, so that a script cannot use it as a font.
const char* FontName(const TeskTextEntry& entry)
{
    return entry.Font ? entry.Font->Name.c_str() : nullptr;
}

// clang-format off
constexpr ScriptMember<TeskTextEntry> Members[] = {
    {0, "Text",                  Script::String<TextOf>},
    {1, "Font",                  Script::String<FontName>},
    {2, "BackgroundColor",       Script::Int<&TeskTextEntry::BackgroundColor>},
    {3, "BorderColor",           Script::Int<&TeskTextEntry::BorderColor>},
    {4, "Border",                Script::Int<&TeskTextEntry::Border>},
    {5, "Texture",               Script::Texture<&TeskTextEntry::Texture>},
    {6, "TextureFocused",        Script::Texture<&TeskTextEntry::TextureFocused>},
    {7, "TextureCaret",          Script::Texture<&TeskTextEntry::TextureCaret>},
    {8, "TextureCaretOverwrite", Script::Texture<&TeskTextEntry::TextureCaretOverwrite>},
    {9, "MaxLength",             Script::Uint<&TeskTextEntry::MaxLength>},
};

constexpr ScriptMethod<TeskTextEntry> Methods[] = {
    {0, "SetText",            Script::SetText<&TeskTextEntry::SetText>},
    {1, "SetBackgroundColor", Script::SetColor<&TeskTextEntry::BackgroundColor>},
    {2, "SetBorderColor",     Script::SetColor<&TeskTextEntry::BorderColor>},
    {3, "SetMaxLength",       Script::SetInteger<&TeskTextEntry::MaxLength>},
};
// clang-format on

} // namespace

TeskTextEntryType::TeskTextEntryType(const char* name) : ElementType(name, Members, Methods) { }
