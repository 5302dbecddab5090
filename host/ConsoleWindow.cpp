#include "host/ConsoleWindow.h"

#include "host/InterfaceSession.h"
#include "host/record/ToolkitCalls.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/text/TeskCommandEntry.h"

namespace host {

namespace {

constexpr const char* File = "console.xml";
constexpr const char* Name = "Console";
constexpr const char* InputName = "input@Console";

constexpr u32 KeyF1 = 112;
constexpr u32 KeyGrave = 192;

} // namespace

ConsoleWindow::ConsoleWindow(InterfaceSession& session) : m_Session(session)
{
    m_Session.Host().Scripts().Commands.Add("console", [this](int, char**) {
        Toggle();
        return 0;
    });
}

ConsoleWindow::~ConsoleWindow()
{
    m_Session.Host().Scripts().Commands.Remove("console");
}

bool ConsoleWindow::HandleKey(u32 key)
{
    if ((key != KeyF1 && key != KeyGrave) || g_UIManager.ShiftDown || g_UIManager.CtrlDown || g_UIManager.AltDown
        || IsTyped(key))
        return false;

    Toggle();
    return true;
}

void ConsoleWindow::Toggle()
{
    if (const TeskElement* window = Find())
        Toolkit::ShowElement(Name, !window->Visible);
    else
        Open();

    TeskElement* window = Find();
    if (!window || !window->Visible)
        return;

    const ElementWatch watch(*window);
    Toolkit::RaiseElement(window->ID);
    TeskElement* input = g_UIManager.FindElement(InputName);
    if (watch.Exists() && input)
        Toolkit::FocusElement(input->ID);
}

// The arrow keys begin with what was typed before.
void ConsoleWindow::Open()
{
    m_Session.OpenOwn(File);
    auto* input = dynamic_cast<TeskCommandEntry*>(g_UIManager.FindElement(InputName));
    if (!input)
        return;

    for (const std::string& line : m_Session.Host().TypedCommands().Lines())
        Toolkit::AddToHistory(input->ID, line.c_str());
}

TeskElement* ConsoleWindow::Find()
{
    return g_UIManager.FindElement(Name);
}

// A field for text keeps the characters that are typed, but for the console's own.
bool ConsoleWindow::IsTyped(u32 key)
{
    TeskElement* focus = g_UIManager.FindElementByID(g_UIManager.FocusElementID);
    return key == KeyGrave && focus && focus != g_UIManager.FindElement(InputName)
        && (focus->IsTypeOf("textentry") || focus->IsTypeOf("textedit"));
}

} // namespace host
