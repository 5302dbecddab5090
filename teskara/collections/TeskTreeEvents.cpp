// What the mouse and the scroll bar do to a tree.

#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"

TeskTreeNode* TeskTree::GetNodeFromPoint(const _Point2i& point, bool& onImage) const
{
    const i32 below = WrapSub(point.y, RowsTop());
    if (i64{below} > i64{Height} || ItemHeight == 0)
        return nullptr;

    const TreeLayout layout = Layout();
    const TreeRows::Shown row = RowAtPlace(layout.RowAt(below));
    const i32 beside = WrapSub(WrapSub(point.x, RowsLeft()), layout.IndentOf(row.Depth));
    if (beside < 0)
        return nullptr;

    onImage = layout.IsOnImage(beside);
    return static_cast<TeskTreeNode*>(row.Row); // no other rows are in there
}

bool TeskTree::IsOnScrollBar(_Point2i& point) const
{
    return ScrollBar && ScrollBar->Visible && ScrollBar->HitTest(point);
}

template <class Press> bool TeskTree::TakePress(_Point2i& point, Press basePress)
{
    if (!HitTest(point))
        return false;
    if (IsOnScrollBar(point))
        return true;

    const ElementWatch self(*this);
    PressRow(point);
    if (self.Exists())
        basePress();
    return true;
}

// On its image a node is expanded or collapsed, and the selection stays. Beside all nodes there is none to select.
void TeskTree::PressRow(const _Point2i& point)
{
    bool onImage = false;
    TeskTreeNode* node = GetNodeFromPoint(point, onImage);
    if (node && onImage)
        node->ToggleExpand();
    else
        Select(node);
}

bool TeskTree::OnLMouseDown(_Point2i& point)
{
    return TakePress(point, [&] { TeskElement::OnLMouseDown(point); });
}

bool TeskTree::OnRMouseDown(_Point2i& point)
{
    return TakePress(point, [&] { TeskElement::OnRMouseDown(point); });
}

bool TeskTree::OnLMouseUp(_Point2i& point)
{
    TeskElement::OnLMouseUp(point);
    return true;
}

// Runs what a left release runs; interfaces rely on it.
bool TeskTree::OnRMouseUp(_Point2i& point)
{
    return TeskElement::OnLMouseUp(point);
}

bool TeskTree::OnLMouseDoubleClick(_Point2i& point)
{
    TeskElement::OnLMouseDoubleClick(point);
    return true;
}

bool TeskTree::OnMouseMove(_Point2i& point)
{
    TeskElement::OnMouseMove(point);
    return true;
}

bool TeskTree::OnMouseWheel(int offset)
{
    const ElementWatch self(*this);
    if (ScrollBar && ScrollBar->Visible)
        ScrollBar->Turn(offset);
    if (self.Exists())
        TeskElement::OnMouseWheel(offset);
    return true;
}

void TeskTree::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (!source || source != ScrollBar)
        return;

    if (code == NotifyChildGoing)
        ScrollBar = nullptr;
    else if (code == NotifyValueChanged)
        TopRow = ScrollBar->Range - static_cast<u32>(value);
}
