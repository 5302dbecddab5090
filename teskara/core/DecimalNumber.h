#pragma once

#include "teskara/core/Export.h"

#include <cstddef>
#include <string_view>

// Reads a number off the front of a text: decimal digits, also with a point and an exponent, or "inf", "infinity" or
// "nan" in any case; no white space and no sign before it. The value is the double nearest to the number, of two as near
// the even one, and beyond the largest double infinity. Returns the number of bytes read; 0, and value as it was, if the
// text does not begin with a number. Not every standard library can do that without a locale.
TESKARA_EXPORT std::size_t ReadDecimalNumber(std::string_view text, double& value);
