// Whatever calls out to the host may find, when it comes back, that anything has been deleted, moved or loaded. Here
// each act of a script is tried at each place where the toolkit calls out, on each kind and on a foreign class of it.
//
// Where the next row goes:
// - A kind: into Kinds.cpp, with what markup cannot say of it. If only code makes it, MadeKinds.cpp makes it; if it
//   holds rows or the like, Collections.cpp empties and fills it. Its foreign class is a line in ForeignElements.cpp.
// - A place that the host hears of: MatrixHost.cpp tells the bomb. An operation that a foreign class may take over does
//   so in ForeignElements.h. Both are found by going every way.
// - A way: into the file of Ways.h that is about such, and into Places.cpp with the places that kinds of some traits are
//   bound to reach by it, and no others. If that cannot be said of it, into MoreWays.cpp alone.
// - An act: into Acts.cpp, as a call from outside or as what a script writes.
//
// A cell counts if its place was reached and its act found something to act on. Selection.h tells which are tried.

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
#include "tests/unit/reentrancy/Repertoire.h"
#include "tests/unit/reentrancy/Scene.h"
#include "tests/unit/reentrancy/Selection.h"

#include <cstdio>
#include <set>

namespace {

// What each subject has at least, of which some are selected.
constexpr std::size_t LeastCells = 3000;

class ReentrancyMatrix : public ToolkitTest, public testing::WithParamInterface<Subject>
{
protected:
    ReentrancyMatrix()
    {
        F1(&m_Host);
        System.KeyTexts = {{'A', "a"}, {'B', "b"}, {'C', "c"}};
        System.Clipboard = "some\nwords\b";
        BeginForeignKinds();
        ChooseSubject(GetParam());
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
        LoadScene();
        PrepareSubject();
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

    static std::string NameOf(const char* place, const char* way, const std::string& deed)
    {
        return GetParam().Word + ", " + place + " by " + way + ", " + deed;
    }

    // True if the place was reached. The act runs there, and the scene is whole afterwards.
    bool TryCell(const Repertoire::Stop& stop, Bomb::Fuse fuse, const std::function<bool()>& act)
    {
        BuildScene();
        g_Bomb.Arm(stop.Place.c_str(), fuse, act);
        stop.Drive();
        const bool reached = g_Bomb.WentOff();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        GoOn();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        ClearScene();
        ExpectNothingLeft();
        return reached;
    }

    // Until one fails: what that leaves behind would be blamed on the next ones.
    void RunSelected(const Repertoire& repertoire)
    {
        const Selection selection(GetParam());
        for (std::size_t stop = 0; stop < repertoire.Stops.size(); ++stop) {
            for (std::size_t deed = 0; deed < repertoire.Deeds.size() && !HasFailure(); ++deed) {
                const bool isMet = m_Met.contains(&repertoire.Deeds[deed]);
                if (!isMet || selection.Takes(stop, deed))
                    RunWithBothFuses(repertoire.Stops[stop], repertoire.Deeds[deed]);
            }
        }
    }

    // A place that comes but once is the same cell with either fuse.
    void RunWithBothFuses(const Repertoire::Stop& stop, const Repertoire::Deed& deed)
    {
        RunCell(stop, Bomb::Fuse::Once, deed);
        if (g_Bomb.CameAgain() || Selection::HasOne())
            RunCell(stop, Bomb::Fuse::EachTime, deed);
    }

    // A cell whose place is not reached says nothing, so the table is wrong there.
    void RunCell(const Repertoire::Stop& stop, Bomb::Fuse fuse, const Repertoire::Deed& deed)
    {
        const std::string name =
            NameOf(stop.Place.c_str(), stop.Way.c_str(), deed.Name + (fuse == Bomb::Fuse::Once ? "" : ", each time"));
        if (!Selection::Runs(name))
            return;

        const CellWatch watch(name, "Kinds/ReentrancyMatrix.EveryActIsSurvivedAtEveryPlace/" + GetParam().Word);
        const testing::ScopedTrace trace(__FILE__, __LINE__, CellWatch::Again());
        EXPECT_TRUE(TryCell(stop, fuse, deed.Act)) << "the place was not reached";
        if (g_Bomb.Acted()) {
            ++m_Cells;
            m_Met.insert({&stop, &deed});
        }
    }

    void ExpectEverythingWasMet(const Repertoire& repertoire) const
    {
        EXPECT_GE(m_Cells, Selection::Share(LeastCells));
        for (const Repertoire::Stop& stop : repertoire.Stops)
            EXPECT_TRUE(m_Met.contains(&stop)) << "no act could do anything at " << stop.Place << " by " << stop.Way;
        for (const Repertoire::Deed& deed : repertoire.Deeds)
            EXPECT_TRUE(m_Met.contains(&deed) || deed.MayMiss) << "at no place was there anything to " << deed.Name;
    }

    void ExpectNothingLeft()
    {
        EXPECT_EQ(1u, g_UIManager.ElementsByID.size()) << "only the screen is left";
        EXPECT_EQ("", m_Host.Books.Imbalance());
    }

    void RunShutdownCell(const Repertoire::Stop& stop)
    {
        const std::string name = NameOf(stop.Place.c_str(), stop.Way.c_str(), "shutdown");
        if (!Selection::Runs(name))
            return;

        const CellWatch watch(
            name, "Kinds/ReentrancyMatrixDeathTest.AShutdownIsSurvivedAtEveryPlace/" + GetParam().Word);
        const testing::ScopedTrace trace(__FILE__, __LINE__, CellWatch::Again());
        BuildScene();
        g_Bomb.Arm(stop.Place.c_str(), Bomb::Fuse::Once, [] {
            g_UIManager.Shutdown();
            return true;
        });
        stop.Drive();
        ASSERT_TRUE(g_Bomb.WentOff());
        GoOn();
        EXPECT_EQ(std::nullopt, FindTreeFault());
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
        EXPECT_TRUE(g_UIManager.ElementsByName.empty());
        EXPECT_EQ("", m_Host.Books.Faults());
        EXPECT_EQ(0u, m_Host.Books.Lent("atom"));
        EXPECT_EQ(0u, m_Host.Books.Lent("sequence"));
    }

    Repertoire Find()
    {
        return FindRepertoire(
            GetParam(), [this] { BuildScene(); }, [this] { ClearScene(); });
    }

    MatrixHost m_Host;
    std::size_t m_Cells = 0;
    std::set<const void*> m_Met; // the stops and deeds of the cells that counted
};

// Named so that it comes first, while a process of its own is cheap.
class ReentrancyMatrixDeathTest : public ReentrancyMatrix
{
};

std::string SubjectName(const testing::TestParamInfo<Subject>& info)
{
    return info.param.Word;
}

} // namespace

TEST_P(ReentrancyMatrix, EveryActIsSurvivedAtEveryPlace)
{
    const Repertoire repertoire = Find();
    RunSelected(repertoire);
    std::printf("[    CELLS ] %zu of %s: %zu places, %zu acts\n", m_Cells, GetParam().Word.c_str(),
        repertoire.Stops.size(), repertoire.Deeds.size());
    if (!Selection::HasOne() && !HasFailure())
        ExpectEverythingWasMet(repertoire);
}

TEST_P(ReentrancyMatrix, OtherPlacesAreNotReached)
{
    if (GetParam().Has(IsMade) || GetParam().IsForeignClass())
        return; // what they reach is nowhere stated

    for (const Place& place : AllPlaces()) {
        if (GetParam().Reaches(place.Needs, place.Unless))
            continue;
        EXPECT_FALSE(TryCell({place.Name, place.Way, place.Drive}, Bomb::Fuse::Once, [] { return true; }))
            << place.Name << " by " << place.Way;
    }
}

TEST_P(ReentrancyMatrixDeathTest, AShutdownIsSurvivedAtEveryPlace)
{
    const Repertoire repertoire = Find();
    const Selection selection(GetParam());
    for (std::size_t stop = 0; stop < repertoire.Stops.size(); ++stop) {
        if (selection.Takes(stop, 0))
            InFreshProcess([&] { RunShutdownCell(repertoire.Stops[stop]); });
    }
}

// A misspelt method would be an act that does nothing.
TEST_P(ReentrancyMatrix, EveryMethodOfAScriptIsKnownToItsKinds)
{
    if (GetParam().Has(IsMade) || GetParam().IsForeignClass())
        return;

    for (const ScriptAct& act : AllScriptActs()) {
        BuildScene();
        EXPECT_EQ(GetParam().Has(act.Needs), Perform(act)) << act.Method;
        ClearScene();
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ReentrancyMatrix, testing::ValuesIn(AllSubjects()), SubjectName);
INSTANTIATE_TEST_SUITE_P(Kinds, ReentrancyMatrixDeathTest, testing::ValuesIn(AllSubjects()), SubjectName);
