// What a script pays for each member that it asks for, and for each method: the dispatch by name, without the engine.

#include "bench/LoadedScene.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeDefinition.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

constexpr char Markup[] =
    "<Tesk><frame name='Outer'><Width>400</Width><Children><text name='Inner'><Width>120</Width>"
    "<Text>a text</Text></text><button name='Push'><Width>80</Width></button></Children></frame></Tesk>";

MvValue ValueOf(TeskElement& element)
{
    MvValue value;
    value.Object = &element;
    return value;
}

void AskMember(benchmark::State& state, const char* elementName, const char* member, const char* argument)
{
    StartedHost();
    const LoadedScene scene(Markup);
    TeskElement& element = *g_UIManager.FindElement(elementName);
    const MvValue value = ValueOf(element);
    char* argv[] = {const_cast<char*>(argument)};
    for (auto _ : state) {
        _MvTypeVar result;
        if (element.GetMvType()->DispatchMember(value, member, argument ? 1 : 0, argv, result) != DispatchDone)
            std::abort();
        benchmark::DoNotOptimize(result);
    }
}

void CallMethod(benchmark::State& state, const char* elementName, const char* method, const char* argument)
{
    StartedHost();
    const LoadedScene scene(Markup);
    TeskElement& element = *g_UIManager.FindElement(elementName);
    const MvValue value = ValueOf(element);
    char* argv[] = {const_cast<char*>(argument)};
    for (auto _ : state) {
        if (element.GetMvType()->DispatchMethod(value, method, 1, argv) != DispatchDone)
            std::abort();
    }
}

void MemberOfItsOwnType(benchmark::State& state)
{
    AskMember(state, "Outer", "BackgroundColor", nullptr);
}

void MemberOfTheBase(benchmark::State& state)
{
    AskMember(state, "Outer", "Width", nullptr);
}

void MemberWithAnArgument(benchmark::State& state)
{
    AskMember(state, "Outer", "FindChild", "Inner");
}

void MemberThatIsAText(benchmark::State& state)
{
    AskMember(state, "Inner@Outer", "Text", nullptr);
}

void MethodOfTheBase(benchmark::State& state)
{
    CallMethod(state, "Push@Outer", "SetAlpha", "0.5");
}

void MethodThatSetsAText(benchmark::State& state)
{
    CallMethod(state, "Inner@Outer", "SetText", "another text");
}

BENCHMARK(MemberOfItsOwnType)->Name("script.member.own")->Repetitions(9);
BENCHMARK(MemberOfTheBase)->Name("script.member.base")->Repetitions(9);
BENCHMARK(MemberWithAnArgument)->Name("script.member.argument")->Repetitions(9);
BENCHMARK(MemberThatIsAText)->Name("script.member.text")->Repetitions(9);
BENCHMARK(MethodOfTheBase)->Name("script.method.base")->Repetitions(9);
BENCHMARK(MethodThatSetsAText)->Name("script.method.set_text")->Repetitions(9);

} // namespace
