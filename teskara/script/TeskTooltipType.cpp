#include "teskara/script/TeskTooltipType.h"

namespace {

// The line that the first argument counts to; null if its place is free or does not exist.
TeskTooltipLine* FindLine(const TeskTooltip& tooltip, const Arguments& arguments)
{
    const i32 number = arguments.Integer(0);
    return number >= 1 ? tooltip.Lines.Get(static_cast<std::size_t>(number) - 1) : nullptr;
}

const char* LineText(const TeskTooltip& tooltip, const Arguments& arguments)
{
    const TeskTooltipLine* line = FindLine(tooltip, arguments);
    return line ? line->Text.c_str() : nullptr;
}

bool Print(TeskTooltip& tooltip, const Arguments& arguments)
{
    tooltip.Print(arguments.Text(0));
    return true;
}

bool SetLine(TeskTooltip& tooltip, const Arguments& arguments)
{
    TeskTooltipLine* line = FindLine(tooltip, arguments);
    if (!line)
        return false;

    line->Set(arguments.Text(1));
    return true;
}

// clang-format off
constexpr ScriptMember<TeskTooltip> Members[] = {
    {0, "Font",  Script::Font<&TeskTooltip::Font>},
    {1, "Lines", Script::Uint<&TeskTooltip::LineCount>},
    {2, "Line",  Script::String<LineText>, 1},
};

constexpr ScriptMethod<TeskTooltip> Methods[] = {
    {0, "Reset",   Script::Call<&TeskTooltip::Reset>},
    {1, "Print",   Print, 1},
    {2, "SetLine", SetLine, 2},
};
// clang-format on

} // namespace

TeskTooltipType::TeskTooltipType(const char* name) : ElementType(name, Members, Methods) { }
