#include "tests/unit/MapTest.h"

#include "host/probe/TreeChecker.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/windows/TeskMapView.h"

#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <functional>

// A map, and a view of 100 by 100 pixels for 10 by 10 of the world.
class TeskMapViewTest : public MapTest
{
protected:
    TeskMapViewTest()
    {
        UseDot("<OnSetTooltip>tip</OnSetTooltip>");
        LoadMap();
        Load("<mapview name='V'><X>300</X><Width>100</Width><Height>100</Height><MapSizeX>10</MapSizeX>"
             "<MapSizeY>10</MapSizeY><ShowLabels/><Children><tooltip name='Tooltip'/></Children></mapview>");
    }

    TeskMapView& View() { return As<TeskMapView>("V"); }

    TeskMapBlipView& Show(const char* name)
    {
        TeskMapBlipView* view = View().AddBlipView(&Blip(name));
        if (!view)
            throw std::runtime_error(std::string("not shown: ") + name);
        return *view;
    }
};

TEST_F(TeskMapViewTest, IsAPlainElementWithItsWord)
{
    EXPECT_TRUE(View().IsTypeOf("mapview"));
    EXPECT_TRUE(View().IsTypeOf("teskelement"));
    EXPECT_FALSE(View().IsTypeOf("map"));
    EXPECT_STREQ("teskelement", View().GetMvType()->GetName());
    EXPECT_EQ(5, View().MapSizeX);
    EXPECT_TRUE(View().ShowLabels);
}

TEST_F(TeskMapViewTest, ABlipIsShownInBoth)
{
    Add("Town", 2, 1);
    TeskMapBlipView& view = Show("Town");
    EXPECT_EQ("mapblipview", view.Type);
    EXPECT_EQ("town", view.Name);
    EXPECT_TRUE(view.IsTypeOf("mapblipview"));
    EXPECT_TRUE(view.IsTypeOf("frame"));
    EXPECT_FALSE(view.IsTypeOf("mapblip"));
    EXPECT_EQ(&Blip("Town"), view.Blip());
    EXPECT_EQ(&view, View().FindBlipView(Blip("Town").ID));
    EXPECT_EQ("104,49", PlaceOf("Town"));
    EXPECT_EQ("64,54", PlaceOf(view));
    Map().UpdateBlip(Blip("Town").ID, {8, 0, 0});
    EXPECT_EQ("134,44", PlaceOf("Town"));
    EXPECT_EQ("hidden", PlaceOf(view));
}

TEST_F(TeskMapViewTest, ARoundViewMeasuresItsRadius)
{
    View().Radial = true;
    Add("A", 3, 4);
    Add("B", 3, 3.9f);
    Show("A");
    Show("B");
    Frame();
    EXPECT_EQ("hidden", PlaceOf(*View().FindBlipView(Blip("A").ID)));
    EXPECT_EQ("74,83", PlaceOf(*View().FindBlipView(Blip("B").ID)));
}

TEST_F(TeskMapViewTest, ABlipIsShownOnce)
{
    Add("A");
    TeskMapBlipView& view = Show("A");
    EXPECT_EQ(&view, &Show("A"));
    EXPECT_EQ(nullptr, View().AddBlipView(nullptr));
}

TEST_F(TeskMapViewTest, AChildOfTheNameStandsInTheWay)
{
    Add("Tooltip");
    EXPECT_EQ(nullptr, View().AddBlipView(&Blip("Tooltip")));
    EXPECT_EQ("PrintLine \"Child named 'tooltip' already exists in parent element 'v'\"\n", Host.TakeCalls());
}

TEST_F(TeskMapViewTest, TheSizeIsThatOfTheBlip)
{
    Add("A", 0, 0, 0, 20);
    TeskMapBlipView& view = Show("A");
    EXPECT_EQ(20u, view.Width);
    EXPECT_EQ(20u, view.Height);
    Map().UpdateBlipSize(Blip("A").ID, 30);
    EXPECT_EQ(20u, view.Width);
    view.UpdateSize();
    EXPECT_EQ(30u, view.Width);
    Blip("A").PositionWidth = {PositionShare, 0};
    Blip("A").PositionWidth.SetShare(0.5f);
    view.UpdateSize();
    EXPECT_EQ(50u, view.Width);
    EXPECT_EQ(30u, view.Height);
}

TEST_F(TeskMapViewTest, TheLabelIsThatOfTheBlip)
{
    Add("A", 0, 0, 0, 12, "Town");
    Show("A");
    Frame();
    EXPECT_NE(std::string::npos, Frame().find("DrawText \"Town\" (358,46,"));
    View().ShowLabels = false;
    EXPECT_EQ(std::string::npos, Frame().find("DrawText"));
}

TEST_F(TeskMapViewTest, TheTooltipIsFilledByTheBlip)
{
    Add("A");
    TeskMapBlipView& view = Show("A");
    view.BackgroundColor = 0xff000000u;
    Host.Scripts["tip"] = [this](TeskElement& self) {
        EXPECT_EQ(&Blip("A"), &self);
        As<TeskTooltip>("Tooltip@V").Print("words");
    };
    Frame();
    MoveTo(350, 50);
    EXPECT_EQ(view.ID, View().HoverBlip);
    EXPECT_EQ(0u, Map().HoverBlip);
    EXPECT_EQ("54,58", PlaceOf(Element("Tooltip@V")));
    MoveTo(310, 50);
    EXPECT_EQ(0u, View().HoverBlip);
    EXPECT_EQ("hidden", PlaceOf(Element("Tooltip@V")));
}

TEST_F(TeskMapViewTest, ABlipThatIsGoneIsNotDrawn)
{
    Add("A", 0, 0, 0, 12, "Town");
    const TeskMapBlipView& view = Show("A");
    Frame();
    const u32 id = Blip("A").ID;
    Map().RemoveBlip(id);
    EXPECT_EQ(nullptr, view.Blip());
    EXPECT_EQ(std::string::npos, Frame().find("Town"));
    EXPECT_EQ("hidden", PlaceOf(view));
    EXPECT_EQ(&view, View().FindBlipView(id));
    View().RemoveBlipView(id);
    EXPECT_EQ(nullptr, View().FindBlipView(id));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("A@V"));
    View().RemoveBlipView(id);
    View().RemoveBlipView(0);
}

TEST_F(TeskMapViewTest, AMapMayEndBeforeAndAfterItsView)
{
    Add("A");
    Add("B", 1);
    Show("A");
    Show("B");
    Frame();
    g_UIManager.Screen->DeleteChild(&Map());
    Frame();
    MoveTo(350, 50);
    g_UIManager.Screen->DeleteChild(&View());
    LoadMap();
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

TEST_F(TeskMapViewTest, AHoveredViewTakesTheTooltipAlong)
{
    Add("A");
    Show("A").BackgroundColor = 0xff000000u;
    Frame();
    MoveTo(350, 50);
    EXPECT_TRUE(Element("Tooltip@V").Visible);
    View().DeleteChild(&Element("A@V"));
    EXPECT_EQ(0u, View().HoverBlip);
    EXPECT_FALSE(Element("Tooltip@V").Visible);
}

TEST_F(TeskMapViewTest, ABlipOfTheViewEndsWithoutItsMap)
{
    Host.Scripts["tip"] = [this](TeskElement&) { g_UIManager.Screen->DeleteChild(&Map()); };
    Add("A");
    Show("A").BackgroundColor = 0xff000000u;
    Frame();
    MoveTo(350, 50);
    EXPECT_TRUE(IsMapGone());
    Frame();
    EXPECT_EQ("hidden", PlaceOf(Element("A@V")));
}

TEST_F(TeskMapViewTest, ABlipViewIsNotMadeFromMarkup)
{
    Load("<mapblipview name='B'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
    Host.TakeCalls();
    auto* alone = dynamic_cast<TeskMapBlipView*>(g_UIManager.LoadElement(&View(), "mapblipview", "Alone"));
    ASSERT_NE(nullptr, alone);
    EXPECT_EQ(nullptr, alone->Blip());
    EXPECT_FALSE(alone->SetTooltip(&As<TeskTooltip>("Tooltip@V")));
    alone->UpdateSize();
    Frame();
    View().DeleteChild(alone);
    auto* outside = dynamic_cast<TeskMapBlipView*>(g_UIManager.LoadElement(g_UIManager.Screen, "mapblipview", "Out"));
    ASSERT_NE(nullptr, outside);
    _Point2i point;
    outside->OnMouseEnter(point);
    outside->OnMouseExit(nullptr);
    Frame();
    EXPECT_EQ(nullptr, outside->View());
}

TEST_F(TeskMapViewTest, ABlipOnItsWayOutIsNotDrawn)
{
    UseDot("<OnUnload>unload</OnUnload>");
    Add("A");
    const TeskMapBlipView& view = Show("A");
    bool wasThere = true;
    Host.Scripts["unload"] = [&](TeskElement&) { wasThere = view.Blip() != nullptr; };
    Map().RemoveBlip(Blip("A").ID);
    EXPECT_FALSE(wasThere);
}

// The kind is the host's, and so may do anything.
TEST_F(TeskMapViewTest, ABlipMayEndAsItsViewIsMade)
{
    Add("A");
    TeskElementFactory* factory = g_UIManager.FindFactory("mapblipview");
    static std::function<void()> act;
    class ActingView : public TeskMapBlipView
    {
    public:
        using TeskMapBlipView::TeskMapBlipView;
        void OnCreate() override { act(); }
    };
    {
        const TeskFactory<ActingView> other("mapblipview");
        act = [&] { Map().ClearBlips(); };
        EXPECT_EQ(nullptr, View().AddBlipView(&Blip("A")));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("A@V"));
        Add("A");
        act = [&] { g_UIManager.Screen->DeleteChild(&View()); };
        EXPECT_EQ(nullptr, View().AddBlipView(&Blip("A")));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("V"));
    }
    factory->Register("mapblipview", TeskaraVersion);
}

TEST_F(TeskMapViewTest, WithoutMemoryNothingIsShown)
{
    Add("A");
    Frame();
    bool shown = false;
    for (std::size_t failure = 0; !shown; ++failure) {
        ASSERT_LT(failure, 100u);
        const std::size_t count = g_UIManager.ElementsByID.size();
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        shown = View().AddBlipView(&Blip("A")) != nullptr;
        Allocations::Allow();
        Host.TakeCalls();
        EXPECT_EQ(count + shown, g_UIManager.ElementsByID.size()) << failure;
        EXPECT_EQ(shown, View().FindBlipView(Blip("A").ID) != nullptr);
    }
}

TEST_F(TeskMapViewTest, AKindThatWasReplacedIsNotShown)
{
    Add("A");
    TeskElementFactory* factory = g_UIManager.FindFactory("mapblipview");
    {
        const TeskFactory<TeskFrame> other("mapblipview");
        EXPECT_EQ(nullptr, View().AddBlipView(&Blip("A")));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("A@V"));
    }
    factory->Register("mapblipview", TeskaraVersion);
    EXPECT_NE(nullptr, View().AddBlipView(&Blip("A")));
}
