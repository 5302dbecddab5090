#include "host/script/AtomSource.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::string_view Start = "atom ";
constexpr std::string_view BodyStart = ")\n{\n";
constexpr std::string_view BodyEnd = "\n}\n";
constexpr std::string_view Blanks = " \t\r\n";

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

AtomSource::Parameter ReadParameter(std::string_view text)
{
    const std::string_view trimmed = Trim(text);
    const std::size_t blank = trimmed.find_last_of(Blanks);
    if (blank == trimmed.npos)
        return {{}, trimmed};
    return {Trim(trimmed.substr(0, blank)), trimmed.substr(blank + 1)};
}

std::vector<AtomSource::Parameter> ReadParameters(std::string_view text)
{
    std::vector<AtomSource::Parameter> parameters;
    for (text = Trim(text); !text.empty();) {
        const std::size_t end = std::min(text.find(','), text.size());
        parameters.push_back(ReadParameter(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parameters;
}

} // namespace

std::optional<AtomSource> AtomSource::Read(std::string_view text)
{
    const std::size_t list = text.find('(');
    const std::size_t listEnd = text.find(BodyStart);
    if (!text.starts_with(Start) || !text.ends_with(BodyEnd) || list > listEnd || listEnd == text.npos)
        return std::nullopt;

    AtomSource source;
    source.Name = Trim(text.substr(Start.size(), list - Start.size()));
    source.Parameters = ReadParameters(text.substr(list + 1, listEnd - list - 1));
    const std::size_t body = listEnd + BodyStart.size();
    const std::size_t bodyEnd = text.size() - BodyEnd.size();
    source.Body = body < bodyEnd ? text.substr(body, bodyEnd - body) : std::string_view();
    return source;
}

} // namespace host
