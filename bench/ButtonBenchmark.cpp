// Buttons and check boxes in the ways that skins draw them, each with a text that is evaluated in every frame.

#include "bench/LoadedScene.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int Controls = 1000;

std::string Markup(const std::string& kind, const std::string& values)
{
    std::string markup = "<Tesk>";
    for (int index = 0; index < Controls; ++index) {
        markup += "<" + kind + " name='c" + std::to_string(index) + "'><X>" + std::to_string(index % 40 * 200)
            + "</X><Y>" + std::to_string(index / 40 * 30)
            + "</Y><Width>180</Width><Height>24</Height><Text>Go on</Text>" + values + "</" + kind + ">";
    }
    return markup + "</Tesk>";
}

void FrameOf(benchmark::State& state, const char* kind, const char* values)
{
    const LoadedScene scene(Markup(kind, values));
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
}

BENCHMARK_CAPTURE(FrameOf, images, "button", "<Texture Filename='#a'/>")->Name("button.frame.images")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, bordered, "button", "<Border>3</Border><Texture Filename='#a'><Border>3</Border></Texture>")
    ->Name("button.frame.bordered")
    ->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, rectangles, "button",
    "<Border>1</Border><BackgroundColor>FF203040</BackgroundColor><BorderColor>FF8090A0</BorderColor>")
    ->Name("button.frame.rectangles")
    ->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, boxes, "checkbox", "<Texture Filename='#a'/><TextureChecked Filename='#b'/>")
    ->Name("checkbox.frame")
    ->Repetitions(9);

} // namespace
