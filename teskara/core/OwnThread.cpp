#include "teskara/core/OwnThread.h"

#ifndef NDEBUG

#include "teskara/core/BoundedText.h"
#include "teskara/core/platform/PlatformCalls.h"

#include <atomic>
#include <cstddef>
#include <thread>

namespace {

std::atomic<std::thread::id> g_Own;

} // namespace

namespace OwnThread {

void Remember() noexcept
{
    g_Own = std::this_thread::get_id();
}

void Expect(const char* operation) noexcept
{
    const std::thread::id own = g_Own;
    if (own == std::thread::id() || own == std::this_thread::get_id())
        return;

    constexpr std::size_t size = 128;
    char line[size];
    FormatBounded(line, size, "Teskara: %s was called on another thread than Initialize\n", operation);
    System::WriteDebugOutput(line);
}

} // namespace OwnThread

#endif
