#include "host/OverlayConsole.h"

#include "host/record/ToolkitCalls.h"
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
    const u32 id = console.ID;
    const u64 columns = code.empty() ? 0 : Toolkit::MeasureConsole(id);
    if (code.empty() || columns <= code.size() || line.Text.empty()) {
        Toolkit::PrintInConsole(id, (line.Text + '\n').c_str());
        return;
    }
    LineWrap pieces(line.Text, columns - code.size());
    for (std::string_view piece; pieces.Next(piece);)
        Toolkit::PrintInConsole(id, (std::string(code) + std::string(piece) + '\n').c_str());
}

} // namespace host
