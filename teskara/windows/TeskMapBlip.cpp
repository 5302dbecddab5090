#include "teskara/windows/TeskMapBlip.h"

#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/windows/MapLabel.h"
#include "teskara/windows/TeskMap.h"

namespace {

constexpr char Kind[] = "mapblip";

// clang-format off
constexpr MarkupValue<TeskMapBlip> BlipValues[] = {
    {"Font",         Markup::Font<&TeskMapBlip::Font>,           {}},
    {"OnSetTooltip", Markup::Script<&TeskMapBlip::OnSetTooltip>, "uint TooltipID"},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskMapBlipType,
    .Tables = {&RowsOf<BlipValues>},
});

} // namespace

TeskMapBlip::~TeskMapBlip()
{
    if (TeskMap* map = Map())
        map->Forget(*this);
}

TeskMap* TeskMapBlip::Map() const
{
    return dynamic_cast<TeskMap*>(Parent);
}

bool TeskMapBlip::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskFrame::FromXML(node, templateNode))
        return false;

    return ReadMarkup<BlipValues>(*this, {node, templateNode});
}

bool TeskMapBlip::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskMapBlip::GetMvType()
{
    return pTeskMapBlipType;
}

void TeskMapBlip::Render()
{
    if (!Label) {
        TeskFrame::Render();
        return;
    }
    const ElementWatch self(*this);
    const MapLabel label(*this, Map());
    TeskFrame::Render();
    if (!self.Exists())
        return;
    if (const TeskMap* map = Map())
        label.Draw(*this, *this, *map);
}

bool TeskMapBlip::SetTooltip(TeskTooltip* tooltip)
{
    if (!OnSetTooltip || !tooltip)
        return false;

    tooltip->Reset();
    char id[32];
    WriteInteger(id, sizeof(id), static_cast<i32>(tooltip->ID));
    RunScript(OnSetTooltip, id);
    return true;
}

void TeskMapBlip::OnMouseEnter(_Point2i& point)
{
    const ElementWatch self(*this);
    if (TeskMap* map = Map())
        map->BlipHover(this, point);
    if (self.Exists())
        TeskFrame::OnMouseEnter(point);
}

void TeskMapBlip::OnMouseExit(TeskElement* next)
{
    const ElementWatch self(*this);
    TeskMap* map = Map();
    if (map && map->HoverBlip == ID)
        map->BlipHoverStop(this);
    if (self.Exists())
        TeskFrame::OnMouseExit(next);
}
