// Whole interface files through the loader, with a host that refuses at random and scripts that do harm, then frames
// and some input. The first byte says how many of the following bytes are decisions; the rest is the file.

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "tests/fuzz/ChaosHost.h"
#include "tests/fuzz/FreshState.h"
#include "tests/fuzz/MemoryFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace {

QuietPlatform g_Platform;

ChaosHost& StartedHost()
{
    static ChaosHost* host = [] {
        SetPlatform(&g_Platform);
        auto* started = new ChaosHost; // outlives the library's end
        F1(started)->Initialize();
        return started;
    }();
    return *host;
}

void Require(const std::string& fault)
{
    if (fault.empty())
        return;

    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}

void CheckTree()
{
    Require(FindTreeFault().value_or(""));
}

void DriveInput(Decisions& choices)
{
    for (int step = 0; step < 4; ++step) {
        _Point2i point = {choices.Next() * 4, choices.Next() * 4};
        g_UIManager.OnMouseMove(point);
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        g_UIManager.OnRMouseDown();
        g_UIManager.OnKeyDown(choices.Next());
        g_UIManager.OnRMouseUp();
        g_UIManager.OnMouseWheel(choices.Next() - 128);
        g_Platform.Ticks += 100;
        g_UIManager.Render();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    static const MemoryFile file;
    if (size == 0)
        return 0;

    ChaosHost& host = StartedHost();
    const std::size_t decisions = std::min<std::size_t>(data[0], size - 1);
    host.File = file.Path();
    file.Write(data + 1 + decisions, size - 1 - decisions);
    host.Choices.Take(data + 1, decisions);
    g_Platform.Ticks = 10000;

    g_UIManager.LoadInterfaceXML("f", true, nullptr);
    CheckTree();
    g_UIManager.Render();
    DriveInput(host.Choices);
    CheckTree();

    host.Choices.Take(nullptr, 0);
    ForgetEverything();
    CheckTree();
    Require(host.Books.Imbalance());
    return 0;
}
