#include "teskara/core/Utf8.h"

#include "teskara/core/AsciiBlock.h"
#include "teskara/core/Types.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::size_t BlockSize = 32;

// What may follow a first byte: the length of the sequence and the range of its second byte. This is where overlong
// forms, surrogates and values above U+10FFFF are refused. A length of 0 is no first byte.
struct LeadByte {
    u8 Length;
    u8 SecondMin;
    u8 SecondMax;
};

constexpr LeadByte ClassifyLead(u8 lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return {2, 0x80, 0xBF};
    if (lead >= 0xE0 && lead <= 0xEF)
        return {3, static_cast<u8>(lead == 0xE0 ? 0xA0 : 0x80), static_cast<u8>(lead == 0xED ? 0x9F : 0xBF)};
    if (lead >= 0xF0 && lead <= 0xF4)
        return {4, static_cast<u8>(lead == 0xF0 ? 0x90 : 0x80), static_cast<u8>(lead == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

u8 ByteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<u8>(bytes[index]);
}

// Takes one character, or one ill-formed part as U+FFFD, from position on.
char32_t NextOfUtf8(std::string_view bytes, std::size_t& position)
{
    const u8 first = ByteAt(bytes, position++);
    if (first < 0x80)
        return first;

    const LeadByte lead = ClassifyLead(first);
    if (lead.Length == 0)
        return Replacement;

    char32_t character = first & (0x7Fu >> lead.Length);
    u8 least = lead.SecondMin;
    u8 most = lead.SecondMax;
    for (std::size_t count = 1; count < lead.Length; ++count) {
        if (position == bytes.size() || ByteAt(bytes, position) < least || ByteAt(bytes, position) > most)
            return Replacement;
        character = character << 6 | (ByteAt(bytes, position++) & 0x3Fu);
        least = 0x80;
        most = 0xBF;
    }
    return character;
}

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// Takes one character, or a lone surrogate as U+FFFD, from position on.
char32_t NextOfUtf16(std::u16string_view units, std::size_t& position)
{
    const char16_t first = units[position++];
    if (!IsHighSurrogate(first))
        return IsLowSurrogate(first) ? Replacement : first;
    if (position == units.size() || !IsLowSurrogate(units[position]))
        return Replacement;
    return 0x10000 + (static_cast<char32_t>(first - 0xD800) << 10) + (units[position++] - 0xDC00u);
}

// UTF-8 and UTF-16 as a conversion sees them: what a text is, its next character, and the room and form of one.
struct Utf8Form {
    using Text = std::string_view;

    static char32_t Next(Text bytes, std::size_t& position) { return NextOfUtf8(bytes, position); }

    static std::size_t SizeOf(char32_t character)
    {
        if (character < 0x80)
            return 1;
        if (character < 0x800)
            return 2;
        return character < 0x10000 ? 3 : 4;
    }

    static void Write(char32_t character, char* to)
    {
        const std::size_t count = SizeOf(character);
        if (count == 1) {
            to[0] = static_cast<char>(character);
            return;
        }
        for (std::size_t index = count - 1; index > 0; --index) {
            to[index] = static_cast<char>(0x80 | (character & 0x3F));
            character >>= 6;
        }
        to[0] = static_cast<char>((0xF00u >> count) | character);
    }
};

struct Utf16Form {
    using Text = std::u16string_view;

    static char32_t Next(Text units, std::size_t& position) { return NextOfUtf16(units, position); }
    static std::size_t SizeOf(char32_t character) { return character < 0x10000 ? 1 : 2; }

    static void Write(char32_t character, char16_t* to)
    {
        if (character < 0x10000) {
            to[0] = static_cast<char16_t>(character);
            return;
        }
        to[0] = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        to[1] = static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
};

bool IsAsciiBlock(const char* bytes)
{
    u64 words[BlockSize / sizeof(u64)];
    std::memcpy(words, bytes, BlockSize);
    u64 all = 0;
    for (const u64 word : words)
        all |= word;
    return (all & 0x8080808080808080u) == 0;
}

bool IsAsciiBlock(const char16_t* units)
{
    u64 words[BlockSize * sizeof(char16_t) / sizeof(u64)];
    std::memcpy(words, units, BlockSize * sizeof(char16_t));
    u64 all = 0;
    for (const u64 word : words)
        all |= word;
    return (all & 0xFF80FF80FF80FF80u) == 0;
}

void CopyBlock(const char* from, char16_t* to)
{
    for (std::size_t index = 0; index < BlockSize; index += AsciiBlock::Size)
        AsciiBlock::Widen(from + index, to + index);
}

void CopyBlock(const char16_t* from, char* to)
{
    for (std::size_t index = 0; index < BlockSize; index += AsciiBlock::Size)
        AsciiBlock::Narrow(from + index, to + index);
}

// Copies whole blocks of ASCII and tells how many elements these were.
template <typename From, typename To> std::size_t CopyAsciiBlocks(const From* from, To* to, std::size_t count)
{
    std::size_t done = 0;
    for (; done + BlockSize <= count && IsAsciiBlock(from + done); done += BlockSize)
        CopyBlock(from + done, to + done);
    return done;
}

template <typename From> std::size_t CountAsciiBlocks(const From* from, std::size_t count)
{
    std::size_t done = 0;
    while (done + BlockSize <= count && IsAsciiBlock(from + done))
        done += BlockSize;
    return done;
}

template <class From, class To> std::size_t ConvertedLength(typename From::Text text)
{
    std::size_t length = 0;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t ascii = CountAsciiBlocks(text.data() + position, text.size() - position);
        position += ascii;
        length += ascii;
        const std::size_t stop = std::min(text.size(), position + BlockSize);
        while (position < stop)
            length += To::SizeOf(From::Next(text, position));
    }
    return length;
}

template <class From, class To>
std::size_t Convert(typename From::Text text, typename To::Text::value_type* to, std::size_t capacity)
{
    std::size_t written = 0;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t room = std::min(text.size() - position, capacity - written);
        const std::size_t ascii = CopyAsciiBlocks(text.data() + position, to + written, room);
        position += ascii;
        written += ascii;
        const std::size_t stop = std::min(text.size(), position + BlockSize);
        while (position < stop) {
            const char32_t character = From::Next(text, position);
            const std::size_t size = To::SizeOf(character);
            if (size > capacity - written)
                return written;
            To::Write(character, to + written);
            written += size;
        }
    }
    return written;
}

} // namespace

std::size_t Utf16Length(std::string_view bytes)
{
    return ConvertedLength<Utf8Form, Utf16Form>(bytes);
}

std::size_t Utf8ToUtf16(std::string_view bytes, char16_t* to, std::size_t capacity)
{
    return Convert<Utf8Form, Utf16Form>(bytes, to, capacity);
}

std::size_t Utf8Length(std::u16string_view units)
{
    return ConvertedLength<Utf16Form, Utf8Form>(units);
}

std::size_t Utf16ToUtf8(std::u16string_view units, char* to, std::size_t capacity)
{
    return Convert<Utf16Form, Utf8Form>(units, to, capacity);
}

std::u16string ToUtf16(std::string_view bytes)
{
    std::u16string units(bytes.size(), u'\0');
    units.resize(Utf8ToUtf16(bytes, units.data(), units.size()));
    return units;
}

std::string ToUtf8(std::u16string_view units)
{
    std::string bytes(Utf8Length(units), '\0');
    Utf16ToUtf8(units, bytes.data(), bytes.size());
    return bytes;
}
