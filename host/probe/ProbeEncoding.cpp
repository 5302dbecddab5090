#include "host/probe/ProbeEncoding.h"

namespace {

constexpr char32_t Replacement = 0xfffd;

// The 0x80..0x9f of the code page; the five bytes that it leaves open stand for themselves.
constexpr char16_t HighControls[32] = {0x20ac, 0x81, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x8d, 0x017d, 0x8f, 0x90, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014, 0x02dc,
    0x2122, 0x0161, 0x203a, 0x0153, 0x9d, 0x017e, 0x0178};

struct LeadByte {
    std::size_t Following;
    char32_t Bits;
    char32_t Least;
};

LeadByte ReadLead(u8 byte)
{
    if (byte >= 0xf0 && byte <= 0xf4)
        return {3, byte & 0x07u, 0x10000};
    if (byte >= 0xe0 && byte <= 0xef)
        return {2, byte & 0x0fu, 0x800};
    if (byte >= 0xc2 && byte <= 0xdf)
        return {1, byte & 0x1fu, 0x80};
    return {0, Replacement, 0};
}

// Reads one character that starts with a byte above 127 and moves at behind it.
char32_t ReadCharacter(std::string_view bytes, std::size_t& at)
{
    LeadByte lead = ReadLead(static_cast<u8>(bytes[at++]));
    if (!lead.Following)
        return Replacement;

    for (std::size_t count = 0; count < lead.Following; ++count) {
        if (at >= bytes.size() || (static_cast<u8>(bytes[at]) & 0xc0) != 0x80)
            return Replacement;
        lead.Bits = lead.Bits << 6 | (static_cast<u8>(bytes[at++]) & 0x3fu);
    }
    const bool surrogate = lead.Bits >= 0xd800 && lead.Bits <= 0xdfff;
    return surrogate || lead.Bits < lead.Least || lead.Bits > 0x10ffff ? Replacement : lead.Bits;
}

void AppendUtf8(std::string& bytes, char32_t character)
{
    const auto append = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xc0 | character >> 6);
        append(0x80 | (character & 0x3f));
    } else if (character < 0x10000) {
        append(0xe0 | character >> 12);
        append(0x80 | (character >> 6 & 0x3f));
        append(0x80 | (character & 0x3f));
    } else {
        append(0xf0 | character >> 18);
        append(0x80 | (character >> 12 & 0x3f));
        append(0x80 | (character >> 6 & 0x3f));
        append(0x80 | (character & 0x3f));
    }
}

} // namespace

std::u16string Utf16FromUtf8(std::string_view bytes)
{
    std::u16string units;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto byte = static_cast<u8>(bytes[at]);
        if (byte < 0x80) {
            units += static_cast<char16_t>(byte);
            ++at;
            continue;
        }
        const char32_t character = ReadCharacter(bytes, at);
        if (character < 0x10000) {
            units += static_cast<char16_t>(character);
        } else {
            units += static_cast<char16_t>(0xd800 + ((character - 0x10000) >> 10));
            units += static_cast<char16_t>(0xdc00 + ((character - 0x10000) & 0x3ff));
        }
    }
    return units;
}

std::string Utf8FromUtf16(std::u16string_view units)
{
    std::string bytes;
    for (std::size_t at = 0; at < units.size(); ++at) {
        const char32_t unit = units[at];
        const bool high = unit >= 0xd800 && unit <= 0xdbff;
        const bool low = unit >= 0xdc00 && unit <= 0xdfff;
        if (high && at + 1 < units.size() && units[at + 1] >= 0xdc00 && units[at + 1] <= 0xdfff)
            AppendUtf8(bytes, 0x10000 + ((unit - 0xd800) << 10) + (units[++at] - 0xdc00u));
        else
            AppendUtf8(bytes, high || low ? Replacement : unit);
    }
    return bytes;
}

char16_t WideFromCodePage(u8 byte)
{
    return byte >= 0x80 && byte <= 0x9f ? HighControls[byte - 0x80] : char16_t{byte};
}
