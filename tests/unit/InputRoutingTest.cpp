#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>

class InputRoutingTest : public ToolkitTest
{
protected:
    InputRoutingTest()
    {
        g_UIManager.KeyStates.clear();
        std::fill(std::begin(g_UIManager.KeyState), std::end(g_UIManager.KeyState), u8{0});
        g_UIManager.ShiftDown = g_UIManager.AltDown = g_UIManager.CtrlDown = false;
        g_UIManager.LeftPressElementID = 0;
        g_UIManager.RightPressElementID = 0;
        g_UIManager.LastLeftClickElementID = 0;
        g_UIManager.LastRightClickElementID = 0;
        Host.NamesKeys = true;
    }

    ~InputRoutingTest() override { g_UIManager.KeyStates.clear(); }

    // Writes down each run of a script as EVENT:NAME.
    void Note(const char* event)
    {
        Host.Scripts[event] = [this, event](
                                  TeskElement& self) { Events += std::string(event) + ":" + self.Name + " "; };
    }

    static bool MoveTo(int x, int y)
    {
        _Point2i point{x, y};
        return g_UIManager.OnMouseMove(point);
    }

    std::string TakeEvents()
    {
        std::string taken;
        taken.swap(Events);
        return taken;
    }

    void Focus(const char* name) { g_UIManager.SetFocusElement(&Element(name)); }

    std::string Events;
};

// --- Keys

TEST_F(InputRoutingTest, AKeyIsHeldInBothTables)
{
    EXPECT_FALSE(g_UIManager.OnKeyDown(65));
    EXPECT_EQ(0x80, g_UIManager.KeyState[65]);
    EXPECT_EQ(0x80u, g_UIManager.KeyStates[65]);
    EXPECT_FALSE(g_UIManager.OnKeyUp(65));
    EXPECT_EQ(0, g_UIManager.KeyState[65]);
    EXPECT_EQ(0u, g_UIManager.KeyStates.count(65));
}

TEST_F(InputRoutingTest, ATakenKeyIsMarkedInBothTablesUntilItsRelease)
{
    Load(R"(<frame name="A"><OnKeyDown>down</OnKeyDown></frame>)");
    Focus("A");
    EXPECT_TRUE(g_UIManager.OnKeyDown(65));
    EXPECT_EQ(0x82, g_UIManager.KeyState[65]);
    EXPECT_EQ(0x82u, g_UIManager.KeyStates[65]);
    EXPECT_TRUE(g_UIManager.OnKeyUp(65));
    EXPECT_EQ(0, g_UIManager.KeyState[65]);
    EXPECT_EQ(0u, g_UIManager.KeyStates.count(65));
    EXPECT_FALSE(g_UIManager.OnKeyUp(65));
}

TEST_F(InputRoutingTest, KeysAt255And256AndTheLastOne)
{
    Load(R"(<frame name="A"><OnKeyDown>down</OnKeyDown></frame>)");
    Focus("A");
    for (const unsigned int key : {255u, 256u, 0xffffffffu}) {
        EXPECT_TRUE(g_UIManager.OnKeyDown(key)) << key;
        EXPECT_EQ(0x82u, g_UIManager.KeyStates[key]);
    }
    EXPECT_EQ(0x82, g_UIManager.KeyState[255]);
    EXPECT_EQ(0, g_UIManager.KeyState[0]) << "larger codes do not wrap into the table";
    for (const unsigned int key : {255u, 256u, 0xffffffffu})
        EXPECT_TRUE(g_UIManager.OnKeyUp(key)) << key;
    EXPECT_TRUE(g_UIManager.KeyStates.empty());
}

TEST_F(InputRoutingTest, EachModifierFoldsItsTwoKeysIntoOne)
{
    struct Row {
        unsigned int Generic;
        unsigned int Left;
        unsigned int Right;
        bool CUIManager::*Down;
    };
    constexpr Row rows[] = {
        {16, 160, 161, &CUIManager::ShiftDown},
        {18, 164, 165, &CUIManager::AltDown},
        {17, 162, 163, &CUIManager::CtrlDown},
    };
    for (const Row& row : rows) {
        for (const unsigned int key : {row.Generic, row.Left, row.Right}) {
            EXPECT_FALSE(g_UIManager.OnKeyDown(key));
            EXPECT_TRUE(g_UIManager.*row.Down) << key;
            EXPECT_EQ(0x80, g_UIManager.KeyState[row.Generic]);
            EXPECT_EQ(0x80u, g_UIManager.KeyStates[row.Generic]);
            EXPECT_EQ(0x80, g_UIManager.KeyState[key]);
            EXPECT_EQ(0x80u, g_UIManager.KeyStates[key]);
            EXPECT_FALSE(g_UIManager.OnKeyUp(key));
            EXPECT_FALSE(g_UIManager.*row.Down) << key;
            EXPECT_EQ(0, g_UIManager.KeyState[row.Generic]);
            EXPECT_TRUE(g_UIManager.KeyStates.empty());
        }
    }
}

TEST_F(InputRoutingTest, OneOfTwoHeldModifierKeysReleasesTheModifier)
{
    g_UIManager.OnKeyDown(160);
    g_UIManager.OnKeyDown(161);
    g_UIManager.OnKeyUp(160);
    EXPECT_FALSE(g_UIManager.ShiftDown);
    EXPECT_EQ(0, g_UIManager.KeyState[16]);
    EXPECT_EQ(0x80, g_UIManager.KeyState[161]) << "the other key itself is still held";
}

TEST_F(InputRoutingTest, ASecondModifierPressForgetsThatTheGenericOneWasTaken)
{
    Load(R"(<frame name="A"><OnKeyDown>down</OnKeyDown></frame>)");
    Focus("A");
    EXPECT_TRUE(g_UIManager.OnKeyDown(16));
    EXPECT_EQ(0x82, g_UIManager.KeyState[16]);
    EXPECT_TRUE(g_UIManager.OnKeyDown(160));
    EXPECT_EQ(0x80, g_UIManager.KeyState[16]);
    EXPECT_EQ(0x80u, g_UIManager.KeyStates[16]);
    EXPECT_EQ(0x82, g_UIManager.KeyState[160]);
    EXPECT_TRUE(g_UIManager.OnKeyUp(160));
    EXPECT_FALSE(g_UIManager.OnKeyUp(16));
}

TEST_F(InputRoutingTest, TogglesAreReadAtEachPressOnly)
{
    System.ToggledKeys = {20};
    g_UIManager.OnKeyDown(65);
    EXPECT_EQ(1, g_UIManager.KeyState[20]);
    EXPECT_EQ(0, g_UIManager.KeyState[144]);
    System.ToggledKeys = {144};
    g_UIManager.OnKeyUp(65);
    EXPECT_EQ(1, g_UIManager.KeyState[20]);
    g_UIManager.OnKeyDown(65);
    EXPECT_EQ(0, g_UIManager.KeyState[20]);
    EXPECT_EQ(1, g_UIManager.KeyState[144]);
    EXPECT_EQ(0u, g_UIManager.KeyStates.count(144)) << "the other table knows nothing of it";
    g_UIManager.OnKeyDown(144);
    EXPECT_EQ(1, g_UIManager.KeyState[144]) << "its own press is overwritten";
    EXPECT_EQ(0x80u, g_UIManager.KeyStates[144]);
}

TEST_F(InputRoutingTest, AKeyHandlerMayDeleteItsElementAndTheWalkEnds)
{
    Load(R"(<frame name="A"><OnKeyUp>up</OnKeyUp><OnKeyDown>down</OnKeyDown></frame>)");
    Host.Scripts["down"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    Focus("A");
    EXPECT_TRUE(g_UIManager.OnKeyDown(65));
    EXPECT_EQ(0u, g_UIManager.FocusElementID);
    EXPECT_TRUE(g_UIManager.OnKeyUp(65));
}

TEST_F(InputRoutingTest, EveryKeySetsTheTickOfTheLastInput)
{
    System.Ticks = 20000;
    g_UIManager.OnKeyDown(65);
    EXPECT_EQ(20000u, g_UIManager.LastInputTick);
    System.Ticks = 20001;
    g_UIManager.OnKeyUp(65);
    EXPECT_EQ(20001u, g_UIManager.LastInputTick);
}

TEST_F(InputRoutingTest, EveryEventOfTheMouseSetsTheTickOfTheLastInputAndNothingElseDoes)
{
    MoveTo(10, 10);
    const std::function<void()> events[] = {
        [] { MoveTo(20, 20); },
        [] { g_UIManager.OnMouseWheel(1); },
        [] { g_UIManager.OnLMouseDown(); },
        [] { g_UIManager.OnLMouseUp(); },
        [] { g_UIManager.OnRMouseDown(); },
        [] { g_UIManager.OnRMouseUp(); },
    };
    for (const auto& event : events) {
        ++System.Ticks;
        event();
        EXPECT_EQ(System.Ticks, g_UIManager.LastInputTick);
    }

    ++System.Ticks;
    EXPECT_FALSE(MoveTo(20, 20)) << "the mouse is there already";
    EXPECT_FALSE(g_UIManager.OnLMouseUp()) << "no button is down";
    EXPECT_FALSE(g_UIManager.OnRMouseUp());
    EXPECT_EQ(System.Ticks - 1, g_UIManager.LastInputTick);
}

// --- Presses

constexpr char Button[] = R"(<frame name="A"><Width>100</Width><Height>100</Height><OnLeftClick>click</OnLeftClick>
    <OnRightClick>right</OnRightClick><OnMouseMove>move</OnMouseMove></frame>
    <frame name="B"><X>200</X><Width>100</Width><Height>100</Height><OnMouseMove>move</OnMouseMove></frame>)";

TEST_F(InputRoutingTest, AResetOfTheMouseInMidPressKeepsMovesWithThePress)
{
    Load(Button);
    Frame();
    Note("move");
    Note("click");
    MoveTo(10, 10);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    TakeEvents();
    g_UIManager.ResetMouseState();
    EXPECT_EQ(ButtonUp, g_UIManager.LeftButtonState);
    EXPECT_EQ(0u, g_UIManager.MouseOverElementID);
    EXPECT_EQ(Element("A").ID, g_UIManager.LeftPressElementID);
    EXPECT_EQ(10, g_UIManager.MousePosition.x);

    EXPECT_TRUE(MoveTo(250, 50));
    EXPECT_EQ("move:b ", TakeEvents()) << "no button is down, so the search is an ordinary one";
    EXPECT_EQ(&Element("A"), g_UIManager.GetMouseOverElement()) << "but the press is asked first";
    EXPECT_FALSE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("", TakeEvents());
    EXPECT_EQ(Element("A").ID, g_UIManager.LeftPressElementID) << "the release came too late to end it";

    g_UIManager.Screen->DeleteChild(&Element("A"));
    EXPECT_EQ(&Element("B"), g_UIManager.GetMouseOverElement());
    EXPECT_EQ(0u, g_UIManager.LeftPressElementID);
}

TEST_F(InputRoutingTest, ATakenPressIsRemembered)
{
    Load(Button);
    Frame();
    MoveTo(10, 20);
    System.Ticks = 30000;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    const u32 id = Element("A").ID;
    EXPECT_EQ(ButtonTaken, g_UIManager.LeftButtonState);
    EXPECT_EQ(id, g_UIManager.LeftPressElementID);
    EXPECT_EQ(id, g_UIManager.LastLeftClickElementID);
    EXPECT_EQ(30000u, g_UIManager.LastLeftClickTick);
    EXPECT_EQ(10, g_UIManager.LastClickPosition.x);
    EXPECT_EQ(20, g_UIManager.LastClickPosition.y);
    EXPECT_EQ(0u, g_UIManager.LastRightClickElementID);

    System.Ticks = 31000;
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_EQ(ButtonTaken, g_UIManager.RightButtonState);
    EXPECT_EQ(id, g_UIManager.RightPressElementID);
    EXPECT_EQ(id, g_UIManager.LastRightClickElementID);
    EXPECT_EQ(31000u, g_UIManager.LastRightClickTick);
    EXPECT_EQ(30000u, g_UIManager.LastLeftClickTick);
    EXPECT_TRUE(g_UIManager.OnRMouseUp());
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
}

TEST_F(InputRoutingTest, ATakenDoubleClickLeavesPlaceAndTickOfTheFirstPress)
{
    Load(R"(<frame name="A"><Width>100</Width><Height>100</Height><OnLeftClick>click</OnLeftClick>
        <OnDoubleLeftClick>double</OnDoubleLeftClick></frame>)");
    MoveTo(10, 10);
    System.Ticks = 30000;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    MoveTo(12, 10);
    System.Ticks = 30100;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(30000u, g_UIManager.LastLeftClickTick);
    EXPECT_EQ(10, g_UIManager.LastClickPosition.x);
    EXPECT_EQ(0u, g_UIManager.LastLeftClickElementID);
    EXPECT_EQ(Element("A").ID, g_UIManager.LeftPressElementID);
}

TEST_F(InputRoutingTest, ADoubleClickIsCountedAcrossTheEndOfTheClock)
{
    Load(R"(<frame name="A"><Width>100</Width><Height>100</Height><OnLeftClick>click</OnLeftClick>
        <OnDoubleLeftClick>double</OnDoubleLeftClick></frame>)");
    Note("double");
    MoveTo(10, 10);
    System.Ticks = 0xffffff00u; // the sum ends below 2^32
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    System.Ticks = 0xfffffff9u;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    EXPECT_EQ("double:a ", TakeEvents());
    System.Ticks = 0xfffffffau;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    System.Ticks = 5; // the sum wrapped to 244
    g_UIManager.OnLMouseDown();
    EXPECT_EQ("double:a ", TakeEvents());
}

TEST_F(InputRoutingTest, OnlyALeftPressForgetsAnEarlierChangeOfOrder)
{
    Load(Button);
    Frame();
    MoveTo(10, 10);
    TeskElement& panel = Element("A");
    g_UIManager.ZOrderChanged = true;
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_NE(&panel, g_UIManager.Screen->LastChild);
    EXPECT_TRUE(g_UIManager.OnRMouseUp());
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(&panel, g_UIManager.Screen->LastChild);
}

TEST_F(InputRoutingTest, APressOnNothingDoesNotForgetAChangeOfOrder)
{
    g_UIManager.Screen->Visible = false;
    g_UIManager.MouseOverElementID = 0;
    g_UIManager.ZOrderChanged = true;
    EXPECT_FALSE(g_UIManager.OnLMouseDown());
    EXPECT_TRUE(g_UIManager.ZOrderChanged);
    EXPECT_EQ(ButtonIgnored, g_UIManager.LeftButtonState);
    EXPECT_FALSE(g_UIManager.OnLMouseUp());
    EXPECT_EQ(ButtonUp, g_UIManager.LeftButtonState);
}

TEST_F(InputRoutingTest, AMoveMayBeGivenThePositionItself)
{
    Load(Button);
    Frame();
    MoveTo(10, 10);
    EXPECT_FALSE(g_UIManager.OnMouseMove(g_UIManager.MousePosition));
}

TEST_F(InputRoutingTest, AWheelIgnoresTheFlagsThatLetClicksThrough)
{
    Load(R"(<frame name="A"><Width>100</Width><Height>100</Height><OnMouseWheel>wheel</OnMouseWheel></frame>)");
    Element("A").LeftClickThru = Element("A").RightClickThru = true;
    Note("wheel");
    MoveTo(10, 10);
    System.Ticks = 40000;
    EXPECT_TRUE(g_UIManager.OnMouseWheel(-3));
    EXPECT_EQ("wheel:a ", TakeEvents());
    EXPECT_EQ(40000u, g_UIManager.LastInputTick);
}

TEST_F(InputRoutingTest, AReleaseSkipsElementsThatLetClicksThrough)
{
    Load(R"(<frame name="A"><Width>100</Width><Height>100</Height><OnLeftClick>click</OnLeftClick></frame>)");
    Note("click");
    MoveTo(10, 10);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    Element("A").LeftClickThru = true;
    EXPECT_TRUE(g_UIManager.OnLMouseUp()) << "its press was taken";
    EXPECT_EQ("", TakeEvents());
}
