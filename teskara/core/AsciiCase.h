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

// Compilers turn these into one load. The bit that is set makes letters equal in both cases.
constexpr u64 FoldedByte(std::string_view text, std::size_t index)
{
    return static_cast<unsigned char>(text[index]) | 0x20u;
}

constexpr u64 FoldedFourBytes(std::string_view text, std::size_t index)
{
    return FoldedByte(text, index) | FoldedByte(text, index + 1) << 8 | FoldedByte(text, index + 2) << 16
        | FoldedByte(text, index + 3) << 24;
}

constexpr u64 FoldedEightBytes(std::string_view text, std::size_t index)
{
    return FoldedFourBytes(text, index) | FoldedFourBytes(text, index + 4) << 32;
}

constexpr u64 MixHash(u64 hash, u64 word)
{
    hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return hash ^ hash >> 32;
}

}

// A hash that is the same for texts that are equal but for case. Meant for short fixed names, also at compile time;
// it is neither seeded nor strong, so it must not choose the slots of a map that is filled from a file.
constexpr u32 FoldedHash(std::string_view text)
{
    const std::size_t size = text.size();
    u64 hash = size;
    if (size >= 8) {
        for (std::size_t index = 0; index + 8 < size; index += 8)
            hash = AsciiCase::MixHash(hash, AsciiCase::FoldedEightBytes(text, index));
        hash = AsciiCase::MixHash(hash, AsciiCase::FoldedEightBytes(text, size - 8));
    } else if (size >= 4) {
        const u64 last = AsciiCase::FoldedFourBytes(text, size - 4);
        hash = AsciiCase::MixHash(hash, AsciiCase::FoldedFourBytes(text, 0) | last << 32);
    } else if (size > 0) {
        const u64 rest = AsciiCase::FoldedByte(text, size / 2) << 8 | AsciiCase::FoldedByte(text, size - 1) << 16;
        hash = AsciiCase::MixHash(hash, AsciiCase::FoldedByte(text, 0) | rest);
    }
    return static_cast<u32>(hash);
}
