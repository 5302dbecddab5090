// What a user of interfaces waits for: loading them, drawing them, and the memory that they take.

#include "bench/ControlScene.h"
#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// After so many frames the changing texts begin anew.
constexpr int DistinctFrames = 16;

constexpr u32 FirstElementID = 1;

std::size_t ResidentBytes()
{
    std::size_t total = 0;
    std::size_t resident = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file || std::fscanf(file, "%zu %zu", &total, &resident) != 2)
        std::abort();
    std::fclose(file);
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

// Whether any element was ever made besides the first screen.
bool HadScene()
{
    return g_UIManager.NextElementID != FirstElementID + 1;
}

std::vector<TeskText*> TextsOnTheScreen()
{
    std::vector<TeskText*> texts;
    for (TeskElement* child = g_UIManager.Screen->FirstChild; child; child = child->Next)
        texts.push_back(dynamic_cast<TeskText*>(child));
    return texts;
}

std::vector<std::string> TextsOfFrames()
{
    std::vector<std::string> strings;
    for (int frame = 0; frame < DistinctFrames; ++frame) {
        for (int text = 0; text < ControlScene::ChangingTexts; ++text)
            strings.push_back(ControlScene::ChangingText(text, frame));
    }
    return strings;
}

// Resident memory of the scene after its first frame. What an earlier scene left in the heap would hide a part of it.
void MemoryOfScene(benchmark::State& state)
{
    StartedHost();
    if (HadScene()) {
        state.SkipWithError("needs a process of its own");
        return;
    }

    const std::string markup = ControlScene::Markup();
    malloc_trim(0);
    const std::size_t before = ResidentBytes();
    double bytes = 0;
    for (auto _ : state) {
        const LoadedScene scene(markup);
        malloc_trim(0);
        bytes = static_cast<double>(ResidentBytes() - before) / ControlScene::Elements;
    }
    state.counters["bytes/element"] = bytes;
}

void LoadScene(benchmark::State& state)
{
    StartedHost();
    const MarkupFile scene(ControlScene::Markup());
    for (auto _ : state) {
        scene.Load();
        state.PauseTiming();
        state.SetLabel(ElementCount());
        g_UIManager.Reset();
        state.ResumeTiming();
    }
    ReportTimePer(state, "us/element", ControlScene::Elements);
}

void UnloadScene(benchmark::State& state)
{
    StartedHost();
    const MarkupFile scene(ControlScene::Markup());
    for (auto _ : state) {
        state.PauseTiming();
        scene.Load();
        state.ResumeTiming();
        g_UIManager.Reset();
    }
}

void FrameOfScene(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

// Each text gets a new string in every frame; the strings themselves are made beforehand.
void ChangingTexts(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::TextGridMarkup());
    const std::vector<TeskText*> texts = TextsOnTheScreen();
    const std::vector<std::string> strings = TextsOfFrames();
    std::size_t next = 0;
    for (auto _ : state) {
        for (TeskText* text : texts)
            text->SetText(strings[next++ % strings.size()].c_str());
        g_UIManager.Render();
    }
    ReportTimePer(state, "ms/frame");
    state.SetLabel(ElementCount());
}

// Named by the numbers under which other toolkits report the same work, so that results lie side by side. Those that keep
// their drawing from frame to frame report what it takes without that as W2b; to us both are the same.
BENCHMARK(MemoryOfScene)->Name("W8")->Iterations(1);
BENCHMARK(LoadScene)->Name("W1.element")->Repetitions(9)->Iterations(3);
BENCHMARK(UnloadScene)->Name("W1.unload")->Repetitions(5)->Iterations(3);
BENCHMARK(FrameOfScene)->Name("W2")->Repetitions(9);
BENCHMARK(FrameOfScene)->Name("W2b")->Repetitions(9);
BENCHMARK(ChangingTexts)->Name("W3")->Repetitions(9);

} // namespace
