// Text entries: what a typed key costs before it is drawn, and a frame of many of them.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "bench/TypingPlatform.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskTextEntry.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace {

constexpr int Entries = 100;
constexpr u32 Backspace = 8;
constexpr u32 Home = 36;

std::string Markup(int count, const std::string& values)
{
    std::string markup = "<Tesk>";
    for (int index = 0; index < count; ++index) {
        markup += "<textentry name='e" + std::to_string(index) + "'><X>" + std::to_string(index % 5 * 200) + "</X><Y>"
            + std::to_string(index / 5 * 30) + "</Y><Width>180</Width><Height>24</Height><Border>1</Border>"
            + "<BackgroundColor>FF203040</BackgroundColor><BorderColor>FF8090A0</BorderColor>" + values
            + "</textentry>";
    }
    return markup + "</Tesk>";
}

TeskTextEntry& Entry(int index)
{
    auto* entry = dynamic_cast<TeskTextEntry*>(g_UIManager.FindElement(("e" + std::to_string(index)).c_str()));
    if (!entry)
        std::abort();
    return *entry;
}

// Types a line at its end, or at its start in front of what is there, and empties it when it is full.
void TypeKeys(benchmark::State& state, u32 firstKey)
{
    TypingPlatform platform;
    const LoadedScene scene(Markup(1, "<MaxLength>4096</MaxLength>"));
    TeskTextEntry& entry = Entry(0);
    g_UIManager.SetFocusElement(&entry);
    for (auto _ : state) {
        if (entry.Text.TextLength == entry.MaxLength)
            entry.SetText("");
        if (firstKey != 0)
            g_UIManager.OnKeyDown(firstKey);
        g_UIManager.OnKeyDown('A');
        g_UIManager.OnKeyUp('A');
    }
    ReportTimePer(state, "ns/key");
    state.SetLabel(std::to_string(entry.MaxLength) + " bytes at most");
}

void TypeAtTheEnd(benchmark::State& state)
{
    TypeKeys(state, 0);
}

void TypeAtTheStart(benchmark::State& state)
{
    TypeKeys(state, Home);
}

void TypeAndDelete(benchmark::State& state)
{
    TypeKeys(state, Backspace);
}

void TypeAndDraw(benchmark::State& state)
{
    TypingPlatform platform;
    const LoadedScene scene(Markup(1, "<MaxLength>4096</MaxLength>"));
    TeskTextEntry& entry = Entry(0);
    entry.SetText(std::string(300, 'x').c_str());
    entry.Text.MoveToEnd();
    g_UIManager.SetFocusElement(&entry);
    for (auto _ : state) {
        g_UIManager.OnKeyDown('A');
        g_UIManager.OnKeyUp('A');
        g_UIManager.Render();
        g_UIManager.OnKeyDown(Backspace);
        g_UIManager.OnKeyUp(Backspace);
        g_UIManager.Render();
    }
    ReportTimePer(state, "ns/key and frame", 2);
    state.SetLabel("in a line of 300 bytes");
}

void PasteMegabytes(benchmark::State& state)
{
    TypingPlatform platform;
    platform.Clipboard = std::string(10'000'000, 'x');
    const LoadedScene scene(Markup(1, "<MaxLength>4096</MaxLength>"));
    for (auto _ : state)
        Entry(0).PasteClipboard();
    state.SetLabel("10 MB into an entry of 4096 bytes");
}

void FrameOf(benchmark::State& state, const char* values, std::size_t length)
{
    const LoadedScene scene(Markup(Entries, std::string("<MaxLength>4096</MaxLength>") + values));
    for (int index = 0; index < Entries; ++index) {
        Entry(index).SetText(std::string(length, 'x').c_str());
        Entry(index).Text.MoveToEnd();
    }
    g_UIManager.SetFocusElement(&Entry(Entries / 2));
    for (int frame = 0; frame < 3; ++frame)
        g_UIManager.Render();
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "us/frame");
}

BENCHMARK(TypeAtTheEnd)->Name("entry.type.end")->Repetitions(9);
BENCHMARK(TypeAtTheStart)->Name("entry.type.start")->Repetitions(9);
BENCHMARK(TypeAndDelete)->Name("entry.type.delete")->Repetitions(9);
BENCHMARK(TypeAndDraw)->Name("entry.type.draw")->Repetitions(9);
BENCHMARK(PasteMegabytes)->Name("entry.paste")->Repetitions(3);
BENCHMARK_CAPTURE(FrameOf, empty, "", 0)->Name("entry.frame.empty")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, words, "", 20)->Name("entry.frame.words")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, long, "", 1000)->Name("entry.frame.long")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, masked, "<PasswordCharacter>*</PasswordCharacter>", 20)
    ->Name("entry.frame.masked")
    ->Repetitions(9);

} // namespace
