// A program that knows the library by its path alone and loads and unloads it over and over. Says what went wrong, and
// nothing if all is well.

#include "teskara/core/CUIManager.h"
#include "teskara/host.h"

#include <cstdio>
#include <dlfcn.h>

#if defined(__SANITIZE_ADDRESS__)
#define MEMORY_IS_HELD_BACK
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MEMORY_IS_HELD_BACK
#endif
#endif

namespace {

#ifdef MEMORY_IS_HELD_BACK
constexpr bool TellsMemory = false; // the sanitizer keeps what was freed, to see who still uses it
#else
constexpr bool TellsMemory = true;
#endif

constexpr int Cycles = 1000;
constexpr int FirstCycles = 100; // until then memory may still grow
constexpr long Growth = 1024; // kilobytes that are no leak of each cycle

using Entry = CUIManager* (*)(HostObject* host);

// Kilobytes of memory in use.
long Resident()
{
    long pages = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file)
        return 0;
    if (std::fscanf(file, "%*d %ld", &pages) != 1)
        pages = 0;
    std::fclose(file);
    return pages * 4;
}

// Once stopped, the toolkit starts again only when its library is loaded anew.
const char* StartAndStop(void* module)
{
    const auto start = reinterpret_cast<decltype(&teskara_start)>(dlsym(module, "teskara_start"));
    const auto stop = reinterpret_cast<decltype(&teskara_stop)>(dlsym(module, "teskara_stop"));
    if (!start || !stop)
        return "it has no functions for programs in C";
    teskara_host host = {};
    host.size = sizeof host;
    host.version = TESKARA_TABLE_VERSION;
    if (start(&host) != TESKARA_OK)
        return "it does not start";
    stop();
    return start(&host) == TESKARA_STOPPED ? nullptr : "it starts a second time";
}

const char* RunOnce(const char* path)
{
    void* module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!module)
        return "it cannot be loaded";
    const auto entry = reinterpret_cast<Entry>(dlsym(module, "F1"));
    CUIManager* manager = entry ? entry(nullptr) : nullptr;
    if (!manager || manager->GetVersion() != TeskaraVersion)
        return "it has no entry";
    if (manager->ShuttingDown || manager->Factories.empty() || manager->NextElementID != 1)
        return "it is not as new";
    manager->NextElementID = 2;
    if (const char* fault = StartAndStop(module))
        return fault;
    dlclose(module);
    return dlopen(path, RTLD_NOW | RTLD_NOLOAD) ? "it stays loaded" : nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    long before = 0;
    for (int cycle = 0; cycle < Cycles; ++cycle) {
        if (const char* fault = argc > 1 ? RunOnce(argv[1]) : "no path") {
            std::printf("%s, in cycle %d\n", fault, cycle);
            return 1;
        }
        if (cycle == FirstCycles)
            before = Resident();
    }
    if (TellsMemory && Resident() > before + Growth) {
        std::printf("memory grew from %ld to %ld kilobytes\n", before, Resident());
        return 1;
    }
    return 0;
}
