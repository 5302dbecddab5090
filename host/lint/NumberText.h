#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

// How much of a text the toolkit takes for a number of some form; 0: it is none. The text has no blanks around it.
namespace NumberText {

std::size_t IntegerLength(std::string_view text);
std::size_t FloatLength(std::string_view text); // with a fraction and an exponent
std::size_t HexLength(std::string_view text);
std::size_t PositionLength(std::string_view text); // with the letter and the percent sign that belong to it

// How many digits a hexadecimal number has.
std::size_t HexDigitsIn(std::string_view text);

// Whether a whole number is kept as it is, with a sign or without.
bool IsIn32Bits(std::string_view text);

// A share for a text that says it in percent: 0.8 for 80%.
std::string ShareText(std::string_view percent);

// The number that a text with blanks around it begins with; 0 if there is none or it is too large.
i32 Integer(std::string_view text);

std::string_view Trim(std::string_view text);

} // namespace NumberText

} // namespace host
