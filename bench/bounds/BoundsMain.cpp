// What hostile markup may cost: for each shape a line of JSON with the time and the peak of the heap that a small and a
// large document of it take, and a failure where one of the bounds is passed.

#include "bench/LoadedScene.h"
#include "bench/bounds/HeapPeak.h"
#include "bench/bounds/HostileMarkup.h"
#include "teskara/core/CUIManager.h"
#include "teskara/markup/XMLDocument.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <limits>
#include <string>

#include <malloc.h>

namespace {

constexpr std::size_t Mebibyte = 1024 * 1024;
constexpr std::size_t Small = Mebibyte;
constexpr std::size_t Large = 16 * Mebibyte;

constexpr double MostSeconds = 1;
constexpr double MostRatio = 20;

// Shorter times are not told apart from the machine's own doings.
constexpr double LeastSeconds = 0.005;

struct Cost {
    double FirstSeconds = 0; // with all the memory fresh from the system
    double Seconds = 0; // with memory that the process has already
    std::size_t Heap = 0;
};

double Now()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Freeing what was made is part of it.
void Spend(const HostileShape& shape, const std::string& text, const MarkupFile& file)
{
    if (shape.IsLoaded) {
        file.Load();
        g_UIManager.ClearTemplates();
    } else {
        XMLDocument document;
        document.ParseBuffer(text.data(), text.size());
    }
}

double SecondsToSpend(const HostileShape& shape, const std::string& text, const MarkupFile& file)
{
    const double start = Now();
    Spend(shape, text, file);
    return Now() - start;
}

Cost CostOf(const HostileShape& shape, std::size_t bytes, int repetitions)
{
    const std::string text = shape.Write(bytes);
    const MarkupFile file(shape.IsLoaded ? text : "");
    Cost cost;
    malloc_trim(0);
    HeapPeak::Begin();
    cost.FirstSeconds = SecondsToSpend(shape, text, file);
    cost.Heap = HeapPeak::Bytes();

    cost.Seconds = SecondsToSpend(shape, text, file);
    for (int repetition = 1; repetition < repetitions; ++repetition)
        cost.Seconds = std::min(cost.Seconds, SecondsToSpend(shape, text, file));
    return cost;
}

// What grows faster than its input does so in memory that is there already. How fast the system hands out more of it would
// say nothing of the toolkit.
void KeepFreedMemory()
{
    constexpr int all = std::numeric_limits<int>::max();
    mallopt(M_TRIM_THRESHOLD, all);
    mallopt(M_MMAP_MAX, 0);
}

bool KeepsHeap(const Cost& cost, const HostileShape& shape, std::size_t bytes)
{
    return cost.Heap <= bytes * shape.HeapFactor + Mebibyte + shape.HeapBesides;
}

// Prints what a shape costs. False if that is more than a bound allows.
bool Measure(const HostileShape& shape, bool boundsTime)
{
    const Cost small = CostOf(shape, Small, 5);
    const Cost large = CostOf(shape, Large, 2);
    const double ratio = large.Seconds / std::max(small.Seconds, LeastSeconds);
    const bool keeps = KeepsHeap(small, shape, Small) && KeepsHeap(large, shape, Large) && ratio <= MostRatio
        && (!boundsTime || large.FirstSeconds <= MostSeconds);
    std::printf("{\"peer\":\"teskara\",\"workload\":\"hostile.%s\",\"first16\":%.1f,\"ms1\":%.1f,\"ms16\":%.1f,"
                "\"ratio\":%.1f,\"heap1\":%.1f,\"heap16\":%.1f,\"keeps\":%s,\"note\":\"%s\"}\n",
        shape.Name, large.FirstSeconds * 1e3, small.Seconds * 1e3, large.Seconds * 1e3, ratio,
        static_cast<double>(small.Heap) / static_cast<double>(Small),
        static_cast<double>(large.Heap) / static_cast<double>(Large), keeps ? "true" : "false", shape.About);
    std::fflush(stdout);
    return keeps;
}

} // namespace

// With --any-time a slow build or machine may take its time, as long as the ratio and the heap hold.
int main(int argc, char** argv)
{
    const bool boundsTime = argc < 2 || std::strcmp(argv[1], "--any-time") != 0;
    KeepFreedMemory();
    StartedHost();
    bool keeps = true;
    for (const HostileShape& shape : HostileShapes()) {
        // A machine that does much else is given a second look.
        keeps &= Measure(shape, boundsTime) || Measure(shape, boundsTime);
    }
    g_UIManager.Shutdown();
    return keeps ? 0 : 1;
}
