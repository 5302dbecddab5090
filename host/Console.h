#pragma once

#include "host/script/CallTrail.h"

#include <cstdarg>
#include <functional>
#include <string>

namespace host {

// Where lines for a person go: the standard error stream, or whoever takes them in its place.
class Console
{
public:
    // What lines are about: each begins with it.
    CallTrail& Trail() { return m_Trail; }

    // From now on lines go there.
    void SendTo(std::function<void(const std::string& line)> taker) { m_Taker = std::move(taker); }

    // Writes one line, printf style.
    void Print(const char* format, ...);
    void PrintArguments(const char* format, std::va_list arguments);

    // Writes one line as it is.
    void PrintText(const std::string& text);

private:
    CallTrail m_Trail;
    std::function<void(const std::string& line)> m_Taker;
};

} // namespace host
