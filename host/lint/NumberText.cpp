#include "host/lint/NumberText.h"

#include "host/SignedNumber.h"
#include "teskara/core/AsciiCase.h"

#include <algorithm>
#include <charconv>

namespace host::NumberText {

namespace {

constexpr std::string_view Blanks = " \t\r\n\v\f";
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789abcdefABCDEF";

std::size_t SignLength(std::string_view text)
{
    return text.starts_with('-') || text.starts_with('+') ? 1 : 0;
}

std::size_t CountLeading(std::string_view text, std::string_view characters)
{
    return std::min(text.find_first_not_of(characters), text.size());
}

// Of an exponent, if one stands at the start of the text.
std::size_t ExponentLength(std::string_view text)
{
    if (text.empty() || FoldAscii(text.front()) != 'e')
        return 0;
    const std::size_t begin = 1 + SignLength(text.substr(1));
    const std::size_t digits = CountLeading(text.substr(begin), Digits);
    return digits == 0 ? 0 : begin + digits;
}

} // namespace

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::size_t IntegerLength(std::string_view text)
{
    const std::size_t sign = SignLength(text);
    const std::size_t digits = CountLeading(text.substr(sign), Digits);
    return digits == 0 ? 0 : sign + digits;
}

std::size_t FloatLength(std::string_view text)
{
    const std::size_t sign = SignLength(text);
    std::size_t digits = CountLeading(text.substr(sign), Digits);
    std::size_t end = sign + digits;
    if (text.substr(end).starts_with('.')) {
        const std::size_t fraction = CountLeading(text.substr(end + 1), Digits);
        digits += fraction;
        end += 1 + fraction;
    }
    return digits == 0 ? 0 : end + ExponentLength(text.substr(end));
}

std::size_t HexLength(std::string_view text)
{
    const std::size_t sign = SignLength(text);
    const std::string_view digits = text.substr(sign);
    const std::size_t prefix = digits.starts_with("0x") || digits.starts_with("0X") ? 2 : 0;
    const std::size_t length = prefix + CountLeading(digits.substr(prefix), HexDigits);
    return length == 0 ? 0 : sign + length;
}

std::size_t PositionLength(std::string_view text)
{
    const std::size_t letter = text.starts_with('r') || text.starts_with('R') ? 1 : 0;
    const std::string_view number = text.substr(letter);
    const std::size_t length = FloatLength(number);
    if (length == 0)
        return 0;
    return letter + length + (number.substr(length).starts_with('%') ? 1 : 0);
}

std::size_t HexDigitsIn(std::string_view text)
{
    text.remove_prefix(SignLength(text));
    if (text.starts_with("0x") || text.starts_with("0X"))
        text.remove_prefix(2);
    return CountLeading(text, HexDigits);
}

bool IsIn32Bits(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(SignLength(text));
    u32 number = 0;
    const std::errc error = std::from_chars(text.data(), text.data() + text.size(), number).ec;
    constexpr u32 least = 0x80000000; // without its sign
    return error == std::errc() && (!isNegative || number <= least);
}

std::string ShareText(std::string_view percent)
{
    constexpr int digits = 6;
    double number = 0;
    ReadSignedNumber(percent, number);
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, number / 100, std::chars_format::general, digits).ptr;
    return std::string(text, static_cast<std::size_t>(end - text));
}

i32 Integer(std::string_view text)
{
    text = Trim(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    i32 number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace host::NumberText
