#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

// A file in memory that is written anew for each input.
class MemoryFile
{
public:
    MemoryFile() : m_File(memfd_create("interface", 0))
    {
        if (m_File < 0)
            std::abort();
    }

    std::string Path() const { return "/proc/self/fd/" + std::to_string(m_File); }

    void Write(const void* bytes, std::size_t size) const
    {
        if (ftruncate(m_File, 0) != 0 || pwrite(m_File, bytes, size, 0) != static_cast<ssize_t>(size))
            std::abort();
    }

private:
    int m_File;
};
