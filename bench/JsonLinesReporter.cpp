#include "bench/JsonLinesReporter.h"

#include <algorithm>
#include <cstdio>

namespace {

struct Samples {
    std::string Unit;
    std::vector<double> Values;
};

// The unit and value of one repetition.
void AddSample(const JsonLinesReporter::Run& run, Samples& samples)
{
    if (run.counters.empty()) {
        samples.Unit = "ms";
        samples.Values.push_back(run.cpu_accumulated_time * 1e3 / static_cast<double>(run.iterations));
        return;
    }
    const auto& [unit, counter] = *run.counters.begin();
    samples.Unit = unit;
    samples.Values.push_back(counter.value);
}

double Median(const std::vector<double>& sorted)
{
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double UnitsOfASecond(const std::string& unit)
{
    return unit.starts_with("ns") ? 1e9 : unit.starts_with("us") ? 1e6 : 1e3;
}

void PrintFailure(const JsonLinesReporter::Run& run)
{
    std::printf("{\"peer\":\"teskara\",\"workload\":\"%s\",\"unit\":\"\",\"median\":null,\"min\":null,\"max\":null,"
                "\"n\":0,\"note\":\"%s\"}\n",
        run.run_name.function_name.c_str(), run.error_message.c_str());
}

void PrintSamples(const JsonLinesReporter::Run& run, Samples& samples)
{
    std::sort(samples.Values.begin(), samples.Values.end());
    std::printf("{\"peer\":\"teskara\",\"workload\":\"%s\",\"unit\":\"%s\",\"median\":%.6g,\"min\":%.6g,\"max\":%.6g,"
                "\"n\":%zu,\"note\":\"%s\"}\n",
        run.run_name.function_name.c_str(), samples.Unit.c_str(), Median(samples.Values), samples.Values.front(),
        samples.Values.back(), samples.Values.size(), run.report_label.c_str());
}

} // namespace

bool JsonLinesReporter::ReportContext(const Context&)
{
    return true;
}

void JsonLinesReporter::ReportRuns(const std::vector<Run>& runs)
{
    Samples samples;
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            AddSample(run, samples);
    }
    if (!samples.Values.empty())
        PrintSamples(runs.front(), samples);
    else if (runs.front().error_occurred)
        PrintFailure(runs.front());
    std::fflush(stdout);
}

void ReportTimePer(benchmark::State& state, const std::string& unit, int pieces)
{
    const double all = static_cast<double>(state.iterations()) * pieces;
    state.counters[unit] =
        benchmark::Counter(all / UnitsOfASecond(unit), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
