// Without memory the toolkit fails, but stands: over a scenario that uses every kind, each allocation fails in turn,
// alone or with all that follow. Nothing is thrown to the host, nothing is lost, and with memory everything works again.
//
// The scenario runs once; at an allocation that is to fail the process is copied, and the copy goes on without it.
// TESKARA_ALLOCATIONS in the environment says that one in so many is tried: 1 tries all of them. 3:0, 3:1 and 3:2 do so
// in three shares.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/hostile/Scenario.h"
#include "tests/unit/hostile/SharedCounts.h"
#include "tests/unit/reentrancy/CellWatch.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// A prime, so that the same places of the code are not passed over each time.
constexpr u32 UsualStride = 397;

// Of so many trials one goes on to the end of the scenario, rather than of its step.
constexpr u32 TrialsPerWholeScenario = 8;

enum Count : std::size_t { Allocated, Trials, FailedTrials, Left };

// What the judge knows: it is asked in the middle of everything.
struct Inquest {
    Scenario* Play = nullptr;
    SharedCounts* Counts = nullptr;
    u32 Stride = 1;
    u32 First = 0;
    bool IsTrial = false;
    bool FailsFromThenOn = false;
    std::unique_ptr<CellWatch> Watch;
};

Inquest g_Inquest;

// Copies the process. In the copy the allocation fails; here the copy's end is awaited.
bool BeginTrial(u32 allocation, bool failsFromThenOn)
{
    std::fflush(nullptr);
    ++(*g_Inquest.Counts)[Trials];
    const pid_t child = fork();
    if (child == 0) {
        g_Inquest.IsTrial = true;
        g_Inquest.FailsFromThenOn = failsFromThenOn;
        g_Inquest.Play->EndsEarly = (*g_Inquest.Counts)[Trials] % TrialsPerWholeScenario != 0;
        g_Inquest.Watch = std::make_unique<CellWatch>(
            "allocation " + std::to_string(allocation) + (failsFromThenOn ? " and all that follow" : ""));
        return true;
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        ++(*g_Inquest.Counts)[FailedTrials];
        std::fprintf(
            stderr, "allocation %u%s: status %d\n", allocation, failsFromThenOn ? " and all that follow" : "", status);
    }
    return false;
}

bool Judge()
{
    const Allocations::Spared spared;
    if (g_Inquest.IsTrial)
        return g_Inquest.FailsFromThenOn;

    const u32 allocation = (*g_Inquest.Counts)[Allocated]++;
    if (allocation % g_Inquest.Stride != g_Inquest.First)
        return false;
    return BeginTrial(allocation, false) || BeginTrial(allocation, true);
}

void ChooseTrials()
{
    g_Inquest.Stride = UsualStride;
    const char* choice = std::getenv("TESKARA_ALLOCATIONS");
    if (!choice)
        return;

    char* end = nullptr;
    g_Inquest.Stride = std::max(static_cast<u32>(std::strtoul(choice, &end, 10)), 1u);
    g_Inquest.First = *end == ':' ? static_cast<u32>(std::strtoul(end + 1, nullptr, 10)) : 0;
}

void CheckClearedTree(const Scenario& scenario)
{
    const Allocations::Spared spared;
    EXPECT_EQ(std::nullopt, FindTreeFault());
    EXPECT_EQ(g_UIManager.Screen ? 1u : 0u, g_UIManager.ElementsByID.size());
    EXPECT_EQ("", scenario.Host.Books.Imbalance({Loan::Font, Loan::Texture, Loan::Atom, Loan::Sequence, Loan::Query}));
}

std::unique_ptr<Scenario> MakeScenario(const ScenarioFiles& files)
{
    const Allocations::Spared spared;
    return std::make_unique<Scenario>(files);
}

// The first try may find none, and a trial may begin in it.
bool RecoverWithMemory(Scenario& scenario)
{
    if (scenario.Recover())
        return true;

    const bool fails = std::exchange(g_Inquest.FailsFromThenOn, false);
    const bool recovered = scenario.Recover();
    g_Inquest.FailsFromThenOn = fails;
    return recovered;
}

// How many blocks stay with the toolkit when it has shut down.
std::size_t PlayAll(const ScenarioFiles& files)
{
    const auto scenario = MakeScenario(files);
    g_Inquest.Play = scenario.get();
    scenario->Start();
    scenario->Play();
    {
        const Allocations::Spared spared;
        EXPECT_EQ(std::nullopt, FindTreeFault());
    }
    scenario->Clear();
    CheckClearedTree(*scenario);
    const bool recovered = RecoverWithMemory(*scenario);
    scenario->ShutDown();
    const Allocations::Spared spared;
    EXPECT_TRUE(recovered);
    EXPECT_TRUE(g_UIManager.ElementsByID.empty());
    EXPECT_EQ("", scenario->Host.Books.Imbalance({Loan::Atom, Loan::Sequence, Loan::Query}));
    return Allocations::Outstanding();
}

} // namespace

TEST(AllocationFailureDeathTest, EachAllocationMayFail)
{
    const ScenarioFiles files;
    SharedCounts counts;
    InFreshProcess([&] {
        Allocations::BeginBooks();
        counts[Left] = static_cast<u32>(PlayAll(files));
    });
    InFreshProcess([&] {
        Allocations::BeginBooks();
        g_Inquest.Counts = &counts;
        ChooseTrials();
        Allocations::SetJudge(Judge);
        const std::size_t left = PlayAll(files);
        Allocations::SetJudge(nullptr);
        EXPECT_LE(left, counts[Left]) << "blocks that nobody frees";
    });
    std::printf("%u allocations, %u trials, %u failed; %u blocks stay with the toolkit\n", counts[Allocated],
        counts[Trials], counts[FailedTrials], counts[Left]);
    EXPECT_EQ(0u, counts[FailedTrials]);
    EXPECT_LT(10000u, counts[Allocated]);
}
