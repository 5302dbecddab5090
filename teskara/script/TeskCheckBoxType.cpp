#include "teskara/script/TeskCheckBoxType.h"

namespace {

bool ToggleChecked(TeskCheckBox& checkBox, const Arguments&)
{
    checkBox.Checked = !checkBox.Checked;
    return true;
}

// clang-format off
constexpr ScriptMember<TeskCheckBox> Members[] = {
    {0, "Text",                  Script::String<&TeskCheckBox::Text>},
    {1, "Down",                  Script::Bool<&TeskCheckBox::Pressed>},
    {2, "Checked",               Script::Bool<&TeskCheckBox::Checked>},
    {3, "Font",                  Script::Font<&TeskCheckBox::Font>},
    {4, "Texture",               Script::Texture<&TeskCheckBox::Texture>},
    {5, "TexturePressed",        Script::Texture<&TeskCheckBox::TexturePressed>},
    {6, "TextureHover",          Script::Texture<&TeskCheckBox::TextureHover>},
    {7, "TextureChecked",        Script::Texture<&TeskCheckBox::TextureChecked>},
    {8, "TextureCheckedPressed", Script::Texture<&TeskCheckBox::TextureCheckedPressed>},
    {9, "TextureCheckedHover",   Script::Texture<&TeskCheckBox::TextureCheckedHover>},
};

// The last three are no clicks: no event and no command follows.
constexpr ScriptMethod<TeskCheckBox> Methods[] = {
    {0, "SetText",       Script::SetSequence<&TeskCheckBox::Text>},
    {1, "SetChecked",    Script::SetTo<&TeskCheckBox::Checked, true>},
    {2, "UnsetChecked",  Script::SetTo<&TeskCheckBox::Checked, false>},
    {3, "ToggleChecked", ToggleChecked},
};
// clang-format on

} // namespace

TeskCheckBoxType::TeskCheckBoxType(const char* name) : ElementType(name, Members, Methods) { }
