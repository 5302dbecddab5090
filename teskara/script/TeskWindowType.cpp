#include "teskara/script/TeskWindowType.h"

namespace {

template <auto Field> const char* TextOf(const TeskWindow& window)
{
    return window.*Field ? (window.*Field)->c_str() : nullptr;
}

// Not 0 or 1: the flag itself.
template <u32 Flag> u32 FlagOf(const TeskWindow& window)
{
    return window.WindowFlags & Flag;
}

const char* TextOrNull(const Arguments& arguments)
{
    return arguments.Has(0) ? arguments.Text(0) : nullptr;
}

bool SetTitle(TeskWindow& window, const Arguments& arguments)
{
    window.SetTitle(TextOrNull(arguments));
    return true;
}

bool SetClickFocus(TeskWindow& window, const Arguments& arguments)
{
    const char* name = TextOrNull(arguments);
    window.ClickFocus = name ? std::make_unique<utf8string>(name) : nullptr;
    return true;
}

template <bool Minimized> void Minimize(TeskWindow& window)
{
    window.Minimize(Minimized);
}

void ToggleMinimize(TeskWindow& window)
{
    window.Minimize(!window.Minimized);
}

// The number is of the outer size. Unlike other elements a window lays out what is in it.
template <auto Dimension> bool SetDimension(TeskWindow& window, const Arguments& arguments)
{
    window.*Dimension = static_cast<u32>(arguments.Integer(0));
    window.OnResize();
    return true;
}

// clang-format off
constexpr ScriptMember<TeskWindow> Members[] = {
    {0, "Title",             Script::String<TextOf<&TeskWindow::Title>>},
    {1, "Minimized",         Script::Int<&TeskWindow::Minimized>},
    {2, "ClickFocus",        Script::String<TextOf<&TeskWindow::ClickFocus>>},
    {3, "IsClosable",        Script::Int<FlagOf<WindowHasClose>>},
    {4, "IsMinimizable",     Script::Int<FlagOf<WindowHasMinimize>>},
    {5, "IsWidthResizable",  Script::Int<FlagOf<WindowResizesWidth>>},
    {6, "IsHeightResizable", Script::Int<FlagOf<WindowResizesHeight>>},
    {7, "IsResizable",       Script::Int<FlagOf<WindowHasClose>>}, // scripts know it as the same as IsClosable
};

constexpr ScriptMethod<TeskWindow> Methods[] = {
    {0, "SetTitle",       SetTitle},
    {1, "Minimize",       Script::Call<Minimize<true>>},
    {2, "Unminimize",     Script::Call<Minimize<false>>},
    {3, "ToggleMinimize", Script::Call<ToggleMinimize>},
    {4, "SetClickFocus",  SetClickFocus},
    {5, "Reset",          Script::Call<&TeskWindow::ResetWindowPosition>},
    {6, "SetWidth",       SetDimension<&TeskElement::Width>, 1},
    {7, "SetHeight",      SetDimension<&TeskElement::Height>, 1},
};
// clang-format on

} // namespace

TeskWindowType::TeskWindowType(const char* name) : ElementType(name, Members, Methods) { }
