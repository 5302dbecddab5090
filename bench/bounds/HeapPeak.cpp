#include "bench/bounds/HeapPeak.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <malloc.h>

// The C library's own, which stay reachable under these names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}

namespace {

std::size_t g_Held = 0;
std::size_t g_HeldAtBegin = 0;
std::size_t g_Most = 0;

void* Taken(void* memory)
{
    if (memory) {
        g_Held += malloc_usable_size(memory);
        g_Most = std::max(g_Most, g_Held);
    }
    return memory;
}

void Given(void* memory)
{
    if (memory)
        g_Held -= malloc_usable_size(memory);
}

} // namespace

extern "C" {

void* malloc(std::size_t size)
{
    return Taken(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return Taken(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size)
{
    const std::size_t before = memory ? malloc_usable_size(memory) : 0;
    void* const moved = __libc_realloc(memory, size);
    if (!moved)
        return nullptr;
    // While it moves, both may be held.
    g_Held -= before;
    return Taken(moved);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return Taken(__libc_memalign(alignment, size));
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size)
{
    *memory = Taken(__libc_memalign(alignment, size));
    return *memory ? 0 : ENOMEM;
}

void free(void* memory)
{
    Given(memory);
    __libc_free(memory);
}

} // extern "C"

namespace HeapPeak {

void Begin()
{
    g_HeldAtBegin = g_Held;
    g_Most = g_Held;
}

std::size_t Bytes()
{
    return g_Most - g_HeldAtBegin;
}

} // namespace HeapPeak
