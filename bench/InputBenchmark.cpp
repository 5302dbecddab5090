// What an event of the mouse or the keyboard costs before anything is drawn, on a surface full of controls.

#include "bench/ControlScene.h"
#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t PathLength = 10'000;
constexpr unsigned SomeKey = 'A';

// Positions all over the scene, the same in every run.
std::vector<_Point2i> RandomPath(const NullHost& host)
{
    std::mt19937 random(12345);
    std::vector<_Point2i> path(PathLength);
    for (_Point2i& point : path) {
        point.x = static_cast<i32>(random() % static_cast<unsigned>(host.Width));
        point.y = static_cast<i32>(random() % static_cast<unsigned>(host.Height));
    }
    return path;
}

// An element in the middle of the scene: half of its siblings lie above it, half below.
TeskElement& MiddleElement()
{
    TeskElement* element = g_UIManager.FindElement("c50@w050");
    if (!element)
        std::abort();
    return *element;
}

void MoveTo(i32 x, i32 y)
{
    _Point2i point = {x, y};
    benchmark::DoNotOptimize(g_UIManager.OnMouseMove(point));
}

void MoveInto(const TeskElement& element)
{
    MoveTo(element.AbsoluteX + 1, element.AbsoluteY + 1);
}

void MoveAnywhere(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    const std::vector<_Point2i> path = RandomPath(StartedHost());
    std::size_t entered = 0;
    u32 last = 0;
    for (const _Point2i& point : path) {
        MoveTo(point.x, point.y);
        entered += g_UIManager.MouseOverElementID != last;
        last = g_UIManager.MouseOverElementID;
    }

    std::size_t next = 0;
    for (auto _ : state) {
        MoveTo(path[next].x, path[next].y);
        next = next + 1 == PathLength ? 0 : next + 1;
    }
    ReportTimePer(state, "ns/event");
    state.SetLabel(ElementCount() + "; of " + std::to_string(PathLength) + " moves " + std::to_string(entered)
        + " entered another element");
}

void MoveInsideAnElement(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    const TeskElement& element = MiddleElement();
    for (auto _ : state) {
        MoveTo(element.AbsoluteX + 1, element.AbsoluteY + 1);
        MoveTo(element.AbsoluteX + 2, element.AbsoluteY + 1);
    }
    ReportTimePer(state, "ns/event", 2);
}

void PressAndRelease(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    MoveInto(MiddleElement());
    for (auto _ : state) {
        benchmark::DoNotOptimize(g_UIManager.OnLMouseDown());
        benchmark::DoNotOptimize(g_UIManager.OnLMouseUp());
    }
    ReportTimePer(state, "ns/event", 2);
}

void PressKey(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    g_UIManager.SetFocusElement(&MiddleElement());
    for (auto _ : state) {
        benchmark::DoNotOptimize(g_UIManager.OnKeyDown(SomeKey));
        benchmark::DoNotOptimize(g_UIManager.OnKeyUp(SomeKey));
    }
    ReportTimePer(state, "ns/event", 2);
}

void MoveAndFrame(benchmark::State& state)
{
    const LoadedScene scene(ControlScene::Markup());
    const std::vector<_Point2i> path = RandomPath(StartedHost());
    std::size_t next = 0;
    for (auto _ : state) {
        MoveTo(path[next].x, path[next].y);
        g_UIManager.Render();
        next = next + 1 == PathLength ? 0 : next + 1;
    }
    ReportTimePer(state, "ms/frame");
}

BENCHMARK(MoveAnywhere)->Name("W4")->Repetitions(9);
BENCHMARK(MoveInsideAnElement)->Name("W4.inside")->Repetitions(9);
BENCHMARK(PressAndRelease)->Name("W4.press")->Repetitions(9);
BENCHMARK(PressKey)->Name("W4.key")->Repetitions(9);
BENCHMARK(MoveAndFrame)->Name("W4.frame")->Repetitions(9);

} // namespace
