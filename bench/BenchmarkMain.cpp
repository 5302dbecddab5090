#include "bench/JsonLinesReporter.h"

#include <benchmark/benchmark.h>

// Prints JSON lines; a name given as --benchmark_filter picks benchmarks.
int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;

    JsonLinesReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
