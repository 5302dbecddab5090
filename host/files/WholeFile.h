#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// Nothing: it could not be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);

// Writes a file whole or not at all, whatever ends the program or the machine meanwhile: it is written beside its place
// and moved there at the end. Makes the folders that are missing. False: the file is as it was.
bool WriteWholeFile(const std::filesystem::path& path, std::string_view text);

} // namespace host
