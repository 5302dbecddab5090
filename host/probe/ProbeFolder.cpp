#include "host/probe/ProbeFolder.h"

#include <charconv>
#include <filesystem>
#include <random>

namespace fs = std::filesystem;

namespace {

std::string RandomName()
{
    std::random_device random;
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof(digits), random(), 36).ptr;
    return "teskara-probe-" + std::string(digits, end);
}

} // namespace

std::string MakeProbeFolder()
{
    constexpr int Tries = 100;
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    if (error)
        base = "/tmp";
    for (int tried = 0; tried < Tries; ++tried) {
        const fs::path folder = base / RandomName();
        if (!fs::create_directory(folder, error))
            continue; // somebody's

        fs::permissions(folder, fs::perms::owner_all, error);
        const fs::path real = fs::canonical(folder, error);
        return (error ? folder : real).generic_string();
    }
    return {};
}

void RemoveProbeFolder(const std::string& folder)
{
    std::error_code error;
    if (!folder.empty())
        fs::remove_all(folder, error);
}
