// A map of 10,000 blips of which 2,000 show: its frame, and what a program does to single blips while there are so many.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/core/CUIManager.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr u32 Blips = 10000;
constexpr u32 BlipsInSight = 2000;
constexpr u32 BlipsAtATime = 1000;

constexpr char Markup[] =
    "<Tesk><Template name='dot'><BackgroundColor>ff00ff00</BackgroundColor><Font><Size>9</Size></Font></Template>"
    "<map name='m'><Width>1000</Width><Height>1000</Height><MapSizeX>100</MapSizeX><MapSizeY>100</MapSizeY>"
    "<ShowLabels/></map><mapview name='v'><X>1000</X><Width>1000</Width><Height>1000</Height>"
    "<MapSizeX>100</MapSizeX><MapSizeY>100</MapSizeY><ShowLabels/></mapview></Tesk>";

// What the blips of a run are made of.
struct Look {
    const char* Template;
    const char* Label;
};

constexpr Look Bare = {nullptr, nullptr};
constexpr Look Coloured = {"dot", nullptr};
constexpr Look Labelled = {"dot", "A town"};

TeskMap& Map()
{
    return static_cast<TeskMap&>(*g_UIManager.FindElement("m"));
}

TeskMapView& View()
{
    return static_cast<TeskMapView&>(*g_UIManager.FindElement("v"));
}

std::string NameOf(u32 number)
{
    return "Blip " + std::to_string(number);
}

// Names in an order of their own, as a program would have them.
std::vector<std::string> MixedNames(u32 first, u32 count)
{
    std::vector<std::string> names;
    for (u32 number = first; number < first + count; ++number)
        names.push_back(NameOf(number));
    std::shuffle(names.begin(), names.end(), std::minstd_rand());
    return names;
}

// A world in which one of five points lies on the map, scattered all over it.
_Point3f Place(u32 number)
{
    std::minstd_rand random(number + 1);
    random.discard(3);
    std::uniform_real_distribution<float> near(-49, 49);
    std::uniform_real_distribution<float> far(51, 500);
    const bool isInSight = number % (Blips / BlipsInSight) == 0;
    return {isInSight ? near(random) : far(random), near(random), 0};
}

std::vector<u32> AddTo(TeskMap& map, const std::vector<std::string>& names, const Look& look)
{
    std::vector<u32> ids;
    ids.reserve(names.size());
    u32 number = 0;
    for (const std::string& name : names)
        ids.push_back(map.AddBlip(name.c_str(), Place(number++), 8, look.Label, look.Template, nullptr));
    return ids;
}

std::vector<u32> Fill(const Look& look)
{
    return AddTo(Map(), MixedNames(0, Blips), look);
}

u32 CountShown(const TeskElement& map)
{
    u32 count = 0;
    for (const TeskElement* child = map.FirstChild; child; child = child->Next)
        count += child->Visible;
    return count;
}

std::string Note(const TeskElement& map)
{
    const std::string draws = DrawsOfFrame();
    return "shown=" + std::to_string(CountShown(map)) + draws;
}

void FrameOfMap(benchmark::State& state, const Look& look, void (*prepare)(TeskMap& map))
{
    const LoadedScene scene(Markup);
    Fill(look);
    prepare(Map());
    state.SetLabel(Note(Map()));
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

void AsItIs(TeskMap&) { }

void Turned(TeskMap& map)
{
    map.Rotation = 0.7f;
    map.RotationEnabled = true;
}

// Each frame looks for what is under the mouse.
void FrameUnderTheMouse(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    Fill(Coloured);
    state.SetLabel(Note(Map()));
    g_UIManager.MousePosition = {500, 500};
    for (auto _ : state)
        g_UIManager.Render();
    g_UIManager.MousePosition = {-1, -1};
    ReportTimePer(state, "ms/frame");
}

// Every blip has moved a little since the last frame.
void FrameOfMovingWorld(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    const std::vector<u32> ids = Fill(Coloured);
    std::vector<_Point3f> places;
    for (u32 number = 0; number < Blips; ++number)
        places.push_back(Place(number));
    state.SetLabel(Note(Map()));
    float step = 0;
    for (auto _ : state) {
        step = step > 0.5f ? 0 : step + 0.01f;
        TeskMap& map = Map();
        for (u32 number = 0; number < Blips; ++number)
            map.UpdateBlip(ids[number], {places[number].x + step, places[number].y, 0});
        g_UIManager.Render();
    }
    ReportTimePer(state, "ms/frame");
}

void FrameOfView(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    for (const u32 id : Fill(Labelled))
        View().AddBlipView(Map().BlipsByID.Find(id));
    Map().Show(false);
    state.SetLabel(Note(View()));
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

// So many at a time that stopping the clock in between doesn't count.
void AddBlips(benchmark::State& state, const Look& look)
{
    const LoadedScene scene(Markup);
    Fill(look);
    const std::vector<std::string> names = MixedNames(Blips, BlipsAtATime);
    std::vector<_Point3f> places;
    for (u32 number = 0; number < BlipsAtATime; ++number)
        places.push_back(Place(number));
    std::vector<u32> ids(BlipsAtATime);
    for (auto _ : state) {
        for (u32 number = 0; number < BlipsAtATime; ++number)
            ids[number] = Map().AddBlip(names[number].c_str(), places[number], 8, look.Label, look.Template, nullptr);
        state.PauseTiming();
        for (const u32 id : ids)
            Map().RemoveBlip(id);
        state.ResumeTiming();
    }
    ReportTimePer(state, "us/blip", BlipsAtATime);
}

void RemoveBlips(benchmark::State& state, const Look& look)
{
    const LoadedScene scene(Markup);
    Fill(look);
    const std::vector<std::string> names = MixedNames(Blips, BlipsAtATime);
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<u32> ids = AddTo(Map(), names, look);
        std::shuffle(ids.begin(), ids.end(), std::minstd_rand());
        state.ResumeTiming();
        for (const u32 id : ids)
            Map().RemoveBlip(id);
    }
    ReportTimePer(state, "us/blip", BlipsAtATime);
}

// In no order.
void UpdateBlips(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    std::vector<u32> ids = Fill(Coloured);
    std::shuffle(ids.begin(), ids.end(), std::minstd_rand());
    TeskMap& map = Map();
    for (auto _ : state) {
        for (const u32 id : ids)
            map.UpdateBlip(id, {1, 2, 3});
    }
    ReportTimePer(state, "us/blip", Blips);
}

void WalkByName(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    Fill(Coloured);
    for (auto _ : state) {
        for (const TeskMapBlip* blip = Map().FirstBlip(); blip; blip = Map().NextBlip(*blip))
            benchmark::DoNotOptimize(blip);
    }
    ReportTimePer(state, "us/blip", Blips);
}

BENCHMARK_CAPTURE(FrameOfMap, frame, Coloured, AsItIs)->Name("map.frame")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfMap, turned, Coloured, Turned)->Name("map.turned")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfMap, labels, Labelled, AsItIs)->Name("map.labels")->Repetitions(9);
BENCHMARK(FrameUnderTheMouse)->Name("map.mouse")->Repetitions(9);
BENCHMARK(FrameOfMovingWorld)->Name("map.moving")->Repetitions(9);
BENCHMARK(FrameOfView)->Name("map.view")->Repetitions(9);
BENCHMARK_CAPTURE(AddBlips, bare, Bare)->Name("map.add.bare")->Repetitions(9);
BENCHMARK_CAPTURE(AddBlips, coloured, Labelled)->Name("map.add.template")->Repetitions(9);
BENCHMARK_CAPTURE(RemoveBlips, bare, Bare)->Name("map.remove.bare")->Repetitions(9);
BENCHMARK_CAPTURE(RemoveBlips, coloured, Labelled)->Name("map.remove.template")->Repetitions(9);
BENCHMARK(UpdateBlips)->Name("map.update")->Repetitions(9);
BENCHMARK(WalkByName)->Name("map.walk")->Repetitions(9);

} // namespace
