#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

namespace {

constexpr u32 Delay = 1000;

class AutoTooltipTest : public ToolkitTest
{
protected:
    // The tooltip lies below the panels, so that the mouse stays with them.
    void LoadPanels()
    {
        Load("<tooltip name='Auto Tooltip'><Font><Size>9</Size></Font></tooltip>"
             "<frame name='A'><Width>50</Width><Height>50</Height><AutoTooltip>Of A\n${x}</AutoTooltip></frame>"
             "<frame name='B'><X>60</X><Width>50</Width><Height>50</Height><AutoTooltip>Of B</AutoTooltip></frame>"
             "<frame name='C'><X>120</X><Width>50</Width><Height>50</Height></frame>");
        Frame();
    }

    static void MoveTo(i32 x, i32 y)
    {
        _Point2i point = {x, y};
        g_UIManager.OnMouseMove(point);
    }

    void Rest(u32 time = Delay)
    {
        System.Ticks += time;
        Frame();
    }

    TeskTooltip& Tip() { return As<TeskTooltip>("Auto Tooltip"); }
    u32 Owner() const { return g_UIManager.TooltipElementID; }
    void DeleteElement(const char* name) { g_UIManager.Screen->DeleteChild(&Element(name)); }
};

} // namespace

TEST_F(AutoTooltipTest, ShowsTheTextAtTheMouseThatHasRested)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    EXPECT_EQ(Element("A").ID, Owner());
    EXPECT_EQ(15, Tip().X);
    EXPECT_EQ(-5, Tip().Y);
    ASSERT_EQ(2u, Tip().LineCount);
    EXPECT_EQ("Of A", Tip().Lines.Get(0)->Text);
    EXPECT_EQ("${x}", Tip().Lines.Get(1)->Text);
}

TEST_F(AutoTooltipTest, WaitsForTheDelayAfterEachInput)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest(Delay - 1);
    EXPECT_FALSE(Tip().Visible);
    g_UIManager.OnKeyDown('A');
    Rest(Delay - 1);
    EXPECT_FALSE(Tip().Visible);
    Rest(1);
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, TheDelayIsTheManagers)
{
    LoadPanels();
    g_UIManager.TooltipDelay = 0;
    MoveTo(25, 5);
    Frame();
    g_UIManager.TooltipDelay = Delay;
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, TheDelayIsKeptWhereTheClockWraps)
{
    LoadPanels();
    System.Ticks = 0xffffff00u;
    MoveTo(25, 5);
    Rest(Delay - 1);
    EXPECT_FALSE(Tip().Visible);
    Rest(1);
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, GoesWhenTheMouseLeavesForNothing)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    MoveTo(25, 300);
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(0u, Owner());
}

TEST_F(AutoTooltipTest, GoesWithTheMouseFromOneElementToTheNext)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    MoveTo(65, 5);
    EXPECT_FALSE(Tip().Visible);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    EXPECT_EQ(Element("B").ID, Owner());
    EXPECT_EQ("Of B", Tip().Lines.Get(0)->Text);
    EXPECT_EQ(1u, Tip().LineCount);
    EXPECT_EQ(55, Tip().X);
}

TEST_F(AutoTooltipTest, AnElementWithoutATextShowsNone)
{
    LoadPanels();
    MoveTo(125, 5);
    Rest();
    EXPECT_FALSE(Tip().Visible);
}

TEST_F(AutoTooltipTest, StaysInItsPlaceWhileTheMouseMovesWithinItsOwner)
{
    LoadPanels();
    MoveTo(25, 25);
    Rest();
    MoveTo(30, 40);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    EXPECT_EQ(15, Tip().X);
    EXPECT_EQ(15, Tip().Y);
}

TEST_F(AutoTooltipTest, ATooltipThatCodeShowsIsLeftAlone)
{
    LoadPanels();
    Tip().ShowOnly("mine");
    Tip().X = 300;
    Tip().Show(true);
    MoveTo(25, 5);
    Rest();
    EXPECT_EQ(0u, Owner());
    EXPECT_EQ("mine", Tip().Lines.Get(0)->Text);
    MoveTo(65, 5);
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, ATooltipThatCodeHidesIsNotShownAgainForTheSameOwner)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    Tip().Show(false);
    Rest();
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(Element("A").ID, Owner());
    MoveTo(65, 5);
    MoveTo(25, 5);
    Rest();
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, GoesWhenItsOwnerIsHidden)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    Element("A").Show(false);
    Frame();
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(0u, Owner());
}

TEST_F(AutoTooltipTest, GoesWhenItsOwnerIsDeleted)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    DeleteElement("A");
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(0u, Owner());
    Frame();
    EXPECT_FALSE(Tip().Visible);
}

TEST_F(AutoTooltipTest, StaysWhenAnotherElementIsDeleted)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    DeleteElement("B");
    Frame();
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, GoesWhenAnAncestorOfItsOwnerIsDeleted)
{
    Load("<tooltip name='Auto Tooltip'/><frame name='P'><Width>50</Width><Height>50</Height><Children>"
         "<frame name='Q'><Width>50</Width><Height>50</Height><AutoTooltip>Hint</AutoTooltip></frame></Children>"
         "</frame>");
    Frame();
    MoveTo(25, 5);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    DeleteElement("P");
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(0u, Owner());
}

TEST_F(AutoTooltipTest, AnOwnerThatStandsInTheTooltipMayEndWithIt)
{
    Load("<tooltip name='Auto Tooltip'><Width>50</Width><Height>50</Height><Children>"
         "<frame name='Q'><Width>50</Width><Height>50</Height><AutoTooltip>Hint</AutoTooltip></frame></Children>"
         "</tooltip>");
    g_UIManager.TooltipElementID = Element("Q@Auto Tooltip").ID;
    Tip().Show(true);
    DeleteElement("Auto Tooltip");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Auto Tooltip"));
    Frame();
}

TEST_F(AutoTooltipTest, ATooltipThatIsDeletedWhileItShowsIsNotMissed)
{
    LoadPanels();
    MoveTo(25, 5);
    Rest();
    DeleteElement("Auto Tooltip");
    Rest();
    MoveTo(65, 5);
    Rest();
    EXPECT_EQ(0u, Owner());
    DeleteElement("A");
    DeleteElement("B");
    Frame();
}

TEST_F(AutoTooltipTest, ATooltipThatComesLaterServesTheNextElement)
{
    LoadPanels();
    DeleteElement("Auto Tooltip");
    Load("<tooltip name='AUTO TOOLTIP'/>");
    MoveTo(25, 25);
    Rest();
    EXPECT_TRUE(Tip().Visible);
}

TEST_F(AutoTooltipTest, AnElementOfAnotherKindUnderThatNameIsPassedOver)
{
    Load("<hudelement name='Auto Tooltip'><Visible>0</Visible></hudelement>"
         "<frame name='A'><Width>50</Width><Height>50</Height><AutoTooltip>Hint</AutoTooltip></frame>");
    Frame();
    MoveTo(25, 5);
    Rest();
    EXPECT_FALSE(Element("Auto Tooltip").Visible);
    EXPECT_EQ(0u, Owner());
    g_UIManager.TooltipElementID = Element("A").ID;
    DeleteElement("A");
}

TEST_F(AutoTooltipTest, AnyKindOfElementShowsItsTooltip)
{
    Load("<tooltip name='Auto Tooltip'/><hudelement name='H'><Text>x</Text><AutoTooltip>Of H</AutoTooltip>"
         "</hudelement><text name='T'><Y>60</Y><Width>50</Width><Height>50</Height><AutoTooltip>Of T</AutoTooltip>"
         "</text>");
    Frame();
    MoveTo(5, 5);
    Rest();
    EXPECT_EQ("Of H", Tip().Lines.Get(0)->Text);
    MoveTo(5, 65);
    Rest();
    EXPECT_EQ("Of T", Tip().Lines.Get(0)->Text);
}

// Where the tooltip lies above its owner, it takes the mouse as soon as it shows.
TEST_F(AutoTooltipTest, ATooltipAboveItsOwnerComesAndGoes)
{
    Load("<frame name='A'><Width>50</Width><Height>50</Height><AutoTooltip>Hint</AutoTooltip></frame>"
         "<tooltip name='Auto Tooltip'/>");
    Frame();
    MoveTo(25, 25);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    Frame();
    EXPECT_FALSE(Tip().Visible);
    EXPECT_EQ(Tip().ID, g_UIManager.MouseOverElementID);
    Frame();
    EXPECT_TRUE(Tip().Visible);
}

// With that shape a tooltip that is wider than it is high leaves its corner, where the mouse is, to what lies below.
TEST_F(AutoTooltipTest, ATooltipWhoseCornerIsFreeStays)
{
    Load("<frame name='A'><Width>50</Width><Height>50</Height><AutoTooltip>A hint of some length</AutoTooltip>"
         "</frame><tooltip name='Auto Tooltip'/>");
    g_UIManager.SetElementMetadata(Tip().ID, "HitTest", "heightCircle");
    Frame();
    MoveTo(25, 25);
    Rest();
    EXPECT_TRUE(Tip().Visible);
    Frame();
    Frame();
    Frame();
    EXPECT_TRUE(Tip().Visible);
    EXPECT_EQ(Element("A").ID, Owner());
}

TEST_F(AutoTooltipTest, MousePositionsAtTheEndOfTheirRangeWrap)
{
    LoadPanels();
    MoveTo(25, 5);
    g_UIManager.MousePosition = {static_cast<i32>(0x80000000u), static_cast<i32>(0x80000005u)};
    g_UIManager.LeftButtonState = 1; // so that the frame does not look for the mouse again
    Rest();
    g_UIManager.ResetMouseState();
    EXPECT_EQ(0x7ffffff6, Tip().X);
    EXPECT_EQ(0x7ffffffb, Tip().Y);
}
