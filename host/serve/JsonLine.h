#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace host {

using Json = nlohmann::ordered_json;

// Reads a line that holds one JSON object and nothing else. Nothing if it holds anything else, or is nested deeper than
// any request; why then says what was expected.
std::optional<Json> ReadJsonObject(std::string_view line, std::string& why);

// The value on one line. What is no UTF-8 in its texts reads U+FFFD.
std::string WriteJsonLine(const Json& value);

// The kind of a value in words, such as "a number".
std::string DescribeJson(const Json& value);

} // namespace host
