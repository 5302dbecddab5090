#include "host/probe/ProbeFolder.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

std::string MakeProbeFolder()
{
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    if (error)
        base = "/tmp";
    std::string folder = (base / "teskara-probe-XXXXXX").string();
    if (!mkdtemp(folder.data()))
        return {};

    const fs::path real = fs::canonical(folder, error);
    return error ? folder : real.string();
}

void RemoveProbeFolder(const std::string& folder)
{
    std::error_code error;
    if (!folder.empty())
        fs::remove_all(folder, error);
}
