// A console that takes a flood of lines, and one that shows a screenful of them in colours.

#include "bench/LoadedScene.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

constexpr int Lines = 100000;
constexpr int Rows = 50;

// A pane of 50 rows of 100 columns; 12 pixels of a row are the font.
std::string Markup(const std::string& lines)
{
    return "<Tesk><console name='c'><Width>616</Width><Height>650</Height><Font><Size>12</Size></Font><BackBufferSize>"
        + lines
        + "</BackBufferSize><ScrollBar><Width>16</Width><Height>100%</Height><Vertical/><Slider><Width>16</Width>"
          "<Height>100%</Height><Vertical/></Slider></ScrollBar></console></Tesk>";
}

TeskConsole& Console()
{
    return static_cast<TeskConsole&>(*g_UIManager.FindElement("c"));
}

// 80 bytes with its end.
std::string LineOf(int number)
{
    std::string line = "line " + std::to_string(number) + " of what a host has to say ";
    line.resize(79, '.');
    return line + '\n';
}

// The same with four changes of colour.
std::string ColoredLineOf(int number)
{
    return "\ag" + std::to_string(number) + "\ax of what \a#ff8000a host\ax has to say \a-yin colours\ax and without\n";
}

void PrintLines(benchmark::State& state, const char* size)
{
    const LoadedScene scene(Markup(size));
    std::vector<std::string> lines;
    for (int number = 0; number < Lines; ++number)
        lines.push_back(LineOf(number));
    for (auto _ : state) {
        for (const std::string& line : lines)
            Console().Print(line.c_str());
        state.PauseTiming();
        Console().Clear();
        state.ResumeTiming();
    }
    state.SetLabel("lines=" + std::to_string(Lines));
}

// One text that has to be broken into lines of 100 columns.
void PrintText(benchmark::State& state)
{
    const LoadedScene scene(Markup("200000"));
    std::string text;
    for (int number = 0; number < Lines; ++number)
        text += LineOf(number).replace(79, 1, " ");
    for (auto _ : state) {
        Console().Print(text.c_str());
        state.PauseTiming();
        Console().Clear();
        state.ResumeTiming();
    }
    state.SetLabel("bytes=" + std::to_string(text.size()));
}

void ShowLines(benchmark::State& state, u32 linesBack)
{
    const LoadedScene scene(Markup("1000"));
    for (int number = 0; number < 10 * Rows; ++number)
        Console().Print(ColoredLineOf(number).c_str());
    Console().ScrollBar->SetValue(linesBack);
    state.SetLabel(DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
}

BENCHMARK_CAPTURE(PrintLines, kept, "1000000")->Name("console.print")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK_CAPTURE(PrintLines, dropped, "500")
    ->Name("console.print.full")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9);
BENCHMARK(PrintText)->Name("console.print.text")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK_CAPTURE(ShowLines, newest, 0)->Name("console.frame")->Repetitions(9);
BENCHMARK_CAPTURE(ShowLines, older, 100)->Name("console.frame.scrolled")->Repetitions(9);

} // namespace
