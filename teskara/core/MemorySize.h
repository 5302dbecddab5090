#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <new>
#include <utility>

// A number of bytes that are to be taken. Throws as if there were no memory for more than a system of 32 bits counts.
inline std::size_t MemorySize(u64 bytes)
{
    if (!std::in_range<std::size_t>(bytes))
        throw std::bad_alloc();
    return static_cast<std::size_t>(bytes);
}
