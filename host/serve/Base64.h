#pragma once

#include <string>
#include <string_view>

namespace host {

// Bytes as letters, digits, + and /, with = at the end.
std::string ToBase64(std::string_view bytes);

} // namespace host
