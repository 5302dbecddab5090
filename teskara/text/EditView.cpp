#include "teskara/text/EditView.h"

#include <algorithm>

void EditView::Clear()
{
    Caret.Clear();
    ViewTop.Clear();
    ViewBottom.Clear();
}

void EditView::ShowFirst()
{
    Caret.Line = m_Lines.First();
    ViewTop.Line = m_Lines.First();
}

u64 EditView::HeldColumn() const
{
    return Caret.Line ? std::min(Caret.Column, Caret.Line->Length) : 0;
}

bool EditView::MoveLeft()
{
    if (!Caret.Line || Caret.Column == 0)
        return false;

    --Caret.Column;
    ViewTop.Column = std::min(ViewTop.Column, Caret.Column);
    return true;
}

// The caret's column is the last one that shows.
void EditView::FollowRight()
{
    if (Caret.Column >= ViewTop.Column + VisibleColumns)
        ViewTop.Column = Caret.Column - VisibleColumns + 1;
}

bool EditView::MoveRight()
{
    if (!Caret.Line || Caret.Column >= Caret.Line->Length)
        return false;

    ++Caret.Column;
    if (Caret.Column <= ViewTop.Column)
        ViewTop.Column = Caret.Column;
    else
        FollowRight();
    return true;
}

void EditView::MoveToLineStart()
{
    Caret.Column = 0;
    ViewTop.Column = 0;
}

void EditView::MoveToLineEnd()
{
    if (!Caret.Line)
        return;

    Caret.Column = Caret.Line->Length;
    FollowRight();
}

void EditView::MoveUp(u64 lines)
{
    for (; lines > 0 && Caret.Line && Caret.Line->Previous; --lines) {
        if (Caret.Line == ViewTop.Line) {
            ViewTop.Line = ViewTop.Line->Previous;
            if (ViewBottom.Line && ViewBottom.Line->Previous)
                ViewBottom.Line = ViewBottom.Line->Previous;
        }
        Caret.Line = Caret.Line->Previous;
        Caret.Column = HeldColumn();
    }
}

void EditView::MoveDown(u64 lines)
{
    for (; lines > 0 && Caret.Line && Caret.Line->Next; --lines) {
        CTextEditLine* next = Caret.Line->Next;
        if (Caret.Line == ViewBottom.Line) {
            if (ViewTop.Line && ViewTop.Line->Next)
                ViewTop.Line = ViewTop.Line->Next;
            ViewBottom.Line = next;
        }
        Caret.Line = next;
        Caret.Column = HeldColumn();
    }
}

CTextEditLine* EditView::LastOfFirstPage() const
{
    CTextEditLine* line = m_Lines.First();
    for (u64 number = 0; number < VisibleRows && line->Next; ++number)
        line = line->Next;
    return line;
}

CTextEditLine* EditView::FirstOfLastPage() const
{
    CTextEditLine* line = m_Lines.Last();
    for (u64 row = 1; row < VisibleRows && line->Previous; ++row)
        line = line->Previous;
    return line;
}

void EditView::MoveToStart()
{
    if (!m_Lines.First())
        return;

    Caret = ViewTop = TextEditPos{m_Lines.First(), 0};
    ViewBottom = TextEditPos{LastOfFirstPage(), 0};
}

void EditView::MoveToEnd()
{
    CTextEditLine* last = m_Lines.Last();
    if (!last)
        return;

    Caret = TextEditPos{last, last->Length};
    FollowRight();
    ViewTop.Line = FirstOfLastPage();
    ViewBottom = Caret;
}
