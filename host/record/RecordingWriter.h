#pragma once

#include "host/record/ItemBytes.h"
#include "host/record/ItemTable.h"

#include <cstdio>
#include <filesystem>
#include <memory>

namespace host {

// Writes items into the file of a recording.
class RecordingWriter
{
public:
    // Replaces a file. False if it cannot be written.
    bool Open(const std::filesystem::path& file);

    void Put(std::string_view item);

    // What was put so far stands in the file, even if the process ends at once.
    void Flush();

    // Whether everything was written so far.
    bool IsGood() const { return m_File && m_Good; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void EndRun();
    void Write(std::string_view bytes);

    std::unique_ptr<std::FILE, CloseFile> m_File;
    ItemTable m_Table;
    ItemBytes m_Block;
    u64 m_Run = 0; // items that were predicted and are not written yet
    bool m_Good = true;
};

} // namespace host
