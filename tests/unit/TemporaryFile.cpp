#include "tests/unit/TemporaryFile.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

// Other processes have files of their own there.
std::string UnusedPath()
{
    static std::random_device random;
    const fs::path folder = fs::temp_directory_path();
    fs::path path;
    do
        path = folder / ("teskara-unit-" + std::to_string(random()));
    while (fs::exists(path));
    return path.string();
}

} // namespace

TemporaryFile::TemporaryFile(std::string_view text) : m_Path(UnusedPath())
{
    std::ofstream file(m_Path, std::ios::binary);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file)
        throw std::runtime_error("no room for a file");
}

TemporaryFile::~TemporaryFile()
{
    std::error_code error;
    fs::remove(m_Path, error);
}
