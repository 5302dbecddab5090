#include "teskara/controls/TeskGauge.h"

#include "teskara/controls/GaugeScale.h"
#include "teskara/controls/TeskGaugeFiller.h"
#include "teskara/controls/TextureMask.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/TypeGlobals.h"

namespace {

constexpr char Kind[] = "gauge";

constexpr u32 HeightWithoutMarkup = 16;

// clang-format off
constexpr MarkupValue<TeskGauge> GaugeValues[] = {
    {"Vertical",   Markup::Toggle<&TeskGauge::Vertical>,    false},
    {"Range",      Markup::Float<&TeskGauge::Range>,        0.0f},
    {"TopTexture", Markup::Texture<&TeskGauge::TopTexture>, {}},
};
// clang-format on

constexpr MarkupPart FillerPart = {"Filler", "gaugefiller"};
constexpr MarkupPart GaugeParts[] = {MaskAttribute, FillerPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskGaugeType,
    .Tables = {&RowsOf<GaugeValues>},
    .Parts = {GaugeParts},
});

} // namespace

TeskGauge::TeskGauge(const char* type, TeskElement* parent, const char* name)
    : TeskFrame(type, parent, name), InFiller(dynamic_cast<TeskGaugeFiller*>(parent) != nullptr)
{
    Height = HeightWithoutMarkup;
}

bool TeskGauge::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<GaugeValues>(*this, source))
        return false;

    MaskTextures(source, {Texture.get(), TopTexture.get()});
    XMLNode* filler = source.Child(FillerPart.Name);
    return !filler || MakeFiller(filler);
}

// Computes the filler's size at once: the gauge's own may never change. False: the gauge was deleted meanwhile.
bool TeskGauge::MakeFiller(XMLNode* node)
{
    const ElementWatch self(*this);
    auto* made = TeskElementFactory::New<TeskGaugeFiller>(FillerPart.Form, this, "filler");
    if (!self.Exists())
        return false;

    Filler = made;
    if (!Filler)
        return true;

    const ElementWatch filler(Filler);
    const bool read = Filler->FromXML(node);
    if (!filler.Exists())
        return self.Exists();

    if (read)
        Filler->RecalculateSize(true);
    else
        DeleteChild(Filler);
    return self.Exists();
}

bool TeskGauge::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskGauge::GetMvType()
{
    return pTeskGaugeType;
}

void TeskGauge::Render()
{
    const ElementWatch self(*this);
    TeskFrame::Render();
    if (!self.Exists())
        return;

    if (Border != 0)
        TexturedRectBordered(ScreenRect(), TopTexture.get(), Border);
    else
        TexturedRect(ScreenRect(), TopTexture.get());
}

void TeskGauge::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (code == NotifyChildGoing && source == Filler)
        Filler = nullptr;
    TeskFrame::OnNotify(source, code, value);
}

void TeskGauge::SetValue(float value)
{
    using enum GaugeScale::Overflow;
    Value = GaugeScale(Range).Hold(value, InFiller ? WrapsAround : Stops);
    if (Filler)
        Filler->SetValue(Value);
}
