// What lies over a scene that draws itself anew all the time: HUD elements that are evaluated every so many frames, and
// a tooltip.

#include "bench/LoadedScene.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int HudElements = 1000;
constexpr int TooltipLines = 20;

std::string HudMarkup(int interval)
{
    std::string markup = "<Tesk>";
    for (int index = 0; index < HudElements; ++index) {
        markup += "<hudelement name='h" + std::to_string(index) + "'><X>" + std::to_string(index % 40 * 200) + "</X><Y>"
            + std::to_string(index / 40 * 20) + "</Y><UpdateInterval>" + std::to_string(interval)
            + "</UpdateInterval><Text>${Value} of a text</Text></hudelement>";
    }
    return markup + "</Tesk>";
}

// A frame of them all, in the mean of those with and without an evaluation.
void FrameOfHud(benchmark::State& state, int interval)
{
    const LoadedScene scene(HudMarkup(interval));
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
}

void FrameOfTooltip(benchmark::State& state, const char* line)
{
    const LoadedScene scene("<Tesk><tooltip name='t'><Border>4</Border></tooltip></Tesk>");
    auto* tooltip = static_cast<TeskTooltip*>(g_UIManager.FindElement("t"));
    for (int count = 0; count < TooltipLines; ++count)
        tooltip->AddLine(line);
    tooltip->Show(true);
    state.SetLabel("lines=" + std::to_string(TooltipLines) + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
}

BENCHMARK_CAPTURE(FrameOfHud, seldom, 60)->Name("hud.frame")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfHud, always, 0)->Name("hud.frame.always")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfTooltip, plain, "A line of a tooltip as people write them")
    ->Name("tooltip.frame")
    ->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfTooltip, colored, "A line \ar-in red\ax- and one ${Value}")
    ->Name("tooltip.frame.live")
    ->Repetitions(9);

} // namespace
