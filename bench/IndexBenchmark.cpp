// A script index of many numbers: filling it, walking it, and taking entries out and putting others in.

#include "bench/JsonLinesReporter.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIndexIterator.h"
#include "teskara/script/MvTypeDefinition.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

constexpr u32 Entries = 100000;

// The least that a host's type of numbers does.
class NumberType : public MvTypeDefinition
{
public:
    NumberType() : MvTypeDefinition("number") { }

    bool FromArguments(MvValue& value, int argc, char** argv) override
    {
        value.Integer64 = argc > 0 ? argv[0][0] : 0;
        return true;
    }
};

void Fill(MvIndex& index)
{
    char text[] = "5";
    char* argv[] = {text};
    for (u32 count = 0; count < Entries; ++count)
        index.Add(1, argv);
}

void Add(benchmark::State& state)
{
    NumberType type;
    for (auto _ : state) {
        MvIndex index(&type);
        Fill(index);
        benchmark::DoNotOptimize(index.Count);
    }
    ReportTimePer(state, "ns/entry", Entries);
}

void Walk(benchmark::State& state)
{
    NumberType type;
    MvIndex index(&type);
    Fill(index);
    for (auto _ : state) {
        i64 sum = 0;
        MvIndexIterator entry(index);
        while (entry.Next()) {
            _MvTypeVar value;
            entry.GetValue(value);
            sum += value.Value.Integer64;
        }
        if (sum != Entries * i64{'5'})
            std::abort();
    }
    ReportTimePer(state, "ns/entry", Entries);
}

// Every other position is empty, the worst for a walk that skips.
void WalkOverGaps(benchmark::State& state)
{
    NumberType type;
    MvIndex index(&type);
    Fill(index);
    for (u32 position = 1; position <= Entries; position += 2)
        index.Remove(position);
    for (auto _ : state) {
        u32 count = 0;
        MvIndexIterator entry(index);
        while (entry.Next())
            ++count;
        if (count != Entries / 2)
            std::abort();
    }
    ReportTimePer(state, "ns/entry", Entries / 2);
}

void Replace(benchmark::State& state)
{
    NumberType type;
    MvIndex index(&type);
    Fill(index);
    char text[] = "5";
    char* argv[] = {text};
    u32 position = 0;
    for (auto _ : state) {
        position = position * 7919 % Entries + 1;
        index.Remove(position);
        if (index.Add(1, argv) != position)
            std::abort();
    }
    ReportTimePer(state, "ns/entry");
}

BENCHMARK(Add)->Name("index.add")->Repetitions(9);
BENCHMARK(Walk)->Name("index.walk")->Repetitions(9);
BENCHMARK(WalkOverGaps)->Name("index.walk.gaps")->Repetitions(9);
BENCHMARK(Replace)->Name("index.replace")->Repetitions(9);

} // namespace
