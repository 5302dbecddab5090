#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/WindowTest.h"

namespace {

// What a window without a look of its own has.
constexpr char Solid[] = "<BackgroundColor>ff202020</BackgroundColor>";

class TeskWindowMouseTest : public WindowTest
{
protected:
    // Writes down each run of a script as EVENT:NAME.
    void Note(const char* event)
    {
        Host.Scripts[event] = [this, event](
                                  TeskElement& self) { Events += std::string(event) + ":" + self.Name + " "; };
    }

    static void Die(TeskElement& self) { g_UIManager.Screen->DeleteChild(&self); }

    std::string Events;
};

// The events of the mouse that a window takes, each told to it as the manager tells it.
bool LeftDown(TeskWindow& window, _Point2i point)
{
    return window.OnLMouseDown(point);
}

bool MouseMove(TeskWindow& window, _Point2i point)
{
    return window.OnMouseMove(point);
}

} // namespace

// --- Dragging by what is pressed

TEST_F(TeskWindowMouseTest, ItFollowsThePointerThatHoldsIt)
{
    UseTemplate("");
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(PressAt(150, 160));
    EXPECT_TRUE(window.Dragging);
    EXPECT_TRUE(MoveTo(170, 155));
    EXPECT_EQ("120,95 200x150", PlaceOf(window));
    MoveTo(1500, -900);
    EXPECT_EQ("1450,-960 200x150", PlaceOf(window));
    EXPECT_TRUE(Release());
    EXPECT_FALSE(window.Dragging);
    MoveTo(200, 200);
    EXPECT_EQ(1450, window.X);
}

TEST_F(TeskWindowMouseTest, ADragSnapsToTheEdgesOfTheParent)
{
    UseTemplate("");
    TeskWindow& window = LoadWindow();
    PressAt(150, 160);
    MoveTo(54, 64);
    EXPECT_EQ("0,0 200x150", PlaceOf(window));
    MoveTo(55, 65);
    EXPECT_EQ("5,5 200x150", PlaceOf(window));
    MoveTo(45, 55);
    EXPECT_EQ("-5,-5 200x150", PlaceOf(window));
    MoveTo(650 - 4, 510 + 4);
    EXPECT_EQ("600,450 200x150", PlaceOf(window));
    MoveTo(650 - 5, 510 + 5);
    EXPECT_EQ("595,455 200x150", PlaceOf(window));
}

TEST_F(TeskWindowMouseTest, WithShiftItGoesAnywhere)
{
    UseTemplate("");
    TeskWindow& window = LoadWindow();
    PressAt(150, 160);
    g_UIManager.OnKeyDown(16);
    MoveTo(54, 64);
    EXPECT_EQ("4,4 200x150", PlaceOf(window));
    MoveTo(648, 512);
    EXPECT_EQ("598,452 200x150", PlaceOf(window));
    g_UIManager.OnKeyUp(16);
}

TEST_F(TeskWindowMouseTest, WhereAParentHadItStandItStandsByItself)
{
    UseTemplate("");
    Load("<window name='W'><X>10%</X><Y>r300</Y><Width>50%</Width><Height>r400</Height></window>");
    Frame();
    auto& window = As<TeskWindow>("W");
    PressAt(100, 310);
    MoveTo(120, 320);
    EXPECT_EQ(+PositionAbsolute, window.PositionX.Type);
    EXPECT_EQ(+PositionAbsolute, window.PositionY.Type);
    EXPECT_EQ(+PositionShare, window.PositionWidth.Type);
    EXPECT_EQ(+PositionFarEdge, window.PositionHeight.Type);
    EXPECT_EQ("100,310 400x200", PlaceOf(window));
}

TEST_F(TeskWindowMouseTest, WithoutAParentItOnlyFollows)
{
    auto* window = TeskElementFactory::New<TeskWindow>("window", nullptr, "Alone");
    window->Dragging = true;
    EXPECT_TRUE(MouseMove(*window, {3, 3}));
    EXPECT_EQ(3, window->X);
    window->Delete();
}

TEST_F(TeskWindowMouseTest, LockedItStays)
{
    UseTemplate("<Resizable/><Locked/>");
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(PressAt(98, 98));
    EXPECT_FALSE(window.Dragging);
    EXPECT_EQ(0u, window.ResizeEdges);
    MoveTo(120, 120);
    EXPECT_EQ("97,97 206x156", PlaceOf(window));
}

TEST_F(TeskWindowMouseTest, ALockDuringADragDoesNotEndIt)
{
    UseTemplate("");
    TeskWindow& window = LoadWindow();
    PressAt(150, 160);
    window.Locked = true;
    MoveTo(160, 170);
    EXPECT_EQ("110,110 200x150", PlaceOf(window));
}

// --- Resizing

TEST_F(TeskWindowMouseTest, EachEdgeResizes)
{
    UseTemplate("<Resizable/>");
    struct Case {
        _Point2i Press;
        u32 Edges;
        const char* Place; // after ten pixels to the right and twenty down
    };
    const Case cases[] = {
        {{98, 150}, LeftEdge, "107,97 196x156"},
        {{302, 150}, RightEdge, "97,97 216x156"},
        {{200, 98}, TopEdge, "97,117 206x136"},
        {{200, 252}, BottomEdge, "97,97 206x176"},
        {{98, 98}, LeftEdge | TopEdge, "107,117 196x136"},
        {{302, 98}, RightEdge | TopEdge, "97,117 216x136"},
        {{98, 252}, LeftEdge | BottomEdge, "107,97 196x176"},
        {{302, 252}, RightEdge | BottomEdge, "97,97 216x176"},
    };
    for (const Case& test : cases) {
        TeskWindow& window = LoadWindow();
        EXPECT_EQ(test.Edges, window.ResizeEdgesAt(test.Press));
        PressAt(test.Press.x, test.Press.y);
        EXPECT_EQ(test.Edges, window.ResizeEdges);
        EXPECT_FALSE(window.Dragging);
        MoveTo(test.Press.x + 4, test.Press.y + 7);
        MoveTo(test.Press.x + 10, test.Press.y + 20);
        EXPECT_EQ(test.Place, PlaceOf(window));
        Release();
        EXPECT_EQ(0u, window.ResizeEdges);
        g_UIManager.Reset();
    }
}

TEST_F(TeskWindowMouseTest, ALockDuringAResizeDoesNotEndItNorDoesAnotherPress)
{
    UseTemplate("<Resizable/>");
    TeskWindow& window = LoadWindow();
    PressAt(302, 150);
    window.Locked = true;
    PressAt(312, 150);
    EXPECT_EQ(u32{RightEdge}, window.ResizeEdges);
    MoveTo(322, 150);
    EXPECT_EQ("97,97 226x156", PlaceOf(window));
    Release();
    EXPECT_EQ(0u, window.ResizeEdges);
}

TEST_F(TeskWindowMouseTest, OnlyTheEdgesThatResizeAreCaught)
{
    UseTemplate("<WidthResizable/>");
    TeskWindow& wide = LoadWindow();
    EXPECT_EQ(+LeftEdge, wide.ResizeEdgesAt({98, 98}));
    EXPECT_EQ(0u, wide.ResizeEdgesAt({200, 98}));
    g_UIManager.Reset();
    UseTemplate("<HeightResizable/>");
    TeskWindow& high = LoadWindow();
    EXPECT_EQ(+BottomEdge, high.ResizeEdgesAt({302, 252}));
    EXPECT_EQ(0u, high.ResizeEdgesAt({302, 150}));
    high.Locked = true;
    EXPECT_EQ(0u, high.ResizeEdgesAt({302, 252}));
}

TEST_F(TeskWindowMouseTest, TheChildrenFollowAtOnce)
{
    UseTemplate("<Resizable/>" + ClientMarkup());
    TeskWindow& window = LoadWindow();
    PressAt(302, 252);
    MoveTo(312, 262);
    EXPECT_EQ("0,20 210x140", PlaceOf(*window.Client));
}

TEST_F(TeskWindowMouseTest, WhatIsResizedFollowsTheParentNoLonger)
{
    UseTemplate("<Resizable/>");
    Load("<window name='W'><X>25%</X><Y>50%</Y><Width>50%</Width><Height>25%</Height></window>");
    Frame();
    auto& window = As<TeskWindow>("W");
    ASSERT_EQ("197,297 400x150", PlaceOf(window));
    PressAt(596, 350);
    MoveTo(606, 350);
    EXPECT_EQ(+PositionAbsolute, window.PositionWidth.Type);
    EXPECT_EQ(+PositionShare, window.PositionX.Type);
    EXPECT_EQ(+PositionShare, window.PositionHeight.Type);
    Release();
    PressAt(300, 298);
    MoveTo(300, 290);
    EXPECT_EQ(+PositionAbsolute, window.PositionY.Type);
    EXPECT_EQ(+PositionAbsolute, window.PositionHeight.Type);
    EXPECT_EQ(+PositionShare, window.PositionX.Type);
    EXPECT_EQ("197,289 410x158", PlaceOf(window));
}

TEST_F(TeskWindowMouseTest, ItStopsAtItsLeastSize)
{
    UseTemplate("<Resizable MinWidth='60' MinHeight='50'/>");
    TeskWindow& window = LoadWindow();
    PressAt(302, 252);
    MoveTo(158, 148);
    EXPECT_EQ("97,97 62x52", PlaceOf(window));
    MoveTo(150, 140);
    EXPECT_EQ("97,97 62x52", PlaceOf(window));
    Release();
    window.ResetWindowPosition();
    Frame();
    PressAt(98, 98);
    MoveTo(500, 500);
    EXPECT_EQ("499,499 60x50", PlaceOf(window));
}

// --- Taking a press

TEST_F(TeskWindowMouseTest, WhatIsPressedComesToTheTop)
{
    LoadWindow(Solid);
    Load("<window name='Other'><X>500</X><Width>50</Width><Height>50</Height></window>");
    const TeskWindow& window = As<TeskWindow>("W");
    ASSERT_NE(&window, g_UIManager.Screen->LastChild);
    PressAt(150, 200);
    EXPECT_EQ(&window, g_UIManager.Screen->LastChild);
}

TEST_F(TeskWindowMouseTest, OneThatShowsNothingTakesAPressOnlyWhereNothingElseIsUnderIt)
{
    LoadWindow();
    EXPECT_FALSE(PressAt(150, 200));
    Release();
    UseTemplate("");
    g_UIManager.Reset();
    LoadWindow();
    EXPECT_TRUE(PressAt(151, 200));
}

TEST_F(TeskWindowMouseTest, APressThatItsContentLetThroughDragsNothing)
{
    TeskWindow& window = LoadWindow(Solid);
    Note("down");
    window.Events.OnLeftDown.reset(TeskEmbeddedScript::New(&window, "down", ""));
    EXPECT_TRUE(PressAt(150, 200));
    EXPECT_FALSE(window.Dragging);
    EXPECT_EQ("down:w ", Events);
}

TEST_F(TeskWindowMouseTest, ATitleBarThatShowsNothingLetsTheWindowBeDragged)
{
    UseTemplate(TitleBarMarkup("") + ClientMarkup());
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(PressAt(110, 110));
    EXPECT_TRUE(window.Dragging);
    MoveTo(-500, 110);
    EXPECT_EQ(-510, window.X);
}

TEST_F(TeskWindowMouseTest, TheClickFocusGetsTheKeyboard)
{
    LoadWindow("<ClickFocus>INSIDE</ClickFocus><Children><frame name='Box'><Width>10</Width><Children>"
               "<frame name='Inside'/></Children></frame></Children>");
    PressAt(110, 110);
    EXPECT_EQ(&Element("Inside@Box@W"), g_UIManager.GetFocusElement());
}

TEST_F(TeskWindowMouseTest, AClickFocusThatIsNotThereTakesTheKeyboardAway)
{
    UseTemplate("");
    TeskWindow& window = LoadWindow("<ClickFocus>Nobody</ClickFocus>");
    g_UIManager.SetFocusElement(&window);
    PressAt(150, 150);
    EXPECT_EQ(nullptr, g_UIManager.GetFocusElement());
    g_UIManager.SetFocusElement(&window);
    window.ClickFocus.reset();
    Release();
    PressAt(180, 180);
    EXPECT_EQ(&window, g_UIManager.GetFocusElement());
}

TEST_F(TeskWindowMouseTest, ItMayDieAsTheKeyboardMoves)
{
    Host.Scripts["die"] = [](TeskElement&) { Die(*g_UIManager.FindElement("W")); };
    for (const bool bySolidBar : {true, false}) {
        UseTemplate(bySolidBar ? TitleBarMarkup() + ClientMarkup() : TitleBarMarkup("") + ClientMarkup());
        LoadWindow("<ClickFocus>Inside</ClickFocus><Children><frame name='Inside'>"
                   "<OnKeyboardEnter>die</OnKeyboardEnter></frame></Children>");
        EXPECT_TRUE(PressAt(110, 110));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("W"));
        Release();
        g_UIManager.LastLeftClickElementID = 0;
        MoveTo(0, 0);
    }
}

TEST_F(TeskWindowMouseTest, ItMayDieOfEachOfItsOwnEvents)
{
    UseTemplate("");
    for (const char* event : {"OnLeftDown", "OnLeftClick", "OnMouseMove", "OnMouseWheel", "OnRightDown", "OnRightClick",
             "OnDoubleLeftClick", "OnMouseEnter", "OnMouseExit", "OnRender", "OnUnload"}) {
        Host.Scripts["die"] = Die;
        Load(std::string("<window name='W'><X>100</X><Y>100</Y><Width>200</Width><Height>150</Height><") + event
            + ">die</" + event + "></window>");
        MoveTo(150, 150);
        MoveTo(151, 150);
        g_UIManager.OnLMouseDown();
        MoveTo(160, 150);
        g_UIManager.OnLMouseUp();
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        g_UIManager.OnRMouseDown();
        g_UIManager.OnRMouseUp();
        g_UIManager.OnMouseWheel(40);
        MoveTo(700, 500);
        Frame();
        if (TeskElement* window = g_UIManager.FindElement("W"))
            g_UIManager.Screen->DeleteChild(window);
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild) << event;
    }
}

// --- The title bar

TEST_F(TeskWindowMouseTest, ItIsDraggedByItsTitleBar)
{
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(PressAt(110, 110));
    EXPECT_TRUE(window.Dragging);
    EXPECT_EQ(window.TitleBar, g_UIManager.GetMouseOverElement());
    MoveTo(130, 105);
    EXPECT_EQ("120,95 200x150", PlaceOf(window));
    Release();
    EXPECT_FALSE(window.Dragging);
    MoveTo(135, 110);
    EXPECT_EQ(120, window.X);
}

TEST_F(TeskWindowMouseTest, ByItsTitleBarItCannotGetLost)
{
    TeskWindow& window = LoadWindow();
    PressAt(110, 110);
    MoveTo(-5000, -5000);
    EXPECT_EQ("-196,-19 200x150", PlaceOf(window));
    MoveTo(5000, 5000);
    EXPECT_EQ("796,596 200x150", PlaceOf(window));
    MoveTo(14, 14);
    EXPECT_EQ("0,0 200x150", PlaceOf(window));
    MoveTo(614, 464);
    EXPECT_EQ("600,450 200x150", PlaceOf(window));
    g_UIManager.OnKeyDown(16);
    MoveTo(-5000, 5000);
    EXPECT_EQ("-5010,4990 200x150", PlaceOf(window));
    g_UIManager.OnKeyUp(16);
}

TEST_F(TeskWindowMouseTest, ALockedWindowCannotBeDraggedByItsTitleBar)
{
    TeskWindow& window = LoadWindow("<Locked/>");
    EXPECT_TRUE(PressAt(110, 110));
    EXPECT_FALSE(window.Dragging);
    MoveTo(130, 105);
    EXPECT_EQ("100,100 200x150", PlaceOf(window));
}

TEST_F(TeskWindowMouseTest, PressingTheTitleBarBringsTheWindowToTheTop)
{
    TeskWindow& window = LoadWindow();
    Load("<window name='Other'/>");
    window.OnNotify(window.TitleBar, NotifyLeftPressed, 0);
    EXPECT_EQ(&window, g_UIManager.Screen->LastChild);
}

TEST_F(TeskWindowMouseTest, ItsButtonsMinimiseAndRestoreAndClose)
{
    TeskWindow& window = LoadWindow("<MinimizeButton/><CloseButton/>");
    ClickAt(250, 110);
    EXPECT_TRUE(window.Minimized);
    Frame();
    ClickAt(270, 110);
    EXPECT_FALSE(window.Minimized);
    Frame();
    ClickAt(290, 110);
    EXPECT_FALSE(window.Visible);
}

TEST_F(TeskWindowMouseTest, ADoubleClickOnATitleBarThatShowsNothingMinimises)
{
    UseTemplate(TitleBarMarkup("") + ClientMarkup());
    TeskWindow& window = LoadWindow();
    Note("double");
    window.Events.OnDoubleLeftClick.reset(TeskEmbeddedScript::New(&window, "double", ""));
    PressAt(110, 110);
    Release();
    EXPECT_TRUE(PressAt(110, 110));
    EXPECT_TRUE(window.Minimized);
    EXPECT_EQ("double:w ", Events);
    _Point2i elsewhere = {110, 200};
    EXPECT_FALSE(window.OnLMouseDoubleClick(elsewhere));
    EXPECT_TRUE(window.Minimized);
}

TEST_F(TeskWindowMouseTest, ATitleBarThatShowsSomethingTakesTheDoubleClickItself)
{
    TeskWindow& window = LoadWindow();
    PressAt(110, 110);
    Release();
    EXPECT_TRUE(PressAt(110, 110));
    EXPECT_FALSE(window.Minimized);
}

// --- The other events

TEST_F(TeskWindowMouseTest, OneThatShowsNothingTakesTheRightButtonByItsTitleBarOnly)
{
    UseTemplate(TitleBarMarkup("") + ClientMarkup());
    TeskWindow& window = LoadWindow();
    MoveTo(110, 110);
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_TRUE(g_UIManager.OnRMouseUp());
    MoveTo(110, 200);
    EXPECT_FALSE(g_UIManager.OnRMouseDown());
    g_UIManager.OnRMouseUp();
    _Point2i anywhere = {110, 200};
    EXPECT_TRUE(window.OnRMouseUp(anywhere));
    window.BackgroundColor = 1;
    EXPECT_TRUE(window.OnRMouseDown(anywhere));
}

TEST_F(TeskWindowMouseTest, OneThatShowsNothingLetsMovesPassUnlessItIsDragged)
{
    TeskWindow& window = LoadWindow();
    Note("move");
    window.Events.OnMouseMove.reset(TeskEmbeddedScript::New(&window, "move", ""));
    EXPECT_FALSE(MoveTo(150, 200));
    EXPECT_EQ("", Events);
    window.Dragging = true;
    EXPECT_TRUE(MoveTo(151, 200));
    EXPECT_EQ("move:w ", Events);
}

TEST_F(TeskWindowMouseTest, TheWheelPassesWhereTheClientLetsClicksPass)
{
    TeskWindow& window = LoadWindow(Solid);
    MoveTo(150, 200);
    EXPECT_TRUE(g_UIManager.OnMouseWheel(40));
    window.Client->LeftClickThru = true;
    EXPECT_TRUE(g_UIManager.OnMouseWheel(40));
    window.Client->RightClickThru = true;
    EXPECT_FALSE(window.OnMouseWheel(40));
    window.DeleteChild(window.Client);
    EXPECT_TRUE(window.OnMouseWheel(40));
    window.BackgroundColor = 0;
    g_UIManager.MouseOverElementID = 0;
    EXPECT_FALSE(window.OnMouseWheel(40));
}

// --- Bare and odd windows

TEST_F(TeskWindowMouseTest, ABareWindowStandsEverything)
{
    g_UIManager.RemoveTemplate("window");
    for (const char* size : {"0", "1", "4294967295", "2147483647"}) {
        const std::string dimensions = std::string("<Width>") + size + "</Width><Height>" + size + "</Height>";
        Load("<window name='W'><Resizable/><Border>4294967295</Border>" + dimensions + "</window>");
        auto& window = As<TeskWindow>("W");
        Frame();
        for (const _Point2i point : {_Point2i{0, 0}, _Point2i{2147483647, -2147483647 - 1}, _Point2i{400, 300}}) {
            PressAt(point.x, point.y);
            LeftDown(window, point);
            MoveTo(point.y, point.x);
            MouseMove(window, {2147483647, 2147483647});
            Release();
            window.Dragging = true;
            MouseMove(window, point);
            window.Minimize(true);
            window.OnNotify(nullptr, NotifyLeftReleased, 0);
            Frame();
        }
        g_UIManager.Reset();
    }
}
