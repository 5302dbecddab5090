#pragma once

#include "host/display/CursorShape.h"

#include <SDL.h>

#include <array>

namespace host {

// The mouse pointer of the window system. SDL must run as long as the object lives.
class MouseCursor
{
public:
    MouseCursor() = default;
    ~MouseCursor();
    MouseCursor(const MouseCursor&) = delete;
    MouseCursor& operator=(const MouseCursor&) = delete;

    // Gives the pointer a shape. One that the system doesn't have leaves it as it is.
    void Show(CursorShape shape);

private:
    SDL_Cursor* CursorOf(CursorShape shape);

    std::array<SDL_Cursor*, CursorShapes> m_Cursors = {};
    CursorShape m_Shown = CursorShape::Arrow;
};

} // namespace host
