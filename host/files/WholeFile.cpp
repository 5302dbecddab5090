#include "host/files/WholeFile.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>

namespace host {

namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// Makes an empty file of a new name in a folder, open for writing. Null: it could not be made.
std::unique_ptr<std::FILE, CloseFile> MakeFile(std::string& pattern)
{
    const int descriptor = mkstemp(pattern.data());
    if (descriptor < 0)
        return nullptr;

    std::unique_ptr<std::FILE, CloseFile> file(fdopen(descriptor, "wb"));
    if (!file) {
        close(descriptor);
        std::remove(pattern.c_str());
    }
    return file;
}

// Lets it out of the program, and out of the machine's memory.
bool Finish(std::unique_ptr<std::FILE, CloseFile> file)
{
    return std::fflush(file.get()) == 0 && fsync(fileno(file.get())) == 0 && std::fclose(file.release()) == 0;
}

} // namespace

std::optional<std::string> ReadWholeFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool WriteWholeFile(const fs::path& path, std::string_view text)
{
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    std::string fresh = path.string() + ".XXXXXX";
    auto file = MakeFile(fresh);
    if (!file)
        return false;

    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    const bool finished = Finish(std::move(file));
    if (written && finished)
        fs::rename(fresh, path, error);
    if (written && finished && !error)
        return true;

    std::remove(fresh.c_str());
    return false;
}

} // namespace host
