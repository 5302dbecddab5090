#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskMap.h"
#include "tests/unit/ToolkitTest.h"

#include <string>
#include <vector>

// Tests of maps. The map "M" has 200 by 100 pixels for 40 by 20 of the world, and its blips come from the template "dot",
// which has a colour and a font.
class MapTest : public ToolkitTest
{
protected:
    using Strings = std::vector<std::string>;

    MapTest() { UseDot({}); }

    static void UseDot(const std::string& values)
    {
        const std::string dot =
            "<BackgroundColor>ff0000ff</BackgroundColor><Font><Size>8</Size><Color>ffffffff</Color></Font>";
        g_UIManager.AddTemplate("dot", ("<Template>" + dot + values + "</Template>").c_str());
    }

    TeskMap& LoadMap(const std::string& values = {}, const std::string& children = {})
    {
        Load("<map name='M'><Width>200</Width><Height>100</Height><MapSizeX>40</MapSizeX><MapSizeY>20</MapSizeY>"
             "<BlipTemplate>dot</BlipTemplate>"
            + values + "<Children>" + children + "</Children></map>");
        return Map();
    }

    TeskMap& Map() { return As<TeskMap>("M"); }

    static bool IsMapGone() { return g_UIManager.FindElement("M") == nullptr; }

    u32 Add(const char* name, float x = 0, float y = 0, float z = 0, u32 size = 12, const char* label = nullptr)
    {
        return Map().AddBlip(name, {x, y, z}, size, label, nullptr, nullptr);
    }

    TeskMapBlip& Blip(const char* name)
    {
        TeskMapBlip* blip = Map().FindBlip(name);
        if (!blip)
            throw std::runtime_error(std::string("no blip ") + name);
        return *blip;
    }

    // The names of the blips that the map knows, in the order of the names.
    Strings Names()
    {
        Strings names;
        for (const TeskMapBlip* blip = Map().FirstBlip(); blip; blip = Map().NextBlip(*blip))
            names.push_back(blip->FullName.substr(0, blip->Name.size()));
        return names;
    }

    // The same in the order of the ids.
    Strings NamesByID()
    {
        Strings names;
        for (std::size_t place = 0; place < Map().BlipsByID.Places(); ++place) {
            if (const TeskMapBlip* blip = Map().BlipsByID.At(place).Element)
                names.push_back(blip->FullName.substr(0, blip->Name.size()));
        }
        return names;
    }

    // Where a blip stands after a frame: "X,Y", or "hidden".
    std::string PlaceOf(const char* name)
    {
        Frame();
        return PlaceOf(Blip(name));
    }

    static std::string PlaceOf(const TeskElement& blip)
    {
        return blip.Visible ? std::to_string(blip.X) + "," + std::to_string(blip.Y) : "hidden";
    }

    static void MoveTo(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        g_UIManager.OnMouseMove(point);
    }
};
