#include "teskara/controls/TeskText.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/windows/TeskWindowClient.h"
#include "tests/unit/WindowTest.h"

namespace {

class TeskWindowTest : public WindowTest
{
protected:
    // A child of the client that is as wide as it.
    static constexpr char Inside[] = "<Children><frame name='Inside'><Width>100%</Width></frame></Children>";

    static void DeleteAt(const char* name)
    {
        TeskElement* element = g_UIManager.FindElement(name);
        element->Parent->DeleteChild(element);
    }

    std::string StoredPlaceOf(TeskWindow& window)
    {
        int x = 0;
        int y = 0;
        unsigned int width = 0;
        unsigned int height = 0;
        EXPECT_TRUE(window.GetStoragePosition(x, y, width, height));
        return std::to_string(x) + "," + std::to_string(y) + " " + std::to_string(width) + "x" + std::to_string(height);
    }
};

} // namespace

TEST_F(TeskWindowTest, IsAWindowAndAFrame)
{
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(window.IsTypeOf("Window"));
    EXPECT_TRUE(window.IsTypeOf("frame"));
    EXPECT_TRUE(window.IsTypeOf("teskelement"));
    EXPECT_FALSE(window.IsTypeOf("windowclient"));
    EXPECT_FALSE(window.IsTypeOf(nullptr));
    EXPECT_STREQ("teskwindow", window.GetMvType()->GetName());
}

TEST_F(TeskWindowTest, ItsClientIsAFrameForScriptsAndByNoWord)
{
    TeskElement& client = *LoadWindow().Client;
    EXPECT_TRUE(client.IsTypeOf("WindowClient"));
    EXPECT_TRUE(client.IsTypeOf("teskelement"));
    EXPECT_FALSE(client.IsTypeOf("frame"));
    EXPECT_FALSE(client.IsTypeOf(nullptr));
    EXPECT_STREQ("teskframe", client.GetMvType()->GetName());
}

TEST_F(TeskWindowTest, ItsContentIsFoundAndItsTitleBarIsNot)
{
    TeskWindow& window = LoadWindow(Inside);
    EXPECT_EQ(&Element("Inside@W"), window.FindChild("inside"));
    EXPECT_EQ(nullptr, window.FindChild("TitleBar"));
    EXPECT_EQ(nullptr, window.FindChild("Client"));
    window.DeleteChild(window.Client);
    EXPECT_EQ(window.TitleBar, window.FindChild("TitleBar"));
    EXPECT_EQ(nullptr, window.FindChild(nullptr));
}

TEST_F(TeskWindowTest, ATitleGoesToTheTitleBarAtOnce)
{
    TeskWindow& window = LoadWindow();
    window.SetTitle("Another");
    EXPECT_EQ("Another", *window.Title);
    EXPECT_EQ("Another", window.TitleText->Text);
    window.SetTitle(window.Title->c_str() + 2);
    EXPECT_EQ("other", *window.Title);
    window.SetTitle(nullptr);
    EXPECT_EQ(nullptr, window.Title);
    EXPECT_EQ("", window.TitleText->Text);
    DeleteAt("Title@TitleBar@W");
    window.SetTitle("Unseen");
    EXPECT_EQ("Unseen", *window.Title);
}

// --- Layout

TEST_F(TeskWindowTest, SharesOfItsParentAreOfTheInnerArea)
{
    Load("<frame name='F'><Width>501</Width><Height>401</Height><Children><window name='W'><X>10%</X><Y>25%</Y>"
         "<Width>50%</Width><Height>50%</Height><Border>4</Border></window></Children></frame>");
    auto& window = As<TeskWindow>("W@F");
    EXPECT_EQ("46,96 250x200", PlaceOf(window));
}

TEST_F(TeskWindowTest, DistancesFromTheFarEdgeAreOfTheWholeWindow)
{
    Load("<frame name='F'><Width>500</Width><Height>400</Height><Children><window name='W'><X>r100</X><Y>r50</Y>"
         "<Width>r450</Width><Height>r380</Height><Border>4</Border></window></Children></frame>");
    EXPECT_EQ("400,350 50x20", PlaceOf(As<TeskWindow>("W@F")));
}

TEST_F(TeskWindowTest, AShareBelowZeroIsCutTowardsZero)
{
    Load("<frame name='F'><Width>99</Width><Height>99</Height><Children><window name='W'><X>-50%</X>"
         "<Width>-10%</Width></window></Children></frame>");
    const auto& window = As<TeskWindow>("W@F");
    EXPECT_EQ(-49, window.X);
    EXPECT_EQ(4294967287u, window.Width);
}

TEST_F(TeskWindowTest, WithoutAParentItKeepsItsSize)
{
    auto* window = TeskElementFactory::New<TeskWindow>("window", nullptr, "Alone");
    window->PositionWidth.Type = PositionShare;
    window->Width = 77;
    window->RecalculateSize(true);
    EXPECT_EQ(77u, window->Width);
    window->Delete();
}

namespace {

// Counts its layouts instead of doing them.
class Counter : public TeskWindow
{
public:
    using TeskWindow::TeskWindow;
    void OnResize() override { ++Resized; }
    void SizeRecalculated(bool changed) override { Unchanged += !changed; }
    int Resized = 0;
    int Unchanged = 0;
};

} // namespace

TEST_F(TeskWindowTest, AChangeOfSizeIsLaidOutOnce)
{
    const TeskFactory<Counter> factory("counter");
    auto& counter = dynamic_cast<Counter&>(*factory.New<Counter>("counter", g_UIManager.Screen, "Counter"));
    counter.PositionWidth.Type = PositionFarEdge;
    counter.PositionHeight.Type = PositionFarEdge;
    counter.RecalculateSize(false);
    EXPECT_EQ(1, counter.Resized);
    EXPECT_EQ(0, counter.Unchanged);
    counter.RecalculateSize(true);
    EXPECT_EQ(1, counter.Resized);
    EXPECT_EQ(1, counter.Unchanged);
    counter.OnCreate();
    EXPECT_EQ(2, counter.Resized);
    g_UIManager.Screen->DeleteChild(&counter);
}

TEST_F(TeskWindowTest, EachOfItsFourValuesLaysItOutWhenItChanges)
{
    const TeskFactory<Counter> factory("counter");
    auto& counter = dynamic_cast<Counter&>(*factory.New<Counter>("counter", g_UIManager.Screen, "Counter"));
    int expected = 0;
    for (ElementPosition TeskElement::*position :
        {&TeskElement::PositionX, &TeskElement::PositionY, &TeskElement::PositionWidth, &TeskElement::PositionHeight}) {
        (counter.*position).Type = PositionFarEdge;
        counter.RecalculateSize(true);
        EXPECT_EQ(++expected, counter.Resized);
    }
    g_UIManager.Screen->DeleteChild(&counter);
}

TEST_F(TeskWindowTest, ItsChildrenMeasureThemselvesAgainstTheInnerArea)
{
    TeskWindow& window = LoadWindow(std::string("<Border>10</Border>") + Inside);
    window.Width = 420;
    window.Height = 320;
    window.OnResize();
    EXPECT_EQ("90,90 420x320", PlaceOf(window));
    EXPECT_EQ("0,20 400x280", PlaceOf(*window.Client));
    EXPECT_EQ(400u, Element("Inside@W").Width);
}

TEST_F(TeskWindowTest, ASizeThatAScriptSetsDuringTheLayoutStays)
{
    class Setter : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void SizeRecalculated(bool) override { Parent->Width = 77; }
    };

    const TeskFactory<Setter> factory("setter");
    TeskWindow& window = LoadWindow("<Border>10</Border>");
    g_UIManager.LoadElement(&window, "setter", "S");
    window.Width = 500;
    window.Height = 400;
    window.OnResize();
    EXPECT_EQ(77u, window.Width);
    EXPECT_EQ(400u, window.Height);
}

TEST_F(TeskWindowTest, ItMayDieOfItsLayout)
{
    class Killer : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void SizeRecalculated(bool changed) override
        {
            if (changed)
                g_UIManager.Screen->DeleteChild(Parent);
        }
    };

    const TeskFactory<Killer> factory("killer");
    for (int way = 0; way < 3; ++way) {
        TeskWindow& window = LoadWindow("<Resizable/>");
        TeskElement* killer = g_UIManager.LoadElement(&window, "killer", "K");
        killer->PositionWidth.Type = PositionFarEdge;
        window.Width = 300;
        _Point2i point = {400, 400};
        if (way == 0)
            window.OnResize();
        else if (way == 1)
            window.ResetWindowPosition();
        else {
            window.ResizeEdges = RightEdge;
            EXPECT_TRUE(window.OnMouseMove(point));
        }
        EXPECT_EQ(nullptr, g_UIManager.FindElement("W"));
    }
}

// --- Drawing

TEST_F(TeskWindowTest, ItsChildrenStandInsideOfItsBorder)
{
    TeskWindow& window = LoadWindow("<Border>7</Border>");
    EXPECT_EQ(93, window.AbsoluteX);
    EXPECT_EQ(100, window.TitleBar->AbsoluteX);
    EXPECT_EQ(100, window.TitleBar->AbsoluteY);
    EXPECT_EQ(120, window.Client->AbsoluteY);
}

TEST_F(TeskWindowTest, WhatAScriptHidesShowsAgainInTheNextFrame)
{
    TeskWindow& window = LoadWindow("<MinimizeButton/>");
    window.Client->Show(false);
    window.MinimizeButton->Show(false);
    window.MaximizeButton->Show(true);
    Frame();
    EXPECT_TRUE(window.Client->Visible);
    EXPECT_TRUE(window.MinimizeButton->Visible);
    EXPECT_FALSE(window.MaximizeButton->Visible);

    window.Minimize(true);
    window.Client->Show(true);
    Frame();
    EXPECT_FALSE(window.Client->Visible);
    EXPECT_FALSE(window.MinimizeButton->Visible);
    EXPECT_TRUE(window.MaximizeButton->Visible);
}

TEST_F(TeskWindowTest, AButtonThatServesBothWaysAlwaysShows)
{
    UseTemplate("<TitleBar><Width>9</Width><Height>9</Height><Children>" + Button("Maximize", 0)
        + "</Children></TitleBar>" + ClientMarkup());
    TeskWindow& window = LoadWindow("<MinimizeButton/>");
    EXPECT_TRUE(window.MaximizeButton->Visible);
    window.Minimize(true);
    Frame();
    EXPECT_TRUE(window.MaximizeButton->Visible);
}

TEST_F(TeskWindowTest, APartMayEndTheWindowAsItIsShown)
{
    class Ender : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void Show(bool) override { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("W")); }
    };

    const TeskFactory<Ender> factory("ender");
    TeskWindow& window = LoadWindow();
    window.Client = g_UIManager.LoadElement(&window, "ender", "E");
    Frame();
    EXPECT_EQ(nullptr, g_UIManager.FindElement("W"));
}

// --- Minimising

TEST_F(TeskWindowTest, MinimisedItIsItsTitleBar)
{
    TeskWindow& window = LoadWindow("<Border>5</Border><TitleBar><X>3</X><Y>4</Y><Width>60</Width><Height>16</Height>"
                                    "</TitleBar>");
    window.Minimize(true);
    EXPECT_TRUE(window.Minimized);
    EXPECT_EQ("95,95 70x26", PlaceOf(window));
    EXPECT_EQ("0,0 60x16", PlaceOf(*window.TitleBar));
    window.Minimize(false);
    EXPECT_FALSE(window.Minimized);
    EXPECT_EQ("95,95 210x160", PlaceOf(window));
    EXPECT_EQ("3,4 60x16", PlaceOf(*window.TitleBar));
}

TEST_F(TeskWindowTest, MinimisedTwiceItForgetsItsSize)
{
    TeskWindow& window = LoadWindow();
    window.Minimize(true);
    window.Minimize(true);
    window.Minimize(false);
    EXPECT_EQ("100,100 200x20", PlaceOf(window));
}

TEST_F(TeskWindowTest, WithoutATitleBarItCannotBeMinimised)
{
    UseTemplate(ClientMarkup());
    TeskWindow& window = LoadWindow();
    window.Minimize(true);
    EXPECT_FALSE(window.Minimized);
    window.Minimize(false);
    EXPECT_EQ("100,100 200x150", PlaceOf(window));
}

TEST_F(TeskWindowTest, ATitleBarThatGoesTakesNothingFromAMinimisedWindow)
{
    TeskWindow& window = LoadWindow("<MinimizeButton/>");
    window.Minimize(true);
    DeleteAt("TitleBar@W");
    EXPECT_FALSE(window.TitleBar || window.TitleText || window.MinimizeButton || window.MaximizeButton);
    Frame();
    window.Minimize(false);
    EXPECT_TRUE(window.Minimized);
    window.Show(true);
    EXPECT_FALSE(window.Minimized);
    EXPECT_EQ("100,100 200x150", PlaceOf(window));
}

TEST_F(TeskWindowTest, ShowingOrHidingRestoresIt)
{
    for (const bool show : {false, true}) {
        TeskWindow& window = LoadWindow();
        window.Minimize(true);
        window.Show(show);
        EXPECT_EQ(show, window.Visible);
        EXPECT_FALSE(window.Minimized);
        EXPECT_EQ("100,100 200x150", PlaceOf(window));
        g_UIManager.Reset();
    }
}

TEST_F(TeskWindowTest, ShowingAWindowThatIsNotMinimisedChangesNoSize)
{
    TeskWindow& window = LoadWindow();
    window.Show(false);
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ("100,100 200x150", PlaceOf(window));
}

// --- Its place

TEST_F(TeskWindowTest, ResetPutsItBackToWhereMarkupHadIt)
{
    TeskWindow& window = LoadWindow("<Border>5</Border>");
    window.X = 1;
    window.Y = 2;
    window.Width = 33;
    window.Height = 44;
    window.ResetWindowPosition();
    EXPECT_EQ("95,95 210x160", PlaceOf(window));
    EXPECT_EQ("0,20 200x130", PlaceOf(*window.Client));
}

TEST_F(TeskWindowTest, ResetLetsItFollowItsParentAgain)
{
    Load("<window name='W'><X>10%</X><Y>r300</Y><Width>50%</Width><Height>r400</Height><Border>2</Border></window>");
    auto& window = As<TeskWindow>("W");
    const std::string place = PlaceOf(window);
    for (ElementPosition* position :
        {&window.PositionX, &window.PositionY, &window.PositionWidth, &window.PositionHeight})
        *position = {};
    window.X = window.Y = 7;
    window.Width = window.Height = 8;
    window.ResetWindowPosition();
    EXPECT_EQ("78,300 400x200", PlaceOf(window));
    EXPECT_EQ(place, PlaceOf(window));
    EXPECT_EQ(+PositionShare, window.PositionX.Type);
    EXPECT_EQ(+PositionFarEdge, window.PositionHeight.Type);
}

TEST_F(TeskWindowTest, ResetAddsTheTitleBarsSizeAgain)
{
    TeskWindow& window = LoadWindow("<Border>5</Border>");
    window.WindowFlags = WindowAddsTitleBarHeight | WindowAddsTitleBarWidth;
    window.ResetWindowPosition();
    EXPECT_EQ("95,95 410x180", PlaceOf(window));
}

TEST_F(TeskWindowTest, TheInnerAreaIsStored)
{
    TeskWindow& window = LoadWindow("<Border>5</Border>");
    EXPECT_EQ("100,100 200x150", StoredPlaceOf(window));
    window.X = 10;
    window.Minimize(true);
    EXPECT_EQ("15,100 200x150", StoredPlaceOf(window));
}

TEST_F(TeskWindowTest, OfATitleBarThatWasAddedOnlyTheHeightIsTakenOff)
{
    TeskWindow& window = LoadWindow("<Border>5</Border>");
    window.WindowFlags = WindowAddsTitleBarHeight | WindowAddsTitleBarWidth;
    EXPECT_EQ("100,100 200x130", StoredPlaceOf(window));
    DeleteAt("TitleBar@W");
    EXPECT_EQ("100,100 200x150", StoredPlaceOf(window));
}

TEST_F(TeskWindowTest, AStoredPlaceIsThatOfTheInnerAreaToo)
{
    Host.RestorePosition = [](TeskElement& element) {
        element.X = 50;
        element.Y = 60;
        element.Width = 70;
        element.Height = 80;
    };
    TeskWindow& window = LoadWindow("<Border>5</Border><StorePosition/>");
    EXPECT_EQ("45,55 80x90", PlaceOf(window));
    EXPECT_EQ("50,60 70x80", StoredPlaceOf(window));
    window.ResetWindowPosition();
    EXPECT_EQ("95,95 210x160", PlaceOf(window));
}

// --- Notifications

TEST_F(TeskWindowTest, NotificationsEndHere)
{
    class Listener : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void OnNotify(TeskElement*, unsigned int code, unsigned long long) override
        {
            if (code != NotifyChildGoing)
                ++Heard;
        }
        int Heard = 0;
    };

    const TeskFactory<Listener> factory("listener");
    auto& listener = dynamic_cast<Listener&>(*g_UIManager.LoadElement(g_UIManager.Screen, "listener", "L"));
    TeskElement* window = g_UIManager.FindFactory("window")->Create(&listener, "W");
    g_UIManager.LoadElement(window, "button", "B");
    for (TeskElement* source : {window->FirstChild, window, static_cast<TeskElement*>(nullptr)}) {
        for (u32 code = 0; code < 60; ++code)
            window->OnNotify(source, code == NotifyChildGoing ? 0 : code, 0);
    }
    EXPECT_EQ(0, listener.Heard);
}

TEST_F(TeskWindowTest, PartsThatGoAreForgotten)
{
    TeskWindow& window = LoadWindow("<CloseButton/><MinimizeButton/>");
    DeleteAt("Close@TitleBar@W");
    EXPECT_EQ(nullptr, window.CloseButton);
    DeleteAt("Minimize@TitleBar@W");
    EXPECT_EQ(nullptr, window.MinimizeButton);
    EXPECT_NE(nullptr, window.MaximizeButton);
    DeleteAt("Title@TitleBar@W");
    EXPECT_EQ(nullptr, window.TitleText);
    DeleteAt("Client@W");
    EXPECT_EQ(nullptr, window.Client);
    DeleteAt("TitleBar@W");
    EXPECT_FALSE(window.TitleBar || window.MaximizeButton);
    Frame();
}

TEST_F(TeskWindowTest, AButtonThatStaysWhenItsHolderGoesIsForgottenToo)
{
    class Stayer : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        bool IsTypeOf(const char* word) override { return std::string(word) == "button"; }
    };

    TeskWindow& window = LoadWindow("<CloseButton/>");
    TeskFactory<Stayer> factory("stayer");
    TeskElement* box = g_UIManager.LoadElement(window.TitleBar, "frame", "Box");
    TeskElement* stayer = g_UIManager.LoadElement(box, "stayer", "S");
    window.CloseButton = stayer;
    factory.Unregister();
    window.TitleBar->DeleteChild(box);
    EXPECT_EQ(nullptr, window.CloseButton);
    EXPECT_EQ(nullptr, stayer->Parent);
    factory.Register("stayer", TeskaraVersion);
    stayer->Delete();
    Frame();
}

TEST_F(TeskWindowTest, AClientElsewhereTellsItsParentThatItWasMade)
{
    Load("<windowclient name='Top'><Children><frame name='Inside'/></Children></windowclient>"
         "<frame name='F'><Children><windowclient name='C'/></Children></frame>");
    EXPECT_EQ("Inside", Element("Inside").FullName);
    EXPECT_EQ("C@F", Element("C@F").FullName);
}
