#pragma once

#include "teskara/windows/MapDisplay.h"
#include "teskara/windows/TeskMapBlipView.h"

// A second display of blips, which may be those of several maps, over an area of its own. A program says which:
//
//     for (TeskMapBlip* blip : ...)
//         view->AddBlipView(blip)->BackgroundColor = 0xffff0000u;
class TESKARA_EXPORT TeskMapView : public MapDisplay
{
public:
    using MapDisplay::MapDisplay;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;

    // As of a map.
    virtual void BlipHover(TeskMapBlipView* blip, _Point2i& point);
    virtual void BlipHoverStop(TeskMapBlipView* blip);
    virtual void UpdateRadius();
    virtual void UpdateBox();

    // Shows a blip in the view as well: a frame of the blip's name and size, which shows no more than the label until it
    // is given a colour or a texture. The blip's later sizes are taken by UpdateSize. A blip that is gone is not drawn;
    // its frame stays until it is removed. A blip that is shown already has the frame that it has. Null: there is no
    // blip, or no frame could be made, as where a child has the blip's name. May run scripts.
    TeskMapBlipView* AddBlipView(TeskMapBlip* blip);

    // Deletes the frame of a blip, by the blip's id, which may be gone by now. May run scripts.
    void RemoveBlipView(u32 blipID);

    // Null: the blip of that id is not shown here.
    TeskMapBlipView* FindBlipView(u32 blipID) const { return m_Views.Find(blipID); }

    // Called by the end of a frame in the view.
    void Forget(TeskMapBlipView& blip);

private:
    bool Enter(TeskMapBlipView& view, TeskElement* blip);

    BlipOrder<TeskMapBlipView> m_Views; // by the ids of the blips
};
