#include "teskara/controls/TeskHudElement.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/ToolkitTest.h"

#include <limits>

namespace {

constexpr i32 Least = std::numeric_limits<i32>::min();
constexpr i32 Most = std::numeric_limits<i32>::max();

class HudElementDragTest : public ToolkitTest
{
protected:
    HudElementDragTest() { g_UIManager.AltDown = false; }
    ~HudElementDragTest() override { g_UIManager.AltDown = false; }

    // A HUD element at 100, 200.
    TeskHudElement& MakeHud(const std::string& markup)
    {
        Load("<hudelement name='H'><X>100</X><Y>200</Y>" + markup + "</hudelement>");
        Host.TakeCalls();
        return As<TeskHudElement>("H");
    }
};

} // namespace

TEST_F(HudElementDragTest, APressWithoutAltRunsNoScriptAndIsNotTaken)
{
    TeskHudElement& hud = MakeHud("<OnLeftDown>down</OnLeftDown><OnLeftClick>click</OnLeftClick>");
    Host.Scripts["down"] = [](TeskElement&) { FAIL(); };
    _Point2i point = {105, 205};
    EXPECT_FALSE(hud.OnLMouseDown(point));
    EXPECT_FALSE(hud.Dragging);
}

TEST_F(HudElementDragTest, APressWithoutAltFallsThroughToWhatLiesBelow)
{
    Load("<frame name='Below'><Width>300</Width><Height>300</Height><OnLeftDown>below</OnLeftDown></frame>");
    MakeHud("<Text>one</Text><OnLeftDown>down</OnLeftDown>");
    Frame();
    std::string heard;
    Host.Scripts["below"] = [&](TeskElement&) { heard += "below "; };
    Host.Scripts["down"] = [&](TeskElement&) { heard += "hud "; };
    _Point2i point = {105, 205};
    g_UIManager.OnMouseMove(point);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    System.Ticks += 5000;
    g_UIManager.AltDown = true;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("below hud ", heard);
}

TEST_F(HudElementDragTest, IsDraggedByThePointerWhileTheButtonIsHeld)
{
    const TeskHudElement& hud = MakeHud("<Text>one</Text>");
    Frame();
    g_UIManager.AltDown = true;
    _Point2i point = {105, 205};
    g_UIManager.OnMouseMove(point);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(105, hud.DragPoint.x);
    EXPECT_EQ(205, hud.DragPoint.y);

    g_UIManager.AltDown = false; // asked for by the press alone
    point = {115, 190};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    point = {16, 191};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    EXPECT_EQ(11, hud.X);
    EXPECT_EQ(186, hud.Y);
    EXPECT_EQ("DrawText \"one\" (11,186,11,600) ffffffff format=288 font 1\n", Frame());

    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_FALSE(hud.Dragging);
    point = {20, 191};
    EXPECT_FALSE(g_UIManager.OnMouseMove(point));
    EXPECT_EQ(11, hud.X);
}

TEST_F(HudElementDragTest, MovesAndReleasesOutsideOfADragAreNotTakenAndRunNoScript)
{
    TeskHudElement& hud = MakeHud("<OnMouseMove>script</OnMouseMove><OnLeftClick>script</OnLeftClick>");
    Host.Scripts["script"] = [](TeskElement&) { FAIL(); };
    _Point2i point = {105, 205};
    EXPECT_FALSE(hud.OnMouseMove(point));
    EXPECT_FALSE(hud.OnLMouseUp(point));
    EXPECT_EQ(100, hud.X);
}

TEST_F(HudElementDragTest, ADragRunsTheScriptsOfItsEvents)
{
    TeskHudElement& hud = MakeHud("<OnLeftDown>down</OnLeftDown><OnMouseMove>move</OnMouseMove>"
                                  "<OnLeftClick>click</OnLeftClick>");
    std::string heard;
    Host.Scripts["down"] = [&](TeskElement& self) {
        heard += dynamic_cast<TeskHudElement&>(self).Dragging ? "down " : "early ";
    };
    Host.Scripts["move"] = [&](TeskElement& self) { heard += "move to " + std::to_string(self.X) + " "; };
    Host.Scripts["click"] = [&](TeskElement& self) {
        heard += dynamic_cast<TeskHudElement&>(self).Dragging ? "early" : "click";
    };
    g_UIManager.AltDown = true;
    _Point2i point = {105, 205};
    EXPECT_TRUE(hud.OnLMouseDown(point));
    point.x = 107;
    EXPECT_TRUE(hud.OnMouseMove(point));
    EXPECT_TRUE(hud.OnLMouseUp(point));
    EXPECT_EQ("down move to 102 click", heard);
}

TEST_F(HudElementDragTest, EachScriptOfADragMayDeleteItsElement)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    for (const char* event : {"OnLeftDown", "OnMouseMove", "OnLeftClick"}) {
        const std::string tag = event;
        TeskHudElement& hud = MakeHud("<" + tag + ">die</" + tag + ">");
        g_UIManager.AltDown = true;
        _Point2i point = {105, 205};
        EXPECT_TRUE(hud.OnLMouseDown(point));
        if (g_UIManager.FindElement("H")) {
            EXPECT_TRUE(hud.OnMouseMove(point));
        }
        if (g_UIManager.FindElement("H")) {
            EXPECT_TRUE(hud.OnLMouseUp(point));
        }
        EXPECT_EQ(nullptr, g_UIManager.FindElement("H")) << event;
    }
}

TEST_F(HudElementDragTest, ADragThatLostItsReleaseGoesOnWithTheNextMove)
{
    const TeskHudElement& hud = MakeHud("<Text>one</Text>");
    Frame();
    g_UIManager.AltDown = true;
    _Point2i point = {105, 205};
    g_UIManager.OnMouseMove(point);
    g_UIManager.OnLMouseDown();
    g_UIManager.ResetMouseState();
    point = {106, 205};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    EXPECT_EQ(101, hud.X);
    EXPECT_TRUE(hud.Dragging);
}

TEST_F(HudElementDragTest, DistancesBeyondTheRangeOfCoordinatesWrap)
{
    struct Row {
        i32 From;
        i32 To;
        i32 Start;
        i32 End;
    };
    constexpr Row rows[] = {
        {Least, Most, 0, -1},
        {Most, Least, 0, 1},
        {0, Most, Most, -2},
        {0, Least, Least, 0},
        {-1, Least, -1, Least},
        {Least, Least, Least, Least},
    };
    TeskHudElement& hud = MakeHud("");
    g_UIManager.AltDown = true;
    for (const Row& row : rows) {
        hud.X = hud.Y = row.Start;
        _Point2i point = {row.From, row.From};
        EXPECT_TRUE(hud.OnLMouseDown(point));
        point = {row.To, row.To};
        EXPECT_TRUE(hud.OnMouseMove(point));
        EXPECT_EQ(row.End, hud.X);
        EXPECT_EQ(row.End, hud.Y);
    }
    Frame();
}
