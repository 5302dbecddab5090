#include "teskara/script/TeskConsoleType.h"

namespace {

// clang-format off
constexpr ScriptMember<TeskConsole> Members[] = {
    {0, "Font",              Script::Font<&TeskConsole::Font>},
    {1, "Border",            Script::Int<&TeskConsole::Border>},
    {2, "BorderColor",       Script::Int<&TeskConsole::BorderColor>},
    {3, "ScrollbackColor",   Script::Int<&TeskConsole::ScrollbackColor>},
    {4, "BackgroundColor",   Script::Int<&TeskConsole::BackgroundColor>},
    {5, "SelectionColor",    Script::Int<&TeskConsole::SelectionColor>},
    {6, "Texture",           Script::Texture<&TeskConsole::Texture>},
    {7, "ScrollbackTexture", Script::Texture<&TeskConsole::ScrollbackTexture>},
};

constexpr ScriptMethod<TeskConsole> Methods[] = {
    {0, "SetBorderColor",     Script::SetColor<&TeskConsole::BorderColor>},
    {1, "SetScrollbackColor", Script::SetColor<&TeskConsole::ScrollbackColor>},
    {2, "SetBackgroundColor", Script::SetColor<&TeskConsole::BackgroundColor>},
    {3, "SetSelectionColor",  Script::SetColor<&TeskConsole::SelectionColor>},
    {4, "Echo",               Script::SetText<&TeskConsole::Print, 1>},
    {5, "Clear",              Script::Call<&TeskConsole::Clear>},
};
// clang-format on

} // namespace

TeskConsoleType::TeskConsoleType(const char* name) : ElementType(name, Members, Methods) { }
