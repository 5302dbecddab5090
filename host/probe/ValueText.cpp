#include "host/probe/ValueText.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/DecimalNumber.h"
#include "teskara/core/HostInterface.h"
#include "teskara/element/TeskElement.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr char HexDigits[] = "0123456789abcdef";

// The letter that stands behind a backslash for this byte; 0 if it has none.
char EscapeLetter(char byte)
{
    switch (byte) {
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return 0;
    }
}

void AppendEscaped(std::string& text, char byte)
{
    text += '\\';
    if (const char letter = EscapeLetter(byte)) {
        text += letter;
        return;
    }
    const auto value = static_cast<unsigned char>(byte);
    text += 'x';
    text += HexDigits[value >> 4];
    text += HexDigits[value & 15];
}

std::optional<unsigned> HexDigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return static_cast<unsigned>(digit - '0');

    const char folded = FoldAscii(digit);
    if (folded >= 'a' && folded <= 'f')
        return static_cast<unsigned>(folded - 'a' + 10);
    return std::nullopt;
}

// Reads what stands behind a backslash at position and moves position behind it.
void ReadEscape(std::string_view text, std::size_t& position, std::string& result)
{
    const char letter = text[position];
    if (letter == 'x' && position + 2 < text.size()) {
        const auto high = HexDigitValue(text[position + 1]);
        const auto low = HexDigitValue(text[position + 2]);
        if (high && low) {
            result += static_cast<char>(*high << 4 | *low);
            position += 3;
            return;
        }
    }

    ++position;
    switch (letter) {
    case 'n':
        result += '\n';
        return;
    case 'r':
        result += '\r';
        return;
    case 't':
        result += '\t';
        return;
    case '"':
    case '\\':
        result += letter;
        return;
    default:
        result += '\\';
        result += letter;
    }
}

template <class Number> std::string ShortestText(Number value)
{
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, end.ptr};
}

std::string RecordValuesText(const TeskDrawRecord& record)
{
    return " flags=" + std::to_string(record.Flags) + " alpha=" + std::to_string(record.Alpha)
        + " orientation=" + std::to_string(record.Orientation) + " mask=" + ColorText(record.ColorMask);
}

} // namespace

std::string Quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') {
            result += '\\';
            result += byte;
        } else if (byte >= 0x20 && byte <= 0x7e) {
            result += byte;
        } else {
            AppendEscaped(result, byte);
        }
    }
    return result + '"';
}

std::string QuotedOrNull(const char* text)
{
    return text ? Quoted(text) : "null";
}

std::string OnOneLine(std::string_view text)
{
    std::string result;
    for (const char byte : text) {
        if (static_cast<unsigned char>(byte) < 0x20)
            AppendEscaped(result, byte);
        else
            result += byte;
    }
    return result;
}

std::optional<std::string> ReadQuoted(std::string_view text, std::size_t& position)
{
    std::string result;
    std::size_t at = position + 1;
    while (at < text.size()) {
        if (text[at] == '"') {
            position = at + 1;
            return result;
        }
        if (text[at] == '\\' && at + 1 < text.size())
            ReadEscape(text, ++at, result);
        else
            result += text[at++];
    }
    return std::nullopt;
}

std::string TakeQuotesOff(std::string_view text)
{
    if (!text.starts_with('"'))
        return std::string(text);

    std::size_t position = 0;
    auto inside = ReadQuoted(text, position);
    return inside && position == text.size() ? *inside : std::string(text);
}

std::string BoolText(bool value)
{
    return value ? "true" : "false";
}

std::string FloatText(float value)
{
    return ShortestText(value);
}

std::string DoubleText(double value)
{
    return ShortestText(value);
}

std::string ColorText(u32 color)
{
    std::string result;
    for (int shift = 28; shift >= 0; shift -= 4)
        result += HexDigits[color >> shift & 15];
    return result;
}

std::string PointText(const _Point2i& point)
{
    return '(' + std::to_string(point.x) + ',' + std::to_string(point.y) + ')';
}

std::string RectText(const tagRECT& rect)
{
    return '(' + std::to_string(rect.left) + ',' + std::to_string(rect.top) + ',' + std::to_string(rect.right) + ','
        + std::to_string(rect.bottom) + ')';
}

std::string LineText(const tagRECT& points)
{
    return PointText({points.left, points.top}) + '-' + PointText({points.right, points.bottom});
}

std::string ElementText(const TeskElement* element)
{
    if (!element)
        return "null";
    return (element->Type.empty() ? "screen" : element->Type) + ' ' + Quoted(element->FullName);
}

std::string ArgumentListText(int argc, char** argv)
{
    std::string result = "[";
    for (int index = 0; index < argc; ++index) {
        if (index)
            result += ", ";
        result += QuotedOrNull(argv[index]);
    }
    return result + ']';
}

std::string ImageText(const TeskDrawRecord& record)
{
    return "texture " + std::to_string(record.TextureID) + " to=" + RectText(record.Destination)
        + " from=" + RectText(record.Source) + RecordValuesText(record);
}

std::string LineRecordText(const TeskDrawRecord& record, u32 width)
{
    return LineText(record.Destination) + " width=" + std::to_string(width) + " texture "
        + std::to_string(record.TextureID) + RecordValuesText(record);
}

std::optional<i64> ReadNumber(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);

    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    if (text.empty() || text[0] == '-')
        return std::nullopt;

    i64 value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size())
        return std::nullopt;
    return negative ? -value : value;
}

std::optional<double> ReadDecimal(std::string_view text)
{
    text = TrimBlanks(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const bool isNegative = text.starts_with('-');
    if (isNegative)
        text.remove_prefix(1);
    double value = 0;
    if (text.find_first_not_of(".0123456789") != text.npos || ReadDecimalNumber(text, value) != text.size()
        || text.empty())
        return std::nullopt;
    return isNegative ? -value : value;
}

void CopyText(char* buffer, std::size_t size, std::string_view text)
{
    if (!size)
        return;

    const std::size_t length = std::min(text.size(), size - 1);
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = '\0';
}

std::string_view TrimBlanks(std::string_view text)
{
    constexpr std::string_view Blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::string LowerCase(std::string_view text)
{
    std::string result(text);
    for (char& character : result)
        character = FoldAscii(character);
    return result;
}

bool SameWord(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return FoldAscii(one) == FoldAscii(other); });
}
