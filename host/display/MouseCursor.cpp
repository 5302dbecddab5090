#include "host/display/MouseCursor.h"

namespace host {

namespace {

// In the order of the shapes.
constexpr SDL_SystemCursor SystemCursors[CursorShapes] = {
    SDL_SYSTEM_CURSOR_ARROW,
    SDL_SYSTEM_CURSOR_SIZEWE,
    SDL_SYSTEM_CURSOR_SIZENS,
    SDL_SYSTEM_CURSOR_SIZENWSE,
    SDL_SYSTEM_CURSOR_SIZENESW,
};

} // namespace

// A cursor that is shown makes way for the system's own.
MouseCursor::~MouseCursor()
{
    for (SDL_Cursor* cursor : m_Cursors) {
        if (cursor)
            SDL_FreeCursor(cursor);
    }
}

void MouseCursor::Show(CursorShape shape)
{
    if (shape == m_Shown)
        return;

    m_Shown = shape;
    if (SDL_Cursor* cursor = CursorOf(shape))
        SDL_SetCursor(cursor);
}

SDL_Cursor* MouseCursor::CursorOf(CursorShape shape)
{
    const auto index = static_cast<std::size_t>(shape);
    if (!m_Cursors[index])
        m_Cursors[index] = SDL_CreateSystemCursor(SystemCursors[index]);
    return m_Cursors[index];
}

} // namespace host
