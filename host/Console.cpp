#include "host/Console.h"

#include <cstdio>

namespace host {

namespace {

constexpr std::size_t LongestLine = 4096;

}

void Console::Print(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    PrintArguments(format, arguments);
    va_end(arguments);
}

void Console::PrintArguments(const char* format, std::va_list arguments)
{
    char line[LongestLine];
    std::vsnprintf(line, sizeof line, format, arguments);
    PrintText(line);
}

void Console::PrintText(const std::string& text)
{
    if (m_Subject.empty())
        std::fprintf(stderr, "teskara: %s\n", text.c_str());
    else
        std::fprintf(stderr, "teskara: %s: %s\n", m_Subject.c_str(), text.c_str());
}

} // namespace host
