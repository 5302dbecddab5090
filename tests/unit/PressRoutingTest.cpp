#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <functional>
#include <string>

namespace {

// Writes down what the manager offers it, and answers as it is told.
class Witness : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool OnLMouseDown(_Point2i&) override { return Offer("down", TakesPresses); }
    bool OnLMouseUp(_Point2i&) override { return Offer("up", TakesPresses); }
    bool OnRMouseDown(_Point2i&) override { return Offer("right down", TakesPresses); }
    bool OnRMouseUp(_Point2i&) override { return Offer("right up", TakesPresses); }
    bool OnLMouseDoubleClick(_Point2i&) override { return Offer("double", TakesDoubleClicks); }
    bool OnRMouseDoubleClick(_Point2i&) override { return Offer("right double", TakesDoubleClicks); }
    void OnKeyboardExit(TeskElement*) override { Offer("exit", false); }
    void OnLMouseDownOther(TeskElement* taker) override
    {
        Taker = taker;
        Offer("other " + (taker ? taker->Name : std::string("none")), false);
    }

    bool TakesPresses = false;
    bool TakesDoubleClicks = false;
    TeskElement* Taker = nullptr;

    static std::string Offers;
    static std::function<void(const std::string& offer)> OnOffer;

private:
    bool Offer(const std::string& event, bool answer)
    {
        const std::string offer = Name + " " + event;
        Offers += offer + "\n";
        if (OnOffer)
            OnOffer(offer);
        return answer; // of this element as it was, since it may be gone
    }
};

std::string Witness::Offers;
std::function<void(const std::string& offer)> Witness::OnOffer;

class PressRoutingTest : public ToolkitTest
{
protected:
    PressRoutingTest()
    {
        g_UIManager.LeftPressElementID = g_UIManager.RightPressElementID = 0;
        g_UIManager.LastLeftClickElementID = g_UIManager.LastRightClickElementID = 0;
        Witness::Offers.clear();
        Witness::OnOffer = nullptr;
        Load(R"(<witness name="below"><Width>100</Width><Height>100</Height></witness>
            <witness name="above"><Width>100</Width><Height>100</Height></witness>
            <witness name="away"><X>300</X><Width>100</Width><Height>100</Height></witness>)");
        Frame();
        MoveTo(10, 10);
    }

    ~PressRoutingTest() override { g_UIManager.Reset(); }

    Witness& Of(const char* name) { return As<Witness>(name); }

    static void MoveTo(int x, int y)
    {
        _Point2i point{x, y};
        g_UIManager.OnMouseMove(point);
    }

    static std::string TakeOffers()
    {
        std::string taken;
        taken.swap(Witness::Offers);
        return taken;
    }

    void DeleteDuring(const char* offer, const char* name)
    {
        Witness::OnOffer = [this, offer, name](const std::string& made) {
            if (made == offer)
                g_UIManager.Screen->DeleteChild(&Element(name));
        };
    }

private:
    TeskFactory<Witness> m_Factory{"witness"};
};

} // namespace

// --- The focus element hears of presses elsewhere

TEST_F(PressRoutingTest, TheFocusHearsOfAPressThatAnotherElementTook)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    Witness::OnOffer = [this](const std::string& offer) {
        if (offer == "away other above") {
            EXPECT_NE(&Of("above"), g_UIManager.Screen->LastChild) << "it is raised afterwards";
        }
    };
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\naway other above\n", TakeOffers());
    EXPECT_EQ(&Of("above"), Of("away").Taker);
    EXPECT_EQ(&Of("above"), g_UIManager.Screen->LastChild);
}

TEST_F(PressRoutingTest, TheFocusIsNotToldOfItsOwnPress)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("above"));
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\n", TakeOffers());
}

TEST_F(PressRoutingTest, TheFocusIsNotToldOfAPressThatNobodyTook)
{
    g_UIManager.SetFocusElement(&Of("below"));
    EXPECT_FALSE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\nbelow down\nbelow exit\n", TakeOffers()) << "the screen moves the focus, and refuses";
}

TEST_F(PressRoutingTest, TheFocusIsNotToldOfARightPress)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_EQ("above right down\n", TakeOffers());
}

TEST_F(PressRoutingTest, TheFocusIsNotToldOfADoubleClick)
{
    Of("above").TakesPresses = Of("above").TakesDoubleClicks = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    g_UIManager.SetFocusElement(&Of("away"));
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above double\n", TakeOffers());
}

TEST_F(PressRoutingTest, AHiddenFocusIsDroppedAndNotTold)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    Of("away").Show(false);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\naway exit\n", TakeOffers());
    EXPECT_EQ(0u, g_UIManager.FocusElementID);
}

TEST_F(PressRoutingTest, TheFocusHearsOfNobodyWhenTheTakerIsGone)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    DeleteDuring("above down", "above");
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\naway other none\n", TakeOffers());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("above"));
    EXPECT_EQ(ButtonTaken, g_UIManager.LeftButtonState);
}

TEST_F(PressRoutingTest, TheFocusMayDeleteTheTakerItHearsOf)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    DeleteDuring("away other above", "above");
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(&Of("away"), g_UIManager.Screen->LastChild) << "there is nothing to raise";
}

TEST_F(PressRoutingTest, TheFocusMayDeleteItselfWhenItHearsOfAPress)
{
    Of("above").TakesPresses = true;
    g_UIManager.SetFocusElement(&Of("away"));
    DeleteDuring("away other above", "away");
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(&Of("above"), g_UIManager.Screen->LastChild);
    EXPECT_EQ(0u, g_UIManager.FocusElementID);
}

// --- Elements that let clicks through

TEST_F(PressRoutingTest, APressPassesAnElementThatLetsItThrough)
{
    Of("above").TakesPresses = Of("below").TakesPresses = true;
    Of("above").LeftClickThru = true;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("below down\nbelow up\n", TakeOffers());
    EXPECT_TRUE(g_UIManager.OnRMouseDown()) << "the other button has a flag of its own";
    EXPECT_TRUE(g_UIManager.OnRMouseUp());
    EXPECT_EQ("above right down\nabove right up\n", TakeOffers());
}

TEST_F(PressRoutingTest, ARightPressPassesAnElementThatLetsItThrough)
{
    Of("above").TakesPresses = Of("below").TakesPresses = true;
    Of("above").RightClickThru = true;
    EXPECT_TRUE(g_UIManager.OnRMouseDown());
    EXPECT_TRUE(g_UIManager.OnRMouseUp());
    EXPECT_EQ("below right down\nbelow right up\n", TakeOffers());
}

TEST_F(PressRoutingTest, ADoubleClickIsOfferedThoughClicksAreLetThrough)
{
    Of("above").TakesPresses = Of("above").TakesDoubleClicks = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    Of("above").LeftClickThru = true;
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above double\n", TakeOffers());
}

TEST_F(PressRoutingTest, ARefusedDoubleClickIsAPressThoughClicksAreLetThrough)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    Of("above").LeftClickThru = true;
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above double\nabove down\n", TakeOffers());
    EXPECT_EQ(0u, g_UIManager.LastLeftClickElementID);
}

// --- Refusals

TEST_F(PressRoutingTest, ADoubleClickRefusedTwiceGoesToWhatLiesBelowAsAPress)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    Of("above").TakesPresses = false;
    Of("below").TakesPresses = Of("below").TakesDoubleClicks = true;
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above double\nabove down\nbelow down\n", TakeOffers());
    EXPECT_EQ(Of("below").ID, g_UIManager.LastLeftClickElementID);
}

TEST_F(PressRoutingTest, ADoubleClickMayBeMeantForWhatLiesBelow)
{
    Of("below").TakesPresses = Of("below").TakesDoubleClicks = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    EXPECT_EQ("above down\nbelow down\nbelow up\n", TakeOffers());
    Of("below").MoveZBottom();
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\nbelow double\n", TakeOffers());
}

TEST_F(PressRoutingTest, AnElementGoneInItsRefusedDoubleClickIsNotPressed)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    TakeOffers();
    DeleteDuring("above double", "above");
    EXPECT_FALSE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above double\n", TakeOffers());
    EXPECT_EQ(ButtonIgnored, g_UIManager.LeftButtonState);
}

TEST_F(PressRoutingTest, AnElementGoneInItsRefusedPressEndsTheWalk)
{
    Of("below").TakesPresses = true;
    DeleteDuring("above down", "above");
    EXPECT_FALSE(g_UIManager.OnLMouseDown());
    EXPECT_EQ("above down\n", TakeOffers());
}

TEST_F(PressRoutingTest, AReleaseOfAPressThatWasTakenIsTakenThoughRefused)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    Of("above").TakesPresses = false;
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("above up\nbelow up\n", TakeOffers());
}

TEST_F(PressRoutingTest, AReleaseOfAPressThatWasRefusedIsNotTakenThoughWanted)
{
    g_UIManager.OnLMouseDown();
    Of("above").TakesPresses = true;
    TakeOffers();
    EXPECT_FALSE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("above up\n", TakeOffers());
}

TEST_F(PressRoutingTest, AReleaseIsTakenWhenNothingIsLeftUnderTheMouse)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    g_UIManager.Screen->DeleteChild(&Of("above"));
    g_UIManager.Screen->Show(false);
    TakeOffers();
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("", TakeOffers());
}

// --- What stands while a handler runs

TEST_F(PressRoutingTest, AReleaseFindsTheButtonUpAndThePressForgotten)
{
    Of("above").TakesPresses = true;
    g_UIManager.OnLMouseDown();
    Witness::OnOffer = [](const std::string&) {
        EXPECT_EQ(ButtonUp, g_UIManager.LeftButtonState);
        EXPECT_EQ(0u, g_UIManager.LeftPressElementID);
    };
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
}

TEST_F(PressRoutingTest, APressFindsTheButtonDownAndNoPressYet)
{
    Of("above").TakesPresses = true;
    Witness::OnOffer = [](const std::string&) {
        EXPECT_EQ(ButtonIgnored, g_UIManager.LeftButtonState);
        EXPECT_EQ(0u, g_UIManager.LeftPressElementID);
        EXPECT_FALSE(g_UIManager.ZOrderChanged);
    };
    g_UIManager.ZOrderChanged = true;
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
}

TEST_F(PressRoutingTest, AnOrderChangedByTheHandlerStands)
{
    Of("above").TakesPresses = true;
    Witness::OnOffer = [this](const std::string&) { Of("above").MoveZBottom(); };
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    EXPECT_EQ(&Of("above"), g_UIManager.Screen->FirstChild);
}
