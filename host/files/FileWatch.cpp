#include "host/files/FileWatch.h"

#include <algorithm>
#include <system_error>

namespace host {

namespace fs = std::filesystem;

void FileWatch::Add(const std::string& path)
{
    const auto isPath = [&path](const Entry& entry) { return entry.Path == path; };
    if (std::any_of(m_Entries.begin(), m_Entries.end(), isPath))
        return;

    Entry entry;
    entry.Path = path;
    Look(path, entry.Told);
    entry.Seen = entry.Told;
    m_Entries.push_back(std::move(entry));
}

std::vector<std::string> FileWatch::TakeChanged()
{
    std::vector<std::string> changed;
    for (Entry& entry : m_Entries) {
        Stamp stamp;
        if (!Look(entry.Path, stamp))
            continue;
        if (stamp != entry.Told && stamp == entry.Seen) {
            entry.Told = stamp;
            changed.push_back(entry.Path);
        }
        entry.Seen = stamp;
    }
    return changed;
}

// False: the file is not there.
bool FileWatch::Look(const std::string& path, Stamp& stamp)
{
    std::error_code error;
    stamp.Time = fs::last_write_time(path, error);
    if (!error)
        stamp.Size = fs::file_size(path, error);
    return !error;
}

} // namespace host
