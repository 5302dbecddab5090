#include "tests/unit/MapTest.h"

#include "teskara/element/TeskElementFactory.h"
#include "teskara/windows/TeskMapView.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/TrappingFloats.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();

} // namespace

class TeskMapTest : public MapTest
{
};

TEST_F(TeskMapTest, AMapMadeWithoutMarkupHasTheDefaultsOfCode)
{
    g_UIManager.LoadElement(g_UIManager.Screen, "map", "M");
    const TeskMap& map = Map();
    EXPECT_STREQ("mapblip", map.BlipFactory);
    EXPECT_EQ(nullptr, map.BlipTemplate);
    EXPECT_EQ(100, map.MapSizeX);
    EXPECT_EQ(100, map.MapSizeY);
    EXPECT_FALSE(map.Radial);
    EXPECT_FALSE(map.ZClipping);
    EXPECT_TRUE(map.ShowLabels);
    EXPECT_FALSE(map.RotationEnabled);
    EXPECT_FALSE(map.ClipLabels);
    EXPECT_EQ(-10, map.ZClipLow);
    EXPECT_EQ(10, map.ZClipHigh);
    EXPECT_EQ(0u, map.HoverBlip);
    EXPECT_EQ(0u, map.BlipCount);
    EXPECT_EQ(nullptr, map.Tooltip);
}

TEST_F(TeskMapTest, MarkupWithoutValuesGivesTheDefaultsOfMarkup)
{
    Load("<map name='M'/>");
    const TeskMap& map = Map();
    EXPECT_STREQ("mapblip", map.BlipFactory);
    ASSERT_NE(nullptr, map.BlipTemplate);
    EXPECT_EQ("", *map.BlipTemplate);
    EXPECT_EQ(0, map.MapSizeX);
    EXPECT_EQ(0, map.MapSizeY);
    EXPECT_FALSE(map.ShowLabels);
}

TEST_F(TeskMapTest, MarkupGivesTheWholeSizeAndTheFieldHoldsHalf)
{
    Load("<map name='M'><ClipZ/><ClipRadius/><ShowLabels/><Rotation/><MapSizeX>30</MapSizeX><MapSizeY>5</MapSizeY>"
         "<BlipFactory>frame</BlipFactory><BlipTemplate>t</BlipTemplate></map>");
    const TeskMap& map = Map();
    EXPECT_TRUE(map.ZClipping);
    EXPECT_TRUE(map.Radial);
    EXPECT_TRUE(map.ShowLabels);
    EXPECT_TRUE(map.RotationEnabled);
    EXPECT_EQ(15, map.MapSizeX);
    EXPECT_EQ(2.5f, map.MapSizeY);
    EXPECT_STREQ("frame", map.BlipFactory);
    EXPECT_EQ("t", *map.BlipTemplate);
}

TEST_F(TeskMapTest, TheNameOfAFactoryIsCutToItsRoom)
{
    Load("<map name='M'><BlipFactory>" + std::string(100, 'x') + "</BlipFactory></map>");
    EXPECT_EQ(std::string(63, 'x'), Map().BlipFactory);
}

TEST_F(TeskMapTest, IsAMapByItsWord)
{
    TeskMap& map = LoadMap();
    EXPECT_TRUE(map.IsTypeOf("MAP"));
    EXPECT_TRUE(map.IsTypeOf("teskelement"));
    EXPECT_FALSE(map.IsTypeOf("frame"));
}

TEST_F(TeskMapTest, ANewBlipHasWhatItWasAddedWith)
{
    LoadMap();
    const u32 id = Add("Town", 1, 2, 3, 20, "A label");
    const TeskMapBlip& blip = Blip("Town");
    EXPECT_EQ(id, blip.ID);
    EXPECT_EQ("town", blip.Name);
    EXPECT_EQ("mapblip", blip.Type);
    EXPECT_EQ(1, blip.Location.x);
    EXPECT_EQ(2, blip.Location.y);
    EXPECT_EQ(3, blip.Location.z);
    EXPECT_EQ(20u, blip.Width);
    EXPECT_EQ(20u, blip.Height);
    EXPECT_EQ("A label", *blip.Label);
    EXPECT_EQ(nullptr, blip.Custom);
    EXPECT_EQ(0xff0000ffu, blip.BackgroundColor);
    EXPECT_EQ(&blip, Map().BlipsByID.Find(id));
    EXPECT_EQ(1u, Map().BlipCount);
}

TEST_F(TeskMapTest, ABlipOfItsOwnTemplateAndFactory)
{
    TeskMap& map = LoadMap();
    g_UIManager.AddTemplate("other", "<Template><BackgroundColor>7</BackgroundColor></Template>");
    map.AddBlip("A", {}, 12, nullptr, "other", nullptr);
    EXPECT_EQ(7u, Blip("A").BackgroundColor);
    EXPECT_EQ(0u, map.AddBlip("B", {}, 12, nullptr, nullptr, "none"));
    EXPECT_EQ("PrintLine \"No UI element factory for type none\"\n", Host.TakeCalls());
    map.BlipTemplate.reset();
    map.AddBlip("C", {}, 12, nullptr, "", "");
    EXPECT_EQ(0u, Blip("C").BackgroundColor);
    EXPECT_EQ(0u, map.AddBlip("D", {}, 12, nullptr, "unknown", nullptr));
    EXPECT_EQ((Strings{"A", "C"}), Names());
}

TEST_F(TeskMapTest, NewBlipAddsNoneToTheMap)
{
    TeskMap& map = LoadMap();
    const TeskMapBlip* blip = map.NewBlip("A", nullptr, nullptr);
    ASSERT_NE(nullptr, blip);
    EXPECT_EQ(&map, blip->Parent);
    EXPECT_EQ(nullptr, map.FindBlip("A"));
    EXPECT_EQ(nullptr, map.NextBlip(*blip));
    EXPECT_EQ(0u, map.BlipCount);
}

TEST_F(TeskMapTest, ThereIsNoBlipWithoutAName)
{
    LoadMap();
    EXPECT_EQ(0u, Add(""));
    EXPECT_EQ(0u, Add(nullptr));
    EXPECT_EQ(nullptr, Map().FindBlip(nullptr));
    EXPECT_EQ(0u, Map().BlipCount);
}

TEST_F(TeskMapTest, NamesOfBlipsDifferByTheirBytesAndNamesOfChildrenDoNot)
{
    LoadMap();
    Add("Town");
    EXPECT_EQ(nullptr, Map().FindBlip("town"));
    EXPECT_EQ(0u, Add("town"));
    EXPECT_EQ("PrintLine \"Child named 'town' already exists in parent element 'm'\"\n", Host.TakeCalls());
    EXPECT_EQ((Strings{"Town"}), Names());
}

TEST_F(TeskMapTest, BlipsAreWalkedByTheBytesOfTheirNames)
{
    LoadMap();
    for (const char* name : {"b", "C", "\xc3\xa4", "a", "Ab", "1"})
        Add(name);
    EXPECT_EQ((Strings{"1", "Ab", "C", "a", "b", "\xc3\xa4"}), Names());
    EXPECT_EQ((Strings{"b", "C", "\xc3\xa4", "a", "Ab", "1"}), NamesByID());
}

TEST_F(TeskMapTest, ABlipOfTheSameNameReplacesTheFirstAndCountsTwice)
{
    LoadMap();
    const u32 first = Add("Town", 1);
    const u32 second = Add("Town", 2);
    EXPECT_NE(first, second);
    EXPECT_EQ(nullptr, g_UIManager.FindElementByID(first));
    EXPECT_EQ(2u, Map().BlipCount);
    EXPECT_EQ((Strings{"Town"}), Names());
    Map().RemoveBlip(second);
    EXPECT_EQ(1u, Map().BlipCount);
    Map().ClearBlips();
    EXPECT_EQ(0u, Map().BlipCount);
}

// The map is handed what belongs to the blip that ends.
TEST_F(TeskMapTest, ABlipMayBeReplacedByWhatItHolds)
{
    LoadMap();
    Add("town", 5, 6, 7, 12, "A label that is long enough to stand in memory of its own");
    TeskMapBlip& old = Blip("town");
    Map().AddBlip(old.Name.c_str(), old.Location, old.Width, old.Label->c_str(), "dot", old.Type.c_str());
    EXPECT_EQ(6, Blip("town").Location.y);
    EXPECT_EQ("A label that is long enough to stand in memory of its own", *Blip("town").Label);
}

TEST_F(TeskMapTest, ARemovedBlipIsGone)
{
    LoadMap();
    const u32 id = Add("A");
    Add("B");
    Map().RemoveBlip(id);
    EXPECT_EQ(nullptr, g_UIManager.FindElementByID(id));
    EXPECT_EQ((Strings{"B"}), Names());
    EXPECT_EQ(1u, Map().BlipCount);
    Map().RemoveBlip(id);
    Map().RemoveBlip(0);
    Map().RemoveBlip(Map().ID);
    EXPECT_EQ(1u, Map().BlipCount);
}

TEST_F(TeskMapTest, ABlipDeletedAsAChildLeavesTheMap)
{
    LoadMap();
    Add("A");
    Add("B");
    Map().DeleteChild(&Blip("A"));
    EXPECT_EQ((Strings{"B"}), Names());
    EXPECT_EQ((Strings{"B"}), NamesByID());
    EXPECT_EQ(1u, Map().BlipCount);
}

TEST_F(TeskMapTest, ClearingLeavesWhatIsNoBlipOfTheMap)
{
    LoadMap({}, "<frame name='F'/><mapblip name='child'/>");
    for (const char* name : {"A", "B", "C"})
        Add(name);
    Map().ClearBlips();
    EXPECT_EQ(Strings{}, Names());
    EXPECT_EQ(Strings{}, NamesByID());
    EXPECT_EQ(0u, Map().BlipCount);
    EXPECT_NE(nullptr, g_UIManager.FindElement("F@M"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("child@M"));
}

TEST_F(TeskMapTest, BlipsAreMovedLabelledAndSizedByTheirIDs)
{
    LoadMap();
    const u32 id = Add("A");
    TeskMap& map = Map();
    map.UpdateBlip(id, {4, 5, 6});
    EXPECT_EQ(5, Blip("A").Location.y);
    map.UpdateBlipLabel(id, "label");
    EXPECT_EQ("label", *Blip("A").Label);
    map.UpdateBlipLabel(id, Blip("A").Label->c_str());
    EXPECT_EQ("label", *Blip("A").Label);
    map.UpdateBlipLabel(id, nullptr);
    EXPECT_EQ(nullptr, Blip("A").Label);
    map.UpdateBlipSize(id, 30);
    EXPECT_EQ(30u, Blip("A").Width);
    EXPECT_EQ(30u, Blip("A").Height);
    for (const u32 unknown : {0u, id + 1, map.ID}) {
        map.UpdateBlip(unknown, {});
        map.UpdateBlipLabel(unknown, "x");
        map.UpdateBlipSize(unknown, 1);
    }
    EXPECT_EQ(5, Blip("A").Location.y);
}

TEST_F(TeskMapTest, AFramePlacesWhatLiesInTheBoxAndHidesTheRest)
{
    LoadMap();
    Add("A", 0, 0);
    Add("B", 20, -10);
    Add("C", 20.5f, 0);
    EXPECT_EQ("94,44", PlaceOf("A"));
    EXPECT_EQ("194,-6", PlaceOf("B"));
    EXPECT_EQ("hidden", PlaceOf("C"));
    Map().Origin = {1, 0, 0};
    EXPECT_EQ("191,44", PlaceOf("C"));
}

TEST_F(TeskMapTest, ABlipHiddenByAScriptIsShownByTheNextFrame)
{
    LoadMap();
    Add("A");
    Blip("A").Show(false);
    EXPECT_EQ("94,44", PlaceOf("A"));
    Map().UpdateBlip(Blip("A").ID, {100, 0, 0});
    Blip("A").Show(true);
    EXPECT_EQ("hidden", PlaceOf("A"));
}

TEST_F(TeskMapTest, ABlipMovesUntilItIsHiddenAndKeepsItsLastPlaceThen)
{
    LoadMap();
    const u32 id = Add("A", 10, 0);
    EXPECT_EQ("144,44", PlaceOf("A"));
    Map().UpdateBlip(id, {50, 0, 0});
    EXPECT_EQ("hidden", PlaceOf("A"));
    EXPECT_EQ(144, Blip("A").X);
}

TEST_F(TeskMapTest, ARoundMapHidesWhatLiesAtItsRadius)
{
    LoadMap("<ClipRadius/>");
    Add("A", 20, 0);
    Add("B", 10, 10);
    EXPECT_EQ("hidden", PlaceOf("A"));
    EXPECT_EQ("144,69", PlaceOf("B"));
}

TEST_F(TeskMapTest, OnlyTheHeightOfABoxIsKeptFromBeingZero)
{
    Load("<map name='M'><Width>200</Width><Height>100</Height></map>");
    Add("A");
    Add("B", 0.5f, 0);
    EXPECT_EQ("-2147483648,44", PlaceOf("A"));
    EXPECT_EQ("hidden", PlaceOf("B"));
    EXPECT_EQ(0, Map().MapSizeX);
    EXPECT_EQ(1, Map().MapSizeY);
}

TEST_F(TeskMapTest, TheRadiusOfARoundMapIsKeptFromBeingZero)
{
    Load("<map name='M'><Width>200</Width><Height>100</Height><ClipRadius/></map>");
    Add("A", 0.5f, 0);
    EXPECT_EQ("144,44", PlaceOf("A"));
    EXPECT_EQ(1, Map().MapSizeX);
    EXPECT_EQ(0, Map().MapSizeY);
}

TEST_F(TeskMapTest, HeightsAreClippedOnDemand)
{
    LoadMap("<ClipZ/>");
    Add("A", 0, 0, 10.5f);
    Add("B", 0, 0, -10);
    EXPECT_EQ("hidden", PlaceOf("A"));
    EXPECT_EQ("94,44", PlaceOf("B"));
    Map().Origin.z = 1;
    EXPECT_EQ("94,44", PlaceOf("A"));
    EXPECT_EQ("hidden", PlaceOf("B"));
}

TEST_F(TeskMapTest, PlacesThatAreNoNumbersAreSurvived)
{
    LoadMap();
    Add("A", NoNumber, 0);
    Add("B", Infinity, 0);
    Add("C", 3e38f, -3e38f);
    for (const bool isRound : {false, true}) {
        Map().Radial = isRound;
        for (const float x : {0.0f, NoNumber, Infinity, 3e38f, -1.0f}) {
            Map().Origin = {x, x, x};
            Map().MapSizeX = Map().MapSizeY = x;
            Map().Rotation = x;
            Map().RotationEnabled = !Map().RotationEnabled;
            Frame();
        }
    }
    Map().Origin = {};
    Map().MapSizeX = Map().MapSizeY = 20;
    Map().Radial = Map().RotationEnabled = false;
    EXPECT_EQ("-2147483648,", PlaceOf("A").substr(0, 12));
}

#ifdef __GLIBC__
TEST_F(TeskMapTest, AHostThatTrapsInvalidNumbersIsNotTrapped)
{
    LoadMap();
    Add("A", NoNumber, Infinity);
    Add("B", 3e38f, -3e38f);
    Map().Origin = {-3e38f, Infinity, 0};
    Map().MapSizeX = 0;
    const TrappingFloats traps;
    g_UIManager.Render();
    Map().Radial = true;
    g_UIManager.Render();
    EXPECT_TRUE(traps.AreStillSet());
}
#endif

TEST_F(TeskMapTest, OtherChildrenAreNotMoved)
{
    LoadMap({}, "<mapblip name='Own'><X>3</X><Width>5</Width></mapblip><frame name='F'><X>4</X></frame>");
    Frame();
    EXPECT_EQ("3,0", PlaceOf(Element("Own@M")));
    EXPECT_EQ("4,0", PlaceOf(Element("F@M")));
}

TEST_F(TeskMapTest, ANewBlipLiesAboveTheOthersOfItsStrata)
{
    LoadMap({}, "<frame name='Top'><Strata>5</Strata></frame>");
    Add("A");
    Add("B");
    EXPECT_EQ("top", Map().LastChild->Name);
    EXPECT_EQ("b", Map().LastChild->Previous->Name);
    EXPECT_EQ("a", Map().FirstChild->Name);
}

TEST_F(TeskMapTest, AFactoryOfAnotherKindLeavesNothingBehind)
{
    TeskMap& map = LoadMap();
    g_UIManager.AddTemplate("window", "<Template><Client/></Template>");
    const std::size_t count = g_UIManager.ElementsByID.size();
    for (const char* kind : {"button", "window", "map", "mapview", "listbox", "gaugefiller", "mapblipview"}) {
        EXPECT_EQ(0u, map.AddBlip("A", {}, 12, nullptr, nullptr, kind)) << kind;
        EXPECT_EQ(0u, map.AddBlip("A", {}, 12, nullptr, "window", kind)) << kind;
        EXPECT_EQ(count, g_UIManager.ElementsByID.size()) << kind;
    }
    g_UIManager.AddTemplate("window", "<Template/>"); // and then the window has no client to give back
    EXPECT_EQ(0u, map.AddBlip("A", {}, 12, nullptr, "window", "window"));
    EXPECT_EQ(count, g_UIManager.ElementsByID.size());
    EXPECT_EQ(0u, map.BlipCount);
}

TEST_F(TeskMapTest, AChildOfTheNameIsNoStrayOfAFailedBlip)
{
    LoadMap({}, "<frame name='Taken'/>");
    EXPECT_EQ(0u, Add("Taken"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("Taken@M"));
}

TEST_F(TeskMapTest, ABlipThatCannotBeDeletedIsNoLongerKnown)
{
    LoadMap();
    const u32 id = Add("A");
    TeskElementFactory* factory = g_UIManager.FindFactory("mapblip");
    factory->Unregister();
    Map().ClearBlips();
    EXPECT_NE(nullptr, g_UIManager.FindElementByID(id));
    EXPECT_EQ(Strings{}, Names());
    factory->Register("mapblip", TeskaraVersion);
    Frame();
    g_UIManager.Reset();
    EXPECT_NE(nullptr, g_UIManager.FindElementByID(id));
    g_UIManager.FindElementByID(id)->Delete();
}

TEST_F(TeskMapTest, WithoutMemoryABlipIsNotAdded)
{
    LoadMap();
    Add("First");
    bool added = false;
    for (std::size_t failure = 0; !added; ++failure) {
        ASSERT_LT(failure, 500u);
        const std::size_t children = g_UIManager.ElementsByID.size();
        Allocations::FailAfter(failure, Allocations::Failing::Once);
        const u32 id = Map().AddBlip("A blip with a long name that needs memory", {1, 2, 3}, 12,
            "A label that is long enough to need memory, too", nullptr, nullptr);
        Allocations::Allow();
        Host.TakeCalls();
        added = id != 0;
        EXPECT_EQ(added ? 2u : 1u, Map().BlipCount);
        EXPECT_EQ(added ? 2u : 1u, Names().size());
        EXPECT_EQ(children + added, g_UIManager.ElementsByID.size()) << failure;
    }
    Frame();
}

TEST_F(TeskMapTest, AMapWhoseBlipsMoveAllocatesNothing)
{
    LoadMap("<ShowLabels/>");
    Host.Recorded = 0;
    std::vector<u32> ids;
    for (int number = 0; number < 50; ++number)
        ids.push_back(Add(("Blip " + std::to_string(number)).c_str(), 0, 0, 0, 12, "label"));
    g_UIManager.Render();
    const std::size_t before = Allocations::Count();
    for (int frame = 0; frame < 100; ++frame) {
        for (const u32 id : ids)
            Map().UpdateBlip(id, {static_cast<float>(frame) - static_cast<float>(id), 0, 0});
        g_UIManager.Render();
    }
    EXPECT_EQ(before, Allocations::Count());
}

TEST_F(TeskMapTest, AMapEndsBeforeItsBlips)
{
    LoadMap("<ShowLabels/>", "<tooltip name='Tooltip'/>");
    UseDot("<OnSetTooltip>tip</OnSetTooltip><OnUnload>unload</OnUnload>");
    int unloads = 0;
    Host.Scripts["unload"] = [&](TeskElement&) {
        ++unloads;
        EXPECT_EQ(nullptr, dynamic_cast<TeskMap*>(g_UIManager.FindElement("M")));
    };
    Add("A", 0, 0, 0, 12, "label");
    Add("B", 10);
    Frame();
    MoveTo(100, 50);
    EXPECT_NE(0u, Map().HoverBlip);
    g_UIManager.Screen->DeleteChild(&Map());
    EXPECT_EQ(2, unloads);
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
}
