#pragma once

#include "teskara/core/Numbers.h"
#include "teskara/windows/MapDisplay.h"
#include "teskara/windows/TeskMapBlip.h"

// The label to the right of a blip. The right edges of blip and map are taken before the blip is drawn: its children may
// move both.
class MapLabel
{
public:
    MapLabel(const TeskElement& blip, const MapDisplay* map)
        : m_Left(WrapAdd(blip.AbsoluteX, blip.Width)), m_MapRight(map ? WrapAdd(map->AbsoluteX, map->Width) : 0)
    {
    }

    // source: the blip whose label and font it is.
    void Draw(TeskElement& blip, const TeskMapBlip& source, const MapDisplay& map) const
    {
        if (!source.Label || !source.Font || !map.ShowLabels)
            return;

        const i32 x = WrapAdd(m_Left, Gap);
        const i32 y = TopBeside(blip, source.Font->Size);
        if (map.ClipLabels)
            blip.DrawTextClipped(source.Font.get(), source.Label->c_str(), x, y, m_MapRight);
        else
            blip.DrawTextA(source.Font.get(), source.Label->c_str(), x, y);
    }

private:
    static constexpr i32 Gap = 2;

    // In the middle of a blip that is higher than the text.
    static i32 TopBeside(const TeskElement& blip, u32 textHeight)
    {
        return blip.Height > textHeight ? WrapAdd(blip.AbsoluteY, (blip.Height - textHeight) >> 1) : blip.AbsoluteY;
    }

    i32 m_Left;
    i32 m_MapRight;
};
