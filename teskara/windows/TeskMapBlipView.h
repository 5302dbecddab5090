#pragma once

#include "teskara/controls/TeskFrame.h"

class TeskMapBlip;
class TeskMapView;
class TeskTooltip;

// A blip of some map on a view of maps: a frame of its own with the blip's label and tooltip. It is made by
// TeskMapView::AddBlipView, never from markup; one that lies elsewhere, or whose blip is gone, is a frame and no more.
class TESKARA_EXPORT TeskMapBlipView : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;
    ~TeskMapBlipView() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    void OnMouseEnter(_Point2i& point) override;
    void OnMouseExit(TeskElement* next) override;

    // As of a blip, whose script it is.
    virtual bool SetTooltip(TeskTooltip* tooltip);

    // Takes the size of the blip, and how it follows the parent. May run scripts.
    void UpdateSize();

    // The blip that is shown; null: there is none, or it is on its way out or gone.
    TeskMapBlip* Blip() const;
    u32 GetBlipID() const { return m_BlipID; }

    // The view that this lies in; null: it lies elsewhere, or the view is being destroyed.
    TeskMapView* View() const;

private:
    friend class TeskMapView;

    void SetBlip(TeskMapBlip& blip);

    u32 m_BlipID = 0;
    mutable TeskMapBlip* m_Blip = nullptr; // as found when so many elements had died
    mutable u32 m_Deaths = 0;
};
