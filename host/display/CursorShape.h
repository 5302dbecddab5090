#pragma once

#include "teskara/core/Types.h"

class CUIManager;

namespace host {

// What the mouse looks like; the last four are arrows with two heads.
enum class CursorShape {
    Arrow,
    ResizeWidth,
    ResizeHeight,
    ResizeFalling, // from the upper left to the lower right
    ResizeRising,
};

constexpr int CursorShapes = 5;

// For edges of a window, as bits of WindowEdge. A window that is thinner than its borders may be caught by two opposite
// edges, of which the first counts.
CursorShape ShapeForEdges(u32 edges);

// For where the mouse is at present: over an edge that can be dragged, or dragging one, or elsewhere.
CursorShape ShapeAtMouse(const CUIManager& manager);

} // namespace host
