// What the mouse and the scroll bar do to a text edit, and what goes to the clipboard.

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/ClipboardCopy.h"
#include "teskara/text/TeskTextEdit.h"

#include <algorithm>

// The rows of the last frame share the height evenly. Above the view there is only its first line.
CTextEditLine* TeskTextEdit::LineUnder(const _Point2i& point) const
{
    CTextEditLine* line = View.ViewTop.Line;
    if (!line || View.VisibleRows == 0)
        return line;

    const i64 inset = i64{Border} + TextMargin;
    const i64 rowHeight = std::max<i64>((i64{Height} - inset) / static_cast<i64>(View.VisibleRows), 1);
    const i64 offset = i64{point.y} - AbsoluteY - inset;
    for (i64 row = offset / rowHeight; row > 0 && line->Next; --row)
        line = line->Next;
    return line;
}

void TeskTextEdit::GetPositionFromPoint(_Point2i& point, TextEditPos& position)
{
    position = {LineUnder(point), 0};
    const i64 offset = i64{point.x} - AbsoluteX - Border - TextMargin;
    if (position.Line && Font && offset > 0)
        position.Column = Font->GetCharByOffset(position.Line->Text, static_cast<u64>(offset));
}

// The bar brings the caret to the line that was pressed.
bool TeskTextEdit::OnLMouseDown(_Point2i& point)
{
    const ElementWatch self(*this);
    g_UIManager.SetFocusElement(this);
    if (!self.Exists())
        return true;

    TextEditPos pressed;
    GetPositionFromPoint(point, pressed);
    if (ScrollBar && pressed.Line)
        ScrollBar->SetValue(static_cast<u32>(Lines.Count() - pressed.Line->GetNumber()));
    if (!self.Exists())
        return true;

    View.Caret.Column = pressed.Column;
    Selection.Collapse(View.Caret);
    TeskElement::OnLMouseDown(point);
    if (self.Exists())
        Selecting = true;
    return true;
}

bool TeskTextEdit::OnMouseMove(_Point2i& point)
{
    if (Selecting) {
        TextEditPos position;
        GetPositionFromPoint(point, position);
        View.Caret = position;
        Selection.SelectionEnd = position;
    }
    TeskElement::OnMouseMove(point);
    return true;
}

bool TeskTextEdit::OnLMouseUp(_Point2i& point)
{
    Selecting = false;
    if (Selection.SelectionStart == Selection.SelectionEnd)
        Selection.Clear();
    TeskElement::OnLMouseUp(point);
    return true;
}

bool TeskTextEdit::OnMouseWheel(int offset)
{
    const ElementWatch self(*this);
    if (ScrollBar)
        ScrollBar->Turn(offset);
    if (self.Exists())
        TeskElement::OnMouseWheel(offset);
    return true;
}

// A bar that a script has given another range may stand beyond the lines.
void TeskTextEdit::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (!source || source != ScrollBar)
        return;
    if (code == NotifyChildGoing) {
        ScrollBar = nullptr;
        return;
    }
    if (code != NotifyValueChanged || !View.Caret.Line)
        return;

    const i64 wanted = static_cast<i64>(Lines.Count()) - static_cast<u32>(value);
    const i64 number = static_cast<i64>(View.Caret.Line->GetNumber());
    if (wanted > number)
        HandleDown(static_cast<u64>(wanted - number));
    else if (wanted < number)
        HandleUp(static_cast<u64>(number - wanted));
}

void TeskTextEdit::CopySelection()
try {
    if (Selection.Exists())
        CopyToClipboard(Selection.Text());
    else if (Host::OpenClipboard())
        System::EmptyClipboard();
} catch (...) {
    return; // there is no memory for the copy
}
