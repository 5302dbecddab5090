#pragma once

#include <cstddef>
#include <string_view>

namespace host {

// Reads a number off the front of a text, as ReadDecimalNumber does, but with a minus before it if there is one. Returns
// the number of bytes read; 0, and number as it was, if the text does not begin with a number.
std::size_t ReadSignedNumber(std::string_view text, double& number);

} // namespace host
