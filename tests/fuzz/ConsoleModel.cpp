#include "tests/fuzz/ConsoleModel.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t LongestLine = 2047;

i32 SnappedCoordinate(i32 value, i32 extent, i32 border, i32 margin, i32 step)
{
    if (value < border)
        return border;
    if (value > extent - border)
        return extent - border;
    return (value - border - margin) / step * step + border + margin;
}

// A text without its colour codes.
std::string Plain(const std::string& text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] != '\a') {
            plain += text[at++];
            continue;
        }
        const char code = at + 1 < text.size() ? text[at + 1] : 'x';
        at += code == '-' ? 3u : code == '#' ? 8u : 2u;
    }
    return plain;
}

} // namespace

// Byte by byte, with the line that is being filled.
void ConsoleModel::Print(const std::string& text, u64 columns)
{
    if (columns == 0)
        return;

    std::string line;
    std::size_t at = 0;
    while (at < text.size() && line.size() < LongestLine) {
        if (text[at] == '\n') {
            AddLine(std::exchange(line, {}));
            ++at;
        } else if (line.size() < columns) {
            line += text[at++];
        } else {
            const std::size_t space = line.rfind(' ');
            if (text[at] == ' ') {
                ++at;
            } else if (space != std::string::npos) {
                at -= line.size() - space - 1;
                line.resize(space);
            }
            AddLine(std::exchange(line, {}));
        }
    }
    if (!line.empty())
        AddLine(line);
}

void ConsoleModel::AddLine(const std::string& line)
{
    Newest = Newest + 1 < Size ? Newest + 1 : 0;
    Lines[Newest] = line;
}

void ConsoleModel::Clear()
{
    Lines.clear();
    Newest = -1;
}

void ConsoleModel::SetValue(i64 value)
{
    value = std::clamp<i64>(value, 0, Size);
    if (value == Value)
        return;

    Value = value;
    if (!HasRoomForHandle)
        return;

    ScrollLine = value == 0 ? -1 : Newest - value;
    if (value != 0 && ScrollLine < 0)
        ScrollLine += Size;
}

i32 ConsoleModel::VisibleLines() const
{
    return std::max(Height - 2 * Border, 0) / Pitch;
}

std::optional<std::string> ConsoleModel::TextOf(i64 slot) const
{
    const auto line = Lines.find(slot);
    return line == Lines.end() ? std::nullopt : std::optional(line->second);
}

std::vector<std::optional<std::string>> ConsoleModel::Rows() const
{
    std::vector<std::optional<std::string>> rows;
    const i64 last = ScrollLine < 0 ? Newest : ScrollLine;
    if (VisibleLines() < 1 || last < 0)
        return rows;

    i64 slot = last - VisibleLines() + 1;
    if (slot < 0)
        slot += Size;
    while (true) {
        rows.push_back(TextOf(slot));
        if (slot == last)
            return rows;
        slot = slot + 1 == Size ? 0 : slot + 1;
    }
}

_Point2i ConsoleModel::Snapped(_Point2i point) const
{
    return {X + SnappedCoordinate(point.x - X, Width, Border, 3, CharacterWidth),
        Y + SnappedCoordinate(point.y - Y, Height, Border, 2, Pitch)};
}

std::optional<std::string> ConsoleModel::Select(_Point2i from, _Point2i to)
{
    from = Snapped(from);
    to = Snapped(to);
    to = {std::clamp(to.x, X, X + Width), std::clamp(to.y, Y, Y + Height)};
    if (from.x == to.x || from.y == to.y)
        return std::nullopt;

    i32 left = std::min(from.x, to.x);
    left = left >= X + Border + 3 ? left - X - Border - 3 : X + Border + 3;
    const i32 right = std::max(from.x, to.x) - X - Border - 3;
    const i32 top = std::max(std::min(from.y, to.y) - Y - Border - 2, 0);
    const i32 bottom = std::max(from.y, to.y) - Y - Border - 2;
    const i64 base = (ScrollLine < 0 ? Newest : ScrollLine) - VisibleLines() + 1;
    const i64 columns = right / CharacterWidth - left / CharacterWidth;
    i64 first = base + top / Pitch;
    i64 limit = base + (bottom + Pitch - 1) / Pitch;
    first += first < 0 ? Size : first >= Size ? -Size : 0;
    limit += limit < 0 ? Size : limit > Size ? -Size : 0;
    if (static_cast<u32>(limit - first) * static_cast<u32>(columns + 4) * 2 == 0)
        return std::nullopt;
    return CopyOf(first, limit, left / CharacterWidth, columns);
}

std::string ConsoleModel::CopyOf(i64 first, i64 limit, i64 firstColumn, i64 columns)
{
    std::string copy;
    if (first < 0 || limit < 0)
        return copy;

    for (i64 slot = first; slot != limit;) {
        const std::optional<std::string> line = TextOf(slot);
        if ((line || slot == Size) && !copy.empty())
            copy += "\r\n";
        if (slot == Size)
            ++BadLines;
        const std::string plain = Plain(line.value_or(""));
        if (columns > 0 && static_cast<i64>(plain.size()) > firstColumn)
            copy += plain.substr(static_cast<std::size_t>(firstColumn), static_cast<std::size_t>(columns));
        if (slot == Size && limit == 0)
            break;
        if (slot >= Size)
            slot = 0;
        ++slot;
    }
    return copy;
}
