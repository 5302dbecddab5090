#include "host/files/StoredPositions.h"

#include <cstdlib>
#include <fstream>
#include <locale>
#include <sstream>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr const char* FilePath = "teskara/positions.txt";

} // namespace

fs::path StoredPositions::DefaultFile()
{
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state && *state)
        return fs::path(state) / FilePath;

    const char* home = std::getenv("HOME");
    return home && *home ? fs::path(home) / ".local/state" / FilePath : fs::path();
}

StoredPositions::StoredPositions(fs::path file) : m_File(std::move(file))
{
    if (!m_File.empty())
        Read();
}

const StoredPositions::Position* StoredPositions::Find(const std::string& name) const
{
    const auto found = m_Positions.find(name);
    return found == m_Positions.end() ? nullptr : &found->second;
}

bool StoredPositions::Store(const std::string& name, const Position& position)
{
    if (name.find('\n') != name.npos)
        return false;

    m_Positions[name] = position;
    return m_File.empty() || Write();
}

void StoredPositions::Read()
{
    std::ifstream file(m_File);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        Position position;
        std::string name;
        if (words >> position.X >> position.Y >> position.Width >> position.Height >> std::ws
            && std::getline(words, name) && !name.empty())
            m_Positions[name] = position;
    }
}

// Writes beside the file and renames, so that a run that ends in between leaves the old file whole.
bool StoredPositions::Write() const
{
    std::error_code error;
    fs::create_directories(m_File.parent_path(), error);
    const fs::path fresh = m_File.string() + ".new";
    {
        std::ofstream file(fresh, std::ios::trunc);
        file.imbue(std::locale::classic());
        for (const auto& [name, position] : m_Positions)
            file << position.X << ' ' << position.Y << ' ' << position.Width << ' ' << position.Height << ' ' << name
                 << '\n';
        if (!file.flush())
            return false;
    }
    fs::rename(fresh, m_File, error);
    return !error;
}

} // namespace host
