#include "host/drawlist/DrawList.h"

#include "host/display/Characters.h"
#include "host/probe/ValueText.h"

#include <algorithm>
#include <charconv>

namespace host {

namespace {

constexpr std::string_view Heading = "TeskaraDrawList 1 ";
constexpr std::string_view ManyImages = "DrawTexturedRects";
constexpr char ImageMark[] = "- ";
constexpr u32 MostImages = 1u << 20;

bool IsPrintable(char32_t character, std::string_view bytes)
{
    constexpr char32_t Replacement = 0xFFFD;
    if (character < 0x20 || (character >= 0x7F && character < 0xA0))
        return false;
    return character != Replacement || bytes.size() > 1; // a single byte is an ill-formed one
}

// Reads what stands on a line, from its start on. After a failure nothing more is read.
class LineReader
{
public:
    explicit LineReader(std::string_view line) : m_Rest(line) { }

    bool IsDone() const { return m_Rest.empty() && !m_IsBroken; }
    bool IsBroken() const { return m_IsBroken; }

    bool Skip(std::string_view text)
    {
        const bool stands = m_Rest.starts_with(text);
        if (stands)
            m_Rest.remove_prefix(text.size());
        else
            Break();
        return stands;
    }

    std::string_view TakeUntil(std::string_view stops)
    {
        return Take(std::min(m_Rest.find_first_of(stops), m_Rest.size()));
    }

    // With its quotes.
    std::string_view TakeQuoted()
    {
        std::size_t end = 0;
        if (!m_Rest.starts_with('"') || !ReadQuoted(m_Rest, end))
            return Break();
        return Take(end);
    }

    template <class Number> Number TakeNumber()
    {
        Number number = 0;
        const auto [end, error] = std::from_chars(m_Rest.data(), m_Rest.data() + m_Rest.size(), number);
        if (error != std::errc())
            Break();
        else
            m_Rest.remove_prefix(static_cast<std::size_t>(end - m_Rest.data()));
        return number;
    }

private:
    std::string_view Break()
    {
        m_IsBroken = true;
        m_Rest = {};
        return m_Rest;
    }

    std::string_view Take(std::size_t length)
    {
        const std::string_view taken = m_Rest.substr(0, length);
        m_Rest.remove_prefix(length);
        return taken;
    }

    std::string_view m_Rest;
    bool m_IsBroken = false;
};

std::string MarkText(const DrawMark& mark)
{
    std::string text = RectText(mark.Place);
    for (const DrawValue& value : mark.Values)
        text += ' ' + value.Name + '=' + value.Value;
    return text;
}

// (10,10,90,34) color=ff202020
DrawMark ReadMark(LineReader& line)
{
    DrawMark mark;
    line.Skip("(");
    mark.Place.left = line.TakeNumber<i32>();
    line.Skip(",");
    mark.Place.top = line.TakeNumber<i32>();
    line.Skip(",");
    mark.Place.right = line.TakeNumber<i32>();
    line.Skip(",");
    mark.Place.bottom = line.TakeNumber<i32>();
    line.Skip(")");
    while (!line.IsDone() && line.Skip(" ")) {
        DrawValue& value = mark.Values.emplace_back();
        value.Name = line.TakeUntil("= ");
        line.Skip("=");
        value.Value = line.TakeUntil("\" ");
        if (value.Value.empty())
            value.Value = line.TakeQuoted();
    }
    return mark;
}

// How many images of the call are yet to come, each on a line.
u32 ReadCall(LineReader& line, DrawCall& call)
{
    const std::string_view name = line.TakeQuoted();
    call.Element = TakeQuotesOff(name);
    line.Skip(" ");
    call.Operation = line.TakeUntil(" ");
    line.Skip(" ");
    if (call.Operation == ManyImages)
        return line.TakeNumber<u32>();
    call.Marks.push_back(ReadMark(line));
    return 0;
}

std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

bool ReadHeading(std::string_view text, DrawList& list)
{
    LineReader line(text);
    line.Skip(Heading);
    list.Width = line.TakeNumber<int>();
    line.Skip("x");
    list.Height = line.TakeNumber<int>();
    return line.IsDone();
}

} // namespace

std::string QuotedLine(std::string_view text)
{
    std::string quoted = "\"";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        const char32_t character = DecodeCharacter(text, at);
        const std::string_view bytes = text.substr(start, at - start);
        if (character == '"' || character == '\\' || !IsPrintable(character, bytes)) {
            const std::string escaped = Quoted(bytes);
            quoted += escaped.substr(1, escaped.size() - 2);
        } else {
            quoted += bytes;
        }
    }
    return quoted + '"';
}

std::string WriteDrawList(const DrawList& list)
{
    std::string text(Heading);
    text += std::to_string(list.Width) + 'x' + std::to_string(list.Height) + '\n';
    for (const DrawCall& call : list.Calls) {
        text += QuotedLine(call.Element) + ' ' + call.Operation + ' ';
        const bool isMany = call.Operation == ManyImages;
        if (isMany)
            text += std::to_string(call.Marks.size()) + '\n';
        for (const DrawMark& mark : call.Marks)
            text += (isMany ? ImageMark : "") + MarkText(mark) + '\n';
    }
    return text;
}

std::optional<DrawList> ReadDrawList(std::string_view text, std::string& why)
{
    DrawList list;
    if (!ReadHeading(TakeLine(text), list)) {
        why = "is no draw list: its first line is not one such as '" + std::string(Heading) + "1200x675'";
        return std::nullopt;
    }
    u32 pending = 0; // images of the last call
    for (u32 number = 2; !text.empty(); ++number) {
        LineReader line(TakeLine(text));
        if (pending > 0) {
            line.Skip(ImageMark);
            list.Calls.back().Marks.push_back(ReadMark(line));
            --pending;
        } else {
            pending = ReadCall(line, list.Calls.emplace_back());
        }
        if (!line.IsDone() || pending > MostImages) {
            why = "is a damaged draw list: line " + std::to_string(number) + " is none that such a list has there";
            return std::nullopt;
        }
    }
    if (pending > 0) {
        why = "is a damaged draw list: it breaks off in its last call";
        return std::nullopt;
    }
    return list;
}

} // namespace host
