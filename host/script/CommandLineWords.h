#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

struct CommandWord {
    std::string Text;
    bool IsQuoted = false; // a part of it stood in double quotes, which are left out
};

// Splits a command line at its blanks, but neither inside double quotes nor inside ${...}.
std::vector<CommandWord> SplitCommandLine(std::string_view line);

} // namespace host
