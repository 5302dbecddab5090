#pragma once

#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/windows/BlipOrder.h"
#include "teskara/windows/MapProjection.h"

// What a map and a view of one have in common: the part of the world that they show, and the tooltip for the blip under
// the mouse.
class TESKARA_EXPORT MapDisplay : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    void OnCreate() override;

    _Point3f Origin; // the point of the world at the centre
    float Rotation = 0; // radians
    float MapSizeX = 100; // half of what is shown; with Radial the radius
    float MapSizeY = 100;
    bool Radial = false; // shows a circle, not a box
    bool ZClipping = false; // hides blips that are too low or too high
    bool ShowLabels = true;
    bool RotationEnabled = false;
    bool ClipLabels = false; // at the right edge
    float ZClipLow = -10; // from the origin's z on
    float ZClipHigh = 10;
    u32 HoverBlip = 0; // the id of the blip under the mouse
    TeskTooltip* Tooltip = nullptr; // the child of that name, near or far; null if there is none

protected:
    // Reads the values that both have. False: the element was deleted meanwhile, or memory ran out.
    bool ReadArea(XMLNode* node, XMLNode* templateNode);

    // Shows the blips that lie within the area and places them, and hides the others. pointOf tells where a blip is in
    // the world; null: it is hidden.
    template <class Blip, class PointOf> void PlaceInBox(const BlipOrder<Blip>& blips, PointOf pointOf);
    template <class Blip, class PointOf> void PlaceInCircle(const BlipOrder<Blip>& blips, PointOf pointOf);

    // made: what a load of a child of that name gave back, whose word may mean any kind. Null, and the child is gone: it
    // is of another kind. Scripts may have made one of the kind meanwhile; that one stays.
    template <class Kind> Kind* KeepMade(TeskElement* made, const char* name, u32 firstNewID);

    // The mouse has come to a blip, or has left it.
    template <class Blip> void StartHover(Blip& blip);
    void StopHover(const TeskElement& blip);

private:
    template <class Blip, class PointOf>
    void PlaceBlips(const BlipOrder<Blip>& blips, const MapProjection& projection, PointOf pointOf);
    MapArea Area() const;
    TeskTooltip* LiveTooltip() const;
    void ShowTooltipAt(const TeskElement& blip, TeskTooltip& tooltip);

    u32 m_TooltipID = 0;
};

// A size of 0 would show nothing. Only one of the two sizes is kept from it.
template <class Blip, class PointOf> void MapDisplay::PlaceInBox(const BlipOrder<Blip>& blips, PointOf pointOf)
{
    const QuietFloats quiet;
    if (MapSizeY == 0)
        MapSizeY = 1;
    PlaceBlips(blips, MapProjection::OfBox(Area(), Width, Height), pointOf);
}

template <class Blip, class PointOf> void MapDisplay::PlaceInCircle(const BlipOrder<Blip>& blips, PointOf pointOf)
{
    const QuietFloats quiet;
    if (MapSizeX == 0)
        MapSizeX = 1;
    PlaceBlips(blips, MapProjection::OfCircle(Area(), Width, Height), pointOf);
}

// To be shown is an operation of the blip, whose class may be the host's: it is called where something changes.
template <class Blip, class PointOf>
void MapDisplay::PlaceBlips(const BlipOrder<Blip>& blips, const MapProjection& projection, PointOf pointOf)
{
    const ElementWatch self(*this);
    std::size_t place = 0;
    while (place < blips.Places()) {
        const auto [id, blip] = blips.At(place++);
        if (!blip)
            continue;

        const _Point3f* point = pointOf(*blip);
        const bool isShown = point && projection.Shows(*point);
        if (isShown) {
            const _Point2i corner = projection.Place(*point, blip->Width, blip->Height);
            blip->X = corner.x;
            blip->Y = corner.y;
        }
        if (blip->Visible == isShown)
            continue;

        blip->Show(isShown);
        if (!self.Exists())
            return;
        place = blips.PlaceBehind(id);
    }
}

// What fills the tooltip may end everything.
template <class Blip> void MapDisplay::StartHover(Blip& blip)
{
    HoverBlip = blip.ID;
    TeskTooltip* tooltip = LiveTooltip();
    if (!tooltip)
        return;

    const ElementWatch watchedBlip(blip);
    const ElementWatch watchedTooltip(*tooltip);
    if (blip.SetTooltip(tooltip) && watchedBlip.Exists() && watchedTooltip.Exists())
        ShowTooltipAt(blip, *tooltip);
}

// Some factories give back a part of what they have made, or nothing.
template <class Kind> Kind* MapDisplay::KeepMade(TeskElement* made, const char* name, u32 firstNewID)
{
    auto* wanted = dynamic_cast<Kind*>(made);
    if (wanted && wanted->Parent == this)
        return wanted;

    TeskElement* child = FindChild(name);
    if (child && child->ID >= firstNewID && !dynamic_cast<Kind*>(child))
        DeleteChild(child);
    return nullptr;
}
