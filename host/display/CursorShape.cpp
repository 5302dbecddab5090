#include "host/display/CursorShape.h"

#include "teskara/core/CUIManager.h"
#include "teskara/windows/TeskWindow.h"

namespace host {

CursorShape ShapeForEdges(u32 edges)
{
    const bool across = edges & (LeftEdge | RightEdge);
    const bool down = edges & (TopEdge | BottomEdge);
    if (across && down)
        return ((edges & LeftEdge) != 0) == ((edges & TopEdge) != 0) ? CursorShape::ResizeFalling
                                                                     : CursorShape::ResizeRising;
    if (across)
        return CursorShape::ResizeWidth;
    return down ? CursorShape::ResizeHeight : CursorShape::Arrow;
}

// While a button is held, what was pressed has the mouse.
CursorShape ShapeAtMouse(const CUIManager& manager)
{
    const bool isHeld = manager.LeftPressElementID != 0;
    const u32 id = isHeld ? manager.LeftPressElementID : manager.MouseOverElementID;
    const auto* window = dynamic_cast<const TeskWindow*>(manager.FindElementByID(id));
    if (!window)
        return CursorShape::Arrow;

    return ShapeForEdges(isHeld ? window->ResizeEdges : window->ResizeEdgesAt(manager.MousePosition));
}

} // namespace host
