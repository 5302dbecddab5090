#include "host/probe/CommandCall.h"

#include "host/probe/ScriptPath.h"
#include "host/probe/ValueText.h"

#include <limits>

namespace {

constexpr std::string_view Blanks = " \t";

// Where a word that does not begin with a quote ends; blanks inside a data sequence belong to it.
std::size_t FindWordEnd(std::string_view line, std::size_t at)
{
    while (at < line.size() && Blanks.find(line[at]) == std::string_view::npos) {
        const bool sequence = line.substr(at).starts_with("${");
        const std::size_t end = sequence ? FindSequenceEnd(line, at) : std::string_view::npos;
        at = end == std::string_view::npos ? at + 1 : end;
    }
    return at;
}

bool IsWhollyQuoted(std::string_view text)
{
    std::size_t end = 0;
    return text.starts_with('"') && ReadQuoted(text, end) && end == text.size();
}

} // namespace

std::string CommandCall::NameOf(const CommandLine& line)
{
    const std::string_view text = TrimBlanks(line.Text);
    return std::string(text.substr(0, text.find_first_of(Blanks)));
}

CommandCall::CommandCall(const CommandLine& line, CommandForm form, const Expander& expand)
    : m_Name(NameOf(line)), m_Line(TrimBlanks(TrimBlanks(line.Text).substr(m_Name.size()))),
      m_Body(line.Body.value_or("")), m_HasBody(line.Body.has_value())
{
    if (form == CommandForm::Words) {
        SplitArguments(expand);
        return;
    }

    const bool quoted = IsWhollyQuoted(m_Line);
    m_Line = TakeQuotesOff(m_Line);
    if (form == CommandForm::Line && expand)
        m_Line = expand(m_Line, quoted);
    if (!m_Line.empty())
        m_Arguments.push_back({m_Line, 0});
}

void CommandCall::SplitArguments(const Expander& expand)
{
    std::size_t at = 0;
    while ((at = m_Line.find_first_not_of(Blanks, at)) != std::string::npos) {
        const std::size_t start = at;
        const bool quoted = m_Line[at] == '"';
        std::string text;
        if (quoted) {
            const auto inside = ReadQuoted(m_Line, at);
            if (!inside)
                throw CommandError("a quote is not closed");
            text = *inside;
        } else {
            at = FindWordEnd(m_Line, at);
            text = m_Line.substr(start, at - start);
        }
        m_Arguments.push_back({expand ? expand(text, quoted) : text, start});
    }
}

const std::string& CommandCall::Text(std::size_t index) const
{
    if (!Has(index))
        throw CommandError("an argument is missing");
    return m_Arguments[index].Text;
}

i64 CommandCall::Number(std::size_t index) const
{
    const std::string& text = Text(index);
    const auto number = ReadNumber(text);
    if (!number || *number < std::numeric_limits<i32>::min() || *number > std::numeric_limits<u32>::max())
        throw CommandError("not a number: " + Quoted(text));
    return *number;
}

i32 CommandCall::Integer(std::size_t index) const
{
    return static_cast<i32>(Number(index));
}

u32 CommandCall::Unsigned(std::size_t index) const
{
    return static_cast<u32>(Number(index));
}

u32 CommandCall::Color(std::size_t index) const
{
    const std::string& text = Text(index);
    constexpr std::size_t ColorDigits = 8;
    if (text.size() == ColorDigits) {
        if (const auto color = ReadNumber("0x" + text))
            return static_cast<u32>(*color);
    }
    return Unsigned(index);
}

bool CommandCall::Switch(std::size_t index) const
{
    const std::string& word = Text(index);
    if (word != "on" && word != "off")
        throw CommandError("neither on nor off: " + Quoted(word));
    return word == "on";
}

std::string CommandCall::Rest(std::size_t index) const
{
    const std::string& first = Text(index);
    return index + 1 == Count() ? first : m_Line.substr(m_Arguments[index].Start);
}
