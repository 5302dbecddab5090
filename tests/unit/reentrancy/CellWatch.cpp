#include "tests/unit/reentrancy/CellWatch.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <unistd.h>

// Sanitizers end the process without a signal that could be caught. Null without one.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

constexpr unsigned LongestCellSeconds = 20;

char g_Cell[256];

void TellCell()
{
    if (*g_Cell == 0)
        return;

    const char before[] = "\nIn the cell: ";
    static_cast<void>(!write(STDERR_FILENO, before, sizeof(before) - 1));
    static_cast<void>(!write(STDERR_FILENO, g_Cell, std::strlen(g_Cell)));
    static_cast<void>(!write(STDERR_FILENO, "\n", 1));
}

void EndBySignal(int signal)
{
    TellCell();
    std::signal(signal, SIG_DFL);
    raise(signal);
}

void Install()
{
    static const bool installed = [] {
        std::signal(SIGALRM, EndBySignal);
        if (__sanitizer_set_death_callback)
            __sanitizer_set_death_callback(TellCell);
        else
            std::signal(SIGSEGV, EndBySignal);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace

CellWatch::CellWatch(const std::string& cell)
{
    Install();
    std::snprintf(g_Cell, sizeof(g_Cell), "%s", cell.c_str());
    alarm(LongestCellSeconds);
}

CellWatch::~CellWatch()
{
    alarm(0);
    *g_Cell = 0;
}

const char* CellWatch::Cell()
{
    return g_Cell;
}
