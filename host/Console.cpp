#include "host/Console.h"

#include "host/display/Characters.h"

#include <cstdio>
#include <string_view>

namespace host {

namespace {

constexpr std::size_t LongestLine = 4096;

// A message may quote bytes of a broken file, which a terminal must not take for orders.
std::string Printable(std::string_view text)
{
    std::string printable;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = DecodeCharacter(text, at);
        const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
        AppendUtf8(printable, isControl && character != '\t' ? U'?' : character);
    }
    return printable;
}

} // namespace

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
    const std::string& where = m_Trail.Where();
    const std::string line = Printable(where.empty() ? text : where + ": " + text);
    if (m_Taker)
        m_Taker(line);
    else
        std::fprintf(stderr, "teskara: %s\n", line.c_str());
}

} // namespace host
