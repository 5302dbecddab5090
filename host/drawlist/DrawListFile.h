#pragma once

#include "host/drawlist/DrawList.h"

#include <filesystem>
#include <optional>
#include <string>

namespace host {

// Reads a draw list, from a file or a pipe. Nothing if it cannot be read, or holds anything else; why then says what is
// wrong with it, as the rest of a sentence that begins with its name. Of a file that is too large little is read.
std::optional<DrawList> ReadDrawListFile(const std::filesystem::path& file, std::string& why);

} // namespace host
