#include "tests/unit/Allocations.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> g_Count = 0;
std::atomic<std::size_t> g_FirstFailure = SIZE_MAX;
std::atomic<bool> g_FailsFromThenOn = false;

void* AllocateOrNull(std::size_t size)
{
    const std::size_t index = g_Count++;
    const bool fails = index == g_FirstFailure || (index > g_FirstFailure && g_FailsFromThenOn);
    return fails ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* Allocate(std::size_t size)
{
    void* memory = AllocateOrNull(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

namespace Allocations {

std::size_t Count()
{
    return g_Count;
}

void FailAfter(std::size_t count, Failing failing)
{
    g_FailsFromThenOn = failing == Failing::FromThenOn;
    g_FirstFailure = g_Count + count;
}

void Allow()
{
    g_FirstFailure = SIZE_MAX;
}

} // namespace Allocations

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return AllocateOrNull(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return AllocateOrNull(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
