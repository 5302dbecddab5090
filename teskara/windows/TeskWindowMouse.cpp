// How a window is taken hold of: dragged, resized, raised, folded up. Every event may run scripts, which may delete it.

#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/windows/TeskWindow.h"
#include "teskara/windows/WindowSnap.h"
#include "teskara/windows/WindowSpan.h"

namespace {

// Where the edges of the second axis stand among the bits of all of them.
constexpr u32 DownShift = 2;
constexpr u32 AxisEdges = WindowSpan::Near | WindowSpan::Far;

static_assert(LeftEdge == WindowSpan::Near && RightEdge == WindowSpan::Far);
static_assert(TopEdge == WindowSpan::Near << DownShift && BottomEdge == WindowSpan::Far << DownShift);

// How much of the title bar stays in sight at the top.
constexpr u32 TitleBarInSight = 1;

// What the user moves by hand follows the parent no longer.
void KeepAsDragged(u32 moved, ElementPosition& position, ElementPosition& size)
{
    if (moved & WindowSpan::Near)
        position.Type = PositionAbsolute;
    if (moved)
        size.Type = PositionAbsolute;
}

} // namespace

bool TeskWindow::IsTitleBarAt(_Point2i& point) const
{
    return TitleBar && TitleBar->HitTest(point);
}

WindowSpan TeskWindow::Across() const
{
    return {X, Width, AbsoluteX, MinWidth};
}

WindowSpan TeskWindow::Down() const
{
    return {Y, Height, AbsoluteY, MinHeight};
}

u32 TeskWindow::ResizeEdgesAt(const _Point2i& point) const
{
    u32 edges = 0;
    if (WindowFlags & WindowResizesWidth)
        edges |= Across().EdgesAt(point.x, Border);
    if (WindowFlags & WindowResizesHeight)
        edges |= Down().EdgesAt(point.y, Border) << DownShift;
    return Locked ? 0 : edges;
}

// --- Presses

bool TeskWindow::OnLMouseDown(_Point2i& point)
{
    const ElementWatch self(*this);
    if (IsMouseOver() || IsTitleBarAt(point)) {
        if (!GiveClickFocus())
            return true;
        Grab(point);
    } else if (!IsSolid())
        return false;

    MoveZTop(true);
    if (self.Exists())
        TeskElement::OnLMouseDown(point);
    return true;
}

bool TeskWindow::OnLMouseUp(_Point2i& point)
{
    Dragging = false;
    ResizeEdges = 0;
    TeskElement::OnLMouseUp(point);
    return true;
}

bool TeskWindow::OnLMouseDoubleClick(_Point2i& point)
{
    if (!IsTitleBarAt(point))
        return false;

    Minimize(!Minimized);
    TeskElement::OnLMouseDoubleClick(point);
    return true;
}

bool TeskWindow::OnRMouseDown(_Point2i& point)
{
    if (!IsSolid() && !IsTitleBarAt(point))
        return false;

    const ElementWatch self(*this);
    MoveZTop(true);
    if (self.Exists())
        TeskElement::OnRMouseDown(point);
    return true;
}

bool TeskWindow::OnRMouseUp(_Point2i& point)
{
    const ElementWatch self(*this);
    if (IsTitleBarAt(point))
        ContextMenu.Create(point.x, point.y);
    if (self.Exists())
        TeskElement::OnRMouseUp(point);
    return true;
}

// Nobody has the keyboard if there is no child of that name. False: the window was deleted meanwhile.
bool TeskWindow::GiveClickFocus()
{
    if (!ClickFocus || ClickFocus->empty())
        return true;

    const ElementWatch self(*this);
    TeskElement* element = Client ? Client->FindUsableChild(ClickFocus->c_str(), "teskelement") : nullptr;
    g_UIManager.SetFocusElement(element);
    return self.Exists();
}

// By an edge, else by whatever was pressed. What a lock came too late for goes on.
void TeskWindow::Grab(const _Point2i& point)
{
    if (Locked)
        return;

    ResizeEdges = ResizeEdgesAt(point);
    if (ResizeEdges != 0)
        ResizeAnchor = point;
    else
        BeginDrag(point);
}

void TeskWindow::BeginDrag(const _Point2i& point)
{
    if (Locked)
        return;

    Dragging = true;
    DragOffset = {WrapSub(point.x, X), WrapSub(point.y, Y)};
}

// --- Moves

bool TeskWindow::OnMouseMove(_Point2i& point)
{
    const ElementWatch self(*this);
    if (ResizeEdges != 0)
        Resize(point);
    else if (Dragging)
        Drag(point);
    else if (!IsSolid() && !IsMouseOver())
        return false;

    if (self.Exists())
        TeskElement::OnMouseMove(point);
    return true;
}

// The children follow at once.
void TeskWindow::Resize(const _Point2i& point)
{
    WindowSpan across = Across();
    WindowSpan down = Down();
    const u32 acrossMoved = across.Drag(ResizeEdges & AxisEdges, point.x, WrapSub(point.x, ResizeAnchor.x));
    const u32 downMoved = down.Drag(ResizeEdges >> DownShift, point.y, WrapSub(point.y, ResizeAnchor.y));
    ResizeAnchor = point;

    X = across.Position;
    Width = across.Size;
    KeepAsDragged(acrossMoved, PositionX, PositionWidth);
    Y = down.Position;
    Height = down.Size;
    KeepAsDragged(downMoved, PositionY, PositionHeight);
    OnResize();
}

void TeskWindow::FollowMouse(const _Point2i& point)
{
    PositionX.Type = PositionAbsolute;
    PositionY.Type = PositionAbsolute;
    X = WrapSub(point.x, DragOffset.x);
    Y = WrapSub(point.y, DragOffset.y);
}

void TeskWindow::Drag(const _Point2i& point)
{
    FollowMouse(point);
    if (g_UIManager.ShiftDown || !Parent)
        return;

    X = WindowSnap(Width, Parent->Width).Stick(X);
    Y = WindowSnap(Height, Parent->Height).Stick(Y);
}

// A window that hangs on its title bar stays within reach of it.
void TeskWindow::DragByTitleBar(const _Point2i& point)
{
    FollowMouse(point);
    if (g_UIManager.ShiftDown || !Parent)
        return;

    X = WindowSnap(Width, Parent->Width).StickInside(X, Width, WindowSnap::InSight);
    Y = WindowSnap(Height, Parent->Height).StickInside(Y, TitleBar->Height, TitleBarInSight);
}

bool TeskWindow::OnMouseWheel(int offset)
{
    if (!IsSolid() && !IsMouseOver())
        return false;

    _Point2i point = g_UIManager.MousePosition;
    if (Client && Client->LeftClickThru && Client->RightClickThru && Client->HitTest(point))
        return false;

    TeskElement::OnMouseWheel(offset);
    return true;
}

// --- What the parts tell

void TeskWindow::OnNotify(TeskElement* source, unsigned int code, unsigned long long)
{
    if (code == NotifyChildGoing)
        ForgetPart(source);
    else if (!source)
        return;
    else if (source == TitleBar)
        TitleBarTold(code);
    else if (code == NotifyLeftReleased)
        PartClicked(source);
}

void TeskWindow::TitleBarTold(u32 code)
{
    const _Point2i& mouse = g_UIManager.MousePosition;
    switch (code) {
    case NotifyLeftReleased:
        Dragging = false;
        return;
    case NotifyLeftPressed:
        TitleBarPressed();
        return;
    case NotifyRightReleased:
        ContextMenu.Create(mouse.x, mouse.y);
        return;
    case NotifyMouseMoved:
        if (Dragging)
            DragByTitleBar(mouse);
        return;
    default:
        return;
    }
}

void TeskWindow::TitleBarPressed()
{
    const ElementWatch self(*this);
    MoveZTop(true);
    if (self.Exists() && GiveClickFocus())
        BeginDrag(g_UIManager.MousePosition);
}

void TeskWindow::PartClicked(const TeskElement* part)
{
    if (part == MinimizeButton || part == MaximizeButton)
        Minimize(!Minimized);
    else if (part == CloseButton)
        Show(false);
}
