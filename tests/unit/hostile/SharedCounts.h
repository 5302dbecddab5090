#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <new>
#include <sys/mman.h>

// Numbers that a process started from here can hand back.
class SharedCounts
{
public:
    SharedCounts()
        : m_Counts(static_cast<u32*>(
            mmap(nullptr, Size * sizeof(u32), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {
        if (m_Counts == MAP_FAILED)
            throw std::bad_alloc();
    }
    ~SharedCounts() { munmap(m_Counts, Size * sizeof(u32)); }
    SharedCounts(const SharedCounts&) = delete;
    SharedCounts& operator=(const SharedCounts&) = delete;

    u32& operator[](std::size_t index) { return m_Counts[index]; }

private:
    static constexpr std::size_t Size = 256;

    u32* m_Counts;
};
