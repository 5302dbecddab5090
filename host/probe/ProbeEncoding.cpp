#include "host/probe/ProbeEncoding.h"

namespace {

constexpr char32_t Replacement = 0xfffd;

// The 0x80..0x9f of the code page; the five bytes that it leaves open stand for themselves.
constexpr char16_t HighControls[32] = {0x20ac, 0x81, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x8d, 0x017d, 0x8f, 0x90, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014, 0x02dc,
    0x2122, 0x0161, 0x203a, 0x0153, 0x9d, 0x017e, 0x0178};

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
