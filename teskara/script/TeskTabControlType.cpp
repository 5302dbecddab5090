#include "teskara/script/TeskTabControlType.h"

#include "teskara/script/TeskTabType.h"

namespace {

CTeskTab* FindSelected(const TeskTabControl& control)
{
    return control.RetrieveTab(control.SelectedTab);
}

// A number is a place in the strip, counted from 1; all else is a name.
CTeskTab* FindTab(const TeskTabControl& control, const Arguments& arguments)
{
    const char* which = arguments.Text(0);
    if (!*which)
        return nullptr;
    if (arguments.IsNumber(0))
        return control.OrderedTabs.At(static_cast<u32>(arguments.Integer(0)) - 1);
    return control.GetTabFromName(which);
}

bool AddTab(TeskTabControl& control, const Arguments& arguments)
{
    const char* name = arguments.Text(0);
    return control.AddTab(name, nullptr, name, arguments.Has(1) ? arguments.Text(1) : nullptr) != 0;
}

// clang-format off
constexpr ScriptMember<TeskTabControl> Members[] = {
    {0, "Font",               Script::Font<&TeskTabControl::Font>},
    {1, "SelectedTab",        Script::Tab<FindSelected>},
    {2, "Tab",                Script::Tab<FindTab>, 1},
    {3, "Tabs",               Script::Int<&TeskTabControl::TabCount>},
    {4, "TabTexture",         Script::Texture<&TeskTabControl::TabTexture>},
    {5, "TabSelectedTexture", Script::Texture<&TeskTabControl::TabSelectedTexture>},
};

constexpr ScriptMethod<TeskTabControl> Methods[] = {
    {0, "AddTab", AddTab, 1},
};
// clang-format on

} // namespace

TeskTabControlType::TeskTabControlType(const char* name) : ElementType(name, Members, Methods) { }
