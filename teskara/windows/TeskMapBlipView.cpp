#include "teskara/windows/TeskMapBlipView.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/windows/MapLabel.h"
#include "teskara/windows/TeskMapView.h"

namespace {

const MarkupShape g_Shape({
    .Name = "mapblipview",
    .Base = "frame",
    .Use = MarkupUse::Made,
});

} // namespace

TeskMapBlipView::~TeskMapBlipView()
{
    if (TeskMapView* view = View())
        view->Forget(*this);
}

// Asked for each blip in each frame, and so looked up only after something has died.
TeskMapBlip* TeskMapBlipView::Blip() const
{
    if (m_Deaths != g_UIManager.GetElementDeaths()) {
        m_Deaths = g_UIManager.GetElementDeaths();
        m_Blip = dynamic_cast<TeskMapBlip*>(g_UIManager.FindElementByID(m_BlipID));
    }
    return m_Blip && !m_Blip->IsGoing() ? m_Blip : nullptr;
}

void TeskMapBlipView::SetBlip(TeskMapBlip& blip)
{
    m_BlipID = blip.ID;
    m_Blip = &blip;
    m_Deaths = g_UIManager.GetElementDeaths();
}

TeskMapView* TeskMapBlipView::View() const
{
    return dynamic_cast<TeskMapView*>(Parent);
}

bool TeskMapBlipView::FromXML(XMLNode*, XMLNode*)
{
    return false;
}

bool TeskMapBlipView::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), "mapblipview") || TeskFrame::IsTypeOf(word);
}

void TeskMapBlipView::Render()
{
    const ElementWatch self(*this);
    const MapLabel label(*this, View());
    TeskFrame::Render();
    if (!self.Exists())
        return;

    const TeskMapView* view = View();
    const TeskMapBlip* blip = Blip();
    if (view && blip)
        label.Draw(*this, *blip, *view);
}

bool TeskMapBlipView::SetTooltip(TeskTooltip* tooltip)
{
    TeskMapBlip* blip = Blip();
    return blip && blip->SetTooltip(tooltip);
}

void TeskMapBlipView::UpdateSize()
{
    const TeskMapBlip* blip = Blip();
    if (!blip)
        return;

    Width = blip->Width;
    PositionWidth = blip->PositionWidth;
    Height = blip->Height;
    PositionHeight = blip->PositionHeight;
    RecalculateSize(true);
}

void TeskMapBlipView::OnMouseEnter(_Point2i& point)
{
    const ElementWatch self(*this);
    if (TeskMapView* view = View())
        view->BlipHover(this, point);
    if (self.Exists())
        TeskFrame::OnMouseEnter(point);
}

void TeskMapBlipView::OnMouseExit(TeskElement* next)
{
    const ElementWatch self(*this);
    TeskMapView* view = View();
    if (view && view->HoverBlip == ID)
        view->BlipHoverStop(this);
    if (self.Exists())
        TeskFrame::OnMouseExit(next);
}
