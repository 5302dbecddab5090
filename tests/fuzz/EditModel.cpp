#include "tests/fuzz/EditModel.h"

#include <algorithm>
#include <utility>

namespace {

constexpr u64 Margin = 3;
constexpr u64 RowHeight = 12;
constexpr u64 ByteWidth = 6;
constexpr u64 BarWidth = 16;

std::vector<std::string> Cut(const std::string& text)
{
    std::vector<std::string> lines = {""};
    for (const char byte : text) {
        if (byte != '\n') {
            lines.back() += byte;
            continue;
        }
        if (!lines.back().empty() && lines.back().back() == '\r')
            lines.back().pop_back();
        lines.emplace_back();
    }
    return lines;
}

bool IsBefore(const EditModel::Position& left, const EditModel::Position& right)
{
    return std::pair(left.Line, left.Column) < std::pair(right.Line, right.Column);
}

} // namespace

void EditModel::SetText(const std::string& text)
{
    m_HasCaret = false;
    Lines.clear();
    SelectionStart = SelectionEnd = std::nullopt;
    SetBarRange(1);
    Caret = {};
    Top = TopColumn = Bottom = 0;
    AddText(text);
    m_HasCaret = true;
}

void EditModel::AddText(const std::string& text)
{
    for (const std::string& line : Cut(text))
        AddLine(line);
}

void EditModel::AddLine(const std::string& text)
{
    Lines.push_back(text);
    TellLines();
}

void EditModel::InsertLine(u64 line, const std::string& text)
{
    const auto shift = [line](u64& number) { number += number >= line ? 1 : 0; };
    Lines.insert(Lines.begin() + static_cast<std::ptrdiff_t>(line), text);
    shift(Caret.Line);
    shift(Top);
    shift(Bottom);
    for (auto* end : {&SelectionStart, &SelectionEnd}) {
        if (*end)
            shift((*end)->Line);
    }
    TellLines();
}

// Takes the number of a line off one that is being removed, and behind it down by one.
void EditModel::Repair(u64& number, u64 line, bool upward) const
{
    if (number == line)
        number = (upward && line > 0) || line + 1 == Lines.size() ? line - 1 : line + 1;
    if (number > line)
        --number;
}

void EditModel::RemoveLine(u64 line, bool upward)
{
    if (Lines.size() == 1) {
        Lines[0].clear();
        Caret.Column = 0;
        return;
    }
    const bool hadCaret = Caret.Line == line;
    Repair(Caret.Line, line, upward);
    Repair(Top, line, upward);
    Repair(Bottom, line, upward);
    for (auto* end : {&SelectionStart, &SelectionEnd}) {
        if (*end)
            Repair((*end)->Line, line, upward);
    }
    Lines.erase(Lines.begin() + static_cast<std::ptrdiff_t>(line));
    if (hadCaret)
        Caret.Column = std::min(Caret.Column, LengthOf(Caret.Line));
    TellLines();
}

void EditModel::SetBar(u32 value)
{
    const u32 old = std::exchange(BarValue, std::min(value, BarRange));
    if (BarValue != old)
        FollowBar();
}

void EditModel::SetBarRange(u32 range)
{
    BarRange = range;
    SetBar(BarValue);
}

void EditModel::FollowBar()
{
    if (!m_HasCaret)
        return;

    const i64 line = static_cast<i64>(Lines.size()) - BarValue;
    const i64 steps = line - static_cast<i64>(Caret.Line);
    if (steps > 0)
        Down(static_cast<u64>(steps));
    else if (steps < 0)
        Up(static_cast<u64>(-steps));
}

void EditModel::TellCaretLine()
{
    if (m_HasCaret)
        SetBar(static_cast<u32>(Lines.size() - Caret.Line));
}

void EditModel::TellLines()
{
    SetBarRange(static_cast<u32>(Lines.size()));
    TellCaretLine();
}

void EditModel::BeginMove()
{
    if (Shift && !SelectionStart)
        SelectionStart = Caret;
}

void EditModel::UpdateSelection()
{
    if (Selecting) {
        Move(MouseX, MouseY);
        return;
    }
    BeginMove();
    if (!Shift)
        SelectionStart.reset();
    SelectionEnd = Shift ? std::optional(Caret) : std::nullopt;
}

void EditModel::Insert(char byte)
{
    std::string& line = Lines[Caret.Line];
    if (Caret.Column <= line.size())
        line.insert(Caret.Column, 1, byte);
    ++Caret.Column;
}

void EditModel::Backspace()
{
    if (Caret.Column > 0) {
        --Caret.Column;
        if (Caret.Column < LengthOf(Caret.Line))
            Lines[Caret.Line].erase(Caret.Column, 1);
    } else if (Caret.Line > 0) {
        const u64 line = Caret.Line;
        Caret = {line - 1, LengthOf(line - 1)};
        Lines[line - 1] += Lines[line];
        RemoveLine(line, true);
    }
    SelectionStart = SelectionEnd = std::nullopt;
}

void EditModel::Delete()
{
    std::string& line = Lines[Caret.Line];
    if (line.empty()) {
        RemoveLine(Caret.Line, false);
    } else if (Caret.Column < line.size()) {
        line.erase(Caret.Column, 1);
    } else if (Caret.Line + 1 < Lines.size()) {
        line += Lines[Caret.Line + 1];
        RemoveLine(Caret.Line + 1, false);
    }
    SelectionStart = SelectionEnd = std::nullopt;
}

// A zero byte ends the text of the new line.
void EditModel::Enter()
{
    const std::string line = Lines[Caret.Line];
    const u64 column = std::min<u64>(Caret.Column, line.size());
    const u64 number = Caret.Line;
    InsertLine(number + 1, line.substr(column).c_str());
    Lines[number].resize(column);
    Caret.Column = 0;
    Down(1);
}

void EditModel::ShowColumn()
{
    if (Caret.Column >= TopColumn + Columns)
        TopColumn = Caret.Column - Columns + 1;
}

void EditModel::Left()
{
    BeginMove();
    if (Caret.Column == 0)
        return;

    --Caret.Column;
    TopColumn = std::min(TopColumn, Caret.Column);
    UpdateSelection();
}

void EditModel::Right()
{
    BeginMove();
    if (Caret.Column >= LengthOf(Caret.Line))
        return;

    ++Caret.Column;
    if (Caret.Column <= TopColumn)
        TopColumn = Caret.Column;
    else
        ShowColumn();
    UpdateSelection();
}

void EditModel::Home()
{
    BeginMove();
    Caret.Column = TopColumn = 0;
    UpdateSelection();
}

void EditModel::End()
{
    BeginMove();
    Caret.Column = LengthOf(Caret.Line);
    ShowColumn();
    UpdateSelection();
}

void EditModel::Up(u64 lines)
{
    BeginMove();
    for (; lines > 0 && Caret.Line > 0; --lines) {
        if (Caret.Line == Top) {
            --Top;
            Bottom -= Bottom > 0 ? 1 : 0;
        }
        --Caret.Line;
        Caret.Column = std::min(Caret.Column, LengthOf(Caret.Line));
    }
    TellCaretLine();
    UpdateSelection();
}

void EditModel::Down(u64 lines)
{
    BeginMove();
    for (; lines > 0 && Caret.Line + 1 < Lines.size(); --lines) {
        if (Caret.Line == Bottom) {
            Top += Top + 1 < Lines.size() ? 1 : 0;
            Bottom = Caret.Line + 1;
        }
        ++Caret.Line;
        Caret.Column = std::min(Caret.Column, LengthOf(Caret.Line));
    }
    TellCaretLine();
    UpdateSelection();
}

void EditModel::Start()
{
    BeginMove();
    Caret = {};
    Top = TopColumn = 0;
    Bottom = std::min<u64>(Rows, Lines.size() - 1);
    TellCaretLine();
    UpdateSelection();
}

void EditModel::Finish()
{
    BeginMove();
    const u64 last = Lines.size() - 1;
    Caret = {last, LengthOf(last)};
    ShowColumn();
    Top = Rows >= Lines.size() ? 0 : std::min<u64>(Lines.size() - Rows, last);
    Bottom = last;
    TellCaretLine();
    UpdateSelection();
}

void EditModel::SelectAll()
{
    Finish();
    SelectionStart = Position();
    SelectionEnd = Caret;
}

EditModel::Position EditModel::Hit(int x, int y) const
{
    u64 line = Top;
    const i64 inset = static_cast<i64>(Border + Margin);
    if (Rows > 0) {
        const i64 height = std::max<i64>((i64{Height} - inset) / static_cast<i64>(Rows), 1);
        const i64 row = std::max<i64>((y - inset) / height, 0);
        line = std::min<u64>(Top + static_cast<u64>(row), Lines.size() - 1);
    }
    const u64 length = std::min(Lines[line].find('\0'), Lines[line].size()); // fonts end a text there
    const u64 column = x > inset ? static_cast<u64>(x - inset) / ByteWidth : 0;
    return {line, std::min(column, length)};
}

void EditModel::Press(int x, int y)
{
    const Position pressed = Hit(x, y);
    SetBar(static_cast<u32>(Lines.size() - pressed.Line));
    Caret.Column = pressed.Column;
    SelectionStart = SelectionEnd = Caret;
    Selecting = true;
}

void EditModel::Move(int x, int y)
{
    if (!Selecting)
        return;

    Caret = Hit(x, y);
    SelectionEnd = Caret;
}

void EditModel::Release()
{
    Selecting = false;
    if (SelectionStart == SelectionEnd)
        SelectionStart = SelectionEnd = std::nullopt;
}

void EditModel::Wheel(int offset)
{
    const u32 rows = static_cast<u32>(offset < 0 ? -offset : offset) / 40;
    SetBar(offset > 0 ? BarValue + rows : BarValue - std::min(rows, BarValue));
}

void EditModel::Frame()
{
    const i64 inner = i64{Height} - 2 * i64{Border};
    Rows = inner > 0 ? static_cast<u64>(inner) / RowHeight : 0;
    const i64 across = i64{Width} - static_cast<i64>(BarWidth + Margin) - 2 * i64{Border};
    Columns = across > 0 ? static_cast<u64>(across) / ByteWidth : 0;

    const i64 room = i64{Height} - 2 * (static_cast<i64>(Margin) + Border); // rows end above the last pixel
    const u64 fitting = room > 0 ? static_cast<u64>(room - 1) / RowHeight : 0;
    DrawnRows = static_cast<u32>(std::min<u64>(fitting, Lines.size() - Top));
    const u64 behind = Top + DrawnRows;
    Bottom = behind > 0 ? behind - 1 : 0;
    if (Caret.Line >= Top && Caret.Line < behind && LengthOf(Caret.Line) > 0)
        Caret.Column = std::min(Caret.Column, LengthOf(Caret.Line));
}

std::string EditModel::Selected() const
{
    if (!SelectionStart || !SelectionEnd || *SelectionStart == *SelectionEnd)
        return {};

    const bool forward = IsBefore(*SelectionStart, *SelectionEnd);
    const Position first = forward ? *SelectionStart : *SelectionEnd;
    const Position last = forward ? *SelectionEnd : *SelectionStart;
    std::string text;
    for (u64 number = first.Line; number <= last.Line; ++number) {
        const std::string& line = Lines[number];
        const u64 begin = number == first.Line ? std::min<u64>(first.Column, line.size()) : 0;
        const u64 end = number == last.Line ? std::min<u64>(last.Column, line.size()) : line.size();
        text += line.substr(begin, end - begin);
        if (number != last.Line)
            text += "\r\n";
    }
    return text;
}
