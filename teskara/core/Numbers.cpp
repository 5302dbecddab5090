#include "teskara/core/Numbers.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/DecimalNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool IsSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

// The value of a hexadecimal digit, or 16.
u32 HexDigit(char character)
{
    if (IsDigit(character))
        return static_cast<u32>(character - '0');
    if (character >= 'a' && character <= 'f')
        return static_cast<u32>(character - 'a') + 10;
    if (character >= 'A' && character <= 'F')
        return static_cast<u32>(character - 'A') + 10;
    return 16;
}

std::string_view WithoutSpace(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

// Takes a sign off the front; true for a minus.
bool TakeSign(std::string_view& text)
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;

    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

std::size_t WriteCut(char* to, std::size_t size, const char* begin, std::to_chars_result result)
{
    return CopyBounded(to, size, {begin, static_cast<std::size_t>(result.ptr - begin)});
}

} // namespace

i32 ReadInteger(std::string_view text)
{
    text = WithoutSpace(text);
    const bool negative = TakeSign(text);
    u32 value = 0;
    for (const char character : text) {
        if (!IsDigit(character))
            break;
        value = value * 10 + static_cast<u32>(character - '0');
    }
    return static_cast<i32>(negative ? 0 - value : value);
}

double ReadDouble(std::string_view text)
{
    text = WithoutSpace(text);
    const bool negative = TakeSign(text);
    double value = 0;
    if (ReadDecimalNumber(text, value) == 0)
        return 0;
    return negative ? -value : value;
}

float ReadFloat(std::string_view text)
{
    // From here on a float cannot be but infinite. Not left to the conversion, which may trap.
    constexpr double BeyondFloats = 0x1.ffffffp127;
    const double value = ReadDouble(text);
    if (std::isgreaterequal(std::fabs(value), BeyondFloats))
        return std::signbit(value) ? -std::numeric_limits<float>::infinity() : std::numeric_limits<float>::infinity();
    return static_cast<float>(value);
}

bool ReadHex(std::string_view text, u32& value)
{
    text = WithoutSpace(text);
    const bool negative = TakeSign(text);
    if (text.empty() || HexDigit(text.front()) > 15)
        return false;

    if (text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X'))
        text.remove_prefix(2);
    u32 digits = 0;
    for (const char character : text) {
        const u32 digit = HexDigit(character);
        if (digit > 15)
            break;
        digits = digits << 4 | digit;
    }
    value = negative ? 0 - digits : digits;
    return true;
}

// The comparisons are those that do not trap on what is no number, and find it in no range. Clang must be told that this
// matters; else it compares otherwise, and converts before it knows.
#ifdef __clang__
#pragma STDC FENV_ACCESS ON
#endif

i32 TruncateToI32(double value)
{
    if (std::isgreater(value, -2147483649.0) && std::isless(value, 2147483648.0))
        return static_cast<i32>(value);
    return std::numeric_limits<i32>::min();
}

u32 TruncateToU32(double value)
{
    if (std::isgreaterequal(value, -9223372036854775808.0) && std::isless(value, 9223372036854775808.0))
        return static_cast<u32>(static_cast<u64>(static_cast<i64>(value)));
    return 0;
}

u8 TruncateToByte(double value)
{
    if (!std::isgreater(value, 0.0))
        return 0;
    return std::isless(value, 255.0) ? static_cast<u8>(value) : u8{255};
}

std::size_t WriteInteger(char* to, std::size_t size, i64 value)
{
    char digits[32];
    return WriteCut(to, size, digits, std::to_chars(digits, digits + sizeof digits, value));
}

std::size_t WriteFloat(char* to, std::size_t size, float value)
{
    char digits[64];
    return WriteCut(to, size, digits, std::to_chars(digits, digits + sizeof digits, value));
}

std::size_t WriteDouble(char* to, std::size_t size, double value)
{
    char digits[64];
    return WriteCut(to, size, digits, std::to_chars(digits, digits + sizeof digits, value));
}

std::size_t WriteFixed(char* to, std::size_t size, double value, int decimals)
{
    char digits[400]; // the largest double has 309 digits before its point
    const int places = std::clamp(decimals, 0, 64);
    return WriteCut(
        to, size, digits, std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, places));
}
