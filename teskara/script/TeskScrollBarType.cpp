#include "teskara/script/TeskScrollBarType.h"

#include "teskara/element/ElementWatch.h"

namespace {

// The value is set anew, which does nothing more than the new range has done unless the kind is not the toolkit's.
bool SetRange(TeskScrollBar& bar, const Arguments& arguments)
{
    const ElementWatch watch(bar);
    bar.SetRange(static_cast<u32>(arguments.Integer(0)));
    if (watch.Exists())
        bar.SetValue(bar.GetValue());
    return true;
}

// clang-format off
constexpr ScriptMember<TeskScrollBar> Members[] = {
    {0, "Value",    Script::Int<&TeskScrollBar::GetValue>},
    {1, "Range",    Script::Int<&TeskScrollBar::Range>},
    {2, "Vertical", Script::Bool<&TeskScrollBar::Vertical>},
};

constexpr ScriptMethod<TeskScrollBar> Methods[] = {
    {0, "SetValue",   Script::SetInteger<&TeskScrollBar::SetValue>},
    {1, "RaiseValue", Script::SetInteger<&TeskScrollBar::RaiseValue>},
    {2, "LowerValue", Script::SetInteger<&TeskScrollBar::LowerValue>},
    {3, "SetRange",   SetRange, 1},
};
// clang-format on

} // namespace

TeskScrollBarType::TeskScrollBarType(const char* name) : ElementType(name, Members, Methods) { }
