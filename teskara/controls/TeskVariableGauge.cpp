#include "teskara/controls/TeskVariableGauge.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/ProcessedText.h"

namespace {

constexpr char Kind[] = "variablegauge";

// clang-format off
constexpr MarkupValue<TeskVariableGauge> VariableGaugeValues[] = {
    {"Data",   Markup::Sequence<&TeskVariableGauge::Data>, ""},
    {"Offset", Markup::Float<&TeskVariableGauge::Offset>,  0.0f},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "gauge",
    .Tables = {&RowsOf<VariableGaugeValues>},
});

} // namespace

bool TeskVariableGauge::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskGauge::FromXML(node, templateNode))
        return false;

    return ReadMarkup<VariableGaugeValues>(*this, {node, templateNode});
}

bool TeskVariableGauge::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskGauge::IsTypeOf(word);
}

void TeskVariableGauge::Render()
{
    if (FollowData())
        TeskGauge::Render();
}

// False: the gauge has died of its data.
bool TeskVariableGauge::FollowData()
{
    const ElementWatch self(*this);
    float value = Value;
    UseProcessedText(*this, Data, [&](const char* text) {
        const QuietFloats quiet;
        value = ReadFloat(text) - Offset;
    });
    if (self.Exists() && value != Value)
        SetValue(value);
    return self.Exists();
}
