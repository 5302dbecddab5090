#include "host/probe/Transcript.h"

#include "host/probe/ExpectedLines.h"
#include "host/probe/ValueText.h"

#include <fstream>
#include <iterator>

namespace {

constexpr std::string_view CommandSign = "> ";

} // namespace

Transcript Transcript::FromText(std::string_view text)
{
    Transcript transcript;
    bool textFollows = false;
    for (const std::string_view line : SplitLines(text))
        transcript.Add(line, textFollows);
    return transcript;
}

std::optional<Transcript> Transcript::FromFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return FromText(std::string(std::istreambuf_iterator<char>(file), {}));
}

void Transcript::Add(std::string_view line, bool& textFollows)
{
    Line& added = m_Lines.emplace_back(Line{Role::Blank, std::string(line), m_Commands.size()});
    if (line.starts_with(CommandSign)) {
        TranscriptCommand& command = m_Commands.emplace_back();
        command.Line = m_Lines.size();
        command.Command.Text = line.substr(CommandSign.size());
        textFollows = TakeTextSign(command.Command.Text);
        if (textFollows)
            command.Command.Body = "";
        added.LineRole = Role::Command;
    } else if (const auto text = TextOfLine(line); text && textFollows) {
        *m_Commands.back().Command.Body += std::string(*text) + '\n';
        added.LineRole = Role::Text;
    } else {
        textFollows = false;
        if (TrimBlanks(line).empty() || line.starts_with('#'))
            return;
        if (m_Commands.empty()) {
            m_Fault = "line " + std::to_string(m_Lines.size()) + " is expected before the first command";
            return;
        }
        m_Commands.back().Expected.emplace_back(TrimBlanks(line));
        added.LineRole = Role::Expected;
    }
    added.Command = m_Commands.size() - 1;
}

std::vector<std::string> Transcript::LinesOf(std::size_t command) const
{
    std::vector<std::string> lines;
    for (const Line& line : m_Lines) {
        if (line.Command == command && (line.LineRole == Role::Command || line.LineRole == Role::Text))
            lines.push_back(line.Text);
    }
    return lines;
}

std::string Transcript::Updated(const std::vector<std::vector<std::string>>& answers) const
{
    std::string text;
    std::size_t written = 0; // how many commands have their answers in the text
    const auto writeAnswers = [&](std::size_t command) {
        for (; written <= command; ++written) {
            const auto& expected = m_Commands[written].Expected;
            const bool same = written >= answers.size() || MatchLines(expected, answers[written]);
            if (same) {
                for (const std::string& line : expected)
                    text += line + '\n';
                continue;
            }
            for (const std::string& line : answers[written])
                text += AsExpectedLine(line) + '\n';
        }
    };

    for (const Line& line : m_Lines) {
        const bool handsOver = line.LineRole == Role::Command || line.LineRole == Role::Text;
        if (handsOver && line.LineRole == Role::Command && line.Command > 0)
            writeAnswers(line.Command - 1);
        if (line.LineRole == Role::Expected)
            writeAnswers(line.Command);
        else
            text += line.Text + '\n';
    }
    if (!m_Commands.empty())
        writeAnswers(m_Commands.size() - 1);
    return text;
}
