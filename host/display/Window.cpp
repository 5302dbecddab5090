#include "host/display/Window.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr int SmallestWidth = 320;
constexpr int SmallestHeight = 240;

} // namespace

Window::~Window()
{
    if (m_Renderer)
        SDL_DestroyRenderer(m_Renderer);
    if (m_Window)
        SDL_DestroyWindow(m_Window);
}

bool Window::Open(const char* title, int width, int height, float zoom)
{
    constexpr Uint32 flags = SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI | SDL_WINDOW_HIDDEN;
    m_Zoom = zoom;
    m_Window = SDL_CreateWindow(
        title, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, ToDesktop(width), ToDesktop(height), flags);
    if (!m_Window)
        return false;

    SDL_SetWindowMinimumSize(m_Window, ToDesktop(SmallestWidth), ToDesktop(SmallestHeight));
    m_Renderer = SDL_CreateRenderer(m_Window, -1, SDL_RENDERER_ACCELERATED | SDL_RENDERER_PRESENTVSYNC);
    if (!m_Renderer)
        m_Renderer = SDL_CreateRenderer(m_Window, -1, SDL_RENDERER_SOFTWARE);
    if (!m_Renderer)
        return false;

    SDL_RendererInfo info = {};
    SDL_GetRendererInfo(m_Renderer, &info);
    m_WaitsForDisplay = (info.flags & SDL_RENDERER_PRESENTVSYNC) != 0;
    return true;
}

void Window::Show()
{
    SDL_ShowWindow(m_Window);
}

int Window::Width() const
{
    int width = 0;
    SDL_GetWindowSize(m_Window, &width, nullptr);
    return FromDesktop(width);
}

int Window::Height() const
{
    int height = 0;
    SDL_GetWindowSize(m_Window, nullptr, &height);
    return FromDesktop(height);
}

float Window::Scale() const
{
    int pixels = 0;
    int width = 0;
    if (SDL_GetRendererOutputSize(m_Renderer, &pixels, nullptr) != 0)
        return m_Zoom;

    SDL_GetWindowSize(m_Window, &width, nullptr);
    return m_Zoom * std::max(1.0f, static_cast<float>(pixels) / static_cast<float>(std::max(1, width)));
}

int Window::ToDesktop(int pixels) const
{
    return static_cast<int>(std::lround(static_cast<float>(pixels) * m_Zoom));
}

int Window::FromDesktop(int units) const
{
    return static_cast<int>(std::lround(static_cast<float>(units) / m_Zoom));
}

bool Window::IsHidden() const
{
    return (SDL_GetWindowFlags(m_Window) & (SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN)) != 0;
}

void Window::Present()
{
    SDL_RenderPresent(m_Renderer);
}

} // namespace host
