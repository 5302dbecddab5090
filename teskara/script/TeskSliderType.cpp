#include "teskara/script/TeskSliderType.h"

namespace {

// The value is kept within the new range.
bool SetRange(TeskSlider& slider, const Arguments& arguments)
{
    slider.Range = static_cast<u32>(arguments.Integer(0));
    slider.SetValue(slider.Value);
    return true;
}

// clang-format off
constexpr ScriptMember<TeskSlider> Members[] = {
    {0, "Border",        Script::Nothing},
    {1, "Range",         Script::Int<&TeskSlider::Range>},
    {2, "Value",         Script::Int<&TeskSlider::Value>},
    {3, "Vertical",      Script::Bool<&TeskSlider::Vertical>},
    {4, "Texture",       Script::Texture<&TeskSlider::Texture>},
    {5, "HandleTexture", Script::Texture<&TeskSlider::HandleTexture>},
};

constexpr ScriptMethod<TeskSlider> Methods[] = {
    {0, "SetRange", SetRange, 1},
    {1, "SetValue", Script::SetInteger<&TeskSlider::SetValue>},
};
// clang-format on

} // namespace

TeskSliderType::TeskSliderType(const char* name) : ElementType(name, Members, Methods) { }
