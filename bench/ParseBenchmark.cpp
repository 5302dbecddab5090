// How fast markup becomes a tree, from memory. Freeing the tree isn't counted.

#include "bench/InterfaceDocument.h"
#include "teskara/markup/XMLDocument.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

constexpr std::size_t DocumentBytes = 10'000'000;
constexpr std::size_t FileBytes = 100'000;

void Parse(XMLDocument& document, const std::string& text)
{
    if (!document.ParseBuffer(text.data(), text.size()))
        std::abort();
}

void ParseRepeatedly(benchmark::State& state, const std::string& text)
{
    for (auto _ : state) {
        XMLDocument document;
        Parse(document, text);
        state.PauseTiming();
        document.Reset();
        state.ResumeTiming();
    }
    state.counters["MB/s"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * static_cast<double>(text.size()) / 1e6, benchmark::Counter::kIsRate);
    state.SetLabel("bytes=" + std::to_string(text.size()));
}

// Into memory that comes from the system, as for the first interface of a program.
void ParseIntoNewMemory(benchmark::State& state)
{
    ParseRepeatedly(state, InterfaceDocument(DocumentBytes));
}

// Into memory that an earlier document has left. Something that was made while that one lived, as elements are, lies
// behind it and keeps the memory from going back to the system.
void ParseIntoUsedMemory(benchmark::State& state, std::size_t bytes)
{
    const std::string text = InterfaceDocument(bytes);
    std::unique_ptr<char[]> behind;
    {
        XMLDocument document;
        Parse(document, text);
        behind = std::make_unique<char[]>(64 * 1024);
    }
    ParseRepeatedly(state, text);
    benchmark::DoNotOptimize(behind.get());
}

BENCHMARK_CAPTURE(ParseIntoUsedMemory, document, DocumentBytes)->Name("W7")->Repetitions(9);
BENCHMARK(ParseIntoNewMemory)->Name("W7.newmemory")->Repetitions(9);
BENCHMARK_CAPTURE(ParseIntoUsedMemory, file, FileBytes)->Name("W7.smallfile")->Repetitions(9);

} // namespace
