#include "teskara/script/TeskHudElementType.h"

namespace {

const char* GroupOf(const TeskHudElement& hud)
{
    return hud.Group ? hud.Group->c_str() : nullptr;
}

bool SetText(TeskHudElement& hud, const Arguments& arguments)
{
    hud.SetText(arguments.Text(0));
    return true;
}

bool SetGroup(TeskHudElement& hud, const Arguments& arguments)
{
    hud.Group = arguments.Has(0) ? std::make_unique<utf8string>(arguments.Text(0)) : nullptr;
    return true;
}

// clang-format off
constexpr ScriptMember<TeskHudElement> Members[] = {
    {0, "Text",           Script::String<&TeskHudElement::Text>},
    {1, "Group",          Script::String<GroupOf>},
    {2, "Font",           Script::Font<&TeskHudElement::Font>},
    {3, "UpdateInterval", Script::Int<&TeskHudElement::UpdateInterval>},
};

constexpr ScriptMethod<TeskHudElement> Methods[] = {
    {0, "SetText",           SetText, 1},
    {1, "SetGroup",          SetGroup},
    {2, "SetUpdateInterval", Script::SetInteger<&TeskHudElement::UpdateInterval>},
};
// clang-format on

} // namespace

TeskHudElementType::TeskHudElementType(const char* name) : ElementType(name, Members, Methods) { }
