// Whatever calls out to the host may find, when it comes back, that anything has been deleted, moved or loaded. Here
// each act of a script is tried at each place where the toolkit calls out, on each kind. The rows are in Kinds.cpp,
// Places.cpp and Acts.cpp; a new kind, place or act is one row more.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/ToolkitTest.h"
#include "tests/unit/reentrancy/Acts.h"
#include "tests/unit/reentrancy/Bomb.h"
#include "tests/unit/reentrancy/CellWatch.h"
#include "tests/unit/reentrancy/ForeignElements.h"
#include "tests/unit/reentrancy/Kinds.h"
#include "tests/unit/reentrancy/MatrixHost.h"
#include "tests/unit/reentrancy/Places.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

bool HasTraits(const Kind& kind, u64 traits)
{
    return (traits & ~kind.Traits) == 0;
}

bool Reaches(const Kind& kind, const Place& place)
{
    return HasTraits(kind, place.Needs) && (kind.Traits & place.Unless) == 0;
}

class ReentrancyMatrix : public ToolkitTest, public testing::WithParamInterface<Kind>
{
protected:
    ReentrancyMatrix()
    {
        F1(&m_Host);
        System.KeyTexts = {{'A', "a"}, {'B', "b"}, {'C', "c"}};
        System.Clipboard = "some\nwords\b";
        BeginForeignKinds();
        m_Host.WriteFile(SceneFile, SceneMarkup(GetParam()));
        m_Host.WriteFile(PartFile, PartMarkup());
    }

    ~ReentrancyMatrix() override
    {
        ClearScene();
        EndForeignKinds();
        F1(&Host);
    }

    void ClearScene()
    {
        g_Bomb.Disarm();
        BeginForeignKinds(); // without them their elements could not be deleted
        g_UIManager.Reset();
        g_UIManager.ClearTemplates();
        g_UIManager.RemoveSkin("Dark");
        g_UIManager.ResetMouseState();
        g_UIManager.LeftPressElementID = g_UIManager.RightPressElementID = 0;
        g_UIManager.MousePosition = {-1, -1};
    }

    void BuildScene()
    {
        g_UIManager.AltDown = true; // some kinds take the mouse only then
        g_UIManager.NewSkin("Dark");
        g_UIManager.AltDown = true; // some kinds take the mouse only then
        LoadScene();
        if (GetParam().Prepare)
            GetParam().Prepare();
        g_UIManager.Render();
        System.Ticks += 1000;
    }

    // What a host goes on to do, whatever happened.
    void GoOn()
    {
        for (int frame = 0; frame < 3; ++frame) {
            System.Ticks += 1500;
            g_UIManager.Render();
            MoveTo(15 + frame, 15);
            PressLeft();
            PressRight();
            g_UIManager.OnMouseWheel(-120);
            g_UIManager.OnKeyDown('C');
            g_UIManager.OnKeyUp('C');
        }
    }

    // True if the place was reached. The act runs there, and the scene is whole afterwards.
    bool TryCell(const Place& place, Bomb::Fuse fuse, const std::string& actName, std::function<void()> act)
    {
        const CellWatch watch(std::string(GetParam().Name) + ", " + place.Name + " by " + place.Way + ", " + actName);
        const testing::ScopedTrace trace(__FILE__, __LINE__, CellWatch::Cell());
        BuildScene();
        g_Bomb.Arm(place.Name, fuse, std::move(act));
        place.Drive();
        const bool reached = g_Bomb.WentOff();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        GoOn();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        ClearScene();
        ExpectNothingLeft();
        return reached;
    }

    // A cell whose place is not reached says nothing, so the table is wrong there.
    void RunPlace(const Place& place, Bomb::Fuse fuse)
    {
        for (const Act& act : AllActs())
            ASSERT_TRUE(TryCell(place, fuse, act.Name, act.Run)) << place.Name << " by " << place.Way;
        for (const ScriptAct& act : AllScriptActs()) {
            if (!HasTraits(GetParam(), act.Needs))
                continue;
            ASSERT_TRUE(TryCell(place, fuse, act.Method, [&act] { Perform(act); }))
                << place.Name << " by " << place.Way;
        }
    }

    void ExpectNothingLeft()
    {
        EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
        EXPECT_EQ("", m_Host.Books.Imbalance());
    }

    void RunShutdownCell(const Place& place)
    {
        const CellWatch watch(std::string(GetParam().Name) + ", " + place.Name + " by " + place.Way + ", shutdown");
        const testing::ScopedTrace trace(__FILE__, __LINE__, CellWatch::Cell());
        BuildScene();
        g_Bomb.Arm(place.Name, Bomb::Fuse::Once, [] { g_UIManager.Shutdown(); });
        place.Drive();
        ASSERT_TRUE(g_Bomb.WentOff());
        GoOn();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
        EXPECT_TRUE(g_UIManager.ElementsByName.empty());
        EXPECT_EQ("", m_Host.Books.Faults());
        EXPECT_EQ(0u, m_Host.Books.Lent("atom"));
        EXPECT_EQ(0u, m_Host.Books.Lent("sequence"));
    }

    MatrixHost m_Host;
};

// Named so that it comes first, while a process of its own is cheap.
class ReentrancyMatrixDeathTest : public ReentrancyMatrix
{
};

std::string KindName(const testing::TestParamInfo<Kind>& info)
{
    return info.param.Name;
}

} // namespace

TEST_P(ReentrancyMatrix, EveryActIsSurvivedAtEveryPlace)
{
    for (const Place& place : AllPlaces()) {
        if (!Reaches(GetParam(), place))
            continue;
        RunPlace(place, Bomb::Fuse::Once);
        RunPlace(place, Bomb::Fuse::EachTime);
    }
}

TEST_P(ReentrancyMatrix, OtherPlacesAreNotReached)
{
    for (const Place& place : AllPlaces()) {
        if (Reaches(GetParam(), place))
            continue;
        EXPECT_FALSE(TryCell(place, Bomb::Fuse::Once, "nothing", [] {})) << place.Name << " by " << place.Way;
    }
}

TEST_P(ReentrancyMatrixDeathTest, AShutdownIsSurvivedAtEveryPlace)
{
    for (const Place& place : AllPlaces()) {
        if (Reaches(GetParam(), place))
            InFreshProcess([&] { RunShutdownCell(place); });
    }
}

// A misspelt method would be an act that does nothing.
TEST_P(ReentrancyMatrix, EveryMethodOfAScriptIsKnownToItsKinds)
{
    for (const ScriptAct& act : AllScriptActs()) {
        BuildScene();
        EXPECT_EQ(HasTraits(GetParam(), act.Needs), Perform(act)) << act.Method;
        ClearScene();
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ReentrancyMatrix, testing::ValuesIn(AllKinds().begin(), AllKinds().end()), KindName);
INSTANTIATE_TEST_SUITE_P(
    Kinds, ReentrancyMatrixDeathTest, testing::ValuesIn(AllKinds().begin(), AllKinds().end()), KindName);
