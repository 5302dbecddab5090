#pragma once

#include <string>
#include <string_view>
#include <vector>

// How expected lines are compared with those that came: blanks at the ends don't count, "*" stands for any run of
// characters and "\*" for an asterisk, and a line that is just "..." for any number of lines.

bool MatchLine(std::string_view expected, std::string_view actual);
bool MatchLines(const std::vector<std::string>& expected, const std::vector<std::string>& actual);

// The expected line that matches exactly this one.
std::string AsExpectedLine(std::string_view actual);

// Both lists side by side, a line each: "  " in both, "- " only expected, "+ " only came.
std::vector<std::string> DifferentLines(
    const std::vector<std::string>& expected, const std::vector<std::string>& actual);
