#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace host {

// Notices when files change, by looking at their times and sizes.
class FileWatch
{
public:
    // Watches a file from how it is now. One that is watched already stays as it was known.
    void Add(const std::string& path);

    // The files that have changed since this told of them last, and that look the same as at the question before: one that
    // is being written is not told of until that is done. A file that is gone is waited for.
    std::vector<std::string> TakeChanged();

private:
    struct Stamp {
        bool operator==(const Stamp&) const = default;

        std::filesystem::file_time_type Time;
        std::uintmax_t Size = 0;
    };

    struct Entry {
        std::string Path;
        Stamp Told; // how it was when it was last told of
        Stamp Seen; // how it was at the last question
    };

    static bool Look(const std::string& path, Stamp& stamp);

    std::vector<Entry> m_Entries;
};

} // namespace host
