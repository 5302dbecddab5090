#pragma once

#include "host/ConsoleWindow.h"
#include "host/InterfaceSession.h"
#include "host/live/LiveReload.h"
#include "teskara/core/Types.h"

#include <functional>

class TeskElement;

// Numbers that follow from a seed, the same everywhere.
class SeededNumbers
{
public:
    explicit SeededNumbers(u64 seed) : m_State(seed) { }

    // From 0 to below.
    u32 Below(u32 below);

private:
    u64 m_State;
};

// Somebody who does whatever comes to mind with an interface: moves and presses the mouse, types, gives commands, opens
// and answers dialogs, opens other interfaces and comes back, and changes the skin.
class SoakUser
{
public:
    static constexpr int Width = 1200;
    static constexpr int Height = 675;

    // The session is borrowed. passFrame: lets a frame pass.
    SoakUser(host::InterfaceSession& session, SeededNumbers& numbers, std::function<void()> passFrame);

    // Does one thing, for which some frames pass.
    void Act();

    // Between two frames: what commands have asked for.
    void Advance() { m_Live.Advance(); }

private:
    void PointAnywhere();
    void PointAtSomething();
    void Click();
    void ClickRight();
    void Drag();
    void TurnWheel();
    void Type();
    void PressKey();
    void GiveCommand();
    void ToggleConsole();
    void LoseMouse();
    void Resize();
    void Wait(u32 frames);
    void MoveTo(int x, int y);
    TeskElement* AnyVisibleElement();

    host::InterfaceSession& m_Session;
    SeededNumbers& m_Numbers;
    std::function<void()> m_PassFrame;
    host::LiveReload m_Live;
    host::ConsoleWindow m_Console;
};
