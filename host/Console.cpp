#include "host/Console.h"

#include "host/display/Characters.h"
#include "teskara/element/ColorCodes.h"
#include "teskara/element/TeskElement.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace host {

namespace {

constexpr std::size_t LongestLine = 4096;

// A message may quote bytes of a broken file, which a terminal must not take for orders. kept: a control character that
// stays, besides the tab.
std::string Printable(std::string_view text, char32_t kept)
{
    std::string printable;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = DecodeCharacter(text, at);
        const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
        AppendUtf8(printable, isControl && character != '\t' && character != kept ? U'?' : character);
    }
    return printable;
}

std::string WithoutColors(const std::string& text)
{
    std::string plain = text;
    TeskElement::StripColor(text.c_str(), plain.data());
    plain.resize(std::strlen(plain.c_str()));
    return plain;
}

} // namespace

void Console::Print(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    PrintArguments(LineWeight::Plain, format, arguments);
    va_end(arguments);
}

void Console::Warn(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    PrintArguments(LineWeight::Warning, format, arguments);
    va_end(arguments);
}

void Console::Answer(const std::string& text)
{
    static const std::string nothing;
    const TrailStep step(m_Trail, nothing);
    PrintText(text);
}

void Console::PrintArguments(LineWeight weight, const char* format, std::va_list arguments)
{
    char line[LongestLine];
    std::vsnprintf(line, sizeof line, format, arguments);
    PrintText(line, weight);
}

void Console::PrintText(const std::string& text, LineWeight weight)
{
    const std::string& where = m_Trail.Where();
    const std::string subject = where.empty() ? where : where + ": ";
    std::string_view rest = text;
    do {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        WriteLine(subject + std::string(rest.substr(0, end)), weight);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    } while (!rest.empty());
}

void Console::WriteLine(const std::string& line, LineWeight weight)
{
    if (m_Screen)
        m_Screen(Printable(line, ColorCodes::Mark), weight);

    const std::string plain = Printable(WithoutColors(line), 0);
    if (m_Copy)
        *m_Copy += plain + '\n';
    if (const Taker taker = m_Taker) // which may send the next lines elsewhere
        taker(plain);
    else
        std::fprintf(stderr, "teskara: %s\n", plain.c_str());
}

} // namespace host
