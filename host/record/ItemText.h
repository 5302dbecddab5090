#pragma once

#include <string>
#include <string_view>

namespace host {

// An item of a recording as a line for people, such as DrawRect({0, 0, 40, 20}, 4278190080). Of an item that is cut or
// damaged it shows what can be read.
std::string DescribeItem(std::string_view item);

} // namespace host
