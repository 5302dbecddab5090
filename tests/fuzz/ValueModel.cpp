#include "tests/fuzz/ValueModel.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace ValueModel {

namespace {

constexpr std::string_view Space = " \t\n\v\f\r";
constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789abcdefABCDEF";
constexpr std::size_t RememberedColors = 128;

// A number's sign and what follows it.
struct Signed {
    bool IsNegative;
    std::string_view Rest;
};

Signed TakeSign(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(Space), text.size()));
    const bool hasSign = text.starts_with('-') || text.starts_with('+');
    return {text.starts_with('-'), text.substr(hasSign ? 1 : 0)};
}

std::string_view LeadingRun(std::string_view text, std::string_view of)
{
    return text.substr(0, text.find_first_not_of(of));
}

u32 DigitValue(char digit)
{
    const std::size_t place = HexDigits.find(digit);
    return place == HexDigits.npos ? 0 : static_cast<u32>(place < 16 ? place : place - 6);
}

// Adds up the digits from the last one on; what overflows is lost.
u32 ValueOf(std::string_view digits, u32 base)
{
    u32 value = 0;
    u32 weight = 1;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        value += weight * DigitValue(*digit);
        weight *= base;
    }
    return value;
}

u32 WithSign(bool isNegative, u32 value)
{
    return isNegative ? ~value + 1 : value;
}

// The colour that a text begins with, and the length of its code; without a code nothing.
struct Code {
    u32 Color;
    std::size_t Length;
};

std::optional<Code> CodeAt(std::string_view text)
{
    constexpr std::string_view Letters = "bgmoprtuwy";
    constexpr u32 Bright[] = {
        0, 0xff00ff00, 0xffff00ff, 0xffff9900, 0xff9900ff, 0xffff0000, 0xff00ffff, 0xff0000ff, 0xffffffff, 0xffffff00};
    constexpr u32 Dark[] = {
        0, 0xff009900, 0xff990099, 0xff996600, 0xff660099, 0xff990000, 0xff009999, 0xff000099, 0xff999999, 0xff999900};

    if (text.starts_with('#')) {
        std::string digits(text.substr(1, 6));
        const std::size_t length = 1 + digits.size();
        digits.resize(6, '0');
        return Code{0xff000000 | ValueOf(digits, 16), length};
    }
    const bool isDark = text.starts_with('-');
    const std::string_view letter = text.substr(isDark ? 1 : 0, 1);
    const std::size_t place = letter.empty() ? Letters.npos : Letters.find(letter);
    if (place == Letters.npos)
        return std::nullopt;
    return Code{isDark ? Dark[place] : Bright[place], isDark ? 2u : 1u};
}

} // namespace

u32 Integer(std::string_view text)
{
    const Signed number = TakeSign(text);
    return WithSign(number.IsNegative, ValueOf(LeadingRun(number.Rest, Digits), 10));
}

std::optional<u32> Hex(std::string_view text)
{
    auto [isNegative, rest] = TakeSign(text);
    if (LeadingRun(rest, HexDigits).empty())
        return std::nullopt;

    if (rest.starts_with("0x") || rest.starts_with("0X"))
        rest.remove_prefix(2);
    return WithSign(isNegative, ValueOf(LeadingRun(rest, HexDigits), 16));
}

// The library also knows hexadecimal numbers.
double Real(const std::string& text)
{
    const auto [isNegative, rest] = TakeSign(text);
    if (rest.starts_with("0x") || rest.starts_with("0X"))
        return isNegative ? -0.0 : 0.0;
    return std::strtod(text.c_str(), nullptr);
}

std::optional<float> Share(const std::string& text)
{
    if (text.find('%') != text.npos)
        return static_cast<float>(Real(text)) / 100;
    if (text.find('.') != text.npos)
        return static_cast<float>(Real(text));
    return std::nullopt;
}

Place Position(const std::string& text, u32 shareValue)
{
    const bool isFar = text.starts_with('r') || text.starts_with('R');
    const std::string number = isFar ? text.substr(1) : text;
    if (const std::optional<float> share = Share(number))
        return {2, std::bit_cast<u32>(*share), shareValue};
    return {isFar ? 3u : 0u, Integer(number), Integer(number)};
}

std::optional<i64> Whole(double value, double least, double beyond)
{
    const double whole = std::trunc(value);
    if (std::isnan(value) || whole < least || whole >= beyond)
        return std::nullopt;
    return static_cast<i64>(whole);
}

std::string WithoutCodes(std::string_view text)
{
    std::string rest;
    while (!text.empty()) {
        const std::string_view code = text.substr(1);
        if (!text.starts_with('\a'))
            rest += text.front();
        else if (code.starts_with('#'))
            text.remove_prefix(std::min<std::size_t>(7, code.size()));
        else if (code.starts_with('-'))
            text.remove_prefix(std::min<std::size_t>(2, code.size()));
        else
            text.remove_prefix(std::min<std::size_t>(1, code.size()));
        text.remove_prefix(1);
    }
    return rest;
}

std::vector<Piece> ColoredPieces(std::string_view text, u32 color)
{
    std::vector<Piece> pieces;
    std::vector<u32> former;
    while (text.find('\a') != text.npos) {
        text.remove_prefix(text.find('\a') + 1);
        std::string_view piece = text.substr(0, text.find('\a'));
        const std::optional<Code> code = CodeAt(piece);
        if (code && former.size() < RememberedColors)
            former.push_back(color);
        if (code)
            color = code->Color;
        if (piece.starts_with('x') && !former.empty()) {
            color = former.back();
            former.pop_back();
        }
        piece.remove_prefix(piece.starts_with('x') ? 1 : code ? code->Length : 0);
        pieces.push_back({std::string(piece), color});
    }
    return pieces;
}

} // namespace ValueModel
