#pragma once

#include "host/script/CallTrail.h"

#include <cstdarg>
#include <string>

namespace host {

// Where lines for a person go: the standard error stream.
class Console
{
public:
    // What lines are about: each begins with it.
    CallTrail& Trail() { return m_Trail; }

    // Writes one line, printf style.
    void Print(const char* format, ...);
    void PrintArguments(const char* format, std::va_list arguments);

    // Writes one line as it is.
    void PrintText(const std::string& text);

private:
    CallTrail m_Trail;
};

} // namespace host
