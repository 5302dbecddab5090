#include "teskara/script/TeskComboBoxType.h"

namespace {

// clang-format off
constexpr ScriptMember<TeskComboBox> Members[] = {
    {0, "Border",        Script::Int<&TeskComboBox::Border>},
    {1, "Font",          Script::Font<&TeskComboBox::Font>},
    {2, "Down",          Script::Bool<&TeskComboBox::Down>},
    {3, "Selection",     Script::Int<&TeskComboBox::Selection>},
    {4, "Texture",       Script::Texture<&TeskComboBox::Texture>},
    {5, "ButtonTexture", Script::Texture<&TeskComboBox::ButtonTexture>},
};

// The list is not told.
constexpr ScriptMethod<TeskComboBox> Methods[] = {
    {0, "SetSelection", Script::SetInteger<&TeskComboBox::Selection>},
};
// clang-format on

} // namespace

TeskComboBoxType::TeskComboBoxType(const char* name) : ElementType(name, Members, Methods) { }
