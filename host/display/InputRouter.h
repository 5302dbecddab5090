#pragma once

#include "teskara/core/Types.h"

#include <SDL.h>

#include <functional>
#include <string_view>
#include <utility>

namespace host {

class HostPlatform;

// Turns SDL's events into input for the toolkit.
class InputRouter
{
public:
    // The platform is borrowed.
    explicit InputRouter(HostPlatform& platform);

    // Keys that this takes do not reach the interface, nor does their text.
    using Shortcuts = std::function<bool(u32 key)>;
    void SetShortcuts(Shortcuts shortcuts) { m_Shortcuts = std::move(shortcuts); }

    // How many units of SDL's a pixel of the interface is.
    void SetZoom(float zoom) { m_Zoom = zoom; }

    // Takes one event. Events that are no input are passed over.
    void Handle(const SDL_Event& event);

private:
    void HandleButton(const SDL_MouseButtonEvent& button);
    void HandleWheel(const SDL_MouseWheelEvent& wheel);
    void HandleKeyDown(const SDL_KeyboardEvent& key);
    void HandleKeyUp(const SDL_KeyboardEvent& key);
    void HandleText(std::string_view text);
    void HandleWindow(const SDL_WindowEvent& window);
    void MoveMouse(int x, int y);

    HostPlatform& m_Platform;
    Shortcuts m_Shortcuts;
    float m_Zoom = 1;
    float m_WheelRest = 0;
};

} // namespace host
