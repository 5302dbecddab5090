#include "host/probe/CommandLines.h"

#include "host/probe/ValueText.h"

bool TakeTextSign(std::string& line)
{
    constexpr std::string_view Sign = " <<";
    const std::size_t end = line.find_last_not_of(" \t\r") + 1;
    if (!std::string_view(line).substr(0, end).ends_with(Sign))
        return false;

    line.resize(end - Sign.size());
    return true;
}

std::optional<std::string_view> TextOfLine(std::string_view line)
{
    if (line.starts_with("| "))
        return line.substr(2);
    if (line == "|")
        return std::string_view();
    return std::nullopt;
}

std::vector<CommandLine> ReadCommandLines(std::string_view text)
{
    std::vector<CommandLine> commands;
    bool textFollows = false;
    for (const std::string_view raw : SplitLines(text)) {
        const std::string_view line = TrimBlanks(raw);
        if (const auto part = TextOfLine(raw.substr(std::min(raw.find_first_not_of(" \t"), raw.size())));
            part && textFollows) {
            *commands.back().Body += std::string(*part) + '\n';
            continue;
        }
        textFollows = false;
        if (line.empty() || line.starts_with('#'))
            continue;

        CommandLine& command = commands.emplace_back();
        command.Text = line;
        textFollows = TakeTextSign(command.Text);
        if (textFollows)
            command.Body = "";
    }
    return commands;
}

std::vector<std::string_view> SplitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}
