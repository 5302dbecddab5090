// Events and data sequences whose scripts are Lua.

#include "bench/ControlScene.h"
#include "bench/LuaHost.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

LuaHost& StartedHost()
{
    static LuaHost* host = [] {
        auto* started = new LuaHost; // outlives the library's end
        F1(started)->Initialize();
        g_UIManager.Render();
        return started;
    }();
    return *host;
}

void Load(const std::string& markup)
{
    std::string path = "/tmp/teskara-bench-XXXXXX";
    const int file = mkstemp(path.data());
    const bool isWritten =
        file >= 0 && write(file, markup.data(), markup.size()) == static_cast<ssize_t>(markup.size());
    if (!isWritten || !g_UIManager.LoadInterfaceXML(path.c_str(), false, nullptr))
        std::abort();
    close(file);
    std::remove(path.c_str());
    g_UIManager.Render();
}

// An element hears that the mouse moved. Its script has two whole numbers.
void Event(benchmark::State& state, const char* script)
{
    StartedHost();
    Load(std::string("<Tesk><frame name=\"Main\"><OnMouseMove>") + script + "</OnMouseMove></frame></Tesk>");
    TeskElement* element = g_UIManager.FindElement("Main");
    _Point2i point{123, 456};
    for (auto _ : state)
        element->OnMouseMove(point);
    state.counters["us/event"] = benchmark::Counter(
        static_cast<double>(state.iterations()) / 1e6, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    g_UIManager.Reset();
}

// A frame of a thousand texts with one sequence each, of which every value is another than in the frame before.
void Texts(benchmark::State& state, const char* sequence)
{
    LuaHost& host = StartedHost();
    host::FrameState frame;
    Load(ControlScene::SequenceGridMarkup(sequence));
    for (auto _ : state) {
        ++frame.Number;
        host.Scripts.BeginFrame(frame);
        g_UIManager.Render();
    }
    g_UIManager.Reset();
}

BENCHMARK_CAPTURE(Event, sum, "local sum = X + Y")->Name("event.arguments")->Repetitions(9);
BENCHMARK_CAPTURE(Event, variable, "MouseX = X MouseY = Y")->Name("event.variables")->Repetitions(9);
BENCHMARK_CAPTURE(Event, member, "local width = this.Width")->Name("event.member")->Repetitions(9);
BENCHMARK_CAPTURE(Event, method, "this:SetAlpha(0.5)")->Name("event.method")->Repetitions(9);
BENCHMARK_CAPTURE(Texts, plain, "nothing")->Name("texts.plain")->Repetitions(9);
BENCHMARK_CAPTURE(Texts, variable, "${Frame}")->Name("texts.variable")->Repetitions(9);
BENCHMARK_CAPTURE(Texts, member, "${UIElement[t#].Width}")->Name("texts.member")->Repetitions(9);
BENCHMARK_CAPTURE(Texts, expression, "${= Frame * 2 }")->Name("texts.expression")->Repetitions(9);

} // namespace
