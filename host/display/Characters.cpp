#include "host/display/Characters.h"

namespace host {

namespace {

constexpr char32_t Replacement = 0xFFFD;

// Windows-1252 differs from Latin-1 in these 32 bytes from 0x80 on; 0 stands for a byte without a character.
constexpr char16_t AnsiUpper[] = {0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161,
    0x203A, 0x0153, 0, 0x017E, 0x0178};

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

} // namespace

char32_t DecodeCharacter(std::string_view text, std::size_t& at)
{
    const auto byte = static_cast<u8>(text[at++]);
    if (byte < 0x80)
        return byte;

    const std::size_t more = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : 1;
    if (byte < 0xC2 || byte > 0xF4 || at + more > text.size())
        return Replacement;

    char32_t character = byte & (0x3Fu >> more);
    for (std::size_t index = 0; index < more; ++index) {
        const auto next = static_cast<u8>(text[at + index]);
        if ((next & 0xC0) != 0x80)
            return Replacement;
        character = character << 6 | (next & 0x3Fu);
    }
    at += more;
    return character;
}

void AppendUtf8(std::string& text, char32_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFF00u >> (more + 1)) | (character >> (6 * more)));
    for (int index = more - 1; index >= 0; --index)
        text += static_cast<char>(0x80 | ((character >> (6 * index)) & 0x3F));
}

std::u16string CharacterToWide(char32_t character)
{
    if (character < 0x10000)
        return {static_cast<char16_t>(character)};

    return {static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)),
        static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF))};
}

std::u16string Utf8ToWide(std::string_view text)
{
    std::u16string wide;
    for (std::size_t at = 0; at < text.size();)
        wide += CharacterToWide(DecodeCharacter(text, at));
    return wide;
}

std::string WideToUtf8(std::u16string_view text)
{
    std::string narrow;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t character = text[at];
        if (IsHighSurrogate(text[at]) && at + 1 < text.size() && IsLowSurrogate(text[at + 1])) {
            character = 0x10000 + ((character - 0xD800) << 10) + (text[at + 1] - 0xDC00u);
            ++at;
        } else if (IsHighSurrogate(text[at]) || IsLowSurrogate(text[at])) {
            character = Replacement;
        }
        AppendUtf8(narrow, character);
    }
    return narrow;
}

u8 ToAnsi(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character < 0x100))
        return static_cast<u8>(character);

    for (u8 index = 0; index < std::size(AnsiUpper); ++index)
        if (AnsiUpper[index] == character && character != 0)
            return static_cast<u8>(0x80 + index);
    return 0;
}

} // namespace host
