#include "tests/unit/MapTest.h"

#include "host/probe/TreeChecker.h"
#include "teskara/element/TeskElementFactory.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

// A blip of the host's, which acts as it is shown and hidden.
class ActingBlip : public TeskMapBlip
{
public:
    using TeskMapBlip::TeskMapBlip;

    void Show(bool show) override
    {
        TeskMapBlip::Show(show);
        if (Act)
            Act(*this);
    }

    static inline std::function<void(ActingBlip& blip)> Act;
};

} // namespace

// What scripts do to a map and its blips in the middle of what happens to them.
class TeskMapReentrancyTest : public MapTest
{
protected:
    ~TeskMapReentrancyTest() override
    {
        ActingBlip::Act = nullptr;
        Host.Scripts.clear();
    }

    void EndMap() { g_UIManager.Screen->DeleteChild(&Map()); }

    void ExpectWhole()
    {
        EXPECT_EQ(std::nullopt, FindTreeFault());
        Frame();
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }
};

TEST_F(TeskMapReentrancyTest, BlipsAddedWhileAllAreClearedGoToo)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    int added = 0;
    Host.Scripts["unload"] = [&](TeskElement&) { added += Add(("New" + std::to_string(added)).c_str()) != 0; };
    for (const char* name : {"A", "B", "C"})
        Add(name);
    Map().ClearBlips();
    EXPECT_EQ(3, added); // and what these would have added was refused
    EXPECT_EQ(Strings{}, NamesByID());
    EXPECT_EQ(0u, Map().BlipCount);
    EXPECT_EQ(nullptr, Map().FirstChild);
    Host.Scripts.clear();
    EXPECT_NE(0u, Add("D"));
    EXPECT_EQ(1u, Map().BlipCount);
}

TEST_F(TeskMapReentrancyTest, ClearingMayClearAgain)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    Host.Scripts["unload"] = [&](TeskElement&) { Map().ClearBlips(); };
    for (const char* name : {"A", "B", "C"})
        Add(name);
    Map().ClearBlips();
    EXPECT_EQ(0u, Map().BlipCount);
    EXPECT_EQ(Strings{}, NamesByID());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, ClearingMayEndTheMap)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    for (const char* name : {"A", "B", "C"})
        Add(name);
    Host.Scripts["unload"] = [&](TeskElement&) {
        if (!IsMapGone())
            EndMap();
    };
    Map().ClearBlips();
    EXPECT_TRUE(IsMapGone());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, ABlipThatTakesItsNameAgainWhileItIsReplacedStays)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    Add("A", 1);
    u32 inner = 0;
    Host.Scripts["unload"] = [&](TeskElement&) { inner = Add("A", 2); };
    EXPECT_EQ(0u, Add("A", 3));
    EXPECT_NE(0u, inner);
    EXPECT_EQ(2, Blip("A").Location.x);
    EXPECT_EQ(2u, Map().BlipCount);
    EXPECT_EQ((Strings{"A"}), NamesByID());
    ExpectWhole();
}

// It is on its way out as the map's child, and still has its name there.
TEST_F(TeskMapReentrancyTest, ABlipThatTakesItsNameAgainAsItEndsStays)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    Add("A", 1);
    Host.Scripts["unload"] = [&](TeskElement&) { EXPECT_NE(0u, Add("A", 2)); };
    Map().DeleteChild(&Blip("A"));
    EXPECT_EQ(2, Blip("A").Location.x);
    EXPECT_EQ(2u, Map().BlipCount);
    EXPECT_EQ((Strings{"A"}), NamesByID());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, AReplacedBlipMayEndTheMap)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    Add("A");
    Host.Scripts["unload"] = [&](TeskElement&) { EndMap(); };
    EXPECT_EQ(0u, Add("A"));
    EXPECT_TRUE(IsMapGone());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, ABlipMayEndAsItIsLoaded)
{
    UseDot("<OnLoad>load</OnLoad>");
    LoadMap();
    Host.Scripts["load"] = [&](TeskElement& self) { self.Parent->DeleteChild(&self); };
    EXPECT_EQ(0u, Add("A"));
    EXPECT_EQ(0u, Map().BlipCount);
    Host.Scripts["load"] = [&](TeskElement&) { EndMap(); };
    EXPECT_EQ(0u, Add("A"));
    EXPECT_TRUE(IsMapGone());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, BlipsAddedAsOneIsLoadedComeBeforeIt)
{
    UseDot("<OnLoad>load</OnLoad>");
    LoadMap();
    bool isInside = false;
    Host.Scripts["load"] = [&](TeskElement&) {
        if (std::exchange(isInside, true))
            return;
        EXPECT_NE(0u, Add("Inner"));
        Map().ClearBlips();
        EXPECT_NE(0u, Add("Second"));
    };
    EXPECT_NE(0u, Add("Outer"));
    EXPECT_EQ((Strings{"Outer", "Second"}), NamesByID());
    EXPECT_EQ((Strings{"Outer", "Second"}), Names());
    EXPECT_EQ(2u, Map().BlipCount);
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, ABlipMayBeRemovedAgainByItsOwnEnd)
{
    UseDot("<OnUnload>unload</OnUnload>");
    LoadMap();
    const u32 id = Add("A");
    Add("B");
    Host.Scripts["unload"] = [&](TeskElement&) {
        Map().RemoveBlip(id);
        Map().UpdateBlip(id, {});
    };
    Map().RemoveBlip(id);
    EXPECT_EQ(1u, Map().BlipCount);
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, FillingTheTooltipMayEndAnything)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    const std::function<void()> ends[] = {
        [&] { Map().RemoveBlip(Blip("A").ID); },
        [&] { Map().DeleteChild(&Element("Tooltip@M")); },
        [&] { EndMap(); },
        [&] { Map().ClearBlips(); },
        [&] { g_UIManager.Reset(); },
    };
    for (const auto& end : ends) {
        g_UIManager.Reset();
        LoadMap({}, "<tooltip name='Tooltip'/>");
        Add("A");
        Frame();
        Host.Scripts["tip"] = [&](TeskElement&) { end(); };
        MoveTo(100, 50);
        MoveTo(10, 10);
        ExpectWhole();
    }
}

TEST_F(TeskMapReentrancyTest, ABlipMayEndTheMapWhileItIsDrawn)
{
    UseDot("<OnRender>draw</OnRender>");
    LoadMap("<ShowLabels/>");
    Add("A", 0, 0, 0, 12, "label");
    Add("B");
    Host.Scripts["draw"] = [&](TeskElement&) { EndMap(); };
    Frame();
    EXPECT_TRUE(IsMapGone());
    ExpectWhole();
}

TEST_F(TeskMapReentrancyTest, AChildOfABlipMayEndItBeforeTheLabel)
{
    UseDot("<Children><frame name='in'><OnRender>draw</OnRender></frame></Children>");
    LoadMap("<ShowLabels/>");
    Add("A", 0, 0, 0, 12, "label");
    Host.Scripts["draw"] = [&](TeskElement&) { Map().ClearBlips(); };
    EXPECT_EQ(std::string::npos, Frame().find("label"));
    ExpectWhole();
}

// To be shown or hidden is the blip's own operation, and so may do anything.
class ActingBlipTest : public TeskMapReentrancyTest
{
protected:
    ActingBlipTest()
    {
        LoadMap();
        for (const char* name : {"A", "B", "C", "D"})
            Map().AddBlip(name, {100, 0, 0}, 12, nullptr, nullptr, "actingblip");
    }

    // The names of the blips that a frame has hidden.
    Strings HiddenBy(const std::function<void(ActingBlip& blip)>& act)
    {
        Strings hidden;
        ActingBlip::Act = [&](ActingBlip& blip) {
            hidden.push_back(blip.Name);
            act(blip);
        };
        Frame();
        ActingBlip::Act = nullptr;
        ExpectWhole();
        return hidden;
    }

    TeskFactory<ActingBlip> m_Factory{"actingblip"};
};

TEST_F(ActingBlipTest, EachIsToldOnceThatItIsHidden)
{
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), HiddenBy([](ActingBlip&) {}));
    EXPECT_EQ(Strings{}, HiddenBy([](ActingBlip&) {}));
}

TEST_F(ActingBlipTest, OneMayRemoveItselfAndOthers)
{
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), HiddenBy([&](ActingBlip& blip) { Map().RemoveBlip(blip.ID); }));
    EXPECT_EQ(0u, Map().BlipCount);
}

TEST_F(ActingBlipTest, OneMayRemoveTheNext)
{
    EXPECT_EQ((Strings{"a", "c", "d"}), HiddenBy([&](ActingBlip& blip) {
        if (blip.Name == "a")
            Map().RemoveBlip(Blip("B").ID);
    }));
}

TEST_F(ActingBlipTest, ManyMayBeAddedAndRemovedMeanwhile)
{
    const Strings hidden = HiddenBy([&](ActingBlip& blip) {
        if (blip.Name != "b")
            return;
        for (int turn = 0; turn < 100; ++turn) {
            const u32 id = Add("New", 100);
            Map().RemoveBlip(id);
        }
    });
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), hidden);
}

TEST_F(ActingBlipTest, OneMayEndTheMap)
{
    EXPECT_EQ((Strings{"a"}), HiddenBy([&](ActingBlip&) { EndMap(); }));
}
