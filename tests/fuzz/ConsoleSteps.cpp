#include "tests/fuzz/ConsoleSteps.h"

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"
#include "tests/fuzz/ConsoleModel.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TextHost.h"

#include <iterator>
#include <map>
#include <optional>
#include <string>

namespace {

// On the clipboard, before anything is copied.
constexpr char Before[] = "before";

// Around what sets a console apart.
constexpr char Beginning[] =
    "<Template><X>40</X><Y>30</Y><Width>100</Width><Height>90</Height><Font><Size>9</Size></Font>"
    "<ScrollBar><Width>16</Width><Slider><Width>16</Width><Height>100%</Height><Vertical/></Slider></ScrollBar>";
constexpr char End[] = "</Template>";

// The console under test and what it should be.
struct Scene {
    TeskConsole& Console;
    ConsoleModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

u64 ColumnsOf(const Scene& scene)
{
    return (static_cast<u32>(scene.Model.Width) - 16) / ConsoleModel::CharacterWidth;
}

void PrintText(Scene& scene, const std::string& text)
{
    scene.Console.Print(text.c_str());
    scene.Model.Print(text, ColumnsOf(scene));
}

// Any byte, but spaces, line feeds and colour codes more often than others.
char CharacterFrom(u8 byte)
{
    constexpr char often[] = {' ', '\n', '\a', '-', '#', 'r', 'x', 'a'};
    return byte < 128 ? often[byte % 8] : byte == 255 ? '\1' : static_cast<char>(byte - 127);
}

void Print(Scene& scene, Decisions& bytes)
{
    std::string text;
    for (u8 length = bytes.Next() % 64; length > 0; --length)
        text += CharacterFrom(bytes.Next());
    PrintText(scene, text);
}

// One word, often longer than a line can be.
void PrintWord(Scene& scene, Decisions& bytes)
{
    const u8 length = bytes.Next();
    PrintText(scene, std::string(length * 17u, 'w') + "\nend");
}

void PrintMany(Scene& scene, Decisions& bytes)
{
    std::string text;
    for (int line = bytes.Next(); line > 0; --line)
        text += std::to_string(line) + " of many\n";
    PrintText(scene, text);
}

void Scroll(Scene& scene, Decisions& bytes)
{
    const i32 offset = (bytes.Next() - 128) * 20;
    scene.Console.OnMouseWheel(offset);
    scene.Model.SetValue(scene.Model.Value + (offset > 0 ? offset / 40 : -(-offset / 40)));
}

void PageDown(Scene& scene, Decisions& bytes)
{
    g_UIManager.CtrlDown = bytes.Next() % 4 == 3;
    scene.Model.SetValue(g_UIManager.CtrlDown ? 0 : scene.Model.Value - scene.Model.VisibleLines());
    scene.Console.HandlePageDown();
    g_UIManager.CtrlDown = false;
}

_Point2i PointNear(const ConsoleModel& model, Decisions& bytes)
{
    const i32 x = bytes.Next() - 40;
    return {model.X + x, model.Y + bytes.Next() - 40};
}

void Select(Scene& scene, Decisions& bytes)
{
    _Point2i from = PointNear(scene.Model, bytes);
    _Point2i to = PointNear(scene.Model, bytes);
    const std::optional<std::string> expected = scene.Model.Select(from, to);
    StartedTextHost().Quiet.Clipboard = Before;
    scene.Console.OnLMouseDown(from);
    scene.Console.OnMouseMove(to);
    scene.Console.OnLMouseUp(to);
    Require(StartedTextHost().Quiet.Clipboard == (StartedTextHost().Opens ? expected.value_or(Before) : Before),
        "the copies differ");
    Require(StartedTextHost().Lines == scene.Model.BadLines, "the lines about bad slots differ");
}

// The console is emptied in the middle of a copy, whose text is no matter then.
void SelectWhileItIsCleared(Scene& scene, Decisions& bytes)
{
    _Point2i from = PointNear(scene.Model, bytes);
    _Point2i to = PointNear(scene.Model, bytes);
    StartedTextHost().Told = &scene.Console;
    scene.Console.OnLMouseDown(from);
    scene.Console.OnLMouseUp(to);
    StartedTextHost().Told = nullptr;
    scene.Console.Clear();
    scene.Model.Clear();
    scene.Model.BadLines = StartedTextHost().Lines;
}

void Resize(Scene& scene, Decisions& bytes)
{
    scene.Console.Width = 17u + bytes.Next();
    scene.Console.Height = bytes.Next();
    scene.Console.RecalculateSize(true);
    scene.Model.Width = static_cast<i32>(scene.Console.Width);
    scene.Model.Height = static_cast<i32>(scene.Console.Height);
}

void Draw(Scene& scene, Decisions&)
{
    std::map<i32, std::string>& drawn = StartedTextHost().Drawn;
    drawn.clear();
    g_UIManager.Render();
    i32 top = scene.Model.Y + 2;
    for (const std::optional<std::string>& line : scene.Model.Rows()) {
        const bool isColored = line && line->find('\a') != std::string::npos;
        if (!isColored)
            Require(drawn[top] == line.value_or(""), "another line is drawn");
        drawn.erase(top);
        top += ConsoleModel::Pitch;
    }
    Require(drawn.empty(), "more lines are drawn");
}

// clang-format off
constexpr Step Steps[] = {
    {"print",      Print},
    {"word",       PrintWord},
    {"many",       PrintMany},
    {"clear",      [](Scene& scene, Decisions&) { scene.Console.Clear(); scene.Model.Clear(); }},
    {"wheel",      Scroll},
    {"page up",    [](Scene& scene, Decisions&) {
        scene.Model.SetValue(scene.Model.Value + scene.Model.VisibleLines());
        scene.Console.HandlePageUp();
    }},
    {"page down",  PageDown},
    {"up",         [](Scene& scene, Decisions&) {
        scene.Model.SetValue(scene.Model.Value + 1);
        scene.Console.HandleUp();
    }},
    {"down",       [](Scene& scene, Decisions&) {
        scene.Model.SetValue(scene.Model.Value - 1);
        scene.Console.HandleDown();
    }},
    {"select",     Select},
    {"select while it is cleared", SelectWhileItIsCleared},
    {"resize",     Resize},
    {"refuse",     [](Scene&, Decisions& bytes) { StartedTextHost().Opens = bytes.Next() % 4 != 0; }},
    {"frame",      Draw},
};
// clang-format on

void Compare(const Scene& scene)
{
    const ConsoleModel& model = scene.Model;
    Require(model.Newest == scene.Console.Lines.Newest(), "the newest lines differ");
    Require(model.ScrollLine == scene.Console.ScrollLine, "the views differ");
    Require(model.VisibleLines() == scene.Console.VisibleLines, "the numbers of rows differ");
    for (const auto& [slot, line] : model.Lines) {
        const char* real = scene.Console.Lines.At(slot);
        Require(real && line == real, "the lines differ");
    }
}

// name: of the template of consoles with these values.
void RunOn(const char* name, const char* values, Decisions& bytes)
{
    const std::string markup = std::string(Beginning) + values + End;
    auto& console = MakeOnScreen<TeskConsole>("console", "c", KeptTemplate(name, markup.c_str()));
    g_UIManager.Render();

    Scene scene = {console, {}};
    scene.Model.Size = console.BackBufferSize;
    scene.Model.X = console.AbsoluteX;
    scene.Model.Y = console.AbsoluteY;
    scene.Model.Width = static_cast<i32>(console.Width);
    scene.Model.Height = static_cast<i32>(console.Height);
    scene.Model.Border = static_cast<i32>(console.Border);
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        const TeskSlider& slider = *console.ScrollBar->Slider;
        scene.Model.HasRoomForHandle = slider.HandleHeight <= slider.Height;
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
    Draw(scene, bytes);
}

} // namespace

void RunConsoleSteps(Decisions& bytes)
{
    RunOn("plain", "", bytes);
}

void RunBorderedConsoleSteps(Decisions& bytes)
{
    RunOn("bordered", "<Border>4</Border><BackBufferSize>101</BackBufferSize>", bytes);
}

void RunEndlessConsoleSteps(Decisions& bytes)
{
    RunOn("endless", "<BackBufferSize>4294967295</BackBufferSize>", bytes);
}
