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
char g_Again[1024];
char g_Program[512];

void Tell(const char* text)
{
    static_cast<void>(!write(STDERR_FILENO, text, std::strlen(text)));
}

void TellCell()
{
    if (*g_Cell == 0)
        return;

    Tell("\nIn the cell: ");
    Tell(g_Cell);
    Tell("\nAgain: ");
    Tell(g_Again);
    Tell("\n");
    *g_Cell = 0;
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
        static_cast<void>(!readlink("/proc/self/exe", g_Program, sizeof(g_Program) - 1));
        std::signal(SIGALRM, EndBySignal);
        std::signal(SIGABRT, EndBySignal);
        if (__sanitizer_set_death_callback)
            __sanitizer_set_death_callback(TellCell);
        else
            std::signal(SIGSEGV, EndBySignal);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace

CellWatch::CellWatch(const std::string& cell, const std::string& filter)
{
    Install();
    std::snprintf(g_Cell, sizeof(g_Cell), "%s", cell.c_str());
    if (filter.empty())
        std::snprintf(g_Again, sizeof(g_Again), "%s", g_Cell);
    else
        std::snprintf(
            g_Again, sizeof(g_Again), "TESKARA_CELL='%s' %s --gtest_filter='%s'", g_Cell, g_Program, filter.c_str());
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

const char* CellWatch::Again()
{
    return g_Again;
}
