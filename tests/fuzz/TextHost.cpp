#include "tests/fuzz/TextHost.h"

#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"

void TextHost::StartAnew()
{
    Drawn.clear();
    Commands.clear();
    Lines = 0;
    Told = nullptr;
    Opens = true;
    Quiet.Ticks = 10000;
    Quiet.Clipboard.clear();
    g_UIManager.ShiftDown = g_UIManager.CtrlDown = false;
    g_UIManager.MousePosition = {-1, -1};
}

int TextHost::ExecuteCommand(const char* text)
{
    Commands.emplace_back(text);
    return 0;
}

u32 TextHost::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    Drawn[box.top] += text;
    return ChaosHost::DrawText(font, text, box, color, format);
}

void TextHost::CalledOut(CallOut place, TeskElement*)
{
    if (place != CallOut::PrintLine)
        return;

    ++Lines;
    if (Told)
        Told->Clear();
}

TextHost& StartedTextHost()
{
    static TextHost* host = [] {
        auto* started = new TextHost; // outlives the library's end
        SetPlatform(&started->Quiet);
        F1(started)->Initialize();
        return started;
    }();
    return *host;
}
