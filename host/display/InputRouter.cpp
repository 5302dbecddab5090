#include "host/display/InputRouter.h"

#include "host/HostPlatform.h"
#include "host/display/Characters.h"
#include "host/display/KeyCodes.h"
#include "teskara/core/CUIManager.h"

#include <cmath>
#include <string_view>

namespace host {

namespace {

// Wheel units of one notch.
constexpr float WheelNotch = 120;

// A position outside of every window.
constexpr int Nowhere = -1;

} // namespace

InputRouter::InputRouter(CUIManager& manager, HostPlatform& platform) : m_Manager(manager), m_Platform(platform) { }

void InputRouter::Handle(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_MOUSEMOTION:
        return MoveMouse(event.motion.x, event.motion.y);
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return HandleButton(event.button);
    case SDL_MOUSEWHEEL:
        return HandleWheel(event.wheel);
    case SDL_KEYDOWN:
        return HandleKeyDown(event.key);
    case SDL_KEYUP:
        return HandleKeyUp(event.key);
    case SDL_TEXTINPUT:
        return HandleText(event.text.text);
    case SDL_WINDOWEVENT:
        return HandleWindow(event.window);
    default:
        return;
    }
}

void InputRouter::HandleButton(const SDL_MouseButtonEvent& button)
{
    MoveMouse(button.x, button.y);
    const bool down = button.type == SDL_MOUSEBUTTONDOWN;
    if (button.button == SDL_BUTTON_LEFT)
        down ? m_Manager.OnLMouseDown() : m_Manager.OnLMouseUp();
    else if (button.button == SDL_BUTTON_RIGHT)
        down ? m_Manager.OnRMouseDown() : m_Manager.OnRMouseUp();
}

void InputRouter::HandleWheel(const SDL_MouseWheelEvent& wheel)
{
    const float turned = wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -wheel.preciseY : wheel.preciseY;
    m_WheelRest += turned * WheelNotch;
    const float whole = std::trunc(m_WheelRest);
    m_WheelRest -= whole;
    if (whole != 0)
        m_Manager.OnMouseWheel(static_cast<int>(whole));
}

void InputRouter::HandleKeyDown(const SDL_KeyboardEvent& key)
{
    // Text fields repeat held keys by themselves.
    const u32 code = ToKeyCode(key.keysym);
    if (code == 0 || key.repeat)
        return;

    // The text that the key gave in the user's layout has arrived together with it.
    SDL_Event typed;
    SDL_PumpEvents();
    if (SDL_PeepEvents(&typed, 1, SDL_GETEVENT, SDL_TEXTINPUT, SDL_TEXTINPUT) == 1) {
        std::size_t at = 0;
        const std::string_view text = typed.text.text;
        if (!text.empty())
            m_Platform.SetTypedCharacter(code, ToAnsi(DecodeCharacter(text, at)));
    }
    m_KeysDown.set(code);
    m_Manager.OnKeyDown(code);
}

void InputRouter::HandleKeyUp(const SDL_KeyboardEvent& key)
{
    const u32 code = ToKeyCode(key.keysym);
    if (code == 0)
        return;

    m_KeysDown.reset(code);
    m_Manager.OnKeyUp(code);
    m_Platform.SetTypedCharacter(code, 0);
}

void InputRouter::HandleText(const char* text)
{
    // Text of a held key that repeats comes here too, and it is not wanted; an input method holds no key.
    if (m_KeysDown.any())
        return;

    const std::string_view whole = text;
    for (std::size_t at = 0; at < whole.size();) {
        m_Platform.SetTypedCharacter(KeyTypedText, ToAnsi(DecodeCharacter(whole, at)));
        m_Manager.OnKeyDown(KeyTypedText);
        m_Manager.OnKeyUp(KeyTypedText);
    }
    m_Platform.SetTypedCharacter(KeyTypedText, 0);
}

void InputRouter::HandleWindow(const SDL_WindowEvent& window)
{
    // SDL itself releases keys when the window loses the keyboard, and lets a drag go on outside of it.
    if (window.event == SDL_WINDOWEVENT_LEAVE && SDL_GetMouseState(nullptr, nullptr) == 0)
        MoveMouse(Nowhere, Nowhere);
}

void InputRouter::MoveMouse(int x, int y)
{
    _Point2i position = {x, y};
    m_Manager.OnMouseMove(position);
}

} // namespace host
