#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/XMLToken.h"

#include <array>
#include <string_view>

// What a UTF-16 unit means to the scanner: the type of the token that it is or belongs to, and whether it ends a run of
// content or of an attribute value. Units above 127 are text.
namespace XMLUnit {

inline constexpr u8 TypeMask = 0x1F; // 0 for text
inline constexpr u8 EndsDoubleQuoted = 0x20;
inline constexpr u8 EndsSingleQuoted = 0x40;
inline constexpr u8 EndsContent = 0x80;

constexpr std::array<u8, 128> MakeClasses()
{
    constexpr u8 EndsAll = EndsDoubleQuoted | EndsSingleQuoted | EndsContent;
    constexpr std::string_view Characters = "<>=\"'&/#;!-?[]"; // in the order of their types
    std::array<u8, 128> classes{};
    for (std::size_t index = 0; index < Characters.size(); ++index)
        classes[static_cast<std::size_t>(Characters[index])] = static_cast<u8>(XMLOpenBracketToken + index);
    classes['\t'] = classes['\n'] = classes['\r'] = XMLLineSpaceToken;
    classes[' '] = XMLSpaceToken;
    classes[0] = XMLZeroToken | EndsAll;
    classes['<'] |= EndsAll;
    classes['&'] |= EndsAll;
    classes['"'] |= EndsDoubleQuoted;
    classes['\''] |= EndsSingleQuoted;
    return classes;
}

inline constexpr std::array<u8, 128> Classes = MakeClasses();

constexpr u8 ClassOf(char16_t unit)
{
    return unit < Classes.size() ? Classes[unit] : u8{0};
}

constexpr u32 TypeOf(char16_t unit)
{
    const u32 type = ClassOf(unit) & TypeMask;
    return type != 0 ? type : u32{XMLTextToken};
}

constexpr bool IsSpace(char16_t unit)
{
    return TypeOf(unit) == XMLSpaceToken || TypeOf(unit) == XMLLineSpaceToken;
}

// The first unit from here on that has one of the bits. A zero unit ends every search. onlyAscii: no unit up to there
// is above 127. The steps are written out because runs are short and the processor guesses their ends well, which
// finds them sooner than computing them eight at a time does.
inline const char16_t* FindStop(const char16_t* unit, u8 bits, bool onlyAscii)
{
    while (onlyAscii) {
        if (Classes[unit[0]] & bits)
            return unit;
        if (Classes[unit[1]] & bits)
            return unit + 1;
        if (Classes[unit[2]] & bits)
            return unit + 2;
        if (Classes[unit[3]] & bits)
            return unit + 3;
        unit += 4;
    }
    while (!(ClassOf(*unit) & bits))
        ++unit;
    return unit;
}

} // namespace XMLUnit
