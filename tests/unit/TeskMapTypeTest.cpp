#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskMap.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskMap& MakeMap()
{
    return dynamic_cast<TeskMap&>(MakeElement("map", "M"));
}

std::string TextOf(const ScriptObject& object)
{
    char text[32] = "old";
    return object.Type().ToText(object.Value(), text, sizeof(text)) ? text : "failed";
}

} // namespace

TEST(TeskMapTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        EXPECT_STREQ("teskmap", object.Type().GetName());
        EXPECT_EQ("string mapblip", object.Get("BlipFactory"));
        EXPECT_EQ("failed", object.Get("BlipTemplate"));
        map.BlipFactory[0] = 0;
        map.BlipTemplate = std::make_unique<utf8string>("dot");
        EXPECT_EQ("failed", object.Get("BlipFactory"));
        EXPECT_EQ("string dot", object.Get("BlipTemplate"));
        EXPECT_EQ("float 100", object.Get("MapSizeX"));
        EXPECT_EQ("bool false", object.Get("Radial"));
        EXPECT_EQ("bool true", object.Get("xShowLabels"));
        EXPECT_EQ("int 0", object.Get("Blips"));
        EXPECT_EQ("unknown", object.Get("ShowLabels"));
        EXPECT_EQ("failed", TextOf(object));
    });
}

TEST(TeskMapTypeDeathTest, TheRotationIsToldInDegreesWhileItIsOn)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        map.Rotation = 1;
        EXPECT_EQ("failed", object.Get("Rotation"));
        EXPECT_TRUE(object.Do("EnableRotation"));
        EXPECT_EQ("float 57.2958", object.Get("Rotation"));
        EXPECT_TRUE(object.Do("SetRotation", {"-90"}));
        EXPECT_FLOAT_EQ(-90 / 57.29578f, map.Rotation);
        EXPECT_TRUE(object.Do("DisableRotation"));
        EXPECT_TRUE(object.Do("SetRotation"));
        EXPECT_EQ("float 0", object.Get("Rotation"));
        EXPECT_TRUE(object.Do("ToggleRotation"));
        EXPECT_FALSE(map.RotationEnabled);
    });
}

TEST(TeskMapTypeDeathTest, TwoMembersHaveAValueAndYetFail)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        _MvTypeVar result;
        map.Origin = {1, 2, 3};
        EXPECT_EQ(DispatchFailed, object.Type().DispatchMember(object.Value(), "Origin", 0, nullptr, result));
        EXPECT_EQ(&map.Origin, result.Value.Object);

        result = {};
        EXPECT_EQ(DispatchFailed, object.Type().DispatchMember(object.Value(), "ZClipping", 0, nullptr, result));
        EXPECT_EQ(nullptr, result.Value.Object);
        map.ZClipping = true;
        EXPECT_EQ(DispatchFailed, object.Type().DispatchMember(object.Value(), "ZClipping", 0, nullptr, result));
        EXPECT_EQ(-10, static_cast<const _Point3f*>(result.Value.Object)->x);
        EXPECT_EQ(10, static_cast<const _Point3f*>(result.Value.Object)->y);
    });
}

TEST(TeskMapTypeDeathTest, OriginAndSizesAreSetWithTheirDefaults)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        EXPECT_TRUE(object.Do("SetOrigin", {"1.5", "-2"}));
        EXPECT_EQ(1.5f, map.Origin.x);
        EXPECT_EQ(-2, map.Origin.y);
        EXPECT_EQ(0, map.Origin.z);
        EXPECT_TRUE(object.Do("SetOrigin"));
        EXPECT_EQ(0, map.Origin.x);
        EXPECT_TRUE(object.Do("SetMapSize", {"7"}));
        EXPECT_EQ("float 7", object.Get("MapSizeY"));
        EXPECT_TRUE(object.Do("SetMapSize", {"7", "8"}));
        EXPECT_EQ("float 8", object.Get("MapSizeY"));
        EXPECT_TRUE(object.Do("SetMapSize"));
        EXPECT_EQ("float 0", object.Get("MapSizeX"));
        EXPECT_EQ("float 0", object.Get("MapSizeY"));
    });
}

TEST(TeskMapTypeDeathTest, FlagsAreSetClearedAndToggled)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        const struct {
            const char* On;
            const char* Off;
            const char* Toggle;
            bool MapDisplay::*Flag;
        } rows[] = {
            {"ClipZ", "UnclipZ", "ToggleZClipping", &MapDisplay::ZClipping},
            {"ClipText", "UnclipText", "ToggleTextClipping", &MapDisplay::ClipLabels},
            {"ShowLabels", "HideLabels", "ToggleLabels", &MapDisplay::ShowLabels},
            {"EnableRotation", "DisableRotation", "ToggleRotation", &MapDisplay::RotationEnabled},
        };
        for (const auto& row : rows) {
            EXPECT_TRUE(object.Do(row.On));
            EXPECT_TRUE(map.*row.Flag) << row.On;
            EXPECT_TRUE(object.Do(row.Off));
            EXPECT_FALSE(map.*row.Flag) << row.Off;
            EXPECT_TRUE(object.Do(row.Toggle));
            EXPECT_TRUE(map.*row.Flag) << row.Toggle;
        }
    });
}

TEST(TeskMapTypeDeathTest, ABlipIsAddedWithWhatIsGiven)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        EXPECT_FALSE(object.Do("AddBlip"));
        EXPECT_TRUE(object.Do("AddBlip", {"A"}));
        EXPECT_EQ(12u, map.FindBlip("A")->Width);
        EXPECT_EQ(0, map.FindBlip("A")->Location.z);
        EXPECT_TRUE(object.Do("AddBlip", {"B", "1", "2", "3", "-1"}));
        EXPECT_EQ(0xffffffffu, map.FindBlip("B")->Width);
        EXPECT_EQ(3, map.FindBlip("B")->Location.z);
        EXPECT_EQ("int 2", object.Get("Blips"));
        EXPECT_FALSE(object.Do("AddBlip", {""}));
        EXPECT_FALSE(object.Do("AddBlip", {"C", "", "", "", "", "", "", "button"}));
        EXPECT_EQ("int 2", object.Get("Blips"));
    });
}

TEST(TeskMapTypeDeathTest, ALabelNeedsATemplateBesideIt)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        g_UIManager.AddTemplate("dot", "<Template/>");
        EXPECT_TRUE(object.Do("AddBlip", {"A", "0", "0", "0", "12", "label"}));
        EXPECT_TRUE(object.Do("AddBlip", {"B", "0", "0", "0", "12", "label", ""}));
        EXPECT_TRUE(object.Do("AddBlip", {"C", "0", "0", "0", "12", "label", "dot"}));
        EXPECT_TRUE(object.Do("AddBlip", {"D", "0", "0", "0", "12", "", "dot"}));
        EXPECT_EQ(nullptr, map.FindBlip("A")->Label);
        EXPECT_EQ(nullptr, map.FindBlip("B")->Label);
        EXPECT_EQ("label", *map.FindBlip("C")->Label);
        EXPECT_EQ(nullptr, map.FindBlip("D")->Label);
    });
}

TEST(TeskMapTypeDeathTest, BlipsAreFoundByName)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        EXPECT_EQ("failed", object.Get("Blip"));
        for (const char* name : {"b", "a", "C"})
            object.Do("AddBlip", {name});
        EXPECT_EQ("teskmapblip a", object.Get("Blip", {"a"}));
        EXPECT_EQ("failed", object.Get("Blip", {"c"}));
        EXPECT_EQ("failed", object.Get("Blip", {""}));
        EXPECT_EQ("string ", object.Get("Blip"));
        map.UpdateBlipLabel(map.FindBlip("C")->ID, "label");
        EXPECT_EQ("string label", object.Get("Blip"));
        EXPECT_EQ("teskmapblip a", object.Get("NextBlip", {"C"}));
        EXPECT_EQ("teskmapblip b", object.Get("NextBlip", {"a"}));
        EXPECT_EQ("failed", object.Get("NextBlip", {"b"}));
        EXPECT_EQ("failed", object.Get("NextBlip", {"c"}));
        EXPECT_EQ("failed", object.Get("NextBlip"));
    });
}

TEST(TeskMapTypeDeathTest, ABlipTellsAndTakesItsTexts)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        const u32 id = map.AddBlip("Town", {1, 2, 3}, 12, nullptr, nullptr, nullptr);
        const ScriptObject object(*map.FindBlip("Town"));
        EXPECT_STREQ("teskmapblip", object.Type().GetName());
        EXPECT_EQ("town", TextOf(object));
        EXPECT_EQ("failed", object.Get("Label"));
        EXPECT_EQ("failed", object.Get("Custom"));
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_TRUE(object.Do("SetLabel", {"A label"}));
        EXPECT_EQ("string A label", object.Get("Label"));
        EXPECT_EQ("A label", TextOf(object));
        EXPECT_TRUE(object.Do("SetLabel", {""}));
        EXPECT_EQ("", TextOf(object));
        EXPECT_FALSE(object.Do("SetLabel"));
        EXPECT_TRUE(object.Do("SetCustom", {"x"}));
        EXPECT_EQ("string x", object.Get("Custom"));
        EXPECT_TRUE(object.Do("SetCustom"));
        EXPECT_EQ("failed", object.Get("Custom"));
        EXPECT_FALSE(object.Do("SetType", {"x"}));
        EXPECT_EQ("int 0", object.Get("Border"));
        EXPECT_FALSE(object.Do("Remove"));
        EXPECT_EQ(nullptr, g_UIManager.FindElementByID(id));
        EXPECT_EQ("int 0", ScriptObject(map).Get("Blips"));
    });
}

TEST(TeskMapTypeDeathTest, TheLocationIsAPointOfTheBlip)
{
    WithToolkit([](ScriptHost&) {
        TeskMap& map = MakeMap();
        map.AddBlip("A", {1, 2, 3}, 12, nullptr, nullptr, nullptr);
        TeskMapBlip& blip = *map.FindBlip("A");
        const ScriptObject object(blip);
        _MvTypeVar result;
        EXPECT_EQ(DispatchDone, object.Type().DispatchMember(object.Value(), "Location", 0, nullptr, result));
        EXPECT_EQ(&blip.Location, result.Value.Object);
        EXPECT_STREQ("point3f", result.Type->GetName());
    });
}

TEST(TeskMapTypeDeathTest, ABlipBesideAMapIsNotRemoved)
{
    WithToolkit([](ScriptHost&) {
        TeskElement& blip = MakeElement("mapblip", "B");
        EXPECT_FALSE(ScriptObject(blip).Do("Remove"));
        EXPECT_NE(nullptr, g_UIManager.FindElement("B"));
    });
}

TEST(TeskMapTypeDeathTest, ABlipMayEndTheMapAsItIsAdded)
{
    WithToolkit([](ScriptHost& host) {
        TeskMap& map = MakeMap();
        const ScriptObject object(map);
        host.OnPrintLine = [] { g_UIManager.Reset(); };
        EXPECT_FALSE(object.Do("AddBlip", {"A", "", "", "", "", "", "", "none"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("M"));
    });
}
