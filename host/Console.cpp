#include "host/Console.h"

#include "host/display/Characters.h"

#include <algorithm>
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
    const std::string subject = where.empty() ? where : where + ": ";
    std::string_view rest = text;
    do {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        WriteLine(Printable(subject + std::string(rest.substr(0, end))));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    } while (!rest.empty());
}

void Console::WriteLine(const std::string& line)
{
    if (const Taker taker = m_Taker) // which may send the next lines elsewhere
        taker(line);
    else
        std::fprintf(stderr, "teskara: %s\n", line.c_str());
}

} // namespace host
