#include "teskara/text/EditSelection.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char LineEnd[] = "\r\n";

bool IsBefore(const TextEditPos& left, const TextEditPos& right)
{
    if (left.Line == right.Line)
        return left.Column < right.Column;

    return left.Line->GetNumber() < right.Line->GetNumber();
}

} // namespace

bool EditSelection::Exists() const
{
    return SelectionStart.Line && SelectionEnd.Line && SelectionStart != SelectionEnd;
}

void EditSelection::Clear()
{
    SelectionStart.Clear();
    SelectionEnd.Clear();
}

void EditSelection::Collapse(const TextEditPos& position)
{
    SelectionStart = position;
    SelectionEnd = position;
}

// The ends may lie beyond lines that have become shorter.
std::optional<EditSelection::Columns> EditSelection::On(const CTextEditLine& line) const
{
    if (!Exists())
        return std::nullopt;

    const TextEditPos* first = &SelectionStart;
    const TextEditPos* last = &SelectionEnd;
    if (IsBefore(*last, *first))
        std::swap(first, last);

    const u64 number = line.GetNumber();
    if (number < first->Line->GetNumber() || number > last->Line->GetNumber())
        return std::nullopt;

    return Columns{first->Line == &line ? std::min(first->Column, line.Length) : 0,
        last->Line == &line ? std::min(last->Column, line.Length) : line.Length};
}

std::string EditSelection::Text() const
{
    std::string text;
    if (!Exists())
        return text;

    const bool forward = IsBefore(SelectionStart, SelectionEnd);
    const CTextEditLine* last = forward ? SelectionEnd.Line : SelectionStart.Line;
    for (const CTextEditLine* line = forward ? SelectionStart.Line : SelectionEnd.Line; line; line = line->Next) {
        const Columns columns = *On(*line);
        text += line->From(columns.Begin).substr(0, static_cast<std::size_t>(columns.End - columns.Begin));
        if (line == last)
            break;
        text += LineEnd;
    }
    return text;
}
