#include "tests/soak/ResidentMemory.h"

#include <fstream>
#include <numeric>

#include <malloc.h>
#include <unistd.h>

std::size_t ResidentBytes()
{
    // What the heap holds in reserve is no one's.
    malloc_trim(0);
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

double MemoryTrend::Mean(std::size_t begin, std::size_t end) const
{
    const auto first = m_Samples.begin();
    const auto sum = std::accumulate(
        first + static_cast<std::ptrdiff_t>(begin), first + static_cast<std::ptrdiff_t>(end), std::size_t{0});
    return static_cast<double>(sum) / static_cast<double>(end - begin);
}

double MemoryTrend::Drift() const
{
    const std::size_t count = m_Samples.size();
    if (count < 8)
        return 0;
    return Mean(count - count / 4, count) / Mean(count / 4, count / 2) - 1;
}
