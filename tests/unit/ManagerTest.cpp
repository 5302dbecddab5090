#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskConsole.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ScriptHost.h"
#include "tests/unit/TemporaryFile.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

class ManagerTest : public ToolkitTest
{
protected:
    ~ManagerTest() override { g_UIManager.MouseCaptureElementID = 0; }

    // Writes down which of its scripts ran, each as EVENT:NAME.
    void Note(const char* event)
    {
        Host.Scripts[event] = [this, event](
                                  TeskElement& self) { Events += std::string(event) + ":" + self.Name + " "; };
    }

    static void MoveTo(int x, int y)
    {
        _Point2i point{x, y};
        g_UIManager.OnMouseMove(point);
    }

    std::string TakeEvents()
    {
        std::string taken;
        taken.swap(Events);
        return taken;
    }

    std::string Events;
};

// --- Metadata

TEST_F(ManagerTest, MetadataAreNamedTextsOfAnID)
{
    Load(R"(<frame name="A"/><frame name="B"/>)");
    const u32 a = Element("A").ID;
    const u32 b = Element("B").ID;
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(a, "Color"));
    EXPECT_FALSE(g_UIManager.RemoveElementMetadata(a, "Color"));
    EXPECT_TRUE(g_UIManager.ElementMetadata.empty());

    g_UIManager.SetElementMetadata(a, "Color", "red");
    EXPECT_STREQ("red", g_UIManager.GetElementMetadata(a, "cOLOR"));
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(a, "Colour"));
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(b, "Color"));

    g_UIManager.SetElementMetadata(a, "COLOR", "blue");
    EXPECT_STREQ("blue", g_UIManager.GetElementMetadata(a, "Color"));
    EXPECT_TRUE(g_UIManager.RemoveElementMetadata(a, "unknown"));
    EXPECT_TRUE(g_UIManager.RemoveElementMetadata(a, "color"));
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(a, "Color"));
    EXPECT_TRUE(g_UIManager.RemoveElementMetadata(a, "color")) << "the id still has its texts, though none is left";
    EXPECT_FALSE(g_UIManager.RemoveElementMetadata(b, "color"));
}

TEST_F(ManagerTest, MetadataGoWithTheirElement)
{
    Load(R"(<frame name="A"/>)");
    TeskElement& element = Element("A");
    const u32 id = element.ID;
    g_UIManager.SetElementMetadata(id, "Color", "red");
    g_UIManager.Screen->DeleteChild(&element);
    EXPECT_TRUE(g_UIManager.ElementMetadata.empty());

    Load(R"(<frame name="A"/>)");
    EXPECT_EQ(nullptr, g_UIManager.GetElementMetadata(Element("A").ID, "Color"));
}

TEST_F(ManagerTest, MetadataCanBeClearedByHand)
{
    Load(R"(<frame name="A"/>)");
    g_UIManager.SetElementMetadata(Element("A").ID, "Color", "red");
    g_UIManager.ClearElementMetadata(&Element("A"));
    EXPECT_TRUE(g_UIManager.ElementMetadata.empty());
    g_UIManager.ClearElementMetadata(&Element("A"));
}

TEST_F(ManagerTest, MetadataMayHaveEmptyNamesAndTextsAndBeSetToThemselves)
{
    Load(R"(<frame name="A"/>)");
    const u32 id = Element("A").ID;
    g_UIManager.SetElementMetadata(id, nullptr, nullptr);
    EXPECT_STREQ("", g_UIManager.GetElementMetadata(id, ""));
    g_UIManager.SetElementMetadata(
        id, "", "a text that is too long to be kept in place, and is freed when it is replaced");
    g_UIManager.SetElementMetadata(id, "", g_UIManager.GetElementMetadata(id, ""));
    EXPECT_STREQ("a text that is too long to be kept in place, and is freed when it is replaced",
        g_UIManager.GetElementMetadata(id, ""));
}

// --- Ids and names

TEST(ManagerDeathTest, NoElementIsMadeOnceTheIDsAreUsedUp)
{
    WithToolkit([](ScriptHost& host) {
        g_UIManager.NextElementID = 0xffffffffu;
        TeskElement* last = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Last");
        ASSERT_NE(nullptr, last);
        EXPECT_EQ(0xffffffffu, last->ID);
        EXPECT_EQ(last, g_UIManager.FindElementByID(0xffffffffu));

        host.Lines.clear();
        EXPECT_EQ(nullptr, g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Next"));
        ASSERT_EQ(1u, host.Lines.size());
        EXPECT_EQ("CreateUIElement failed on 'Next' under 'screen'", host.Lines[0]);
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Next"));
        EXPECT_EQ(last, g_UIManager.Screen->LastChild);

        g_UIManager.Reset();
        EXPECT_EQ(nullptr, g_UIManager.Screen) << "a screen needs an id, too";
        g_UIManager.Render();
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
    });
}

TEST_F(ManagerTest, OfTwoOfOneFullNameTheLaterIsFound)
{
    Load(R"(<frame name="A"><Children><frame Name="B"/></Children></frame><frame name="B@A"/>)");
    TeskElement* later = g_UIManager.FindElement("b@a");
    ASSERT_NE(nullptr, later);
    EXPECT_EQ(g_UIManager.Screen, later->Parent);

    const u32 nested = Element("A").FirstChild->ID;
    g_UIManager.Screen->DeleteChild(later);
    EXPECT_EQ(nullptr, g_UIManager.FindElement("B@A")) << "the entry went with its element";
    EXPECT_NE(nullptr, g_UIManager.FindElementByID(nested));
}

TEST_F(ManagerTest, TheEarlierOfTwoOfOneFullNameMayGoFirst)
{
    Load(R"(<frame name="A"><Children><frame Name="B"/></Children></frame><frame name="B@A"/>)");
    TeskElement* later = g_UIManager.FindElement("B@A");
    g_UIManager.Screen->DeleteChild(&Element("A"));
    EXPECT_EQ(later, g_UIManager.FindElement("B@A"));
}

TEST_F(ManagerTest, QuestionsForUnknownNamesLeaveNothingBehind)
{
    const std::size_t names = g_UIManager.ElementsByName.size();
    const std::size_t factories = g_UIManager.Factories.size();
    for (int question = 0; question < 1000; ++question) {
        const std::string name = "nobody" + std::to_string(question);
        EXPECT_EQ(nullptr, g_UIManager.FindElement(name.c_str()));
        EXPECT_EQ(nullptr, g_UIManager.FindFactory(name.c_str()));
        EXPECT_EQ(nullptr, g_UIManager.FindTemplate(name.c_str()));
        EXPECT_EQ(nullptr, g_UIManager.FindSkin(name.c_str()));
    }
    EXPECT_EQ(names, g_UIManager.ElementsByName.size());
    EXPECT_EQ(factories, g_UIManager.Factories.size());
    EXPECT_TRUE(g_UIManager.Templates.empty());
}

// --- The mouse-over element

constexpr char TwoPanels[] = R"(
    <frame name="A"><Width>100</Width><Height>100</Height><OnMouseEnter>enter</OnMouseEnter>
        <OnMouseExit>exit</OnMouseExit></frame>
    <frame name="B"><X>50</X><Width>100</Width><Height>100</Height><OnMouseEnter>enter</OnMouseEnter>
        <OnMouseExit>exit</OnMouseExit></frame>)";

TEST_F(ManagerTest, ACaptureIsSearchedFirstAndEnteredAgainAtEachSearch)
{
    Load(TwoPanels);
    Frame();
    Note("enter");
    Note("exit");
    MoveTo(75, 50);
    EXPECT_EQ("enter:b ", TakeEvents());

    g_UIManager.MouseCaptureElementID = Element("A").ID;
    g_UIManager.TooltipElementID = 7;
    System.Ticks = 20000;
    EXPECT_EQ(&Element("A"), g_UIManager.SetMouseOverElement());
    EXPECT_EQ("enter:a ", TakeEvents()) << "the old element hears of no exit";
    EXPECT_EQ(Element("A").ID, g_UIManager.MouseOverElementID);
    EXPECT_EQ(20000u, g_UIManager.MouseEnterTick);
    EXPECT_EQ(0u, g_UIManager.TooltipElementID);

    System.Ticks = 20001;
    EXPECT_EQ(&Element("A"), g_UIManager.SetMouseOverElement());
    EXPECT_EQ("enter:a ", TakeEvents());
    EXPECT_EQ(20001u, g_UIManager.MouseEnterTick);
}

TEST_F(ManagerTest, ACaptureThatFindsNothingLeavesTheOrdinarySearch)
{
    Load(TwoPanels);
    Frame();
    Note("enter");
    Note("exit");
    g_UIManager.MouseCaptureElementID = Element("A").ID;
    MoveTo(120, 50);
    EXPECT_EQ("enter:b ", TakeEvents());
    MoveTo(75, 50);
    EXPECT_EQ("enter:a ", TakeEvents());
}

TEST_F(ManagerTest, ACaptureThatDiedIsNone)
{
    Load(TwoPanels);
    Frame();
    Note("enter");
    g_UIManager.MouseCaptureElementID = Element("A").ID;
    g_UIManager.Screen->DeleteChild(&Element("A"));
    MoveTo(75, 50);
    EXPECT_EQ("enter:b ", TakeEvents());
}

TEST_F(ManagerTest, AnElementThatACaptureEntersMayDeleteItself)
{
    Load(TwoPanels);
    Frame();
    Host.Scripts["enter"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    g_UIManager.MouseCaptureElementID = Element("A").ID;
    g_UIManager.MousePosition = {10, 10};
    EXPECT_EQ(nullptr, g_UIManager.SetMouseOverElement());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("A"));
}

TEST_F(ManagerTest, TheTickOfEnteringStandsWhileTheElementStays)
{
    Load(TwoPanels);
    Frame();
    System.Ticks = 20000;
    MoveTo(10, 10);
    EXPECT_EQ(20000u, g_UIManager.MouseEnterTick);
    System.Ticks = 20500;
    g_UIManager.TooltipElementID = Element("A").ID;
    MoveTo(11, 10);
    EXPECT_EQ(20000u, g_UIManager.MouseEnterTick);
    EXPECT_EQ(Element("A").ID, g_UIManager.TooltipElementID);
    EXPECT_EQ(20500u, g_UIManager.LastInputTick);
    MoveTo(900, 700);
    EXPECT_EQ(0u, g_UIManager.MouseOverElementID);
    EXPECT_EQ(20000u, g_UIManager.MouseEnterTick) << "being over nothing enters nothing";
}

TEST_F(ManagerTest, AHiddenElementKeepsThePressThatItTook)
{
    Load(R"(<frame name="A"><Width>100</Width><Height>100</Height><OnLeftClick>click</OnLeftClick></frame>)");
    MoveTo(10, 10);
    EXPECT_TRUE(g_UIManager.OnLMouseDown());
    Element("A").Show(false);
    EXPECT_EQ(&Element("A"), g_UIManager.GetMouseOverElement());
    Note("click");
    EXPECT_TRUE(g_UIManager.OnLMouseUp());
    EXPECT_EQ("click:a ", TakeEvents());
}

// --- The frame

TEST_F(ManagerTest, AFrameBeginsInTheCornerOfTheSurface)
{
    Load(R"(<frame name="A"><X>10</X><Y>20</Y></frame>)");
    g_UIManager.Screen->AbsoluteX = 5;
    g_UIManager.Screen->AbsoluteY = 6;
    Frame();
    EXPECT_EQ(0, g_UIManager.Screen->AbsoluteX);
    EXPECT_EQ(0, g_UIManager.Screen->AbsoluteY);
    EXPECT_EQ(10, Element("A").AbsoluteX);
    EXPECT_EQ(20, Element("A").AbsoluteY);
}

// --- The host's resources

TEST_F(ManagerTest, ResourcesGoStraightToTheHost)
{
    Host.Recorded = RecordResources;
    const u32 font = g_UIManager.LoadFontResource("Sans", 12, false, true);
    const u32 texture = g_UIManager.LoadTextureResource("a.png", 0xff00ff);
    _Point2i size;
    EXPECT_TRUE(g_UIManager.GetTextureSize(texture, size));
    EXPECT_EQ(64, size.x);
    Host.RefusesImageSizes = true;
    EXPECT_FALSE(g_UIManager.GetTextureSize(texture, size));
    g_UIManager.ReleaseFontResource(font);
    g_UIManager.ReleaseTextureResource(texture);
    EXPECT_NE(std::string::npos, Host.TakeCalls().find("ReleaseFontResource"));
}

TEST(ManagerDeathTest, AfterTheShutdownNothingIsReleased)
{
    InFreshProcess([] {
        TestHost host;
        host.Recorded = RecordResources;
        F1(&host)->Initialize();
        g_UIManager.Shutdown();
        host.TakeCalls();
        g_UIManager.ReleaseFontResource(1);
        g_UIManager.ReleaseTextureResource(1);
        EXPECT_EQ("", host.TakeCalls());
    });
}

// --- Nesting

TEST_F(ManagerTest, LoadsNestTo32Levels)
{
    const TemporaryFile file("<Tesk><frame name=\"A\"><OnLoad>again</OnLoad></frame></Tesk>");
    Host.Located["test.xml"] = file.Path();
    for (const int wanted : {31, 32, 33}) {
        g_UIManager.Reset();
        int loads = 0;
        int refused = 0;
        Host.Scripts["again"] = [&](TeskElement& self) {
            if (++loads < wanted && !g_UIManager.LoadInterfaceXML(&self, "test.xml", false, nullptr))
                ++refused;
        };
        EXPECT_TRUE(g_UIManager.LoadInterfaceXML("test.xml", false, nullptr));
        EXPECT_EQ(std::min(wanted, 32), loads);
        EXPECT_EQ(wanted > 32 ? 1 : 0, refused);
        int levels = 0;
        for (const TeskElement* deepest = g_UIManager.Screen; deepest->FirstChild; deepest = deepest->FirstChild)
            ++levels;
        EXPECT_EQ(loads, levels);
    }
}

TEST_F(ManagerTest, ScriptsNestTo64Levels)
{
    Load(R"(<frame name="A"><OnLeftClick>again</OnLeftClick></frame>)");
    for (const int wanted : {63, 64, 65, 64}) {
        int calls = 1;
        int runs = 0;
        Host.Scripts["again"] = [&](TeskElement& self) {
            ++runs;
            _Point2i point{};
            if (calls++ < wanted)
                self.OnLMouseUp(point);
        };
        _Point2i point{};
        Element("A").OnLMouseUp(point);
        EXPECT_EQ(std::min(wanted, 64), runs) << "the count begins anew";
    }
}

TEST_F(ManagerTest, EachFormOfALoadMayLoseItsParent)
{
    const TemporaryFile file(
        "<Tesk><frame name='A'><OnLoad>end</OnLoad></frame><frame name='B'><OnLoad>end</OnLoad></frame></Tesk>");
    Host.Located["test.xml"] = file.Path();

    const std::function<bool(TeskElement*, bool)> forms[] = {
        [](TeskElement*, bool replace) { return g_UIManager.LoadInterfaceXML("test.xml", replace, nullptr); },
        [](TeskElement*, bool replace) { return g_UIManager.LoadInterfaceXML("test.xml", "A", "N", replace, nullptr); },
        [](TeskElement* parent, bool replace) {
            return g_UIManager.LoadInterfaceXML(parent, "test.xml", replace, nullptr);
        },
        [](TeskElement* parent, bool replace) {
            return g_UIManager.LoadInterfaceXML(parent, "test.xml", "A", "N", replace, nullptr);
        },
    };
    for (const auto& load : forms) {
        for (const bool replace : {false, true}) {
            int ends = 0;
            Host.Scripts["end"] = [&](TeskElement& self) {
                ++ends;
                if (TeskElement* parent = self.Parent; parent && parent->Parent)
                    parent->Parent->DeleteChild(parent);
                else
                    g_UIManager.Reset();
            };
            TeskElement* parent = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "P");
            EXPECT_TRUE(load(parent, replace));
            EXPECT_EQ(1, ends) << "nothing more is loaded";
            EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
        }
    }
}

TEST_F(ManagerTest, AHundredThousandNamesAreFoundInTime)
{
    constexpr u32 Count = 100000;
    constexpr double Patience = 20; // seconds, under whatever checks; it takes a fraction of one
    const auto start = std::chrono::steady_clock::now();
    // Names that differ in few places only, and in all of them by the same steps.
    for (u32 number = 0; number < Count; ++number)
        g_UIManager.SetElementMetadata(1, (std::string(40, 'x') + std::to_string(number * 64)).c_str(), "v");
    for (u32 number = 0; number < Count; ++number)
        EXPECT_STREQ(
            "v", g_UIManager.GetElementMetadata(1, (std::string(40, 'X') + std::to_string(number * 64)).c_str()));
    g_UIManager.ElementMetadata.clear();
    EXPECT_GT(Patience, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
}

#ifndef NDEBUG
TEST_F(ManagerTest, ACallOnAnotherThreadIsTold)
{
    Load("<console name='C'><Width>100</Width><Height>50</Height><Font/><ScrollBar/></console>");
    auto& console = As<TeskConsole>("C");
    const auto callAll = [&] {
        _Point2i point = {5, 5};
        g_UIManager.Render();
        g_UIManager.OnMouseMove(point);
        g_UIManager.OnMouseWheel(1);
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        g_UIManager.OnRMouseDown();
        g_UIManager.OnRMouseUp();
        g_UIManager.OnKeyDown(65);
        g_UIManager.OnKeyUp(65);
        console.Print("line");
    };
    callAll();
    EXPECT_EQ("", System.DebugOutput);
    std::thread(callAll).join();
    std::string expected;
    for (const char* operation : {"Render", "OnMouseMove", "OnMouseWheel", "OnLMouseDown", "OnLMouseUp", "OnRMouseDown",
             "OnRMouseUp", "OnKeyDown", "OnKeyUp", "Print"})
        expected += std::string("Teskara: ") + operation + " was called on another thread than Initialize\n";
    EXPECT_EQ(expected, System.DebugOutput);
}
#endif
