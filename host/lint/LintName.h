#pragma once

#include <string>
#include <string_view>

namespace host {

// Names of markup compare without regard to case.
bool IsSameName(std::string_view left, std::string_view right);

// The same text for all names that are the same.
std::string FoldedName(std::string_view name);

} // namespace host
