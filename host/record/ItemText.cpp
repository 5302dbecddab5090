#include "host/record/ItemText.h"

#include "host/Operation.h"
#include "host/record/ItemBytes.h"
#include "host/record/RecordingFormat.h"
#include "teskara/core/HostInterface.h"

#include <charconv>

namespace host {

namespace {

using namespace RecordingFormat;

constexpr std::size_t LongestText = 200;
constexpr unsigned NumbersOfPoint = 2;
constexpr unsigned NumbersOfRectangle = 4;

template <class Real> std::string RealText(Real number)
{
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string QuotedText(std::string_view text)
{
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char byte : text.substr(0, LongestText)) {
        const auto code = static_cast<u8>(byte);
        if (byte == '"' || byte == '\\')
            quoted += '\\';
        if (code >= ' ' && code != 0x7f)
            quoted += byte;
        else
            (quoted += "\\x") += {Digits[code >> 4], Digits[code & 15]};
    }
    return quoted + (text.size() > LongestText ? "\"..." : "\"");
}

std::string SidesText(ItemView& bytes, unsigned count)
{
    std::string text = "{";
    for (unsigned index = 0; index < count; ++index)
        text += (index > 0 ? ", " : "") + std::to_string(bytes.TakeSigned());
    return text + '}';
}

std::string SidesText(const tagRECT& rect)
{
    std::string text;
    for (const i32 side : {rect.left, rect.top, rect.right, rect.bottom})
        (text += text.empty() ? "{" : ", ") += std::to_string(side);
    return text + '}';
}

std::string ImageText(ItemView& bytes)
{
    const auto record = bytes.TakeRaw<TeskDrawRecord>();
    std::string text = "image {";
    for (const u32 number : {record.Flags, record.TextureID, u32{record.Alpha}, u32{record.Orientation}})
        (text += std::to_string(number)) += ", ";
    text += std::to_string(record.ColorMask) + "} to " + SidesText(record.Destination);
    return text + " from " + SidesText(record.Source);
}

std::string ValueText(ItemView& bytes);

// Numbers of a list have no tag: they are the units of a path.
std::string ListText(ItemView& bytes)
{
    std::string text;
    u64 left = bytes.TakeUnsigned();
    if (bytes.Peek() == Text || bytes.Peek() == Image) {
        for (; left > 0 && !bytes.IsAtEnd(); --left)
            text += (text.empty() ? "" : ", ") + ValueText(bytes);
        return '[' + text + ']';
    }
    for (; left > 0 && !bytes.IsAtEnd(); --left) {
        const u64 unit = bytes.TakeUnsigned();
        text += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return QuotedText(text);
}

std::string ValueText(ItemView& bytes)
{
    switch (bytes.TakeByte()) {
    case Null:
        return "null";
    case Number:
        return std::to_string(bytes.TakeSigned());
    case Unsigned:
        return std::to_string(bytes.TakeUnsigned());
    case Single:
        return RealText(bytes.TakeRaw<float>());
    case Double:
        return RealText(bytes.TakeRaw<double>());
    case Text:
        return QuotedText(bytes.TakeText());
    case Point:
        return SidesText(bytes, NumbersOfPoint);
    case Rectangle:
        return SidesText(bytes, NumbersOfRectangle);
    case Image:
        return ImageText(bytes);
    case Object: {
        const std::string text = "object " + std::to_string(bytes.TakeUnsigned());
        bytes.TakeByte();
        return text;
    }
    case Type:
        bytes.TakeByte();
        return "type " + std::string(bytes.TakeText());
    case List:
        return ListText(bytes);
    case Opaque:
        return "a value of the host's";
    default:
        bytes.Break();
        return "?";
    }
}

std::string ValuesText(ItemView& bytes)
{
    std::string text;
    while (!bytes.IsAtEnd() && bytes.Peek() != Results)
        text += (text.empty() ? "" : ", ") + ValueText(bytes);
    return text;
}

} // namespace

std::string DescribeItem(std::string_view item)
{
    ItemView bytes(item);
    const std::string name = NameOf(static_cast<Operation>(bytes.TakeByte()));
    const u8 phase = bytes.TakeByte();
    if (phase == Finish)
        return "the end of the recording";

    std::string text = phase == End ? name + " returns" : name + '(' + ValuesText(bytes) + ')';
    if (bytes.Peek() == Results) {
        bytes.TakeByte();
        const std::string results = ValuesText(bytes);
        if (!results.empty())
            text += (phase == End ? " " : " = ") + results;
    }
    return text;
}

} // namespace host
