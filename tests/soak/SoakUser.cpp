#include "tests/soak/SoakUser.h"

#include "host/display/KeyCodes.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

#include <iterator>
#include <utility>

namespace {

constexpr const char* Commands[] = {
    "ui -reload interfaces/desktop.xml",
    "ui -load interfaces/desktop.xml Monitor \"A copy\"",
    "UIElement -kill \"A copy\"",
    "ui -load interfaces/welcome.xml",
    "ui -unload interfaces/welcome.xml",
    "ui -load interfaces/controls.xml",
    "ui -unload interfaces/controls.xml",
    "ui -load interfaces/explorer.xml",
    "ui -unload interfaces/explorer.xml",
    "ui -load interfaces/map.xml",
    "ui -unload interfaces/map.xml",
    "skin slate",
    "skin paper",
    "MessageBox \"Somebody is there.\"",
    "MessageBox -okcancel \"Go on?\"",
    "MessageBox -yesno \"Is it late?\"",
    "InputBox \"What is your name?\" nobody",
    "run interfaces/scripts/questions.lua",
    "UIElement -toggle Notebook",
    "UIElement -toggle Visitors",
    "UIElement -list",
    "no such command",
};

// Keys that fields, lists and windows know: Backspace, Tab, Return, Shift, Ctrl, Escape, space, Page Up to Down, Insert,
// Delete, A, C, V, X, Z.
constexpr u32 Keys[] = {8, 9, 13, 16, 17, 27, 32, 33, 34, 35, 36, 37, 38, 39, 40, 45, 46, 65, 67, 86, 88, 90};

const TeskElement* NextInTree(const TeskElement* element)
{
    if (element->FirstChild)
        return element->FirstChild;
    while (element && !element->Next)
        element = element->Parent;
    return element ? element->Next : nullptr;
}

} // namespace

u32 SeededNumbers::Below(u32 below)
{
    m_State += 0x9E3779B97F4A7C15;
    u64 mixed = m_State;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return static_cast<u32>((mixed ^ (mixed >> 31)) % below);
}

SoakUser::SoakUser(host::InterfaceSession& session, SeededNumbers& numbers, std::function<void()> passFrame)
    : m_Session(session), m_Numbers(numbers), m_PassFrame(std::move(passFrame)),
      m_Live(session, host::LiveReload::Watching::Off), m_Console(session)
{
}

void SoakUser::Act()
{
    struct Habit {
        u32 Weight;
        void (SoakUser::*Do)();
    };
    constexpr Habit habits[] = {
        {16, &SoakUser::PointAtSomething},
        {8, &SoakUser::PointAnywhere},
        {16, &SoakUser::Click},
        {3, &SoakUser::ClickRight},
        {8, &SoakUser::Drag},
        {4, &SoakUser::TurnWheel},
        {8, &SoakUser::Type},
        {8, &SoakUser::PressKey},
        {4, &SoakUser::GiveCommand},
        {1, &SoakUser::ToggleConsole},
        {1, &SoakUser::LoseMouse},
        {1, &SoakUser::Resize},
    };
    u32 all = 0;
    for (const Habit& habit : habits)
        all += habit.Weight;
    u32 chosen = m_Numbers.Below(all);
    for (const Habit& habit : habits) {
        if (chosen < habit.Weight) {
            (this->*habit.Do)();
            break;
        }
        chosen -= habit.Weight;
    }
    Wait(1 + m_Numbers.Below(8));
}

void SoakUser::Wait(u32 frames)
{
    for (; frames > 0; --frames)
        m_PassFrame();
}

void SoakUser::MoveTo(int x, int y)
{
    _Point2i point = {x, y};
    g_UIManager.OnMouseMove(point);
}

void SoakUser::PointAnywhere()
{
    MoveTo(static_cast<int>(m_Numbers.Below(Width)), static_cast<int>(m_Numbers.Below(Height)));
}

TeskElement* SoakUser::AnyVisibleElement()
{
    u32 count = 0;
    TeskElement* chosen = nullptr;
    for (const TeskElement* element = g_UIManager.Screen; element; element = NextInTree(element)) {
        ++count;
        if (m_Numbers.Below(count) == 0 && element->IsReallyVisible())
            chosen = g_UIManager.FindElementByID(element->ID);
    }
    return chosen;
}

void SoakUser::PointAtSomething()
{
    const TeskElement* element = AnyVisibleElement();
    if (!element)
        return;

    const int x = static_cast<int>(m_Numbers.Below(element->Width + 1));
    MoveTo(element->AbsoluteX + x, element->AbsoluteY + static_cast<int>(m_Numbers.Below(element->Height + 1)));
}

void SoakUser::Click()
{
    PointAtSomething();
    for (u32 presses = 1 + m_Numbers.Below(3) / 2; presses > 0; --presses) {
        g_UIManager.OnLMouseDown();
        Wait(m_Numbers.Below(3));
        g_UIManager.OnLMouseUp();
    }
}

void SoakUser::ClickRight()
{
    PointAtSomething();
    g_UIManager.OnRMouseDown();
    Wait(1);
    g_UIManager.OnRMouseUp();
}

void SoakUser::Drag()
{
    PointAtSomething();
    g_UIManager.OnLMouseDown();
    for (u32 steps = 1 + m_Numbers.Below(5); steps > 0; --steps) {
        PointAnywhere();
        Wait(1);
    }
    // Now and then the release is lost.
    if (m_Numbers.Below(16) != 0)
        g_UIManager.OnLMouseUp();
}

void SoakUser::TurnWheel()
{
    PointAtSomething();
    g_UIManager.OnMouseWheel((static_cast<int>(m_Numbers.Below(7)) - 3) * 120);
}

void SoakUser::Type()
{
    for (u32 count = 1 + m_Numbers.Below(12); count > 0; --count) {
        m_Session.System().SetTypedCharacter(host::KeyTypedText, ' ' + m_Numbers.Below(224));
        g_UIManager.OnKeyDown(host::KeyTypedText);
        g_UIManager.OnKeyUp(host::KeyTypedText);
    }
    m_Session.System().ForgetTypedCharacter(host::KeyTypedText);
}

void SoakUser::PressKey()
{
    const u32 key = Keys[m_Numbers.Below(std::size(Keys))];
    g_UIManager.OnKeyDown(key);
    Wait(m_Numbers.Below(3));
    // A key that stays down repeats until another one is pressed.
    if (m_Numbers.Below(16) != 0)
        g_UIManager.OnKeyUp(key);
}

void SoakUser::GiveCommand()
{
    m_Session.Host().ExecuteCommand(Commands[m_Numbers.Below(std::size(Commands))]);
}

void SoakUser::ToggleConsole()
{
    m_Console.Toggle();
}

void SoakUser::LoseMouse()
{
    g_UIManager.ResetMouseState();
}

void SoakUser::Resize()
{
    m_Session.DrawFrame(Width - static_cast<int>(m_Numbers.Below(200)), Height, 1);
}
