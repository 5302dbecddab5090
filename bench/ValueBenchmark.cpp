// Gauges and sliders in the ways that skins draw them, and what a mixer does in a frame: each of them over a number of
// the host.

#include "bench/LoadedScene.h"
#include "teskara/controls/TeskGauge.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int Controls = 1000;

constexpr char Gauge[] = "<Range>100</Range><Border>2</Border><Filler><Width>100%</Width><Height>100%</Height>"
                         "<Texture Filename='#bar'><right>60</right><bottom>10</bottom></Texture></Filler>";
constexpr char SteppedGauge[] = "<Range>100</Range><Filler><Width>100%</Width><Height>100%</Height><Repeat>10</Repeat>"
                                "<Texture Filename='#bar'><right>6</right><bottom>10</bottom></Texture></Filler>";
constexpr char Slider[] = "<Range>100</Range><Border>2</Border><Texture Filename='#track'><Border>2</Border></Texture>"
                          "<HandleTexture Filename='#handle'/><VariableRange>1</VariableRange>";

std::string Markup(const std::string& kind, const std::string& values)
{
    std::string markup = "<Tesk>";
    for (int index = 0; index < Controls; ++index) {
        markup += "<" + kind + " name='c" + std::to_string(index) + "'><X>" + std::to_string(index % 40 * 200)
            + "</X><Y>" + std::to_string(index / 40 * 30) + "</Y><Width>180</Width><Height>24</Height>" + values + "</"
            + kind + ">";
    }
    return markup + "</Tesk>";
}

void SetValue(TeskElement& element, int value)
{
    if (auto* gauge = dynamic_cast<TeskGauge*>(&element))
        gauge->SetValue(static_cast<float>(value));
    else if (auto* slider = dynamic_cast<TeskSlider*>(&element))
        slider->SetValue(static_cast<unsigned>(value));
}

void SetAll(int value)
{
    for (TeskElement* child = g_UIManager.Screen->FirstChild; child; child = child->Next)
        SetValue(*child, value);
}

void FrameOf(benchmark::State& state, const char* kind, const std::string& values)
{
    const LoadedScene scene(Markup(kind, values));
    SetAll(65);
    state.SetLabel(ElementCount() + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
}

void ChangeOf(benchmark::State& state, const char* kind, const std::string& values)
{
    const LoadedScene scene(Markup(kind, values));
    state.SetLabel(ElementCount());
    int value = 0;
    for (auto _ : state)
        SetAll(++value % 100);
}

BENCHMARK_CAPTURE(FrameOf, gauges, "gauge", Gauge)->Name("gauge.frame")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, stepped, "gauge", SteppedGauge)->Name("gauge.frame.stepped")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, variable, "variablegauge", std::string(Gauge) + "<Data>${Time}</Data>")
    ->Name("variablegauge.frame")
    ->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, sliders, "slider", Slider)->Name("slider.frame")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOf, variable, "variableslider", std::string(Slider) + "<Data>Time</Data>")
    ->Name("variableslider.frame")
    ->Repetitions(9);
BENCHMARK_CAPTURE(ChangeOf, gauges, "gauge", Gauge)->Name("gauge.change")->Repetitions(9);
BENCHMARK_CAPTURE(ChangeOf, sliders, "slider", Slider)->Name("slider.change")->Repetitions(9);

} // namespace
