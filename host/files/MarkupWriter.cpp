#include "host/files/MarkupWriter.h"

#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLNode.h"

#include <algorithm>
#include <optional>

namespace host {

namespace {

constexpr std::size_t Indent = 2;
constexpr std::size_t LineLength = 90;
constexpr std::size_t LeastRoom = 40;
constexpr std::string_view Blanks = " \t\r\n";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(Blanks);
    return start == text.npos ? std::string_view() : text.substr(start, text.find_last_not_of(Blanks) - start + 1);
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '<')
            escaped += "&lt;";
        else if (character == '>')
            escaped += "&gt;";
        else if (character == '&')
            escaped += "&amp;";
        else
            escaped += character;
    }
    return escaped;
}

std::string Quoted(std::string_view value)
{
    std::string quoted = Escaped(value);
    for (std::size_t place = 0; (place = quoted.find('"', place)) != quoted.npos;)
        quoted.replace(place, 1, "&quot;");
    return '"' + quoted + '"';
}

// A tag without its end.
std::string TagOf(const XMLNode& node)
{
    std::string tag = '<' + std::string(node.Name);
    for (const XMLAttribute* attribute = node.Attributes; attribute; attribute = attribute->Next)
        tag += ' ' + std::string(attribute->Name) + '=' + Quoted(attribute->Value);
    return tag;
}

// No longer than room, or nothing.
std::optional<std::string> OnOneLine(const XMLNode& node, std::size_t room)
{
    if (node.Type == XMLTextNode) {
        const std::string_view text = Trimmed(node.Name);
        return text.find('\n') == text.npos ? std::optional(Escaped(text)) : std::nullopt;
    }
    if (node.Type != XMLElementNode)
        return std::nullopt;

    std::string line = TagOf(node) + (node.FirstChild ? ">" : "/>");
    for (const XMLNode* child = node.FirstChild; child && line.size() <= room; child = child->Next) {
        const auto part = OnOneLine(*child, room - line.size());
        if (!part)
            return std::nullopt;
        line += *part;
    }
    if (node.FirstChild)
        line += "</" + std::string(node.Name) + '>';
    return line.size() <= room ? std::optional(line) : std::nullopt;
}

bool HasElements(const XMLNode& node)
{
    const XMLNode* child = node.FirstChild;
    while (child && child->Type != XMLElementNode)
        child = child->Next;
    return child != nullptr;
}

// The least indent of the lines behind the first one, which stood behind a tag or another character.
std::size_t CommonIndent(std::string_view text)
{
    std::size_t least = text.npos;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 1)) {
        const std::size_t start = text.find_first_not_of(" \t", end + 1);
        if (start != text.npos && text[start] != '\n' && text[start] != '\r')
            least = std::min(least, start - end - 1);
    }
    return least == text.npos ? 0 : least;
}

} // namespace

std::string MarkupWriter::Write(const XMLNode& node)
{
    MarkupWriter writer;
    writer.WriteNode(node);
    return writer.m_Text;
}

void MarkupWriter::WriteNode(const XMLNode& node)
{
    if (node.Type == XMLElementNode)
        WriteElement(node);
    else if (node.Type == XMLTextNode)
        WriteText(Escaped(node.Name));
    else if (node.Type == XMLCommentNode)
        WriteText("<!-- " + std::string(Trimmed(node.Name)) + " -->");
}

void MarkupWriter::WriteElement(const XMLNode& node)
{
    if (const auto line = OnOneLine(node, Room())) {
        if (HasElements(node))
            PutLine(*line);
        else
            PutBeside(*line);
        return;
    }

    const std::string tag = TagOf(node);
    PutLine(node.FirstChild ? tag + '>' : tag + "/>");
    if (!node.FirstChild)
        return;
    ++m_Depth;
    for (const XMLNode* child = node.FirstChild; child; child = child->Next)
        WriteNode(*child);
    --m_Depth;
    PutLine("</" + std::string(node.Name) + '>');
}

void MarkupWriter::WriteText(std::string_view text)
{
    const std::size_t indent = CommonIndent(text);
    std::string_view rest = Trimmed(text);
    bool isFirst = true;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        if (!isFirst)
            line.remove_prefix(std::min(indent, line.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        PutLine(line);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        isFirst = false;
    }
}

void MarkupWriter::PutLine(std::string_view text)
{
    if (!text.empty())
        m_Text.append(m_Depth * Indent, ' ').append(text);
    m_Text += '\n';
    m_HasOpenLine = false;
}

void MarkupWriter::PutBeside(std::string_view text)
{
    const std::size_t length = m_HasOpenLine ? m_Text.size() - m_OpenLine : LineLength;
    if (length + text.size() <= LineLength) {
        m_Text.insert(m_Text.size() - 1, text);
        return;
    }
    m_OpenLine = m_Text.size();
    PutLine(text);
    m_HasOpenLine = true;
}

std::size_t MarkupWriter::Room() const
{
    return std::max(LineLength - std::min(LineLength, m_Depth * Indent), LeastRoom);
}

} // namespace host
