// Tab controls: a frame of many of them, and adding and moving tabs, whose time grows with their number.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int Controls = 100;
constexpr int TabsOfEach = 10;

std::string ControlMarkup(int number)
{
    std::string tabs;
    for (int tab = 0; tab < TabsOfEach; ++tab) {
        const std::string name = std::to_string(tab);
        tabs += "<Tab Name='" + name + "'><text name='t'><Width>100</Width><Height>20</Height><Text>Tab " + name
            + "</Text></text><button name='b'><Y>30</Y><Width>100</Width><Height>20</Height></button></Tab>";
    }
    return "<tabcontrol name='c" + std::to_string(number) + "'><X>" + std::to_string(number % 10 * 400) + "</X><Y>"
        + std::to_string(number / 10 * 200)
        + "</Y><Width>300</Width><Height>150</Height><TabHeight>16</TabHeight><Draggable/><TabBorder>1</"
          "TabBorder><FrameBorderColor>ff404040</FrameBorderColor>"
          "<TabTexture Filename='#tab'/><TabSelectedTexture Filename='#selected'/><Font><Size>11</Size></Font><Tabs>"
        + tabs + "</Tabs></tabcontrol>";
}

std::string ScreenMarkup(int controls)
{
    std::string markup = "<Tesk>";
    for (int number = 0; number < controls; ++number)
        markup += ControlMarkup(number);
    return markup + "</Tesk>";
}

TeskTabControl& Control()
{
    return static_cast<TeskTabControl&>(*g_UIManager.FindElement("c0"));
}

void RemoveAll(TeskTabControl& control)
{
    for (u32 id = static_cast<u32>(control.Tabs.size()); id > 0; --id)
        control.RemoveTab(id);
}

void Fill(TeskTabControl& control, const std::vector<std::string>& names)
{
    for (const std::string& name : names)
        control.AddTab(name.c_str(), nullptr, name.c_str(), nullptr);
}

std::vector<std::string> Names(i64 count)
{
    std::vector<std::string> names;
    for (i64 number = 0; number < count; ++number)
        names.push_back("Tab " + std::to_string(number));
    return names;
}

void FrameOfControls(benchmark::State& state)
{
    const LoadedScene scene(ScreenMarkup(Controls));
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

// Empty tabs, up to so many.
void AddTabs(benchmark::State& state)
{
    const LoadedScene scene(ScreenMarkup(1));
    const std::vector<std::string> names = Names(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        RemoveAll(Control());
        state.ResumeTiming();
        Fill(Control(), names);
    }
    state.SetLabel("tabs=" + std::to_string(Control().TabCount));
}

// Each time the first tab goes to the last place.
void MoveTabs(benchmark::State& state)
{
    const LoadedScene scene(ScreenMarkup(1));
    TeskTabControl& control = Control();
    RemoveAll(control);
    Fill(control, Names(state.range(0)));
    for (auto _ : state)
        control.MoveTab(control.OrderedTabs.Front(), control.TabCount - 1);
    ReportTimePer(state, "ns/move");
    state.SetLabel("tabs=" + std::to_string(control.TabCount));
}

BENCHMARK(FrameOfControls)->Name("tabs.frame")->Repetitions(9);
BENCHMARK(AddTabs)->Name("tabs.add")->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(MoveTabs)->Name("tabs.move")->Arg(10)->Arg(1000)->Repetitions(5);

} // namespace
