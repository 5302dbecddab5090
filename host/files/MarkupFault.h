#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>

namespace host {

// What keeps a file from being read as markup, and where. Lines and columns count from 1; columns are characters.
struct MarkupFault {
    std::string Message;
    u32 Line = 0; // 0: the file could not be opened
    u32 Column = 0;
};

// Nothing: the file is sound.
std::optional<MarkupFault> FindMarkupFault(const std::string& path);

// The same for a person: "file:line:column: message", with the file's name alone.
std::string Describe(const std::string& path, const MarkupFault& fault);

} // namespace host
