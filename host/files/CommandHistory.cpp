#include "host/files/CommandHistory.h"

#include "host/files/StoredPositions.h"
#include "host/files/WholeFile.h"

#include <algorithm>
#include <fstream>

namespace host {

namespace {

constexpr const char* FileName = "commands.txt";

// Longer than anything that can be typed.
constexpr std::size_t LongestLine = 4096;

bool FitsOnALine(const std::string& line)
{
    return !line.empty() && line.size() <= LongestLine
        && std::none_of(line.begin(), line.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x20; });
}

} // namespace

std::filesystem::path CommandHistory::DefaultFile()
{
    const std::filesystem::path positions = StoredPositions::DefaultFile();
    return positions.empty() ? positions : positions.parent_path() / FileName;
}

CommandHistory::CommandHistory(std::filesystem::path file) : m_File(std::move(file))
{
    std::error_code error;
    if (m_File.empty() || !std::filesystem::is_regular_file(m_File, error))
        return;

    std::ifstream lines(m_File, std::ios::binary);
    for (std::string line; std::getline(lines, line);)
        Keep(line);
}

bool CommandHistory::Add(const std::string& line)
{
    if (!FitsOnALine(line) || (!m_Lines.empty() && m_Lines.back() == line))
        return true;

    Keep(line);
    std::string text;
    for (const std::string& kept : m_Lines)
        text += kept + '\n';
    return m_File.empty() || WriteWholeFile(m_File, text);
}

void CommandHistory::Keep(const std::string& line)
{
    if (!FitsOnALine(line))
        return;

    m_Lines.push_back(line);
    if (m_Lines.size() > MostLines)
        m_Lines.pop_front();
}

} // namespace host
