// What the mouse and the scroll bar do to a list box.

#include "teskara/collections/TeskListBox.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"

#include <algorithm>

u32 TeskListBox::GetItemFromPoint(_Point2i& point)
{
    const i32 offset = WrapSub(WrapSub(point.y, AbsoluteY), Border);
    if (offset < 0 || point.y > WrapAdd(AbsoluteY, Height))
        return 0;

    const ListBoxItem* item = m_Order.At(static_cast<u32>(offset) / Pitch() + TopOrder);
    return item ? item->ID : 0;
}

u32 TeskListBox::GetOrderFromPoint(_Point2i& point)
{
    if (GetItemCount() == 0)
        return 0;

    const i32 top = WrapAdd(AbsoluteY, Border);
    const i32 bottom = WrapSub(WrapAdd(AbsoluteY, Height), Border);
    u32 offset = 0;
    if (point.y > top)
        offset = point.y >= bottom ? Height - 2 * Border : WrapSub<u32>(point.y, top);
    return std::min(offset / Pitch() + TopOrder, GetItemCount() - 1);
}

bool TeskListBox::IsOnScrollBar(_Point2i& point) const
{
    return ScrollBar && ScrollBar->Visible && ScrollBar->HitTest(point);
}

bool TeskListBox::OnLMouseDown(_Point2i& point)
{
    if (!HitTest(point))
        return false;
    if (IsOnScrollBar(point))
        return true;

    Dragged = false;
    const ElementWatch self(*this);
    if (const u32 id = GetItemFromPoint(point))
        PressRow(id);
    if (self.Exists())
        TeskElement::OnLMouseDown(point);
    return true;
}

// With Control each row of several is switched for itself; without it a row that is selected keeps the others.
void TeskListBox::PressRow(u32 id)
{
    if (SortType == SortUser)
        DragItem = id;

    const bool switchesOne = SelectMultiple && g_UIManager.CtrlDown;
    const ElementWatch self(*this);
    if (SelectedItems.Contains(id)) {
        if (!SelectMultiple)
            ClearSelection();
        else if (switchesOne)
            DeselectItem(id);
        return;
    }

    if (!switchesOne)
        ClearSelection();
    if (self.Exists())
        SelectItem(id);
}

bool TeskListBox::OnMouseMove(_Point2i& point)
{
    if (DragItem != 0) {
        const u32 row = GetOrderFromPoint(point);
        const ListBoxItem* item = RetrieveItem(DragItem);
        if (!item) {
            DragItem = 0;
        } else if (OrderOf(*item) != row) {
            Dragged = true;
            m_Order.Move(*item, row);
        }
    }
    TeskElement::OnMouseMove(point);
    return true;
}

bool TeskListBox::OnLMouseUp(_Point2i& point)
{
    const ElementWatch self(*this);
    if (Dragged)
        NotifyParent(NotifyRowDropped, DragItem);
    if (!self.Exists())
        return true;

    DragItem = 0;
    TeskElement::OnLMouseUp(point);
    return true;
}

bool TeskListBox::OnLMouseDoubleClick(_Point2i& point)
{
    const ElementWatch self(*this);
    NotifyParent(NotifyRowDoubleClick, GetItemFromPoint(point));
    if (self.Exists())
        TeskElement::OnLMouseDoubleClick(point);
    return true;
}

bool TeskListBox::OnMouseWheel(int offset)
{
    const ElementWatch self(*this);
    if (ScrollBar && ScrollBar->Visible)
        ScrollBar->Turn(offset);
    if (self.Exists())
        TeskElement::OnMouseWheel(offset);
    return true;
}

void TeskListBox::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (!source || source != ScrollBar)
        return;

    if (code == NotifyChildGoing)
        ScrollBar = nullptr;
    else if (code == NotifyValueChanged)
        TopOrder = ScrollBar->Range - static_cast<u32>(value);
}
