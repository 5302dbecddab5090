#include "host/probe/ScriptPath.h"

#include "host/probe/ValueText.h"

namespace {

constexpr std::string_view SequenceStart = "${";

class PathReader
{
public:
    explicit PathReader(std::string_view text) : m_Text(text) { }

    std::optional<ScriptPath> Read()
    {
        ScriptPath path;
        PathStepKind kind = PathStepKind::Object;
        do {
            if (!ReadStep(kind, path))
                return std::nullopt;
        } while (ReadSeparator(kind));
        if (m_At != m_Text.size())
            return std::nullopt;
        return path;
    }

private:
    bool ReadStep(PathStepKind kind, ScriptPath& path)
    {
        const std::size_t end = std::min(m_Text.find_first_of(".:[]", m_At), m_Text.size());
        PathStep step{kind, std::string(m_Text.substr(m_At, end - m_At)), {}};
        m_At = end;
        if (step.Name.empty())
            return false;
        if (Next('[') && !ReadArguments(step.Arguments))
            return false;

        path.push_back(std::move(step));
        return true;
    }

    bool ReadSeparator(PathStepKind& kind)
    {
        if (Next('.'))
            kind = PathStepKind::Member;
        else if (Next(':'))
            kind = PathStepKind::Method;
        else
            return false;
        return true;
    }

    bool ReadArguments(std::vector<PathArgument>& arguments)
    {
        do {
            PathArgument argument;
            if (!ReadArgument(argument))
                return false;
            arguments.push_back(std::move(argument));
        } while (Next(','));
        return Next(']');
    }

    bool ReadArgument(PathArgument& argument)
    {
        if (m_At < m_Text.size() && m_Text[m_At] == '"') {
            const auto quoted = ReadQuoted(m_Text, m_At);
            if (!quoted)
                return false;
            argument = {*quoted, true};
            return true;
        }

        while (m_At < m_Text.size() && m_Text[m_At] != ',' && m_Text[m_At] != ']') {
            std::size_t end = m_At + 1;
            if (m_Text.substr(m_At).starts_with(SequenceStart))
                end = FindSequenceEnd(m_Text, m_At);
            if (end == std::string_view::npos)
                return false;
            argument.Text += m_Text.substr(m_At, end - m_At);
            m_At = end;
        }
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

} // namespace

std::optional<ScriptPath> ReadScriptPath(std::string_view text)
{
    return PathReader(TrimBlanks(text)).Read();
}

std::size_t FindSequenceEnd(std::string_view text, std::size_t start)
{
    std::size_t depth = 0;
    std::size_t at = start;
    while (at < text.size()) {
        if (text.substr(at).starts_with(SequenceStart)) {
            ++depth;
            at += SequenceStart.size();
        } else if (text[at] == '}') {
            ++at;
            if (--depth == 0)
                return at;
        } else if (text[at] == '"' && (text[at - 1] == '[' || text[at - 1] == ',') && ReadQuoted(text, at)) {
            // A quoted argument may hold what would end the sequence; at stands behind it.
        } else {
            ++at;
        }
    }
    return std::string_view::npos;
}
