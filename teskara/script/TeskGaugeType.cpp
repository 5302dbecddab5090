#include "teskara/script/TeskGaugeType.h"

#include "teskara/controls/TeskGaugeFiller.h"

namespace {

// The value is kept within the new range.
bool SetRange(TeskGauge& gauge, const Arguments& arguments)
{
    gauge.Range = arguments.Float(0);
    if (gauge.Filler)
        gauge.Filler->Range = gauge.Range;
    gauge.SetValue(gauge.Value);
    return true;
}

// clang-format off
constexpr ScriptMember<TeskGauge> Members[] = {
    {0, "Border",   Script::Nothing},
    {1, "Vertical", Script::Bool<&TeskGauge::Vertical>},
    {2, "Range",    Script::Float<&TeskGauge::Range>},
    {3, "Value",    Script::Float<&TeskGauge::Value>},
};

constexpr ScriptMethod<TeskGauge> Methods[] = {
    {0, "SetRange", SetRange, 1},
    {1, "SetValue", Script::SetFloat<&TeskGauge::SetValue>},
};
// clang-format on

} // namespace

TeskGaugeType::TeskGaugeType(const char* name) : ElementType(name, Members, Methods) { }
