#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

ScriptObject Teskara(ScriptHost& host)
{
    _MvTypeVar result;
    EXPECT_TRUE(host.Ask("Teskara", {}, result));
    return ScriptObject(result);
}

} // namespace

TEST(TeskaraTypeDeathTest, VersionsAreConstantTexts)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ("string 0.73", Teskara(host).Get("Version"));
        EXPECT_EQ("string 12", Teskara(host).Get("APIVersion"));
    });
}

TEST(TeskaraTypeDeathTest, TheSkinInForceIsToldByName)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ("failed", Teskara(host).Get("CurrentSkin"));
        g_UIManager.CurrentSkin = g_UIManager.NewSkin("Dark");
        EXPECT_EQ("string Dark", Teskara(host).Get("CurrentSkin"));
        g_UIManager.RemoveSkin("dark");
        EXPECT_EQ("failed", Teskara(host).Get("CurrentSkin"));
    });
}

TEST(TeskaraTypeDeathTest, TheElementsUnderMouseAndKeyboardAreTold)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ("failed", Teskara(host).Get("MouseOverElement"));
        EXPECT_EQ("failed", Teskara(host).Get("FocusedElement"));
        TeskElement& frame = MakeElement("frame", "F");
        TeskElement& text = MakeElement("text", "T");
        g_UIManager.MouseOverElementID = frame.ID;
        g_UIManager.SetFocusElement(&text);
        EXPECT_EQ("teskframe f", Teskara(host).Get("MouseOverElement"));
        EXPECT_EQ("tesktext t", Teskara(host).Get("FocusedElement"));
    });
}

TEST(TeskaraTypeDeathTest, AHiddenFocusElementLosesTheFocusByTheQuestion)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& frame = MakeElement("frame", "F");
        g_UIManager.SetFocusElement(&frame);
        frame.Visible = false;
        EXPECT_EQ("failed", Teskara(host).Get("FocusedElement"));
        EXPECT_EQ(0u, g_UIManager.FocusElementID);
    });
}

TEST(TeskaraTypeDeathTest, ModifiersAreToldWhileTheyAreHeld)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ("bool false", Teskara(host).Get("IsShiftDown"));
        EXPECT_EQ("bool false", Teskara(host).Get("IsAltDown"));
        EXPECT_EQ("bool false", Teskara(host).Get("IsCtrlDown"));
        g_UIManager.ShiftDown = true;
        EXPECT_EQ("bool true", Teskara(host).Get("IsShiftDown"));
        EXPECT_EQ("bool false", Teskara(host).Get("IsAltDown"));
        g_UIManager.AltDown = true;
        EXPECT_EQ("bool true", Teskara(host).Get("IsAltDown"));
        EXPECT_EQ("bool false", Teskara(host).Get("IsCtrlDown"));
        g_UIManager.CtrlDown = true;
        EXPECT_EQ("bool true", Teskara(host).Get("IsCtrlDown"));
    });
}

TEST(TeskaraTypeDeathTest, ThereAreNoMethodsAndNoText)
{
    WithToolkit([](ScriptHost& host) {
        const ScriptObject teskara = Teskara(host);
        EXPECT_EQ(-1, teskara.Type().DispatchMethod(teskara.Value(), "Version", 0, nullptr));
        char text[16] = "";
        EXPECT_FALSE(teskara.Type().ToText(teskara.Value(), text, sizeof(text)));
    });
}
