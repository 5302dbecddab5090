// What a user of interfaces waits for: loading them, and frames.

#include "bench/ControlScene.h"
#include "bench/NullHost.h"
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

NullHost& StartedHost()
{
    static NullHost* host = [] {
        auto* started = new NullHost; // outlives the library's end
        F1(started)->Initialize();
        g_UIManager.Render();
        return started;
    }();
    return *host;
}

// A file of markup that lasts as long as the object.
class MarkupFile
{
public:
    explicit MarkupFile(const std::string& markup)
    {
        const int file = mkstemp(m_Path.data());
        if (file < 0 || write(file, markup.data(), markup.size()) != static_cast<ssize_t>(markup.size()))
            std::abort();
        close(file);
    }
    ~MarkupFile() { std::remove(m_Path.c_str()); }
    MarkupFile(const MarkupFile&) = delete;
    MarkupFile& operator=(const MarkupFile&) = delete;

    void Load() const
    {
        if (!g_UIManager.LoadInterfaceXML(m_Path.c_str(), false, nullptr))
            std::abort();
    }

private:
    std::string m_Path = "/tmp/teskara-bench-XXXXXX";
};

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

std::string ElementCount()
{
    return "elements=" + std::to_string(g_UIManager.ElementsByID.size() - 1);
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
    state.counters["us/element"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * ControlScene::Elements / 1e6,
            benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
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
    NullHost& host = StartedHost();
    MarkupFile(ControlScene::Markup()).Load();
    g_UIManager.Render();
    const u64 before = host.Draws;
    g_UIManager.Render();
    state.SetLabel(ElementCount() + " draws=" + std::to_string(host.Draws - before));
    for (auto _ : state)
        g_UIManager.Render();
    g_UIManager.Reset();
}

// Each text gets a new string in every frame; the strings themselves are made beforehand.
void ChangingTexts(benchmark::State& state)
{
    constexpr int Frames = 16;
    StartedHost();
    MarkupFile(ControlScene::TextGridMarkup()).Load();
    g_UIManager.Render();

    std::vector<TeskText*> texts;
    for (TeskElement* child = g_UIManager.Screen->FirstChild; child; child = child->Next)
        texts.push_back(static_cast<TeskText*>(child));
    std::vector<std::string> strings;
    for (int frame = 0; frame < Frames; ++frame) {
        for (int text = 0; text < ControlScene::ChangingTexts; ++text)
            strings.push_back(ControlScene::ChangingText(text, frame));
    }

    std::size_t next = 0;
    for (auto _ : state) {
        for (TeskText* text : texts)
            text->SetText(strings[next++ % strings.size()].c_str());
        g_UIManager.Render();
    }
    state.SetLabel(ElementCount());
    g_UIManager.Reset();
}

// Resident memory of the scene after its first frame.
void MemoryOfScene(benchmark::State& state)
{
    StartedHost();
    const MarkupFile scene(ControlScene::Markup());
    malloc_trim(0);
    const std::size_t before = ResidentBytes();
    double bytes = 0;
    for (auto _ : state) {
        scene.Load();
        g_UIManager.Render();
        malloc_trim(0);
        bytes = static_cast<double>(ResidentBytes() - before) / ControlScene::Elements;
    }
    state.counters["bytes/element"] = bytes;
    g_UIManager.Reset();
}

// Named by the numbers under which other toolkits report the same work, so that results lie side by side. Memory comes
// first: what an earlier scene left in the heap would hide a part of it.
BENCHMARK(MemoryOfScene)->Name("W8")->Iterations(1);
BENCHMARK(LoadScene)->Name("W1.element")->Repetitions(9)->Iterations(3);
BENCHMARK(UnloadScene)->Name("W1.unload")->Repetitions(5)->Iterations(3);
BENCHMARK(FrameOfScene)->Name("W2")->Repetitions(9);
BENCHMARK(ChangingTexts)->Name("W3")->Repetitions(9);

} // namespace
