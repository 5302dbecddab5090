#pragma once

#include "host/record/ItemBytes.h"
#include "host/record/ItemTable.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace host {

// Reads the items of a recording. Whatever the bytes of the file are, it comes to an end.
class RecordingReader
{
public:
    // False if the file is no recording of this version; Fault says why.
    bool Open(const std::filesystem::path& file);

    // The next item, valid until the next call. False: there is none, because the file ends here, or because of a Fault.
    bool Next(std::string_view& item);

    // What is wrong with the file, in words that follow its name; empty if nothing is.
    const std::string& Fault() const { return m_Fault; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    bool Fail(const char* fault);
    bool ReadBlock();
    bool TakePrediction(std::string_view& item);
    bool TakeNew(std::string_view& item);

    std::unique_ptr<std::FILE, CloseFile> m_File;
    u64 m_Left = 0; // bytes of the file
    ItemTable m_Table;
    std::string m_Block;
    ItemView m_Tokens;
    u64 m_Run = 0;
    std::string m_Fault;
};

} // namespace host
