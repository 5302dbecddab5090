#pragma once

#include <cstddef>
#include <vector>

// Bytes of this process that are in memory; 0 if the system does not tell.
std::size_t ResidentBytes();

// How the memory of a long run develops, told from what was in use at moments when nothing had to be.
class MemoryTrend
{
public:
    void Note(std::size_t bytes) { m_Samples.push_back(bytes); }

    // By how much the last quarter of the run took more than the second one, of 1; the first one warms up. 0 as long as
    // there are too few samples.
    double Drift() const;

private:
    double Mean(std::size_t begin, std::size_t end) const;

    std::vector<std::size_t> m_Samples;
};
