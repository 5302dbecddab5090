#include "tests/unit/HostedInterface.h"

#include "teskara/windows/TeskMapBlip.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr const char* Map = "<map name='Map'><Width>100</Width><Height>100</Height><MapSizeX>100</MapSizeX>"
                            "<MapSizeY>100</MapSizeY><OnLoad>this:AddBlip('Ship', 1, 2)</OnLoad></map>";

TEST(HostedMapDeathTest, AScriptMovesABlip)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Map);
        ui.Run("moveblip(member(UIElement('Map'), 'Blip', 'Ship'), 30, -20.5, 4)");
        const auto& blip = dynamic_cast<TeskMapBlip&>(ui.Element("Ship@Map"));
        EXPECT_EQ(30.0f, blip.Location.x);
        EXPECT_EQ(-20.5f, blip.Location.y);
        EXPECT_EQ(4.0f, blip.Location.z);
        ui.Run("moveblip(member(UIElement('Map'), 'Blip', 'Ship'), 1, 1)");
        EXPECT_EQ(0.0f, blip.Location.z);
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedMapDeathTest, AScriptShowsABlipInAView)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Map + std::string("<mapview name='View'><Width>50</Width><Height>50</Height></mapview>"));
        EXPECT_EQ("TRUE", ui.Run("Result = viewblip(UIElement('View'), member(UIElement('Map'), 'Blip', 'Ship'))"));
        EXPECT_EQ("mapblipview", ui.Expand("${UIElement[Ship@View].Type}"));
        EXPECT_EQ("", ui.Lines());
        ui.Run("viewblip(UIElement('Map'), member(UIElement('Map'), 'Blip', 'Ship'))");
        EXPECT_NE(std::string::npos, ui.Lines().find("a view of maps is needed"));
        ui.Run("viewblip(UIElement('View'), UIElement('Map'))");
        EXPECT_NE(std::string::npos, ui.Lines().find("a blip of a map is needed"));
    });
}

TEST(HostedMapDeathTest, NothingButABlipOfAMapIsMoved)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Map + std::string("<mapblip name='Lost'/>"));
        for (const char* what : {"UIElement('Map')", "UIElement('Lost')", "nil", "7"}) {
            ui.Run("moveblip(" + std::string(what) + ", 1, 1)");
            EXPECT_NE(std::string::npos, ui.Lines().find("a blip of a map is needed")) << what;
        }
    });
}

} // namespace
