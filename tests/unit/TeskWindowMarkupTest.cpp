#include "teskara/controls/TeskText.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/windows/TeskWindowClient.h"
#include "tests/unit/WindowTest.h"

namespace {

class TeskWindowMarkupTest : public WindowTest
{
protected:
    // A window made as dialogs make theirs.
    TeskWindow& Create(const _CreateWindow& record, XMLNode* node = nullptr)
    {
        auto* window = TeskElementFactory::New<TeskWindow>("window", g_UIManager.Screen, "Made");
        window->Create(record, node);
        return *window;
    }

    static XMLNode* Node(const std::string& markup, const char* attributes = "")
    {
        const std::string text = std::string("<Template ") + attributes + ">" + markup + "</Template>";
        return g_UIManager.AddTemplate("The markup", text.c_str());
    }
};

_CreateWindow Record()
{
    _CreateWindow record;
    record.X = 10;
    record.Y = 20;
    record.Width = 300;
    record.Height = 200;
    return record;
}

} // namespace

TEST_F(TeskWindowMarkupTest, MarkupWithoutValuesGivesEveryDefault)
{
    g_UIManager.RemoveTemplate("window");
    Load("<window name='Bare'/>");
    const auto& window = As<TeskWindow>("Bare");
    EXPECT_EQ(0u, window.WindowFlags);
    EXPECT_EQ("bare", *window.Title);
    EXPECT_EQ("", *window.ClickFocus);
    EXPECT_EQ(40u, window.MinHeight);
    EXPECT_EQ(20u, window.MinWidth);
    EXPECT_FALSE(window.Minimized || window.Dragging || window.Locked);
    EXPECT_EQ(0u, window.ResizeEdges);
    EXPECT_EQ("0,0 0x0", PlaceOf(window));
    EXPECT_EQ(nullptr, window.FirstChild);
    EXPECT_FALSE(window.Client || window.TitleBar || window.TitleText);
    EXPECT_FALSE(window.MinimizeButton || window.MaximizeButton || window.CloseButton);
}

TEST_F(TeskWindowMarkupTest, BeforeMarkupIsReadThereAreNoTexts)
{
    const auto& window = dynamic_cast<TeskWindow&>(*g_UIManager.LoadElement(g_UIManager.Screen, "window", "Plain"));
    EXPECT_EQ(nullptr, window.Title);
    EXPECT_EQ(nullptr, window.ClickFocus);
    EXPECT_EQ(40u, window.MinHeight);
    EXPECT_EQ(20u, window.MinWidth);
}

TEST_F(TeskWindowMarkupTest, MarkupStartsWithoutAnyFlags)
{
    TeskWindow& window = LoadWindow("<CloseButton/><Resizable/>");
    EXPECT_EQ(u32{WindowHasClose | WindowResizesWidth | WindowResizesHeight}, window.WindowFlags);
    EXPECT_TRUE(window.FromXML(nullptr, nullptr));
    EXPECT_EQ(0u, window.WindowFlags);
}

TEST_F(TeskWindowMarkupTest, MarkupGivesItsFieldsAndParts)
{
    const TeskWindow& window = LoadWindow("<Border>2</Border><CloseButton/><MinimizeButton/><Resizable/><Locked/>"
                                          "<Title>A Title</Title><ClickFocus>Entry</ClickFocus>");
    EXPECT_EQ(WindowHasClose | WindowHasMinimize | WindowResizesWidth | WindowResizesHeight, window.WindowFlags);
    EXPECT_TRUE(window.Locked);
    EXPECT_EQ("A Title", *window.Title);
    EXPECT_EQ("Entry", *window.ClickFocus);
    EXPECT_EQ("titlebar", window.TitleBar->Name);
    EXPECT_EQ("A Title", window.TitleText->Text);
    EXPECT_EQ("minimize", window.MinimizeButton->Name);
    EXPECT_EQ("maximize", window.MaximizeButton->Name);
    EXPECT_EQ("close", window.CloseButton->Name);
    EXPECT_EQ("client", window.Client->Name);
    EXPECT_NE(nullptr, dynamic_cast<TeskWindowClient*>(window.Client));
}

TEST_F(TeskWindowMarkupTest, AToggleThatIsOffTakesNothingFromAnother)
{
    const TeskWindow& window = LoadWindow("<Resizable/><WidthResizable>0</WidthResizable>");
    EXPECT_EQ(WindowResizesWidth | WindowResizesHeight, window.WindowFlags);
}

TEST_F(TeskWindowMarkupTest, TogglesComeFromTheTemplateAndTheNodeWins)
{
    UseTemplate("<CloseButton/><MinimizeButton/><HeightResizable/><Locked/>");
    const TeskWindow& window = LoadWindow("<MinimizeButton>0</MinimizeButton><WidthResizable/><Locked>0</Locked>");
    EXPECT_EQ(WindowHasClose | WindowResizesWidth | WindowResizesHeight, window.WindowFlags);
    EXPECT_FALSE(window.Locked);
}

TEST_F(TeskWindowMarkupTest, TitleAndClickFocusAreTheNodesOwn)
{
    UseTemplate("<Title>Of the template</Title><ClickFocus>Of the template</ClickFocus>");
    const TeskWindow& window = LoadWindow();
    EXPECT_EQ("w", *window.Title);
    EXPECT_EQ("", *window.ClickFocus);
}

TEST_F(TeskWindowMarkupTest, ItsTitleBarsSizeIsNotAddedByMarkup)
{
    UseTemplate("<OffsetTitleBarHeight/><OffsetTitleBarWidth/>" + TitleBarMarkup());
    EXPECT_EQ("100,100 200x150", PlaceOf(LoadWindow()));
}

// --- Bounds

TEST_F(TeskWindowMarkupTest, BoundsAreAttributesOfWhatMakesItResizable)
{
    const TeskWindow& window = LoadWindow("<Resizable MinHeight='70' MinWidth='80'/>");
    EXPECT_EQ(70u, window.MinHeight);
    EXPECT_EQ(80u, window.MinWidth);
}

TEST_F(TeskWindowMarkupTest, BoundsWithoutAttributesAreTheOtherWayRoundThanWithoutBounds)
{
    const TeskWindow& window = LoadWindow("<Resizable/>");
    EXPECT_EQ(20u, window.MinHeight);
    EXPECT_EQ(40u, window.MinWidth);
}

TEST_F(TeskWindowMarkupTest, EachBoundComesFromItsOwnElement)
{
    const TeskWindow& wide = LoadWindow("<WidthResizable MinWidth='80' MinHeight='70'/>");
    EXPECT_EQ(80u, wide.MinWidth);
    EXPECT_EQ(40u, wide.MinHeight);
    g_UIManager.Reset();
    const TeskWindow& high = LoadWindow("<HeightResizable/>");
    EXPECT_EQ(20u, high.MinWidth);
    EXPECT_EQ(20u, high.MinHeight);
}

TEST_F(TeskWindowMarkupTest, ResizableHidesTheTwoOthersAndItsNodeHidesTheTemplates)
{
    UseTemplate("<Resizable MinHeight='70' MinWidth='80'/>");
    const TeskWindow& first = LoadWindow("<WidthResizable MinWidth='90'/>");
    EXPECT_EQ(80u, first.MinWidth);
    EXPECT_EQ(70u, first.MinHeight);
    g_UIManager.Reset();
    const TeskWindow& second = LoadWindow("<Resizable MinHeight='75'/>");
    EXPECT_EQ(40u, second.MinWidth);
    EXPECT_EQ(75u, second.MinHeight);
}

// --- Sizes

TEST_F(TeskWindowMarkupTest, MarkupTellsOfTheInnerArea)
{
    const TeskWindow& window = LoadWindow("<Border>5</Border>");
    EXPECT_EQ("95,95 210x160", PlaceOf(window));
    EXPECT_EQ("0,20 200x130", PlaceOf(*window.Client));
    EXPECT_EQ(100, window.Client->AbsoluteX);
    EXPECT_EQ(120, window.Client->AbsoluteY);
}

TEST_F(TeskWindowMarkupTest, AnEdgeThatCanBeCaughtIsThreePixelsWide)
{
    for (const char* border : {"0", "1", "2", "3"}) {
        const TeskWindow& window = LoadWindow(std::string("<Resizable/><Border>") + border + "</Border>");
        EXPECT_EQ(3u, window.Border);
        EXPECT_EQ("97,97 206x156", PlaceOf(window));
        g_UIManager.Reset();
    }
    EXPECT_EQ(3u, LoadWindow("<WidthResizable/>").Border);
    g_UIManager.Reset();
    EXPECT_EQ(3u, LoadWindow("<HeightResizable/>").Border);
    g_UIManager.Reset();
    EXPECT_EQ(4u, LoadWindow("<Resizable/><Border>4</Border>").Border);
    g_UIManager.Reset();
    EXPECT_EQ(0u, LoadWindow().Border);
}

// --- Parts

TEST_F(TeskWindowMarkupTest, AnEmptyPartOfItsOwnHidesThatOfTheTemplate)
{
    const TeskWindow& window = LoadWindow("<TitleBar/>");
    EXPECT_EQ(nullptr, window.TitleBar);
    EXPECT_NE(nullptr, window.Client);
    g_UIManager.Reset();
    Load("<window name='Without'><Client/></window>");
    EXPECT_EQ(nullptr, As<TeskWindow>("Without").Client);
    EXPECT_NE(nullptr, As<TeskWindow>("Without").TitleBar);
}

TEST_F(TeskWindowMarkupTest, APartWithNothingButAnAttributeIsMade)
{
    const TeskWindow& window = LoadWindow("<TitleBar Template='none'/>");
    ASSERT_NE(nullptr, window.TitleBar);
    EXPECT_EQ(nullptr, window.TitleBar->FirstChild);
}

TEST_F(TeskWindowMarkupTest, WithoutTheirFlagsTheButtonsGo)
{
    const TeskWindow& window = LoadWindow();
    EXPECT_FALSE(window.MinimizeButton || window.MaximizeButton || window.CloseButton);
    EXPECT_EQ(window.TitleText, window.TitleBar->FirstChild);
    EXPECT_EQ(window.TitleText, window.TitleBar->LastChild);
}

TEST_F(TeskWindowMarkupTest, AButtonAloneServesBothWays)
{
    for (const char* name : {"Minimize", "Maximize"}) {
        UseTemplate("<TitleBar><Width>9</Width><Children>" + Button(name, 0) + "</Children></TitleBar>");
        Load("<window name='W'><MinimizeButton/></window>");
        const auto& window = As<TeskWindow>("W");
        ASSERT_NE(nullptr, window.MinimizeButton);
        EXPECT_EQ(window.MinimizeButton, window.MaximizeButton);
        g_UIManager.Reset();
    }
}

TEST_F(TeskWindowMarkupTest, PartsMayLieDeepInTheTitleBar)
{
    UseTemplate("<TitleBar><Width>9</Width><Children><frame name='Box'><Children><text name='Title'/>"
        + Button("Close", 0) + "</Children></frame></Children></TitleBar>" + ClientMarkup());
    const TeskWindow& window = LoadWindow("<CloseButton/>");
    EXPECT_EQ("w", window.TitleText->Text);
    EXPECT_EQ("close", window.CloseButton->Name);
}

TEST_F(TeskWindowMarkupTest, WhatOnlyBearsTheNameIsNoPart)
{
    UseTemplate("<TitleBar><Width>9</Width><Children><button name='Title'/><text name='Close'/></Children></TitleBar>"
        + ClientMarkup());
    const TeskWindow& window = LoadWindow("<CloseButton/>");
    EXPECT_EQ(nullptr, window.TitleText);
    EXPECT_EQ(nullptr, window.CloseButton);
}

TEST_F(TeskWindowMarkupTest, AWindowMayDieOfTheScriptsOfItsParts)
{
    UseTemplate("<MinimizeButton/>" + TitleBarMarkup("<OnLoad>die</OnLoad>") + ClientMarkup());
    Host.Scripts["die"] = [](TeskElement&) { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("W")); };
    Load("<window name='W'/>");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);

    UseTemplate(TitleBarMarkup() + "<Client><OnLoad>die</OnLoad></Client>");
    Load("<window name='W'/>");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);

    UseTemplate("<TitleBar><Width>9</Width><Children><button name='Minimize'><OnUnload>die</OnUnload></button>"
                "</Children></TitleBar>");
    Load("<window name='W'/>");
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(TeskWindowMarkupTest, AButtonThatGoesMayTakeTheTitleBarWithIt)
{
    UseTemplate("<TitleBar><Width>9</Width><Children><button name='Minimize'><OnUnload>die</OnUnload></button>"
                "<button name='Maximize'/><button name='Close'/></Children></TitleBar>"
        + ClientMarkup());
    Host.Scripts["die"] = [](TeskElement&) {
        TeskElement* bar = g_UIManager.FindElement("TitleBar@W");
        bar->Parent->DeleteChild(bar);
    };
    const TeskWindow& window = LoadWindow("<CloseButton/>");
    EXPECT_FALSE(window.TitleBar || window.MinimizeButton || window.MaximizeButton || window.CloseButton);
    EXPECT_NE(nullptr, window.Client);
}

// --- The factory

TEST_F(TeskWindowMarkupTest, ItsChildrenLandInTheClient)
{
    const TeskWindow& window = LoadWindow("<Children><frame name='Inside'><Width>50%</Width></frame></Children>");
    const TeskElement& inside = Element("Inside@W");
    EXPECT_EQ(window.Client, inside.Parent);
    EXPECT_EQ(100u, inside.Width);
}

TEST_F(TeskWindowMarkupTest, MarkupGivesTheClientAndNoMarkupTheWindow)
{
    TeskElementFactory& factory = *g_UIManager.FindFactory("window");
    TeskElement* client = factory.Create(g_UIManager.Screen, "Loaded", Node(""), "window");
    EXPECT_EQ("windowclient", client->Type);
    EXPECT_EQ("Client@Loaded", client->FullName);
    EXPECT_EQ("window", factory.Create(g_UIManager.Screen, "Made")->Type);
}

TEST_F(TeskWindowMarkupTest, WithoutAClientTheLoadTellsOfAFailureAndTheWindowStands)
{
    UseTemplate(TitleBarMarkup());
    Host.TakeCalls();
    Load("<window name='W'><Children><frame name='Lost'/></Children></window>");
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'W' under 'screen'\"\n", Host.TakeCalls());
    EXPECT_NE(nullptr, g_UIManager.FindElement("W"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Lost@W"));
}

TEST_F(TeskWindowMarkupTest, ItsOwnOnLoadRunsOnceAndBeforeItsChildrenAndTheClientsTwice)
{
    std::string told;
    Host.Scripts["tell"] = [&](TeskElement& self) { told += self.Name + " "; };
    UseTemplate(TitleBarMarkup() + "<Client><Width>100%</Width><OnLoad>tell</OnLoad></Client>");
    LoadWindow("<OnLoad>tell</OnLoad><Children><frame name='Inside'><OnLoad>tell</OnLoad></frame></Children>");
    EXPECT_EQ("client w inside client ", told);
}

TEST_F(TeskWindowMarkupTest, AWindowThatDiesOfItsOnLoadGivesNothing)
{
    Host.Scripts["die"] = [](TeskElement& self) { g_UIManager.Screen->DeleteChild(&self); };
    Host.TakeCalls();
    Load("<window name='W'><OnLoad>die</OnLoad><Children><frame name='Lost'/></Children></window>");
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'W' under 'screen'\"\n", Host.TakeCalls());
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(TeskWindowMarkupTest, AClientThatDiesOfTheWindowsOnLoadGivesNothing)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.DeleteChild(dynamic_cast<TeskWindow&>(self).Client); };
    Load("<window name='W'><OnLoad>die</OnLoad></window>");
    EXPECT_EQ(nullptr, As<TeskWindow>("W").Client);
}

TEST_F(TeskWindowMarkupTest, TheNamesOfItsContentPassOverTheClient)
{
    LoadWindow("<Children><frame name='Inside'><Children><frame name='Deep'/></Children></frame></Children>");
    EXPECT_EQ("Deep@Inside@W", Element("deep@inside@w").FullName);
    EXPECT_EQ("Client@W", Element("Inside@W").Parent->FullName);
}

// --- Made by code

TEST_F(TeskWindowMarkupTest, ARecordGivesItsFields)
{
    g_UIManager.RemoveTemplate("window");
    _CreateWindow record = Record();
    record.Border = 4;
    record.BackgroundColor = 0xff102030;
    record.BorderColor = 0xff405060;
    record.Flags = WindowHasClose;
    record.Strata = 3;
    const TeskWindow& window = Create(record);
    EXPECT_EQ("6,16 308x208", PlaceOf(window));
    EXPECT_EQ(4u, window.Border);
    EXPECT_EQ(0xff102030, window.BackgroundColor);
    EXPECT_EQ(0xff405060, window.BorderColor);
    EXPECT_EQ(WindowHasClose, window.WindowFlags);
    EXPECT_EQ(3, window.Strata);
}

TEST_F(TeskWindowMarkupTest, TheBordersOfTheRecordItselfAndNotOfTheFrameInItCount)
{
    _CreateWindow record = Record();
    static_cast<_CreateFrame&>(record).Border = 9;
    EXPECT_EQ(0u, Create(record).Border);
}

TEST_F(TeskWindowMarkupTest, ATitleInTheRecordDoesNotCount)
{
    _CreateWindow record = Record();
    record.Title = "Of the record";
    record.ClickFocus = "Of the record";
    const TeskWindow& plain = Create(record);
    EXPECT_EQ("made", *plain.Title);
    EXPECT_EQ("", *plain.ClickFocus);
    EXPECT_EQ("made", plain.TitleText->Text);
    g_UIManager.Reset();
    const TeskWindow& window = Create(record, Node("<Title>Of the node</Title><ClickFocus>Me</ClickFocus>"));
    EXPECT_EQ("Of the node", *window.Title);
    EXPECT_EQ("Me", *window.ClickFocus);
}

TEST_F(TeskWindowMarkupTest, LockAndBoundsAreNotReadForARecord)
{
    const TeskWindow& window = Create(Record(), Node("<Locked/><Resizable MinWidth='99' MinHeight='98'/>"));
    EXPECT_FALSE(window.Locked);
    EXPECT_EQ(20u, window.MinWidth);
    EXPECT_EQ(40u, window.MinHeight);
    EXPECT_EQ(WindowResizesWidth | WindowResizesHeight, window.WindowFlags);
    EXPECT_EQ("7,17 306x206", PlaceOf(window));
}

TEST_F(TeskWindowMarkupTest, TheTitleBarsSizeMayBeAddedToThatOfARecord)
{
    EXPECT_EQ("10,20 300x220", PlaceOf(Create(Record(), Node("<OffsetTitleBarHeight/>"))));
    g_UIManager.Reset();
    EXPECT_EQ("10,20 500x200", PlaceOf(Create(Record(), Node("<OffsetTitleBarWidth/>"))));
    g_UIManager.Reset();
    _CreateWindow record = Record();
    record.Flags = WindowAddsTitleBarHeight | WindowAddsTitleBarWidth | WindowResizesWidth;
    EXPECT_EQ("7,17 506x226", PlaceOf(Create(record)));
    g_UIManager.Reset();
    EXPECT_EQ("7,17 306x206", PlaceOf(Create(record, Node("<TitleBar/>"))));
}

TEST_F(TeskWindowMarkupTest, ARecordsTemplateIsTheNodesOrThatOfWindows)
{
    g_UIManager.AddTemplate("other", "<Template><CloseButton/></Template>");
    const TeskWindow& window = Create(Record(), Node("", "Template='other'"));
    EXPECT_EQ(WindowHasClose, window.WindowFlags);
    EXPECT_EQ(nullptr, window.TitleBar);
}
