#pragma once

#include "host/serve/ServedInterface.h"

#include <istream>
#include <span>
#include <string>
#include <string_view>

namespace host {

// A request that can be made: its name, what it does, in words, and its fields.
struct ServeCommand {
    std::string_view Name;
    std::string_view Text;
    std::span<const ServeField> Fields;
    Json (ServedInterface::*Run)(const ServeRequest& request);
};

// Sorted by what people do with an interface.
std::span<const ServeCommand> ServeCommands();

// Answers requests, one JSON object a line, with one JSON object a line. Whatever a line holds, it has an answer.
class Server
{
public:
    // The interface is borrowed, and has been started.
    explicit Server(ServedInterface& interface) : m_Interface(interface) { }

    // The answer to a line, without a line end.
    std::string Answer(std::string_view line);

    // The answer to one that was too long to be read.
    std::string AnswerTooLong(std::size_t most) const;

private:
    Json Run(const Json& request);

    ServedInterface& m_Interface;
};

// Lines of at most so many bytes.
class RequestLines
{
public:
    static constexpr std::size_t LongestLine = 16u << 20;

    enum class Kind { Line, TooLong, End };

    // The stream is borrowed.
    explicit RequestLines(std::istream& stream, std::size_t most = LongestLine) : m_Stream(stream), m_Most(most) { }

    // Reads the next line, without its end; the last one needs none. Of one that is too long nothing is kept.
    Kind Next(std::string& line);

private:
    std::istream& m_Stream;
    std::size_t m_Most;
};

} // namespace host
