#include "teskara/windows/TeskMapView.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/windows/TeskMapBlip.h"

namespace {

constexpr char Kind[] = "mapview";
constexpr char BlipViewKind[] = "mapblipview";

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

    TeskMapBlipView* view = NewBlipView(*blip);
    if (!view)
        return nullptr;

    const ElementWatch watch(*view);
    view->UpdateSize();
    return watch.Exists() ? view : nullptr;
} catch (...) {
    return nullptr; // no memory
}

// The kind may be the host's by now.
TeskMapBlipView* TeskMapView::NewBlipView(const TeskMapBlip& blip)
{
    const ElementWatch self(*this);
    const u32 blipID = blip.ID;
    const utf8string name = blip.Name;
    TeskElement* made = g_UIManager.LoadElement(this, BlipViewKind, name.c_str());
    if (!made || !self.Exists())
        return nullptr;

    auto* view = dynamic_cast<TeskMapBlipView*>(made);
    if (!view || view->Parent != this || FindBlipView(blipID)) {
        DeleteChild(made);
        return nullptr;
    }
    m_Views.Enter(blipID, *view);
    view->m_BlipID = blipID;
    return view;
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
