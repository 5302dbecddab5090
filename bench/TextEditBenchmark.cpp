// A text edit with a text of 100,000 lines and 5 MB: taking it in, and what a user does in it, with the frame after it.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "bench/TypingPlatform.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskTextEdit.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace {

constexpr int LineCount = 100'000;
constexpr std::size_t LineLength = 49; // without the line feed
constexpr u32 Backspace = 8;
constexpr u32 Enter = 13;
constexpr u32 Down = 40;

constexpr char Markup[] =
    "<Tesk><textedit name='e'><Width>640</Width><Height>700</Height><BackgroundColor>FF203040</BackgroundColor>"
    "<Font><Size>12</Size></Font><SelectionColor>FF405060</SelectionColor><VerticalScrollBar><X>624</X>"
    "<Width>16</Width><Height>100%</Height><Slider><Width>16</Width><Height>100%</Height><Vertical/></Slider>"
    "</VerticalScrollBar></textedit></Tesk>";

const std::string& LargeText()
{
    static const std::string text = [] {
        std::string lines;
        for (int number = 0; number < LineCount; ++number) {
            std::string line = "line " + std::to_string(number) + " of a text ";
            line.resize(LineLength, '.');
            lines += line + '\n';
        }
        lines.pop_back();
        return lines;
    }();
    return text;
}

// An edit with the keyboard, which has been drawn once.
class EditScene
{
public:
    explicit EditScene(const std::string& text) : m_Scene(Markup), Edit(Find())
    {
        g_UIManager.SetFocusElement(&Edit);
        Edit.SetText(text.c_str());
        g_UIManager.Render();
    }

private:
    static TeskTextEdit& Find()
    {
        auto* edit = dynamic_cast<TeskTextEdit*>(g_UIManager.FindElement("e"));
        if (!edit)
            std::abort();
        return *edit;
    }

    TypingPlatform m_Platform;
    LoadedScene m_Scene;

public:
    TeskTextEdit& Edit;
};

std::string Size(const std::string& text, const TeskTextEdit& edit)
{
    return std::to_string(text.size()) + " bytes, " + std::to_string(edit.Lines.Count()) + " lines";
}

void Press(u32 key)
{
    g_UIManager.OnKeyDown(key);
    g_UIManager.OnKeyUp(key);
}

void SetText(benchmark::State& state)
{
    const EditScene scene("");
    for (auto _ : state)
        scene.Edit.SetText(LargeText().c_str());
    state.SetLabel(Size(LargeText(), scene.Edit));
}

void AddText(benchmark::State& state)
{
    const EditScene scene("");
    for (auto _ : state) {
        scene.Edit.AddText(LargeText().c_str());
        state.PauseTiming();
        scene.Edit.SetText("");
        state.ResumeTiming();
    }
}

// At the start of the text.
void TypeAndDraw(benchmark::State& state, const std::string& text)
{
    const EditScene scene(text);
    for (auto _ : state) {
        Press('A');
        g_UIManager.Render();
        Press(Backspace);
        g_UIManager.Render();
    }
    ReportTimePer(state, "us/key and frame", 2);
    state.SetLabel(Size(text, scene.Edit) + DrawsOfFrame());
}

// Cuts a line at the start of the text, and joins it again: the numbers of all lines behind change twice.
void CutAndJoin(benchmark::State& state)
{
    const EditScene scene(LargeText());
    for (auto _ : state) {
        Press(Enter);
        Press(Backspace);
    }
    ReportTimePer(state, "us/key", 2);
    state.SetLabel(Size(LargeText(), scene.Edit));
}

void CutAndJoinAndDraw(benchmark::State& state)
{
    const EditScene scene(LargeText());
    for (auto _ : state) {
        Press(Enter);
        g_UIManager.Render();
        Press(Backspace);
        g_UIManager.Render();
    }
    ReportTimePer(state, "us/key and frame", 2);
}

// Down through the whole text again and again.
void ScrollAndDraw(benchmark::State& state)
{
    const EditScene scene(LargeText());
    for (auto _ : state) {
        if (!scene.Edit.View.Caret.Line->Next)
            scene.Edit.HandleCtrlHome();
        Press(Down);
        g_UIManager.Render();
    }
    ReportTimePer(state, "us/key and frame");
}

// From the first line to the last and back.
void DragBar(benchmark::State& state)
{
    const EditScene scene(LargeText());
    scene.Edit.HandleCtrlHome();
    for (auto _ : state) {
        scene.Edit.ScrollBar->SetValue(1);
        scene.Edit.ScrollBar->SetValue(LineCount);
    }
    ReportTimePer(state, "us/drag", 2);
}

void DrawSelected(benchmark::State& state)
{
    const EditScene scene(LargeText());
    scene.Edit.SelectAll();
    g_UIManager.Render();
    state.SetLabel(DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "us/frame");
}

void CopyAll(benchmark::State& state)
{
    const EditScene scene(LargeText());
    scene.Edit.SelectAll();
    for (auto _ : state)
        benchmark::DoNotOptimize(scene.Edit.Selection.Text());
}

BENCHMARK(SetText)->Name("edit.set")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK(AddText)->Name("edit.add")->Unit(benchmark::kMillisecond)->Repetitions(9);
BENCHMARK_CAPTURE(TypeAndDraw, lines, LargeText())->Name("edit.type")->Repetitions(9);
BENCHMARK_CAPTURE(TypeAndDraw, line, std::string(5'000'000, 'x'))->Name("edit.type.long")->Repetitions(3);
BENCHMARK(CutAndJoin)->Name("edit.enter")->Repetitions(9);
BENCHMARK(CutAndJoinAndDraw)->Name("edit.enter.draw")->Repetitions(9);
BENCHMARK(ScrollAndDraw)->Name("edit.scroll")->Repetitions(9);
BENCHMARK(DragBar)->Name("edit.drag")->Repetitions(9);
BENCHMARK(DrawSelected)->Name("edit.frame.selected")->Repetitions(9);
BENCHMARK(CopyAll)->Name("edit.copy")->Unit(benchmark::kMillisecond)->Repetitions(9);

} // namespace
