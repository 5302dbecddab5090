// Whatever a host answers, the toolkit stands: each operation that it asks for answers in each way that its signature
// allows, over a scenario that uses every kind. The rows are in Operations.cpp.
//
// A wrong answer is given each time, and what calls back does so now and then, so that there is something left to do it
// to; or each time if it is asked only where there is nothing yet. TESKARA_HOSTILITY=all in the environment tries both
// with each answer.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/hostile/Scenario.h"
#include "tests/unit/hostile/SharedCounts.h"
#include "tests/unit/reentrancy/CellWatch.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace {

// How many cells there are: operations by answers, each of which is really given.
constexpr std::size_t Cells = 886;

// What the toolkit has no use for, or asks before it can be told of a platform.
constexpr Operation NeverAsked[] = {Operation::FindTypeByName, Operation::InvalidateTransientObject,
    Operation::RegisterTransientClass, Operation::GetModulePath};

// What it asks only while there is no element that could be deleted.
constexpr Operation AskedBeforeAll[] = {Operation::AddType, Operation::FindType, Operation::GetScriptInterface,
    Operation::RegisterObjectClass, Operation::SetTypeObjectClass};

bool IsAsked(Operation operation)
{
    return std::find(std::begin(NeverAsked), std::end(NeverAsked), operation) == std::end(NeverAsked);
}

bool IsMeaningful(Operation operation, Answer answer)
{
    if (!IsAsked(operation))
        return false;
    return !IsDeletion(answer)
        || std::find(std::begin(AskedBeforeAll), std::end(AskedBeforeAll), operation) == std::end(AskedBeforeAll);
}

std::vector<Answer> MeaningfulAnswers(Operation operation)
{
    std::vector<Answer> answers = AnswersOf(operation);
    std::erase_if(answers, [operation](Answer answer) { return !IsMeaningful(operation, answer); });
    return answers;
}

bool TriesAll()
{
    const char* choice = std::getenv("TESKARA_HOSTILITY");
    return choice && std::string_view(choice) == "all";
}

std::vector<Rhythm> RhythmsOf(Answer answer)
{
    if (TriesAll())
        return {Rhythm::EachTime, Rhythm::NowAndThen};
    return {IsAct(answer) ? Rhythm::NowAndThen : Rhythm::EachTime};
}

// With a host that is well again everything works, unless the toolkit was shut down.
void ExpectRecovery(Scenario& scenario)
{
    g_Hostility.End();
    EXPECT_EQ(std::nullopt, FindTreeFault());
    if (g_UIManager.ShuttingDown)
        return;

    scenario.Clear();
    EXPECT_EQ(g_UIManager.Screen ? 1u : 0u, g_UIManager.ElementsByID.size());
    EXPECT_EQ("", scenario.Host.Books.Imbalance({Loan::Font, Loan::Texture, Loan::Atom, Loan::Sequence, Loan::Query}));
    EXPECT_TRUE(scenario.Recover());
    EXPECT_EQ(std::nullopt, FindTreeFault());
}

// How often the answer was given.
u32 RunCell(const ScenarioFiles& files, Operation operation, Answer answer, Rhythm rhythm)
{
    const std::string cell =
        std::string(NameOf(operation)) + " " + NameOf(answer) + (rhythm == Rhythm::EachTime ? "" : " now and then");
    const testing::ScopedTrace trace(__FILE__, __LINE__, cell);
    SharedCounts counts;
    InFreshProcess([&] {
        const CellWatch watch(cell);
        Scenario scenario(files);
        g_Hostility.Begin(operation, answer, rhythm);
        scenario.Start();
        scenario.Play();
        counts[0] = g_Hostility.Deviations();
        ExpectRecovery(scenario);

        g_Hostility.Begin(operation, answer, rhythm);
        scenario.ShutDown();
        counts[0] += g_Hostility.Deviations();
        g_Hostility.End();
        EXPECT_TRUE(g_UIManager.ElementsByID.empty());
        EXPECT_EQ("", scenario.Host.Books.Imbalance({Loan::Atom, Loan::Sequence, Loan::Query}));
    });
    return counts[0];
}

// The same in each rhythm; in the other one too if it was not given.
u32 RunCells(const ScenarioFiles& files, Operation operation, Answer answer)
{
    u32 deviations = 0;
    for (const Rhythm rhythm : RhythmsOf(answer))
        deviations += RunCell(files, operation, answer, rhythm);
    return deviations > 0 ? deviations : RunCell(files, operation, answer, Rhythm::EachTime);
}

} // namespace

// Otherwise what is said below of an operation would say nothing.
TEST(HostileHostDeathTest, TheScenarioAsksForEveryOperationThatTheToolkitUses)
{
    const ScenarioFiles files;
    SharedCounts counts;
    InFreshProcess([&] {
        Scenario scenario(files);
        g_Hostility.Begin(Operation::Count, Answer::Good, Rhythm::EachTime);
        scenario.Start();
        scenario.Play();
        EXPECT_EQ(ScenarioKinds().size(), g_UIManager.Factories.size());
        EXPECT_EQ(std::nullopt, FindTreeFault());
        scenario.ShutDown();
        for (u32 operation = 0; operation < OperationCount; ++operation)
            counts[operation] = g_Hostility.Calls(static_cast<Operation>(operation));
    });
    for (u32 number = 0; number < OperationCount; ++number) {
        const auto operation = static_cast<Operation>(number);
        EXPECT_EQ(IsAsked(operation), counts[number] > 0) << NameOf(operation);
    }
}

TEST(HostileHostTest, AllOperationsTogetherHaveSoManyAnswers)
{
    std::size_t cells = 0;
    for (u32 number = 0; number < OperationCount; ++number)
        cells += MeaningfulAnswers(static_cast<Operation>(number)).size();
    EXPECT_EQ(Cells, cells);
}

// A test for each operation, so that they can be shared out among processors.
class HostileOperationDeathTest : public testing::TestWithParam<u32>
{
};

TEST_P(HostileOperationDeathTest, EveryAnswerIsSurvived)
{
    const ScenarioFiles files;
    const auto operation = static_cast<Operation>(GetParam());
    for (const Answer answer : MeaningfulAnswers(operation))
        EXPECT_LT(0u, RunCells(files, operation, answer)) << NameOf(operation) << " never " << NameOf(answer);
}

INSTANTIATE_TEST_SUITE_P(Host, HostileOperationDeathTest, testing::Range(u32{0}, OperationCount),
    [](const testing::TestParamInfo<u32>& row) {
        std::string name = NameOf(static_cast<Operation>(row.param));
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });
