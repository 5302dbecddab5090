// A table of many cells: loading it, and laying it out anew as it changes its size.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/collections/TeskTable.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int Rows = 100;
constexpr int Columns = 100;

// A table of cells, each with the same in it, and each over so many columns.
std::string Markup(const std::string& inside, int colSpan)
{
    const std::string cell = "<Cell ColSpan='" + std::to_string(colSpan)
        + "'><BackgroundColor>ff202020</BackgroundColor>" + inside + "</Cell>";
    std::string markup = "<Tesk><table name='t'><Width>4000</Width><Height>3000</Height>";
    for (int row = 0; row < Rows; ++row) {
        markup += "<Row>";
        for (int column = 0; column < Columns; column += colSpan)
            markup += cell;
        markup += "</Row>";
    }
    return markup + "</table></Tesk>";
}

const std::string NoChild;
const std::string Child = "<Children><frame Name='f'><Width>100%</Width><Height>r2</Height></frame></Children>";

// Every column and all that is in it changes with the table.
void LayOut(benchmark::State& state, const std::string& inside, int colSpan)
{
    const LoadedScene scene(Markup(inside, colSpan));
    auto& table = static_cast<TeskTable&>(*g_UIManager.FindElement("t"));
    state.SetLabel(ElementCount());
    for (auto _ : state) {
        table.Width ^= 128;
        table.RecalculateSize(true);
    }
    ReportTimePer(state, "ms/layout");
}

void Load(benchmark::State& state, const std::string& inside)
{
    StartedHost();
    const MarkupFile file(Markup(inside, 1));
    for (auto _ : state) {
        state.PauseTiming();
        g_UIManager.Reset();
        state.ResumeTiming();
        file.Load();
    }
    state.SetLabel(ElementCount());
    g_UIManager.Reset();
}

BENCHMARK_CAPTURE(LayOut, empty, NoChild, 1)->Name("table.layout.empty")->Repetitions(9);
BENCHMARK_CAPTURE(LayOut, child, Child, 1)->Name("table.layout")->Repetitions(9);
BENCHMARK_CAPTURE(LayOut, spans, Child, 10)->Name("table.layout.spans")->Repetitions(9);
BENCHMARK_CAPTURE(Load, empty, NoChild)
    ->Name("table.load.empty")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->Iterations(3);
BENCHMARK_CAPTURE(Load, child, Child)->Name("table.load")->Unit(benchmark::kMillisecond)->Repetitions(5)->Iterations(3);

} // namespace
