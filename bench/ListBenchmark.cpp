// A list of many rows: filling it, drawing it, scrolling through it, and finding and selecting single rows.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int Rows = 100000;

constexpr char Markup[] = "<Tesk><listbox name='l'><Width>400</Width><Height>600</Height><Font><Size>13</Size></Font>"
                          "<ScrollBar><Width>16</Width><Height>100%</Height><Vertical/><Slider><Width>16</Width>"
                          "<Height>100%</Height><Vertical/></Slider></ScrollBar></listbox></Tesk>";

TeskListBox& List()
{
    return static_cast<TeskListBox&>(*g_UIManager.FindElement("l"));
}

std::vector<std::string> Texts(i64 count)
{
    std::vector<std::string> texts;
    for (i64 index = 0; index < count; ++index) {
        char text[32];
        std::snprintf(text, sizeof(text), "Row %06d of the list", static_cast<int>(index));
        texts.push_back(text);
    }
    return texts;
}

std::vector<std::string> MixedTexts(i64 count)
{
    std::vector<std::string> texts = Texts(count);
    std::shuffle(texts.begin(), texts.end(), std::minstd_rand());
    return texts;
}

void Fill(TeskListBox& list, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
        list.AddItem(text.c_str(), nullptr, 0);
}

// Each time into a list that is new. A look at the first row makes the list sort itself.
void FillList(benchmark::State& state, u32 sortType, std::vector<std::string> (*texts)(i64 count))
{
    const std::vector<std::string> rows = texts(Rows);
    StartedHost();
    const MarkupFile file(Markup);
    for (auto _ : state) {
        state.PauseTiming();
        g_UIManager.Reset();
        file.Load();
        List().SortType = sortType;
        state.ResumeTiming();
        Fill(List(), rows);
        benchmark::DoNotOptimize(List().RetrieveOrdered(0));
    }
    state.SetLabel("rows=" + std::to_string(List().GetItemCount()));
    g_UIManager.Reset();
}

// From the middle on, each frame shows the list so many rows further down.
void FrameOfList(benchmark::State& state, u32 step)
{
    const LoadedScene scene(Markup);
    Fill(List(), Texts(Rows));
    TeskScrollBar& bar = *List().ScrollBar;
    bar.SetValue(bar.Range / 2);
    state.SetLabel("rows=" + std::to_string(Rows) + DrawsOfFrame());
    for (auto _ : state) {
        if (step != 0)
            bar.SetValue(bar.GetValue() >= step ? bar.GetValue() - step : bar.Range);
        g_UIManager.Render();
    }
    ReportTimePer(state, "ms/frame");
}

// Single rows all over the list, whose time must not grow with it. Every second one is selected.
void OnSingleRows(benchmark::State& state, void (*operation)(TeskListBox& list, u32 id))
{
    const LoadedScene scene(Markup);
    TeskListBox& list = List();
    list.SelectMultiple = true;
    Fill(list, Texts(state.range(0)));
    const u32 count = list.GetItemCount();
    for (u32 id = 1; id <= count; id += 2)
        list.SelectItem(id);

    u32 id = 1;
    for (auto _ : state) {
        operation(list, id);
        id = (id + 7919) % count + 1;
    }
    ReportTimePer(state, "ns/row");
    state.SetLabel("rows=" + std::to_string(count));
}

void Find(TeskListBox& list, u32 id)
{
    benchmark::DoNotOptimize(list.RetrieveItem(id));
}

void SelectAndDeselect(TeskListBox& list, u32 id)
{
    list.SelectItem(id);
    list.DeselectItem(id);
}

// The first three as other toolkits name the same work.
BENCHMARK_CAPTURE(FillList, unsorted, SortNone, Texts)
    ->Name("W5.add")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->Iterations(3);
BENCHMARK_CAPTURE(FrameOfList, still, 0)->Name("W5")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfList, scrolled, 1)->Name("W5.scroll")->Repetitions(9);
BENCHMARK_CAPTURE(FillList, sorted, SortText, MixedTexts)
    ->Name("W5.sorted")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->Iterations(3);
BENCHMARK_CAPTURE(OnSingleRows, find, Find)->Name("list.find")->Arg(1000)->Arg(1000000)->Repetitions(5);
BENCHMARK_CAPTURE(OnSingleRows, select, SelectAndDeselect)
    ->Name("list.select")
    ->Arg(1000)
    ->Arg(1000000)
    ->Repetitions(5);

} // namespace
