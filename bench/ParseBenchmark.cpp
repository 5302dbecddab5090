// Reading a large document, shaped like an interface file, into a tree.

#include "teskara/markup/XMLDocument.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace {

constexpr std::size_t DocumentBytes = 10'000'000;

std::string Control(const std::string& kind, int number)
{
    const std::string serial = std::to_string(number);
    return "    <" + kind + " name=\"" + kind + serial + "\" anchor=\"left top\">\n      <position>" + serial
        + ",40</position>\n      <size>120,24</size>\n      <color>30a0f0</color>\n      <caption>Caption of " + kind
        + " " + serial + "</caption>\n      <enabled>true</enabled>\n    </" + kind + ">\n";
}

std::string InterfaceDocument()
{
    const char* const kinds[] = {"text", "button", "check", "slider", "panel"};
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<interface version=\"1\">\n";
    for (int page = 0; text.size() < DocumentBytes; ++page) {
        text += "  <window name=\"page" + std::to_string(page) + "\" style=\"dialog\" movable=\"true\">\n"
            + "    <title>Page &amp; title " + std::to_string(page) + "</title>\n";
        for (int control = 0; control < 20; ++control)
            text += Control(kinds[control % 5], control);
        text += "  </window>\n";
    }
    return text + "</interface>\n";
}

void ParseDocument(benchmark::State& state)
{
    const std::string text = InterfaceDocument();
    for (auto _ : state) {
        XMLDocument document(false);
        if (!document.ParseBuffer(text.c_str(), text.size()))
            std::abort();
    }
    state.counters["MB/s"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * static_cast<double>(text.size()) / 1e6, benchmark::Counter::kIsRate);
}

BENCHMARK(ParseDocument)->Name("W7")->Repetitions(9);

} // namespace
