#include "teskara/windows/TeskMapView.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/windows/TeskMapBlip.h"

namespace {

constexpr char Kind[] = "mapview";
constexpr char BlipViewKind[] = "mapblipview";

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "map area",
});

const _Point3f* PointOf(const TeskMapBlipView& view)
{
    const TeskMapBlip* blip = view.Blip();
    return blip ? &blip->Location : nullptr;
}

} // namespace

bool TeskMapView::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    return MapDisplay::FromXML(node, templateNode) && ReadArea(node, templateNode);
}

bool TeskMapView::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || MapDisplay::IsTypeOf(word);
}

void TeskMapView::Render()
{
    const ElementWatch self(*this);
    if (Radial)
        UpdateRadius();
    else
        UpdateBox();
    if (self.Exists())
        MapDisplay::Render();
}

void TeskMapView::UpdateRadius()
{
    PlaceInCircle(m_Views, PointOf);
}

void TeskMapView::UpdateBox()
{
    PlaceInBox(m_Views, PointOf);
}

void TeskMapView::BlipHover(TeskMapBlipView* blip, _Point2i&)
{
    if (blip)
        StartHover(*blip);
}

void TeskMapView::BlipHoverStop(TeskMapBlipView* blip)
{
    if (blip)
        StopHover(*blip);
}

TeskMapBlipView* TeskMapView::AddBlipView(TeskMapBlip* blip)
try {
    if (!blip)
        return nullptr;
    if (TeskMapBlipView* shown = FindBlipView(blip->ID))
        return shown;

    const ElementWatch self(*this);
    const ElementWatch watchedBlip(*blip);
    const utf8string name = blip->Name;
    const u32 firstNewID = g_UIManager.NextElementID;
    TeskElement* made = g_UIManager.LoadElement(this, BlipViewKind, name.c_str());
    if (!self.Exists())
        return nullptr;

    auto* view = KeepMade<TeskMapBlipView>(made, name.c_str(), firstNewID);
    if (!view || !Enter(*view, watchedBlip.Get()))
        return nullptr;

    const ElementWatch watch(*view);
    view->UpdateSize();
    return watch.Exists() ? view : nullptr;
} catch (...) {
    return nullptr; // no memory
}

// False: the blip has ended meanwhile, or there was no memory, and the view is gone.
bool TeskMapView::Enter(TeskMapBlipView& view, TeskElement* blip)
{
    auto* shown = dynamic_cast<TeskMapBlip*>(blip);
    try {
        if (shown) {
            m_Views.Enter(shown->ID, view);
            view.SetBlip(*shown);
            return true;
        }
    } catch (...) {
        shown = nullptr;
    }
    DeleteChild(&view);
    return false;
}

void TeskMapView::RemoveBlipView(u32 blipID)
{
    if (TeskMapBlipView* view = FindBlipView(blipID))
        DeleteChild(view);
}

void TeskMapView::Forget(TeskMapBlipView& blip)
{
    const ElementWatch self(*this);
    if (HoverBlip == blip.ID)
        BlipHoverStop(&blip);
    if (self.Exists() && FindBlipView(blip.GetBlipID()) == &blip)
        m_Views.Leave(blip.GetBlipID());
}
