#pragma once

#include <cstdarg>
#include <string>

namespace host {

// Where lines for a person go: the standard error stream.
class Console
{
public:
    // What the lines that follow are about, such as a file; empty for nothing in particular.
    void SetSubject(const std::string& subject) { m_Subject = subject; }

    // Writes one line, printf style.
    void Print(const char* format, ...);
    void PrintArguments(const char* format, std::va_list arguments);

    // Writes one line as it is.
    void PrintText(const std::string& text);

private:
    std::string m_Subject;
};

} // namespace host
