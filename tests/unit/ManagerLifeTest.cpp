#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <string>

namespace {

void SendInput(CUIManager& manager)
{
    for (_Point2i point : {_Point2i{0, 0}, _Point2i{INT_MAX, INT_MIN}, _Point2i{-1, -1}})
        manager.OnMouseMove(point);
    manager.OnLMouseDown();
    manager.OnLMouseUp();
    manager.OnRMouseDown();
    manager.OnRMouseUp();
    manager.OnMouseWheel(INT_MIN);
    for (const unsigned int key : {0u, 16u, 255u, 256u, UINT_MAX}) {
        manager.OnKeyDown(key);
        manager.OnKeyUp(key);
    }
}

void AskForNothing(CUIManager& manager)
{
    _Point2i size;
    EXPECT_EQ(18u, manager.GetVersion());
    EXPECT_EQ(nullptr, manager.FindElement(nullptr));
    EXPECT_EQ(nullptr, manager.FindElementByID(0));
    EXPECT_EQ(nullptr, manager.FindFactory(nullptr));
    EXPECT_FALSE(manager.ShowElement(nullptr, true));
    EXPECT_FALSE(manager.ShowElement(nullptr, false));
    EXPECT_FALSE(manager.ToggleElement(nullptr));
    manager.GetTextureSize(0, size);
    EXPECT_EQ(nullptr, manager.GetFocusElement());
    EXPECT_EQ(nullptr, manager.SetFocusElement());
    manager.SetFocusElement(nullptr);
    EXPECT_EQ(0u, manager.FocusElementID);
    EXPECT_EQ(nullptr, manager.GetElementMetadata(0, nullptr));
    EXPECT_FALSE(manager.RemoveElementMetadata(0, nullptr));
    manager.ClearElementMetadata(nullptr);
}

void LoadNothing(CUIManager& manager)
{
    EXPECT_FALSE(manager.LoadInterfaceXML(nullptr, false, nullptr));
    EXPECT_FALSE(manager.LoadInterfaceXML(nullptr, nullptr, nullptr, true, nullptr));
    EXPECT_FALSE(manager.LoadInterfaceXML(static_cast<TeskElement*>(nullptr), nullptr, false, nullptr));
    EXPECT_FALSE(manager.LoadInterfaceXML(nullptr, nullptr, nullptr, nullptr, true, nullptr));
    EXPECT_FALSE(manager.UnloadInterfaceXML(nullptr));
    EXPECT_EQ(nullptr, manager.LoadElement(nullptr, "frame", "Panel"));
    EXPECT_EQ(nullptr, manager.LoadElement(manager.Screen, nullptr, "Panel"));
    EXPECT_EQ(nullptr, manager.LoadElement(manager.Screen, "frame", nullptr));
    EXPECT_EQ(nullptr, manager.LoadElement(manager.Screen, "frame", ""));
    EXPECT_EQ(nullptr, manager.LoadElement(manager.Screen, "frame", "Panel", nullptr, nullptr));
}

void StoreNothing(CUIManager& manager)
{
    EXPECT_EQ(nullptr, manager.AddTemplate(nullptr, "<Template/>"));
    EXPECT_EQ(nullptr, manager.AddTemplate("", "<Template/>"));
    EXPECT_EQ(nullptr, manager.AddTemplate("Name", static_cast<const char*>(nullptr)));
    EXPECT_EQ(nullptr, manager.AddTemplate("Name", static_cast<XMLNode*>(nullptr)));
    EXPECT_EQ(nullptr, manager.FindTemplate(nullptr));
    EXPECT_EQ(nullptr, manager.FindTemplate(""));
    manager.RemoveTemplate(nullptr);
    manager.RemoveTemplate("");
    manager.ClearTemplates();
    EXPECT_EQ(nullptr, manager.NewSkin(nullptr));
    EXPECT_EQ(nullptr, manager.NewSkin(""));
    EXPECT_EQ(nullptr, manager.FindSkin(nullptr));
    EXPECT_EQ(nullptr, manager.FindSkin(""));
    manager.RemoveSkin(nullptr);
    manager.RemoveSkin("");
}

void ExpectNothingHeld(const CUIManager& manager)
{
    EXPECT_TRUE(manager.ElementsByName.empty());
    EXPECT_TRUE(manager.ElementsByID.empty());
    EXPECT_EQ(nullptr, manager.Screen);
    EXPECT_TRUE(manager.Factories.empty());
    EXPECT_EQ(1u, manager.NextElementID);
    EXPECT_TRUE(manager.Templates.empty());
    EXPECT_TRUE(manager.Skins.empty());
    EXPECT_EQ(nullptr, manager.CurrentSkin);
    EXPECT_STREQ("Tesk", manager.RootTagName);
    EXPECT_STREQ("", manager.CurrentFile);
    EXPECT_FALSE(manager.ShuttingDown);
    EXPECT_EQ(0u, manager.ObjectClass);
    EXPECT_TRUE(manager.ElementMetadata.empty());
}

void ExpectNoInput(const CUIManager& manager)
{
    for (const u32 id : {manager.FocusElementID, manager.MouseOverElementID, manager.LeftPressElementID,
             manager.RightPressElementID, manager.MouseCaptureElementID, manager.TooltipElementID,
             manager.LastLeftClickElementID, manager.LastRightClickElementID})
        EXPECT_EQ(0u, id);
    for (const u32 tick :
        {manager.MouseEnterTick, manager.LastInputTick, manager.LastLeftClickTick, manager.LastRightClickTick})
        EXPECT_EQ(0u, tick);
    EXPECT_FALSE(manager.ShiftDown || manager.AltDown || manager.CtrlDown || manager.ZOrderChanged);
    EXPECT_EQ(ButtonUp, manager.LeftButtonState);
    EXPECT_EQ(ButtonUp, manager.RightButtonState);
    EXPECT_EQ(-1, manager.MousePosition.x);
    EXPECT_EQ(-1, manager.MousePosition.y);
    EXPECT_EQ(0, manager.LastClickPosition.x);
    EXPECT_EQ(0, manager.LastClickPosition.y);
    EXPECT_EQ(256, std::count(std::begin(manager.KeyState), std::end(manager.KeyState), u8{0}));
    EXPECT_TRUE(manager.KeyStates.empty());
}

void DoEverythingWithNothing()
{
    AskForNothing(g_UIManager);
    LoadNothing(g_UIManager);
    StoreNothing(g_UIManager);
    SendInput(g_UIManager);
    g_UIManager.ResetMouseState();
    g_UIManager.Render();
    g_UIManager.Reset();
}

} // namespace

TEST(ManagerLifeDeathTest, ANewManagerHasNothingAndItsOwnTimes)
{
    InFreshProcess([] {
        TestPlatform platform;
        SetPlatform(&platform);
        {
            CUIManager manager;
            ExpectNothingHeld(manager);
            ExpectNoInput(manager);
            EXPECT_EQ(10000u, manager.FrameTick);
            EXPECT_EQ(1000u, manager.TooltipDelay);
            EXPECT_EQ(250u, manager.DoubleClickTime);
            EXPECT_EQ(50u, manager.KeyRepeatRate);
            EXPECT_EQ(250u, manager.KeyRepeatDelay);
        }
        EXPECT_EQ(34u, g_UIManager.Factories.size()) << "the kinds are there as soon as the library is";
        EXPECT_EQ(1u, g_UIManager.NextElementID);
        SetPlatform(nullptr);
    });
}

TEST(ManagerLifeDeathTest, NothingIsDoneWithNothingInEveryStageOfLife)
{
    InFreshProcess([] {
        DoEverythingWithNothing();
        g_UIManager.Initialize(); // without a host
        g_UIManager.Shutdown();
        EXPECT_EQ(nullptr, g_UIManager.Screen);
        EXPECT_FALSE(g_UIManager.ShuttingDown);

        ScriptHost host;
        EXPECT_EQ(&g_UIManager, F1(nullptr));
        g_UIManager.Initialize();
        EXPECT_EQ(nullptr, g_UIManager.Screen);
        EXPECT_EQ(&g_UIManager, F1(&host));
        DoEverythingWithNothing();
        EXPECT_EQ(nullptr, g_UIManager.Screen);

        g_UIManager.Initialize();
        DoEverythingWithNothing();
        EXPECT_NE(nullptr, g_UIManager.Screen);

        g_UIManager.Shutdown();
        DoEverythingWithNothing();
        EXPECT_EQ(nullptr, g_UIManager.Screen);
        EXPECT_TRUE(g_UIManager.ShuttingDown);
    });
}

TEST(ManagerLifeDeathTest, AHostThatIsTakenAwayLeavesAToolkitThatStillAnswers)
{
    InFreshProcess([] {
        ScriptHost host;
        F1(&host);
        g_UIManager.Initialize();
        ASSERT_TRUE(g_UIManager.LoadElement(g_UIManager.Screen, "text", "Label"));
        F1(nullptr);
        DoEverythingWithNothing();
        g_UIManager.Shutdown();
        EXPECT_FALSE(g_UIManager.ShuttingDown);
        F1(&host);
        g_UIManager.Shutdown();
        EXPECT_TRUE(host.Types.empty());
        EXPECT_TRUE(host.Commands.empty());
    });
}

TEST(ManagerLifeDeathTest, AShutdownInsideTheStartLeavesNothingBehind)
{
    WithHost([](ScriptHost& host) {
        host.OnAddType = [](MvTypeDefinition* type) {
            if (std::string(type->GetName()) == "teskframe")
                g_UIManager.Shutdown();
        };
        g_UIManager.Initialize();
        EXPECT_TRUE(host.Types.empty());
        EXPECT_TRUE(host.Objects.empty());
        EXPECT_TRUE(host.Commands.empty());
        EXPECT_EQ(nullptr, g_UIManager.Screen);
    });
}

TEST(ManagerLifeDeathTest, AStartInsideAResetMakesNoSecondScreen)
{
    WithToolkit([](ScriptHost& host) {
        ASSERT_TRUE(g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Panel"));
        host.OnInvalidateObject = [] { g_UIManager.Initialize(); };
        g_UIManager.Reset();
        host.OnInvalidateObject = nullptr;
        EXPECT_NE(nullptr, g_UIManager.Screen);
        EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
        EXPECT_EQ(g_UIManager.Screen, g_UIManager.FindElement("Screen"));
    });
}

TEST(ManagerLifeDeathTest, AShutdownInsideAResetLeavesNoScreen)
{
    WithToolkit([](ScriptHost& host) {
        ASSERT_TRUE(g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Panel"));
        host.OnInvalidateObject = [] { g_UIManager.Shutdown(); };
        g_UIManager.Reset();
        host.OnInvalidateObject = nullptr;
        EXPECT_EQ(nullptr, g_UIManager.Screen);
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
    });
}

TEST(ManagerLifeDeathTest, EverythingHeldIsGivenBackWhenTheToolkitEnds)
{
    WithToolkit([](ScriptHost& host) {
        g_UIManager.AddTemplate("Name", "<Template/>");
        g_UIManager.NewSkin("dark");
        g_UIManager.CurrentSkin = g_UIManager.FindSkin("dark");
        g_UIManager.Shutdown();
        EXPECT_TRUE(g_UIManager.Templates.empty());
        EXPECT_NE(nullptr, g_UIManager.FindSkin("dark"));
        EXPECT_TRUE(g_UIManager.ElementsByName.empty());
        host.Types.clear();
        g_UIManager.Shutdown();
        g_UIManager.Initialize();
        EXPECT_TRUE(host.Types.empty());
        EXPECT_EQ(nullptr, g_UIManager.Screen);
    });
}

TEST(ManagerLifeDeathTest, AKindOfAnotherVersionIsRefusedBeforeThereIsAHost)
{
    InFreshProcess([] {
        const TeskFactory<TeskElement> factory("stranger", TeskaraVersion + 1);
        EXPECT_EQ(nullptr, g_UIManager.FindFactory("stranger"));
        const TeskFactory<TeskElement> known("known");
        EXPECT_EQ(&known, g_UIManager.FindFactory("known"));
    });
}

// Every so often, because each start takes a process of its own.
TEST(ManagerLifeDeathTest, AStartMayRunOutOfMemoryAnywhere)
{
    for (const auto failing : {Allocations::Failing::Once, Allocations::Failing::FromThenOn}) {
        bool wasReached = true;
        for (std::size_t failure = 0; wasReached; failure += failure / 2 + 1) {
            const std::size_t needed = 100000;
            ASSERT_LT(failure, needed);
            int status = 0;
            std::fflush(nullptr);
            const pid_t child = fork();
            if (child == 0) {
                ScriptHost host;
                F1(&host);
                const std::size_t before = Allocations::Count();
                Allocations::FailAfter(failure, failing);
                g_UIManager.Initialize();
                const bool reached = Allocations::Count() - before > failure;
                DoEverythingWithNothing();
                Allocations::Allow();
                DoEverythingWithNothing();
                g_UIManager.Shutdown();
                const bool isEmpty = g_UIManager.ElementsByID.empty() && host.Types.empty() && host.Commands.empty();
                std::fflush(nullptr);
                std::exit(!isEmpty || testing::Test::HasFailure() ? 2 : reached);
            }
            ASSERT_EQ(child, waitpid(child, &status, 0));
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) < 2) << "at allocation " << failure;
            wasReached = WEXITSTATUS(status) == 1;
        }
    }
}
