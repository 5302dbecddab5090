#include "teskara/windows/MapDisplay.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"

namespace {

constexpr char TooltipName[] = "Tooltip";
constexpr char TooltipKind[] = "tooltip";

// How far the tooltip stands to the right of a blip's left edge, and below the blip.
constexpr i32 TooltipRight = 10;
constexpr i32 TooltipBelow = 2;

// Markup gives the whole of what is shown, the field holds half.
template <auto Field>
constexpr MarkupForm<MapDisplay> HalfOf = {
    "float", [](MapDisplay& map, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        map.*Field = source.Float(tag, fallback.Real) * 0.5f;
    }};

// clang-format off
constexpr MarkupValue<MapDisplay> AreaValues[] = {
    {"ClipZ",      Markup::Toggle<&MapDisplay::ZClipping>,       false},
    {"ClipRadius", Markup::Toggle<&MapDisplay::Radial>,          false},
    {"ShowLabels", Markup::Toggle<&MapDisplay::ShowLabels>,      false},
    {"Rotation",   Markup::Toggle<&MapDisplay::RotationEnabled>, false},
    {"MapSizeX",   HalfOf<&MapDisplay::MapSizeX>,                0.0f},
    {"MapSizeY",   HalfOf<&MapDisplay::MapSizeY>,                0.0f},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = "map area",
    .Base = "element",
    .Use = MarkupUse::Base,
    .Tables = {&RowsOf<AreaValues>},
});

} // namespace

bool MapDisplay::ReadArea(XMLNode* node, XMLNode* templateNode)
{
    return ReadMarkup<AreaValues>(*this, {node, templateNode});
}

MapArea MapDisplay::Area() const
{
    return {Origin, MapSizeX, MapSizeY, RotationEnabled, Rotation, ZClipping, ZClipLow, ZClipHigh};
}

// Another kind may answer to the word; it is no tooltip.
void MapDisplay::OnCreate()
{
    Tooltip = dynamic_cast<TeskTooltip*>(FindUsableChild(TooltipName, TooltipKind));
    m_TooltipID = Tooltip ? Tooltip->ID : 0;
}

void MapDisplay::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (code == NotifyChildGoing && source && source == Tooltip)
        Tooltip = nullptr;
    TeskElement::OnNotify(source, code, value);
}

// One that lies deep among the children may end without a word: not all kinds pass on what they hear.
TeskTooltip* MapDisplay::LiveTooltip() const
{
    return Tooltip && g_UIManager.FindElementByID(m_TooltipID) == Tooltip ? Tooltip : nullptr;
}

void MapDisplay::ShowTooltipAt(const TeskElement& blip, TeskTooltip& tooltip)
{
    tooltip.X = WrapAdd(blip.X, TooltipRight);
    tooltip.Y = WrapAdd(WrapAdd(blip.Y, blip.Height), TooltipBelow);
    tooltip.Show(true);
}

void MapDisplay::StopHover(const TeskElement& blip)
{
    if (HoverBlip == blip.ID)
        HoverBlip = 0;
    if (TeskTooltip* tooltip = LiveTooltip())
        tooltip->Show(false);
}
