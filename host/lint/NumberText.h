#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <string_view>

namespace host {

// How much of a text the toolkit takes for a number of some form; 0: it is none. The text has no blanks around it.
namespace NumberText {

std::size_t IntegerLength(std::string_view text);
std::size_t FloatLength(std::string_view text); // with a fraction and an exponent
std::size_t HexLength(std::string_view text);
std::size_t PositionLength(std::string_view text); // with the letter and the percent sign that belong to it

// The number that a text with blanks around it begins with; 0 if there is none or it is too large.
i32 Integer(std::string_view text);

std::string_view Trim(std::string_view text);

} // namespace NumberText

} // namespace host
