#include "host/script/SequenceParser.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr std::string_view Opening = "${";
constexpr std::string_view ExpressionOpening = "${=";
constexpr std::string_view Blanks = " \t\r\n";
constexpr int MostNested = 64;

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

// The place behind a text in quotes; npos if it has no end.
std::size_t SkipQuoted(std::string_view text, std::size_t at)
{
    const char quote = text[at++];
    while (at < text.size() && text[at] != quote)
        at += text[at] == '\\' ? 2 : 1;
    return at < text.size() ? at + 1 : text.npos;
}

// The place behind the bracket that ends an expression. Brackets within it come in pairs.
std::size_t FindExpressionEnd(std::string_view text, std::size_t start)
{
    int depth = 1;
    for (std::size_t at = start + Opening.size(); at < text.size();) {
        const char character = text[at];
        if (character == '"' || character == '\'') {
            at = SkipQuoted(text, at);
            continue;
        }
        ++at;
        if (character == '{')
            ++depth;
        else if (character == '}' && --depth == 0)
            return at;
    }
    return text.npos;
}

// The place behind the bracket that ends the part which starts there; npos if nothing ends it.
std::size_t FindPartEnd(std::string_view text, std::size_t start, int nested = 0)
{
    if (nested > MostNested)
        return text.npos;
    if (text.substr(start).starts_with(ExpressionOpening))
        return FindExpressionEnd(text, start);

    for (std::size_t at = start + Opening.size(); at < text.size();) {
        const char character = text[at];
        if (character == '}')
            return at + 1;
        if (text.substr(at).starts_with(Opening)) {
            at = FindPartEnd(text, at, nested + 1);
        } else if (character == '"' && (text[at - 1] == '[' || text[at - 1] == ',')) {
            const std::size_t end = SkipQuoted(text, at);
            at = end == text.npos ? at + 1 : end;
        } else {
            ++at;
        }
    }
    return text.npos;
}

// Inside of a text in quotes, with \n, \r and \t, and any other character behind a backslash as itself.
std::string Unquote(std::string_view text)
{
    constexpr std::string_view letters = "nrt";
    constexpr std::string_view controls = "\n\r\t";
    std::string plain;
    for (std::size_t at = 1; at + 1 < text.size(); ++at) {
        if (text[at] != '\\') {
            plain += text[at];
            continue;
        }
        const std::size_t letter = letters.find(text[++at]);
        plain += letter == letters.npos ? text[at] : controls[letter];
    }
    return plain;
}

void AddText(Sequence& sequence, std::string text)
{
    if (!text.empty())
        sequence.Parts.emplace_back().Text = std::move(text);
}

class PathReader
{
public:
    explicit PathReader(std::string_view text) : m_Text(Trim(text)) { }

    std::vector<SequenceStep> Read()
    {
        std::vector<SequenceStep> path;
        auto kind = SequenceStep::Kind::Name;
        do {
            SequenceStep step;
            step.StepKind = kind;
            if (!ReadStep(step))
                return {};
            path.push_back(std::move(step));
        } while (ReadSeparator(kind));
        return m_At == m_Text.size() ? std::move(path) : std::vector<SequenceStep>();
    }

private:
    bool ReadStep(SequenceStep& step)
    {
        const std::size_t end = std::min(m_Text.find_first_of(".:[]", m_At), m_Text.size());
        step.Name = m_Text.substr(m_At, end - m_At);
        m_At = end;
        if (step.Name.empty() || (Next('[') && !ReadArguments(step.Arguments)))
            return false;

        step.IsConstant = std::all_of(step.Arguments.begin(), step.Arguments.end(),
            [](const Sequence& argument) { return argument.Constant() != nullptr; });
        return true;
    }

    bool ReadSeparator(SequenceStep::Kind& kind)
    {
        if (Next('.'))
            kind = SequenceStep::Kind::Member;
        else if (Next(':'))
            kind = SequenceStep::Kind::Method;
        else
            return false;
        return true;
    }

    bool ReadArguments(std::vector<Sequence>& arguments)
    {
        do {
            if (!ReadArgument(arguments.emplace_back()))
                return false;
        } while (Next(','));
        return Next(']');
    }

    bool ReadArgument(Sequence& argument)
    {
        const std::size_t start = m_At;
        if (m_At < m_Text.size() && m_Text[m_At] == '"') {
            m_At = SkipQuoted(m_Text, m_At);
            if (m_At == m_Text.npos)
                return false;
            AddText(argument, Unquote(m_Text.substr(start, m_At - start)));
            return true;
        }

        while (m_At < m_Text.size() && m_Text[m_At] != ',' && m_Text[m_At] != ']') {
            m_At = m_Text.substr(m_At).starts_with(Opening) ? FindPartEnd(m_Text, m_At) : m_At + 1;
            if (m_At == m_Text.npos)
                return false;
        }
        argument = SequenceParser::Read(m_Text.substr(start, m_At - start));
        return true;
    }

    bool Next(char character)
    {
        if (m_At >= m_Text.size() || m_Text[m_At] != character)
            return false;

        ++m_At;
        return true;
    }

    std::string_view m_Text;
    std::size_t m_At = 0;
};

SequencePart ReadPart(std::string_view text)
{
    SequencePart part;
    const bool isExpression = text.starts_with(ExpressionOpening);
    text.remove_prefix(isExpression ? ExpressionOpening.size() : Opening.size());
    text.remove_suffix(1);
    part.Text = text;
    if (isExpression) {
        part.PartKind = SequencePart::Kind::Expression;
        return part;
    }
    part.Path = SequenceParser::ReadPath(text);
    part.PartKind = part.Path.empty() ? SequencePart::Kind::Nothing : SequencePart::Kind::Path;
    return part;
}

} // namespace

const std::string* Sequence::Constant() const
{
    static const std::string nothing;
    if (Parts.empty())
        return &nothing;
    return Parts.size() == 1 && Parts[0].PartKind == SequencePart::Kind::Text ? &Parts[0].Text : nullptr;
}

Sequence SequenceParser::Read(std::string_view text)
{
    Sequence sequence;
    std::string plain;
    while (!text.empty()) {
        const std::size_t start = text.find(Opening);
        const std::size_t end = start == text.npos ? start : FindPartEnd(text, start);
        if (end == text.npos) {
            plain += text;
            break;
        }
        plain += text.substr(0, start);
        AddText(sequence, std::exchange(plain, {}));
        sequence.Parts.push_back(ReadPart(text.substr(start, end - start)));
        text.remove_prefix(end);
    }
    AddText(sequence, std::move(plain));
    return sequence;
}

std::vector<SequenceStep> SequenceParser::ReadPath(std::string_view text)
{
    return PathReader(text).Read();
}

std::size_t SequenceParser::FindEnd(std::string_view text, std::size_t start)
{
    return FindPartEnd(text, start);
}

} // namespace host
