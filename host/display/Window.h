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

    // Opens the window, not yet shown. Its size is in pixels of the interface, each of which is zoom units of the desktop.
    // False: SDL_GetError says why.
    bool Open(const char* title, int width, int height, float zoom);
    void Show();

    SDL_Renderer* Target() const { return m_Renderer; }

    // Size in pixels of the interface, and how many pixels of the target one of them is.
    int Width() const;
    int Height() const;
    float Scale() const;

    // How many units of the desktop, in which SDL tells where the mouse is, a pixel of the interface is.
    float Zoom() const { return m_Zoom; }

    // Whether presenting waits for the display.
    bool WaitsForDisplay() const { return m_WaitsForDisplay; }

    // Whether nobody can see it at present.
    bool IsHidden() const;

    void Present();

private:
    int ToDesktop(int pixels) const;
    int FromDesktop(int units) const;

    SDL_Window* m_Window = nullptr;
    SDL_Renderer* m_Renderer = nullptr;
    float m_Zoom = 1;
    bool m_WaitsForDisplay = false;
};

} // namespace host
