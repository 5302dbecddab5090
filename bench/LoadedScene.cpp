#include "bench/LoadedScene.h"

#include "teskara/core/CUIManager.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

NullHost& StartedHost()
{
    static NullHost* host = [] {
        auto* started = new NullHost; // outlives the library's end
        F1(started)->Initialize();
        g_UIManager.Render();
        return started;
    }();
    return *host;
}

MarkupFile::MarkupFile(const std::string& markup) : m_Path("/tmp/teskara-bench-XXXXXX")
{
    const int file = mkstemp(m_Path.data());
    if (file < 0 || write(file, markup.data(), markup.size()) != static_cast<ssize_t>(markup.size()))
        std::abort();
    close(file);
}

MarkupFile::~MarkupFile()
{
    std::remove(m_Path.c_str());
}

void MarkupFile::Load() const
{
    if (!g_UIManager.LoadInterfaceXML(m_Path.c_str(), false, nullptr))
        std::abort();
}

LoadedScene::LoadedScene(const std::string& markup)
{
    StartedHost();
    MarkupFile(markup).Load();
    g_UIManager.Render();
}

LoadedScene::~LoadedScene()
{
    g_UIManager.Reset();
}

std::string ElementCount()
{
    return "elements=" + std::to_string(g_UIManager.ElementsByID.size() - 1);
}

std::string DrawsOfFrame()
{
    const NullHost& host = StartedHost();
    const u64 before = host.Draws;
    g_UIManager.Render();
    return " draws=" + std::to_string(host.Draws - before);
}
