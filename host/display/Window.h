#pragma once

#include <SDL.h>

namespace host {

// A window that can be resized, with its renderer: the graphics device's if there is one, else the processor's.
class Window
{
public:
    Window() = default;
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // Opens the window, not yet shown. size in pixels of the interface. False: SDL_GetError says why.
    bool Open(const char* title, int width, int height);
    void Show();

    SDL_Renderer* Target() const { return m_Renderer; }

    // Size in pixels of the interface, and how many pixels of the target one of them is.
    int Width() const;
    int Height() const;
    float Scale() const;

    // Whether presenting waits for the display.
    bool WaitsForDisplay() const { return m_WaitsForDisplay; }

    // Whether nobody can see it at present.
    bool IsHidden() const;

    void Present();

private:
    SDL_Window* m_Window = nullptr;
    SDL_Renderer* m_Renderer = nullptr;
    bool m_WaitsForDisplay = false;
};

} // namespace host
