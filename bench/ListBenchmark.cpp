// Lists of many rows: filling them, scrolling through them, and finding and selecting single rows.

#include "bench/LoadedScene.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int Rows = 100000;

constexpr char Markup[] = "<Tesk><listbox name='l'><Width>300</Width><Height>400</Height><Font><Size>12</Size></Font>"
                          "<ScrollBar><Width>16</Width><Height>100%</Height><Vertical/><Slider><Width>16</Width>"
                          "<Height>100%</Height><Vertical/></Slider></ScrollBar></listbox></Tesk>";

TeskListBox& List()
{
    return static_cast<TeskListBox&>(*g_UIManager.FindElement("l"));
}

// Texts in no order.
std::vector<std::string> TextsOf(i64 count)
{
    std::vector<std::string> texts;
    u32 number = 1;
    for (i64 index = 0; index < count; ++index) {
        number = number * 1664525u + 1013904223u;
        texts.push_back("Row " + std::to_string(number >> 8) + " of a list");
    }
    return texts;
}

void Fill(TeskListBox& list, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
        list.AddItem(text.c_str(), nullptr, 0);
}

void FillList(benchmark::State& state, u32 sortType)
{
    const LoadedScene scene(Markup);
    const std::vector<std::string> texts = TextsOf(Rows);
    List().SortType = sortType;
    for (auto _ : state) {
        Fill(List(), texts);
        benchmark::DoNotOptimize(List().RetrieveOrdered(0));
        state.PauseTiming();
        List().ClearItems();
        state.ResumeTiming();
    }
    state.SetLabel("rows=" + std::to_string(Rows));
}

// Each frame shows the list one row further.
void ScrollList(benchmark::State& state)
{
    const LoadedScene scene(Markup);
    Fill(List(), TextsOf(Rows));
    state.SetLabel("rows=" + std::to_string(Rows) + DrawsOfFrame());
    for (auto _ : state) {
        if (List().ScrollBar->GetValue() == 0)
            List().ScrollBar->SetValue(List().ScrollBar->Range);
        List().ScrollBar->LowerValue(1);
        g_UIManager.Render();
    }
}

// Single rows all over the list, whose time must not grow with it.
template <class Operation> void OnEachRow(benchmark::State& state, Operation operation)
{
    const LoadedScene scene(Markup);
    TeskListBox& list = List();
    list.SelectMultiple = true;
    Fill(list, TextsOf(state.range(0)));
    for (u32 id = 1; id <= list.GetItemCount(); id += 2)
        list.SelectItem(id);
    const u32 count = list.GetItemCount();
    u32 id = 1;
    for (auto _ : state) {
        operation(list, id);
        id = id + 7919 < count ? id + 7919 : (id + 7919) % count + 1;
    }
}

void FindRow(benchmark::State& state)
{
    OnEachRow(state, [](TeskListBox& list, u32 id) { benchmark::DoNotOptimize(list.RetrieveItem(id)); });
}

void SelectRow(benchmark::State& state)
{
    OnEachRow(state, [](TeskListBox& list, u32 id) {
        list.SelectItem(id);
        list.DeselectItem(id);
    });
}

BENCHMARK_CAPTURE(FillList, unsorted, SortNone)->Name("list.fill")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK_CAPTURE(FillList, sorted, SortText)->Name("list.fill.sorted")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK(ScrollList)->Name("list.scroll")->Repetitions(9);
BENCHMARK(FindRow)->Name("list.find")->Arg(1000)->Arg(1000000);
BENCHMARK(SelectRow)->Name("list.select")->Arg(1000)->Arg(1000000);

} // namespace
