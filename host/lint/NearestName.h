#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

// The name that is most like a word; empty if none is.
std::string NearestName(std::string_view word, const std::vector<std::string>& names);

} // namespace host
