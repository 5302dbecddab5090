#include "host/serve/JsonLine.h"

#include <nlohmann/json.hpp>

#include <cfenv>

namespace host {

namespace {

// While it lives, a number that no double can hold becomes infinite, also where such numbers trap.
class QuietNumbers
{
public:
    QuietNumbers() { std::feholdexcept(&m_Former); }
    ~QuietNumbers() { std::fesetenv(&m_Former); }
    QuietNumbers(const QuietNumbers&) = delete;
    QuietNumbers& operator=(const QuietNumbers&) = delete;

private:
    std::fenv_t m_Former;
};

constexpr int DeepestNesting = 32;
constexpr std::string_view Expected = "; expected one JSON object on the line, such as {\"command\": \"tree\"}";

// The most brackets that are open at a time, outside of texts.
bool IsTooDeep(std::string_view line)
{
    int depth = 0;
    bool isText = false;
    for (std::size_t at = 0; at < line.size() && depth <= DeepestNesting; ++at) {
        const char byte = line[at];
        if (isText && byte == '\\')
            ++at;
        else if (byte == '"')
            isText = !isText;
        else if (!isText && (byte == '{' || byte == '['))
            ++depth;
        else if (!isText && (byte == '}' || byte == ']'))
            --depth;
    }
    return depth > DeepestNesting;
}

} // namespace

std::optional<Json> ReadJsonObject(std::string_view line, std::string& why)
{
    if (IsTooDeep(line)) {
        why = "this is nested deeper than " + std::to_string(DeepestNesting) + " levels";
        why += Expected;
        return std::nullopt;
    }
    try {
        const QuietNumbers quiet;
        Json value = Json::parse(line);
        if (value.is_object())
            return value;
        why = "this is " + DescribeJson(value);
    } catch (const Json::parse_error& error) {
        why = "this is not JSON, at byte " + std::to_string(error.byte);
    } catch (const Json::exception&) { // a number that no double can hold
        why = "this is not JSON that can be read";
    }
    why += Expected;
    return std::nullopt;
}

std::string WriteJsonLine(const Json& value)
{
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string DescribeJson(const Json& value)
{
    switch (value.type()) {
    case Json::value_t::null:
        return "null";
    case Json::value_t::object:
        return "an object";
    case Json::value_t::array:
        return "a list";
    case Json::value_t::string:
        return "a text";
    case Json::value_t::boolean:
        return "a truth value";
    case Json::value_t::number_float:
        return "a number that is not whole";
    default:
        return "a number";
    }
}

} // namespace host
