#include "teskara/controls/TeskHudElement.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskHudElement& MakeHud()
{
    return dynamic_cast<TeskHudElement&>(MakeElement("hudelement", "H"));
}

} // namespace

TEST(TeskHudElementTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskHudElement& hud = MakeHud();
        const ScriptObject object(hud);
        EXPECT_STREQ("teskhudelement", object.Type().GetName());
        EXPECT_EQ("failed", object.Get("Text"));
        EXPECT_EQ("failed", object.Get("Group"));
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_EQ("int 0", object.Get("UpdateInterval"));

        hud.Text.PreParse("${x}");
        hud.Group = std::make_unique<utf8string>();
        hud.Font.reset(TeskFont::New(&hud, "Face", 12, false, false));
        hud.UpdateInterval = 0xffffffffu;
        EXPECT_EQ("string ${x}", object.Get("Text"));
        EXPECT_EQ("string ", object.Get("Group"));
        EXPECT_EQ(hud.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ("int -1", object.Get("UpdateInterval"));
        EXPECT_EQ("unknown", object.Get("CurrentText"));
        EXPECT_EQ("string H", object.Get("FullName")); // a name of the base
    });
}

TEST(TeskHudElementTypeDeathTest, SetTextNeedsAText)
{
    WithToolkit([](ScriptHost&) {
        TeskHudElement& hud = MakeHud();
        const ScriptObject object(hud);
        EXPECT_TRUE(object.Do("SetText", {"a ${b}"}));
        EXPECT_EQ("string a ${b}", object.Get("Text"));
        EXPECT_EQ("a ${b}", *hud.CurrentText);
        EXPECT_FALSE(object.Do("SetText"));
        EXPECT_EQ("string a ${b}", object.Get("Text"));
        EXPECT_TRUE(object.Do("SetText", {""}));
        EXPECT_EQ("failed", object.Get("Text"));
        EXPECT_EQ(nullptr, hud.CurrentText);
    });
}

TEST(TeskHudElementTypeDeathTest, TheGroupIsTheArgumentOrNone)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeHud());
        EXPECT_TRUE(object.Do("SetGroup", {"Clocks", "ignored"}));
        EXPECT_EQ("string Clocks", object.Get("Group"));
        EXPECT_TRUE(object.Do("SetGroup", {""}));
        EXPECT_EQ("string ", object.Get("Group"));
        EXPECT_TRUE(object.Do("SetGroup"));
        EXPECT_EQ("failed", object.Get("Group"));
    });
}

TEST(TeskHudElementTypeDeathTest, TheIntervalIsANumber)
{
    WithToolkit([](ScriptHost&) {
        TeskHudElement& hud = MakeHud();
        const ScriptObject object(hud);
        EXPECT_TRUE(object.Do("SetUpdateInterval", {"60"}));
        EXPECT_EQ(60u, hud.UpdateInterval);
        EXPECT_TRUE(object.Do("SetUpdateInterval", {"-1"}));
        EXPECT_EQ(0xffffffffu, hud.UpdateInterval);
        EXPECT_TRUE(object.Do("SetUpdateInterval", {"word"}));
        EXPECT_EQ(0u, hud.UpdateInterval);
        EXPECT_FALSE(object.Do("SetUpdateInterval"));
    });
}

TEST(TeskHudElementTypeDeathTest, ATextMayEndItsElementWhenAScriptSetsIt)
{
    WithToolkit([](ScriptHost& host) {
        TeskHudElement& hud = MakeHud();
        host.Expand = [&](const std::string& text) {
            g_UIManager.Screen->DeleteChild(&hud);
            return text;
        };
        EXPECT_TRUE(ScriptObject(hud).Do("SetText", {"${x}"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("H"));
    });
}

TEST(TeskHudElementTypeDeathTest, AnotherKindOfElementHasNoneOfItsValues)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject hud(MakeHud());
        const ScriptObject frame(hud.Type(), &MakeElement("frame", "F"));
        EXPECT_EQ("failed", frame.Get("Text"));
        EXPECT_FALSE(frame.Do("SetText", {"a"}));
        const ScriptObject nothing(hud.Type(), nullptr);
        EXPECT_EQ("failed", nothing.Get("Group"));
        EXPECT_FALSE(nothing.Do("SetGroup", {"a"}));
    });
}
