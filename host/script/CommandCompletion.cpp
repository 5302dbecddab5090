#include "host/script/CommandCompletion.h"

#include "host/script/CompletionNames.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::string_view PartStart = "${";

char Lower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool Precedes(std::string_view left, std::string_view right)
{
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return Lower(one) < Lower(other); });
}

// In any case.
bool StartsWith(std::string_view name, std::string_view start)
{
    return name.size() >= start.size()
        && std::equal(
            start.begin(), start.end(), name.begin(), [](char one, char other) { return Lower(one) == Lower(other); });
}

// The lines that begin as line does up to a place and go on with one of the names that fit what stands behind it.
std::vector<std::string> LinesWith(std::string_view line, std::size_t place, std::vector<std::string> names)
{
    const std::string_view begun = line.substr(place);
    std::erase_if(names, [begun](const std::string& name) { return !StartsWith(name, begun); });
    std::sort(names.begin(), names.end(), Precedes);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    for (std::string& name : names)
        name.insert(0, line.substr(0, place));
    return names;
}

// The last '.' or ':' of a path that stands outside of its brackets; npos if there is none, or a bracket is open.
std::size_t LastSeparator(std::string_view path)
{
    std::size_t last = path.npos;
    int depth = 0;
    for (std::size_t at = 0; at < path.size(); ++at) {
        if (path[at] == '[')
            ++depth;
        else if (path[at] == ']')
            --depth;
        else if (depth == 0 && (path[at] == '.' || path[at] == ':'))
            last = at;
    }
    return depth == 0 ? last : path.npos;
}

} // namespace

const std::string* CommandCompletion::Complete(std::string_view line, bool back)
{
    if (!m_Lines.empty() && m_Lines[m_Shown] == line) {
        m_Shown = (m_Shown + (back ? m_Lines.size() - 1 : 1)) % m_Lines.size();
    } else {
        m_Lines = Find(line);
        m_Shown = back && !m_Lines.empty() ? m_Lines.size() - 1 : 0;
    }
    return m_Lines.empty() ? nullptr : &m_Lines[m_Shown];
}

std::vector<std::string> CommandCompletion::Find(std::string_view line)
{
    const std::size_t part = line.rfind(PartStart);
    if (part != line.npos && line.find('}', part) == line.npos)
        return FindInPath(line, part + PartStart.size());

    const std::size_t command = std::min(line.find_first_not_of(' '), line.size());
    if (line.find(' ', command) != line.npos)
        return {};
    return LinesWith(line, command, m_Names.Commands());
}

// A path that would have to call something for an answer is not followed.
std::vector<std::string> CommandCompletion::FindInPath(std::string_view line, std::size_t pathStart)
{
    const std::string_view path = line.substr(pathStart);
    if (path.starts_with('=') || std::count(path.begin(), path.end(), '[') != std::count(path.begin(), path.end(), ']'))
        return {};

    const std::size_t separator = LastSeparator(path);
    if (separator == path.npos)
        return LinesWith(line, pathStart, m_Names.Variables());

    const std::string object(path.substr(0, separator));
    if (object.find(':') != object.npos)
        return {};
    return LinesWith(line, pathStart + separator + 1,
        path[separator] == '.' ? m_Names.MembersOf(object) : m_Names.MethodsOf(object));
}

} // namespace host
