#include "tests/unit/ConsoleTest.h"

#include <climits>

class TeskConsoleEventsTest : public ConsoleTest
{
protected:
    // A console of 50 lines, 10 of which show.
    TeskConsole& PlaceFull()
    {
        TeskConsole& console = Place(10);
        PrintLines(console, 50);
        return console;
    }

    static u32 ValueOf(const TeskConsole& console) { return console.ScrollBar->GetValue(); }
};

TEST_F(TeskConsoleEventsTest, TheValueOfTheScrollBarIsTheNumberOfLinesBack)
{
    TeskConsole& console = PlaceFull();
    console.ScrollBar->SetValue(3);
    EXPECT_EQ(46, console.ScrollLine);
    console.ScrollBar->SetValue(0);
    EXPECT_EQ(-1, console.ScrollLine);
    console.ScrollBar->SetValue(60);
    EXPECT_EQ(89, console.ScrollLine);
}

TEST_F(TeskConsoleEventsTest, ALineThatIsPrintedDoesNotMoveAScrolledView)
{
    TeskConsole& console = PlaceFull();
    console.ScrollBar->SetValue(3);
    PrintLines(console, 80);
    EXPECT_EQ(46, console.ScrollLine);
    EXPECT_STREQ("46", console.Lines.At(46));
    PrintLines(console, 20);
    EXPECT_STREQ("16", console.Lines.At(46)); // the ring has passed over it
}

TEST_F(TeskConsoleEventsTest, TheWheelScrollsALineFor40)
{
    TeskConsole& console = PlaceFull();
    constexpr struct {
        int Offset;
        u32 Value;
    } turns[] = {{120, 3}, {39, 3}, {40, 4}, {-39, 4}, {-40, 3}, {0, 3}, {-120, 0}, {-120, 0}, {120, 3}, {INT_MIN, 0},
        {INT_MAX, 100}};
    for (const auto& turn : turns) {
        EXPECT_TRUE(console.OnMouseWheel(turn.Offset));
        EXPECT_EQ(turn.Value, ValueOf(console)) << turn.Offset;
    }
}

TEST_F(TeskConsoleEventsTest, KeysScrollByLinesAndPages)
{
    TeskConsole& console = PlaceFull();
    console.HandleUp();
    EXPECT_EQ(1u, ValueOf(console));
    console.HandlePageUp();
    EXPECT_EQ(11u, ValueOf(console));
    console.HandlePageUp();
    console.HandlePageDown();
    EXPECT_EQ(11u, ValueOf(console));
    console.HandleDown();
    EXPECT_EQ(10u, ValueOf(console));
    g_UIManager.CtrlDown = true;
    console.HandlePageDown();
    g_UIManager.CtrlDown = false;
    EXPECT_EQ(0u, ValueOf(console));
    EXPECT_EQ(-1, console.ScrollLine);
    console.HandleDown();
    EXPECT_EQ(0u, ValueOf(console));
}

TEST_F(TeskConsoleEventsTest, OtherNewsIsDropped)
{
    Load("<frame name='F'><OnLoad/></frame>");
    TeskConsole& console = PlaceFull();
    console.OnNotify(&Element("F"), NotifyValueChanged, 3);
    console.OnNotify(console.ScrollBar, NotifyLeftPressed, 3);
    EXPECT_EQ(-1, console.ScrollLine);
}

TEST_F(TeskConsoleEventsTest, APressBeginsASelectionAndAMoveExtendsIt)
{
    TeskConsole& console = PlaceFull();
    _Point2i point = {117, 225};
    EXPECT_FALSE(console.OnMouseMove(point));
    EXPECT_FALSE(console.OnLMouseUp(point));
    EXPECT_TRUE(console.OnLMouseDown(point));
    EXPECT_TRUE(console.Selecting);
    EXPECT_EQ(117, point.x); // the point is the host's
    EXPECT_EQ(115, console.Selection.left);
    EXPECT_EQ(222, console.Selection.top);
    EXPECT_EQ(115, console.Selection.right);
    EXPECT_EQ(222, console.Selection.bottom);
    point = {1000, -1000};
    EXPECT_TRUE(console.OnMouseMove(point));
    EXPECT_EQ(115, console.Selection.left);
    EXPECT_EQ(176, console.Selection.right);
    EXPECT_EQ(200, console.Selection.bottom);
    EXPECT_TRUE(console.OnLMouseUp(point));
    EXPECT_FALSE(console.Selecting);
}

TEST_F(TeskConsoleEventsTest, TheEventsOfTheElementRun)
{
    Host.Recorded |= RecordScripts;
    TeskConsole& console = Place(10,
        "<OnLeftDown>down</OnLeftDown><OnLeftClick>click</OnLeftClick><OnMouseMove>move</OnMouseMove>"
        "<OnMouseWheel>wheel</OnMouseWheel><ScrollBar>bar</ScrollBar>");
    std::string heard;
    for (const char* script : {"down", "click", "move", "wheel"})
        Host.Scripts[script] = [&heard, script](TeskElement&) { heard += std::string(script) + ' '; };
    _Point2i point = {117, 225};
    console.OnMouseMove(point);
    console.OnLMouseUp(point);
    console.OnLMouseDown(point);
    EXPECT_EQ((Strings{"117", "225"}), Host.ScriptArguments);
    console.OnMouseMove(point);
    console.OnLMouseUp(point);
    console.OnMouseWheel(40);
    EXPECT_EQ("down move click wheel ", heard);
}

TEST_F(TeskConsoleEventsTest, APressGivesTheKeyboardToTheInputBesideIt)
{
    Load("<frame name='F'><Width>200</Width><Height>100</Height><Children><frame name='Input'/><console name='C'>"
         "<ScrollBar>bar</ScrollBar></console></Children></frame>");
    TeskConsole& console = As<TeskConsole>("C@F");
    _Point2i point = {1, 2};
    console.OnLMouseDown(point);
    EXPECT_EQ(&Element("Input@F"), g_UIManager.GetFocusElement());
}

TEST_F(TeskConsoleEventsTest, AConsoleMayEndAsTheInputTakesTheKeyboard)
{
    Load("<frame name='F'><Width>200</Width><Height>100</Height><Children><frame name='Input'>"
         "<OnKeyboardEnter>end</OnKeyboardEnter></frame><console name='C'><OnLeftDown>down</OnLeftDown>"
         "<ScrollBar>bar</ScrollBar></console></Children></frame>");
    Host.Scripts["end"] = [this](TeskElement&) { Element("F").DeleteChild(&Element("C@F")); };
    Host.Scripts["down"] = [](TeskElement&) { ADD_FAILURE() << "the console was gone"; };
    _Point2i point = {1, 2};
    EXPECT_TRUE(As<TeskConsole>("C@F").OnLMouseDown(point));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C@F"));
}

TEST_F(TeskConsoleEventsTest, AConsoleMayEndAsItsScrollBarMoves)
{
    g_UIManager.AddTemplate(
        "bar", "<Template><Slider><Width>16</Width><Height>100%</Height><OnChange>end</OnChange></Slider></Template>");
    Host.Scripts["end"] = [](TeskElement&) { g_UIManager.Reset(); };
    for (const auto cause :
        {+[](TeskConsole& console) { console.OnMouseWheel(120); }, +[](TeskConsole& console) { console.HandleUp(); },
            +[](TeskConsole& console) { console.HandlePageUp(); }}) {
        TeskConsole& console = Place(10);
        cause(console);
        EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
    }
}
