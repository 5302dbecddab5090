#include "host/files/StoredPositions.h"

#include "host/Console.h"
#include "host/files/WholeFile.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr const char* FilePath = "teskara/positions.txt";
constexpr const char* SetAsideEnding = ".damaged";

constexpr std::string_view FirstLine = "positions of teskara, 1";
constexpr std::string_view LastLine = "end";

// No desktop has so many windows.
constexpr std::uintmax_t LargestFile = 4 * 1024 * 1024;

// Takes a number and the blank behind it off the front of a line.
template <class Number> bool TakeNumber(std::string_view& line, Number& number)
{
    const char* end = line.data() + line.size();
    const auto [next, error] = std::from_chars(line.data(), end, number);
    if (error != std::errc() || next == end || *next != ' ')
        return false;

    line.remove_prefix(static_cast<std::size_t>(next - line.data()) + 1);
    return true;
}

bool IsControl(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20;
}

// Names are shown to people, and lines end where they end.
bool IsName(std::string_view name)
{
    return !name.empty() && std::none_of(name.begin(), name.end(), IsControl);
}

// On one line, whatever the name is.
std::string Shown(std::string name)
{
    std::replace_if(name.begin(), name.end(), IsControl, '?');
    return name;
}

} // namespace

fs::path StoredPositions::DefaultFile()
{
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data && *data)
        return fs::path(data) / FilePath;

    const char* home = std::getenv("HOME");
    return home && *home ? fs::path(home) / ".local/share" / FilePath : fs::path();
}

StoredPositions::StoredPositions(fs::path file, Console& console) : m_File(std::move(file)), m_Console(console)
{
    std::error_code error;
    if (m_File.empty() || !fs::exists(fs::symlink_status(m_File, error)))
        return;

    if (auto positions = Read())
        m_Positions = std::move(*positions);
    else
        SetAside();
}

StoredPositions::~StoredPositions()
{
    Save();
}

const StoredPositions::Position* StoredPositions::Find(const std::string& name) const
{
    const auto found = m_Positions.find(name);
    return found == m_Positions.end() ? nullptr : &found->second;
}

void StoredPositions::Store(const std::string& name, const Position& position)
{
    if (!IsName(name)) {
        m_Console.Print("The position of '%s' cannot be stored under such a name", Shown(name).c_str());
        return;
    }
    const auto [entry, isNew] = m_Positions.try_emplace(name, position);
    if (!isNew && entry->second == position)
        return;

    entry->second = position;
    m_Changed = true;
}

bool StoredPositions::Save()
{
    if (!m_Changed)
        return true;

    m_Changed = false;
    if (m_File.empty() || WriteWholeFile(m_File, Text()))
        return true;

    m_Console.Print("Could not write %s; positions of windows are not kept", m_File.c_str());
    return false;
}

std::string StoredPositions::Text() const
{
    std::string text(FirstLine);
    for (const auto& [name, position] : m_Positions) {
        text += '\n' + std::to_string(position.X) + ' ' + std::to_string(position.Y) + ' '
            + std::to_string(position.Width) + ' ' + std::to_string(position.Height) + ' ' + name;
    }
    return text + '\n' + std::string(LastLine) + '\n';
}

// Nothing: the file is damaged, or is no file.
std::optional<StoredPositions::Positions> StoredPositions::Read() const
{
    std::error_code error;
    if (!fs::is_regular_file(m_File, error) || fs::file_size(m_File, error) > LargestFile)
        return std::nullopt;

    std::ifstream file(m_File, std::ios::binary);
    return Parse(file);
}

std::optional<StoredPositions::Positions> StoredPositions::Parse(std::istream& file)
{
    std::string text;
    if (!std::getline(file, text) || text != FirstLine)
        return std::nullopt;

    Positions positions;
    while (std::getline(file, text) && text != LastLine) {
        std::string_view line = text;
        Position position;
        if (!TakeNumber(line, position.X) || !TakeNumber(line, position.Y) || !TakeNumber(line, position.Width)
            || !TakeNumber(line, position.Height) || !IsName(line))
            return std::nullopt;
        positions[std::string(line)] = position;
    }
    if (text != LastLine || file.eof() || file.peek() != std::istream::traits_type::eof())
        return std::nullopt;
    return positions;
}

// Whoever wants to mend it finds it there. What cannot be set aside is left alone from now on.
void StoredPositions::SetAside()
{
    const fs::path aside = m_File.string() + SetAsideEnding;
    std::error_code error;
    fs::rename(m_File, aside, error);
    if (!error) {
        m_Console.Print("%s is damaged and was set aside as %s", m_File.c_str(), aside.c_str());
        return;
    }
    m_Console.Print("%s is damaged; positions of windows are not kept", m_File.c_str());
    m_File.clear();
}

} // namespace host
