#include "teskara/controls/TeskVariableSlider.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/DepthScope.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/ProcessedText.h"

#include <cmath>
#include <optional>

namespace {

constexpr char Kind[] = "variableslider";

// Room for the digits of the largest float, its sign, point and decimals.
constexpr u32 NumberTextSize = 64;

u32 g_WriteDepth = 0;

constexpr MarkupForm<TeskVariableSlider> Variable = {
    "variable", [](TeskVariableSlider& slider, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        slider.VariableName = source.Text(tag, fallback.Text);
        if (slider.VariableName.empty())
            return;

        char sequence[Limits::TextBuffer2048];
        FormatBounded(sequence, sizeof(sequence), "${%s}", slider.VariableName.c_str());
        slider.Data.PreParse(sequence);
    }};

// clang-format off
constexpr MarkupValue<TeskVariableSlider> VariableSliderValues[] = {
    {"Data",          Variable,                                            ""},
    {"Offset",        Markup::Float<&TeskVariableSlider::Offset>,        0.0f},
    {"VariableRange", Markup::Float<&TeskVariableSlider::VariableRange>, 0.0f},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "slider",
    .Tables = {&RowsOf<VariableSliderValues>},
});

} // namespace

bool TeskVariableSlider::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskSlider::FromXML(node, templateNode))
        return false;

    return ReadMarkup<VariableSliderValues>(*this, {node, templateNode});
}

bool TeskVariableSlider::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskSlider::IsTypeOf(word);
}

void TeskVariableSlider::Render()
{
    if (Dragging || FollowVariable())
        TeskSlider::Render();
}

// False: the slider has died of it.
bool TeskVariableSlider::FollowVariable()
{
    const ElementWatch self(*this);
    std::optional<float> variable;
    UseProcessedText(*this, Data, [&](const char* text) {
        const QuietFloats quiet;
        variable = ReadFloat(text) - Offset;
    });
    if (!self.Exists() || !variable)
        return self.Exists();

    Initialized = true;
    SetValue(ValueFor(*variable));
    return self.Exists();
}

void TeskVariableSlider::SetValue(unsigned int value)
{
    const ElementWatch self(*this);
    TeskSlider::SetValue(value);
    if (self.Exists() && Initialized && !VariableName.empty())
        WriteVariable();
}

// variable: without the offset.
u32 TeskVariableSlider::ValueFor(float variable) const
{
    const QuietFloats quiet;
    const bool isWithin = variable > 0 && VariableRange != 0;
    return isWithin ? TruncateToU32(variable / VariableRange * static_cast<float>(Range)) : 0;
}

float TeskVariableSlider::VariableValue() const
{
    const QuietFloats quiet;
    const float share = Range == 0 ? 0 : static_cast<float>(Value) / static_cast<float>(Range);
    return share * VariableRange + Offset;
}

// What is no number is not written. The evaluation writes the variable, and may set the slider again.
TESKARA_NOINLINE void TeskVariableSlider::WriteVariable()
{
    const DepthScope depth(g_WriteDepth, Limits::NestedTextUpdates);
    const float variable = VariableValue();
    if (!depth.Entered() || !std::isfinite(variable))
        return;

    constexpr int decimals = 6;
    char number[NumberTextSize];
    WriteFixed(number, sizeof(number), static_cast<double>(variable), decimals);
    char text[Limits::TextBuffer2048];
    char result[Limits::TextBuffer2048];
    FormatBounded(text, sizeof(text), "${%s:Set[%s]}", VariableName.c_str(), number);
    Host::DataParse(text, result, sizeof(result));
}
