#include "host/probe/ProbeOutput.h"

#include "host/probe/ValueText.h"

void ProbeOutput::Line(std::string_view line)
{
    m_Lines.push_back(WithoutFolder(line));
}

void ProbeOutput::Result(std::string_view result)
{
    Line("= " + std::string(result));
}

void ProbeOutput::Error(std::string_view message)
{
    Result("error: " + OnOneLine(message));
}

std::size_t ProbeOutput::Reserve()
{
    m_Lines.emplace_back();
    return m_Lines.size() - 1;
}

void ProbeOutput::Fill(std::size_t place, std::string_view line)
{
    if (place < m_Lines.size())
        m_Lines[place] = WithoutFolder(line);
}

std::vector<std::string> ProbeOutput::Take()
{
    std::vector<std::string> lines;
    lines.swap(m_Lines);
    return lines;
}

std::string ProbeOutput::WithoutFolder(std::string_view line) const
{
    std::string result(line);
    if (m_Folder.empty())
        return result;

    for (std::size_t at = result.find(m_Folder); at != std::string::npos; at = result.find(m_Folder, at)) {
        const bool slashFollows = at + m_Folder.size() < result.size() && result[at + m_Folder.size()] == '/';
        result.erase(at, m_Folder.size() + (slashFollows ? 1 : 0));
    }
    return result;
}

TracedCall::TracedCall(ProbeOutput& output, HostOperation operation)
    : m_Output(output), m_Operation(operation), m_Traced(output.Traces(OperationGroup(operation)))
{
    if (m_Traced)
        m_Place = m_Output.Reserve();
}

TracedCall::~TracedCall()
{
    if (!m_Traced)
        return;

    std::string line = NameOf(m_Operation);
    line += '(' + m_Arguments + ')';
    if (!m_Result.empty())
        line += " -> " + m_Result;
    m_Output.Fill(m_Place, line);
}

TracedCall& TracedCall::Argument(std::string_view text)
{
    if (!m_Traced)
        return *this;

    if (!m_Arguments.empty())
        m_Arguments += ", ";
    m_Arguments += text;
    return *this;
}

TracedCall& TracedCall::Text(const char* text)
{
    return m_Traced ? Argument(QuotedOrNull(text)) : *this;
}

TracedCall& TracedCall::Number(i64 number)
{
    return m_Traced ? Argument(std::to_string(number)) : *this;
}

TracedCall& TracedCall::Id(const char* kind, u32 id)
{
    return m_Traced ? Argument(std::string(kind) + ' ' + std::to_string(id)) : *this;
}

void TracedCall::Returns(std::string_view result)
{
    m_Result = result;
}

void TracedCall::ReturnsText(const char* text)
{
    if (m_Traced)
        Returns(QuotedOrNull(text));
}

void TracedCall::ReturnsBool(bool result)
{
    Returns(BoolText(result));
}

void TracedCall::ReturnsId(const char* kind, u32 id)
{
    if (m_Traced)
        Returns(std::string(kind) + ' ' + std::to_string(id));
}
