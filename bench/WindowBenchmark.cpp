// Windows that overlap: a frame of them all, one that is dragged about among the others and sticks to the edges of the
// screen, and one that is resized.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/core/CUIManager.h"
#include "teskara/windows/TeskWindow.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace {

constexpr int Windows = 50;
constexpr int ChildrenOfWindow = 20;
constexpr int TitleBarHeight = 22;

std::string Tag(const char* name, int value)
{
    return std::string("<") + name + ">" + std::to_string(value) + "</" + name + ">";
}

std::string TemplateMarkup()
{
    return "<Template name='window'><Border>2</Border><BackgroundColor>ff202020</BackgroundColor><CloseButton/>"
           "<MinimizeButton/><TitleBar><Width>100%</Width><Height>"
        + std::to_string(TitleBarHeight)
        + "</Height><BackgroundColor>ff404040</BackgroundColor><Children><text name='Title'><Width>r60</Width></text>"
          "<button name='Minimize'><X>r40</X><Width>20</Width><Height>20</Height></button>"
          "<button name='Maximize'><X>r40</X><Width>20</Width><Height>20</Height></button>"
          "<button name='Close'><X>r20</X><Width>20</Width><Height>20</Height></button></Children></TitleBar>"
          "<Client><Y>"
        + std::to_string(TitleBarHeight) + "</Y><Width>100%</Width><Height>r" + std::to_string(TitleBarHeight)
        + "</Height></Client></Template>";
}

std::string WindowMarkup(int index)
{
    std::string children;
    for (int child = 0; child < ChildrenOfWindow; ++child) {
        children += "<button name='b" + std::to_string(child) + "'>" + Tag("X", child % 4 * 80)
            + Tag("Y", child / 4 * 24) + "<Width>20%</Width><Height>20</Height><Text>Button</Text></button>";
    }
    return "<window name='w" + std::to_string(index) + "'>" + Tag("X", 40 + index % 10 * 150)
        + Tag("Y", 40 + index / 10 * 180) + "<Width>400</Width><Height>200</Height><Resizable/><Title>Window "
        + std::to_string(index) + "</Title><Children>" + children + "</Children></window>";
}

std::string DesktopMarkup()
{
    std::string markup = "<Tesk>" + TemplateMarkup();
    for (int index = 0; index < Windows; ++index)
        markup += WindowMarkup(index);
    return markup + "</Tesk>";
}

// A window half of the others lie above.
TeskWindow& MiddleWindow()
{
    auto* window = dynamic_cast<TeskWindow*>(g_UIManager.FindElement("w25"));
    if (!window)
        std::abort();
    return *window;
}

void MoveTo(i32 x, i32 y)
{
    _Point2i point = {x, y};
    benchmark::DoNotOptimize(g_UIManager.OnMouseMove(point));
}

// Brings the window to the top and holds it there.
void PressAt(TeskWindow& window, i32 x, i32 y)
{
    window.MoveZTop(true);
    MoveTo(0, 0); // the mouse may be there already, and then a move says nothing
    MoveTo(window.AbsoluteX + x, window.AbsoluteY + y);
    g_UIManager.OnLMouseDown();
}

void LetGo()
{
    g_UIManager.OnLMouseUp();
    g_UIManager.LastLeftClickElementID = 0;
}

void FrameOfWindows(benchmark::State& state)
{
    const LoadedScene scene(DesktopMarkup());
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

// To and fro between the left and the upper edge, where it sticks, and the open screen.
void DragWindow(benchmark::State& state)
{
    const LoadedScene scene(DesktopMarkup());
    TeskWindow& window = MiddleWindow();
    PressAt(window, 150, TitleBarHeight / 2);
    if (!window.Dragging)
        std::abort();
    for (auto _ : state) {
        MoveTo(152, 12);
        MoveTo(700, 500);
    }
    LetGo();
    ReportTimePer(state, "ns/event", 2);
}

void DragWindowAndDraw(benchmark::State& state)
{
    const LoadedScene scene(DesktopMarkup());
    PressAt(MiddleWindow(), 150, TitleBarHeight / 2);
    i32 step = 0;
    for (auto _ : state) {
        step = (step + 1) % 500;
        MoveTo(150 + step, 100 + step);
        g_UIManager.Render();
    }
    LetGo();
    ReportTimePer(state, "ms/frame");
}

// Every step lays out title bar, client and content.
void ResizeWindow(benchmark::State& state)
{
    const LoadedScene scene(DesktopMarkup());
    TeskWindow& window = MiddleWindow();
    PressAt(window, static_cast<i32>(window.Width) - 1, static_cast<i32>(window.Height) - 1);
    if (window.ResizeEdges != (RightEdge | BottomEdge))
        std::abort();
    const _Point2i corner = g_UIManager.MousePosition;
    for (auto _ : state) {
        MoveTo(corner.x + 50, corner.y + 50);
        MoveTo(corner.x, corner.y);
    }
    LetGo();
    ReportTimePer(state, "ns/event", 2);
}

BENCHMARK(FrameOfWindows)->Name("windows.frame")->Repetitions(9);
BENCHMARK(DragWindow)->Name("windows.drag")->Repetitions(9);
BENCHMARK(DragWindowAndDraw)->Name("windows.drag.frame")->Repetitions(9);
BENCHMARK(ResizeWindow)->Name("windows.resize")->Repetitions(9);

} // namespace
