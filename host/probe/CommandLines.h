#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A command with the text that is handed to it, if any.
struct CommandLine {
    std::string Text;
    std::optional<std::string> Body; // lines joined by line feeds, with one at the end
};

// Takes the sign off a line that says that text follows, and the blank before it. False: no text follows.
bool TakeTextSign(std::string& line);

// The text of a line that belongs to the command above; nothing if it doesn't.
std::optional<std::string_view> TextOfLine(std::string_view line);

// Reads a list of commands, one a line, blank lines and comments left out. Blanks before a line are not looked at.
std::vector<CommandLine> ReadCommandLines(std::string_view text);

std::vector<std::string_view> SplitLines(std::string_view text);
