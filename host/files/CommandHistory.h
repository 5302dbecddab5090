#pragma once

#include <deque>
#include <filesystem>
#include <string>

namespace host {

// The command lines that were typed, kept from one run to the next in a file of text, a line each.
class CommandHistory
{
public:
    // The oldest ones go beyond so many.
    static constexpr std::size_t MostLines = 500;

    // The file in the user's data folder; empty if the user has none.
    static std::filesystem::path DefaultFile();

    // Reads what the file holds; an empty path keeps nothing for later.
    explicit CommandHistory(std::filesystem::path file);

    // From the oldest to the newest.
    const std::deque<std::string>& Lines() const { return m_Lines; }

    // Keeps a line, and writes the file; a line that was typed just before, or that a line of the file cannot hold, is
    // passed over. False: the file could not be written.
    bool Add(const std::string& line);

private:
    void Keep(const std::string& line);

    std::filesystem::path m_File;
    std::deque<std::string> m_Lines;
};

} // namespace host
