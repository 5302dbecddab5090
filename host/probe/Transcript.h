#pragma once

#include "host/probe/CommandLines.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct TranscriptCommand {
    CommandLine Command;
    std::size_t Line = 0; // number in the file, from 1
    std::vector<std::string> Expected; // trimmed
};

// A transcript: commands, the text handed to them, and the lines that are expected to come back.
class Transcript
{
public:
    static Transcript FromText(std::string_view text);

    // Nothing if the file cannot be read.
    static std::optional<Transcript> FromFile(const std::string& path);

    const std::vector<TranscriptCommand>& Commands() const { return m_Commands; }

    // What is wrong with the form; empty if nothing is.
    const std::string& Fault() const { return m_Fault; }

    // The lines of the file that hand the command over, as they stand.
    std::vector<std::string> LinesOf(std::size_t command) const;

    // The text of the file with what came back in place of the expected lines, one list for each command. Lists that
    // match what stands there change nothing.
    std::string Updated(const std::vector<std::vector<std::string>>& answers) const;

private:
    enum class Role { Blank, Command, Text, Expected };

    struct Line {
        Role LineRole = Role::Blank;
        std::string Text;
        std::size_t Command = 0; // index of the command it belongs to
    };

    void Add(std::string_view line, bool& textFollows);

    std::vector<Line> m_Lines;
    std::vector<TranscriptCommand> m_Commands;
    std::string m_Fault;
};
