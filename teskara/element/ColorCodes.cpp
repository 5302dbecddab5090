#include "teskara/element/ColorCodes.h"

namespace ColorCodes {

namespace {

constexpr u32 Opaque = 0xff000000u;
constexpr std::size_t DigitCount = 6;

struct NamedColor {
    char Letter;
    u32 Bright;
    u32 Dark;
};

constexpr NamedColor NamedColors[] = {
    {'b', 0x00000000, 0x00000000},
    {'g', 0xff00ff00, 0xff009900},
    {'m', 0xffff00ff, 0xff990099},
    {'o', 0xffff9900, 0xff996600},
    {'p', 0xff9900ff, 0xff660099},
    {'r', 0xffff0000, 0xff990000},
    {'t', 0xff00ffff, 0xff009999},
    {'u', 0xff0000ff, 0xff000099},
    {'w', 0xffffffff, 0xff999999},
    {'y', 0xffffff00, 0xff999900},
};

const NamedColor* FindColor(char letter)
{
    for (const NamedColor& color : NamedColors) {
        if (color.Letter == letter)
            return &color;
    }
    return nullptr;
}

// Anything that is no digit counts as 0.
u32 DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return static_cast<u32>(digit - '0');
    if (digit >= 'a' && digit <= 'f')
        return static_cast<u32>(digit - 'a' + 10);
    if (digit >= 'A' && digit <= 'F')
        return static_cast<u32>(digit - 'A' + 10);
    return 0;
}

// Moves ahead by at most count bytes, and not past the end.
const char* Ahead(const char* place, std::size_t count)
{
    while (count > 0 && *place) {
        ++place;
        --count;
    }
    return place;
}

} // namespace

const char* Skip(const char* place)
{
    const char* code = place + 1;
    switch (*code) {
    case '-':
        return Ahead(code, 2);
    case '#':
        return Ahead(code, 1 + DigitCount);
    default:
        return Ahead(code, 1);
    }
}

const char* Stack::Apply(const char* piece, u32& color)
{
    if (*piece == 'x') {
        Pop(color);
        return piece + 1;
    }

    if (*piece == '#') {
        const char* digit = piece + 1;
        u32 value = 0;
        for (std::size_t count = 0; count < DigitCount; ++count) {
            value = value << 4 | DigitValue(*digit);
            digit = Ahead(digit, 1);
        }
        Push(color);
        color = Opaque | value;
        return digit;
    }

    const bool isDark = *piece == '-';
    const NamedColor* named = FindColor(isDark ? piece[1] : *piece);
    if (!named)
        return piece;

    Push(color);
    color = isDark ? named->Dark : named->Bright;
    return piece + (isDark ? 2 : 1);
}

// A colour beyond the last place is used, but not remembered.
void Stack::Push(u32 color)
{
    if (m_Count < Capacity)
        m_Colors[m_Count++] = color;
}

void Stack::Pop(u32& color)
{
    if (m_Count > 0)
        color = m_Colors[--m_Count];
}

} // namespace ColorCodes
