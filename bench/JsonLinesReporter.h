#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// Prints one JSON object a line for each benchmark: {"peer":"teskara","workload":...,"unit":...,"median":...,"min":...,
// "max":...,"n":...,"note":...}. A benchmark says what it measured through its counters: one named after the unit holds
// the value; without one, the value is milliseconds of CPU time an iteration. The label is the note. One that failed has
// an n of 0 and its message as the note.
class JsonLinesReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
};

// Makes the CPU time of one piece of work the value of a benchmark whose iterations do so many of them. unit begins with
// "ns", "us" or "ms", as in "ns/event".
void ReportTimePer(benchmark::State& state, const std::string& unit, int pieces = 1);
