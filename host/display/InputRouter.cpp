#include "host/display/InputRouter.h"

#include "host/HostPlatform.h"
#include "host/display/Characters.h"
#include "host/display/KeyCodes.h"
#include "host/record/ToolkitCalls.h"

#include <cmath>
#include <string>

namespace host {

namespace {

// Wheel units of one notch.
constexpr float WheelNotch = 120;

// A position outside of every window.
constexpr int Nowhere = -1;

// Whether a key stands where an American keyboard has a character. On others it may have another one, or none.
bool GivesText(u32 key)
{
    return CharacterOfKey(key, false, false, false) >= ' ';
}

// What the key pressed last has given in the user's layout: it follows the key at once. A text that comes later is that
// of another key or of an input method.
std::string TakeTextOfKey()
{
    SDL_Event next;
    SDL_PumpEvents();
    if (SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) != 1 || next.type != SDL_TEXTINPUT)
        return {};

    SDL_PeepEvents(&next, 1, SDL_GETEVENT, SDL_TEXTINPUT, SDL_TEXTINPUT);
    return next.text.text;
}

} // namespace

InputRouter::InputRouter(HostPlatform& platform) : m_Platform(platform) { }

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
        down ? Toolkit::OnLMouseDown() : Toolkit::OnLMouseUp();
    else if (button.button == SDL_BUTTON_RIGHT)
        down ? Toolkit::OnRMouseDown() : Toolkit::OnRMouseUp();
}

void InputRouter::HandleWheel(const SDL_MouseWheelEvent& wheel)
{
    const float turned = wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -wheel.preciseY : wheel.preciseY;
    m_WheelRest += turned * WheelNotch;
    const float whole = std::trunc(m_WheelRest);
    m_WheelRest -= whole;
    if (whole != 0)
        Toolkit::OnMouseWheel(static_cast<int>(whole));
}

// A key without a code comes as a text alone.
void InputRouter::HandleKeyDown(const SDL_KeyboardEvent& key)
{
    const u32 code = ToKeyCode(key.keysym);
    if (code == 0)
        return;

    const bool isTyped = SDL_IsTextInputActive() && GivesText(code);
    const std::string text = isTyped ? TakeTextOfKey() : "";
    if (key.repeat) // text fields repeat held keys by themselves
        return;
    if (m_Shortcuts && m_Shortcuts(code))
        return;

    std::size_t at = 0;
    if (isTyped)
        m_Platform.SetTypedCharacter(code, text.empty() ? 0 : DecodeCharacter(text, at));
    Toolkit::OnKeyDown(code);
    HandleText(std::string_view(text).substr(at));
}

void InputRouter::HandleKeyUp(const SDL_KeyboardEvent& key)
{
    const u32 code = ToKeyCode(key.keysym);
    if (code == 0)
        return;

    Toolkit::OnKeyUp(code);
    m_Platform.ForgetTypedCharacter(code);
}

// Text that is no key's: each character is a press of a key that stands for it.
void InputRouter::HandleText(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        m_Platform.SetTypedCharacter(KeyTypedText, DecodeCharacter(text, at));
        Toolkit::OnKeyDown(KeyTypedText);
        Toolkit::OnKeyUp(KeyTypedText);
    }
    m_Platform.ForgetTypedCharacter(KeyTypedText);
}

void InputRouter::HandleWindow(const SDL_WindowEvent& window)
{
    // SDL itself releases keys when the window loses the keyboard, and lets a drag go on outside of it.
    if (window.event == SDL_WINDOWEVENT_LEAVE && SDL_GetMouseState(nullptr, nullptr) == 0)
        MoveMouse(Nowhere, Nowhere);
}

void InputRouter::MoveMouse(int x, int y)
{
    _Point2i position = {static_cast<i32>(std::floor(static_cast<float>(x) / m_Zoom)),
        static_cast<i32>(std::floor(static_cast<float>(y) / m_Zoom))};
    Toolkit::OnMouseMove(position);
}

} // namespace host
