// How a text edit is drawn: the lines that show, what is selected of them, and the caret under the text.

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/TeskTextEdit.h"

#include <algorithm>

namespace {

// Pixels between the rows.
constexpr u32 RowGap = 2;

constexpr u32 CaretBorder = 1;

// Of a space in a font that has none.
constexpr u32 UnknownWidth = 12;

// How many whole parts lie in a length of pixels; a negative length has none.
u64 PartsIn(i64 length, u32 part)
{
    return length > 0 ? static_cast<u64>(length) / part : 0;
}

} // namespace

void TeskTextEdit::Render()
{
    if (!Repeat.Run(*this))
        return;

    const ElementWatch self(*this);
    TeskFrame::Render();
    if (self.Exists() && Font)
        DrawLines();
}

TeskTextEdit::TextArea TeskTextEdit::MeasureText()
{
    const u32 inset = Border + TextMargin;
    const u32 barWidth = ScrollBar ? ScrollBar->Width : 0;
    const u32 space = static_cast<u32>(Font->GetTextWidth(" "));
    TextArea area;
    area.Left = WrapAdd(AbsoluteX, inset);
    area.Top = WrapAdd(AbsoluteY, inset);
    area.Right = WrapSub(WrapSub(WrapAdd(AbsoluteX, Width), barWidth), Border);
    area.Bottom = WrapSub(WrapAdd(AbsoluteY, Height), inset);
    area.RowHeight = Font->Size;
    area.Pitch = area.RowHeight + RowGap;
    area.SpaceWidth = space != 0 ? space : UnknownWidth;
    View.VisibleRows = PartsIn(i64{Height} - 2 * i64{Border}, area.Pitch);
    View.VisibleColumns = PartsIn(i64{Width} - barWidth - Border - inset, area.SpaceWidth);
    View.DrawnRows = 0;
    return area;
}

// Where not even one row fits, the view ends above its first line.
void TeskTextEdit::DrawLines()
{
    const TextArea area = MeasureText();
    i32 y = area.Top;
    for (CTextEditLine* line = View.ViewTop.Line; line; line = line->Next) {
        if (WrapAdd(y, area.Pitch) >= area.Bottom) {
            View.ViewBottom.Line = line->Previous ? line->Previous : line;
            return;
        }
        if (!line->Next)
            View.ViewBottom.Line = line;
        ++View.DrawnRows;
        if (line->Length == 0)
            DrawEmptyLine(*line, area, y);
        else
            DrawLine(*line, area, y);
        y = WrapAdd(y, area.Pitch);
    }
}

bool TeskTextEdit::HasCaret(const CTextEditLine& line) const
{
    return View.Caret.Line == &line && IsFocus();
}

void TeskTextEdit::DrawEmptyLine(const CTextEditLine& line, const TextArea& area, i32 y)
{
    if (Selection.On(line))
        FillRect({area.Left, y, WrapAdd(area.Left, area.SpaceWidth), WrapAdd(y, area.RowHeight)}, SelectionColor);
    if (HasCaret(line))
        DrawCaret(area.Left, area.SpaceWidth, area, y);
}

void TeskTextEdit::DrawLine(const CTextEditLine& line, const TextArea& area, i32 y)
{
    DrawSelection(line, area, y);
    if (HasCaret(line)) {
        const u64 column = View.Caret.Column = View.HeldColumn();
        const u64 width = column < line.Length ? Font->GetTextWidth(line.Text + column, 1) : area.SpaceWidth;
        DrawCaret(PlaceOf(line, column, area), width, area, y);
    }
    if (line.Length >= View.ViewTop.Column)
        DrawTextClipped(Font.get(), line.Text + View.ViewTop.Column, area.Left, y, area.Right);
}

void TeskTextEdit::DrawSelection(const CTextEditLine& line, const TextArea& area, i32 y)
{
    const auto columns = Selection.On(line);
    if (!columns)
        return;

    const i32 left = PlaceOf(line, columns->Begin, area);
    if (left >= area.Right)
        return;

    const i32 right = std::min(PlaceOf(line, columns->End, area), area.Right);
    FillRect({left, y, right, WrapAdd(y, area.RowHeight)}, SelectionColor);
}

// What is scrolled out to the left lies at the left edge.
i32 TeskTextEdit::PlaceOf(const CTextEditLine& line, u64 column, const TextArea& area) const
{
    const u64 first = View.ViewTop.Column;
    const u64 width = column > first ? Font->GetTextWidth(line.Text + first, column - first) : 0;
    return WrapAdd(area.Left, static_cast<u32>(width));
}

void TeskTextEdit::DrawCaret(i32 left, u64 width, const TextArea& area, i32 y)
{
    const tagRECT rect = {left, y, WrapAdd(left, static_cast<u32>(width)), WrapAdd(y, area.RowHeight)};
    if (InsertMode)
        FillRectBordered(rect, CaretInnerColor, CaretBorder, CaretOuterColor);
    else
        FillRectBordered(rect, CaretOuterColor, CaretBorder, CaretInnerColor);
}
