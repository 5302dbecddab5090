#include "host/OverlayConsole.h"

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/LineWrap.h"
#include "teskara/text/TeskConsole.h"

namespace host {

namespace {

// The colour code that a line begins with.
std::string_view CodeOf(LineWeight weight)
{
    switch (weight) {
    case LineWeight::Warning:
        return "\ay";
    case LineWeight::Error:
        return "\ar";
    default:
        return "";
    }
}

u64 ColumnsOf(TeskConsole& console)
{
    const u32 barWidth = console.ScrollBar ? console.ScrollBar->Width : 0;
    return console.Font && console.Width > barWidth ? (console.Width - barWidth) / console.Font->GetCharWidthA() : 0;
}

} // namespace

void OverlayConsole::Print(const std::string& line, LineWeight weight)
{
    if (TeskConsole* selected = m_Selected.empty() ? nullptr : Find(m_Selected.c_str())) {
        if (selected != Find(MainName)) {
            PrintIn(*selected, {line, weight});
            return;
        }
    }
    ShowKept();
    m_Kept.push_back({line, weight});
    if (m_Kept.size() > MostKept)
        m_Kept.pop_front();
    if (TeskConsole* main = Find(MainName))
        PrintIn(*main, m_Kept.back());
}

void OverlayConsole::ShowKept()
{
    TeskConsole* main = Find(MainName);
    if (!main || main->ID == m_MainID)
        return;

    m_MainID = main->ID;
    for (const Line& line : m_Kept)
        PrintIn(*main, line);
}

TeskConsole* OverlayConsole::Find(const char* name)
{
    return dynamic_cast<TeskConsole*>(g_UIManager.FindElement(name));
}

// Each of the lines that the console would break it into has the colour.
void OverlayConsole::PrintIn(TeskConsole& console, const Line& line)
{
    const std::string_view code = CodeOf(line.Weight);
    const u64 columns = ColumnsOf(console);
    if (code.empty() || columns <= code.size() || line.Text.empty()) {
        console.Print((line.Text + '\n').c_str());
        return;
    }
    LineWrap pieces(line.Text, columns - code.size());
    for (std::string_view piece; pieces.Next(piece);)
        console.Print((std::string(code) + std::string(piece) + '\n').c_str());
}

} // namespace host
