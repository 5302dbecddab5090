#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <string>
#include <string_view>

// Case of ASCII letters only, without a locale. All other bytes, those above 127 included, stand for themselves.

// The lower-case form of a letter; any other byte as it is.
constexpr char FoldAscii(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

// Turns the letters of a text to lower case, in place.
void FoldAscii(std::string& text);

bool EqualsNoCase(std::string_view left, std::string_view right);

// Below 0, 0 or above 0 as the folded left text stands before, with or behind the right one, by unsigned bytes.
int CompareNoCase(std::string_view left, std::string_view right);

namespace AsciiCase {

// Compilers turn these into one load.
constexpr u64 FourBytes(std::string_view text, std::size_t index)
{
    const auto byte = [&](std::size_t place) { return u64{static_cast<unsigned char>(text[index + place])}; };
    return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
}

constexpr u64 EightBytes(std::string_view text, std::size_t index)
{
    return FourBytes(text, index) | FourBytes(text, index + 4) << 32;
}

// The bit that is set first makes letters equal in both cases.
constexpr u64 MixHash(u64 hash, u64 word)
{
    hash = (hash ^ (word | 0x2020202020202020u)) * 0x9E3779B97F4A7C15u;
    return hash ^ hash >> 32;
}

} // namespace AsciiCase

// A hash that is the same for texts that are equal but for case. Meant for short fixed names, also at compile time;
// it is neither seeded nor strong, so it must not choose the slots of a map that is filled from a file.
constexpr u32 FoldedHash(std::string_view text)
{
    const std::size_t size = text.size();
    u64 hash = size;
    if (size >= 8) {
        for (std::size_t index = 0; index + 8 < size; index += 8)
            hash = AsciiCase::MixHash(hash, AsciiCase::EightBytes(text, index));
        hash = AsciiCase::MixHash(hash, AsciiCase::EightBytes(text, size - 8));
    } else if (size >= 4) {
        const u64 last = AsciiCase::FourBytes(text, size - 4);
        hash = AsciiCase::MixHash(hash, AsciiCase::FourBytes(text, 0) | last << 32);
    } else {
        u64 word = 0;
        for (const char character : text)
            word = word << 8 | static_cast<unsigned char>(character);
        hash = AsciiCase::MixHash(hash, word);
    }
    return static_cast<u32>(hash);
}
