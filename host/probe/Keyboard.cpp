#include "host/probe/Keyboard.h"

namespace {

struct KeyRow {
    u32 Code;
    char Plain;
    char Shifted;
};

constexpr KeyRow Keys[] = {
    {8, '\b', '\b'},
    {9, '\t', '\t'},
    {13, '\r', '\r'},
    {27, '\x1b', '\x1b'},
    {32, ' ', ' '},
    {48, '0', ')'},
    {49, '1', '!'},
    {50, '2', '@'},
    {51, '3', '#'},
    {52, '4', '$'},
    {53, '5', '%'},
    {54, '6', '^'},
    {55, '7', '&'},
    {56, '8', '*'},
    {57, '9', '('},
    {186, ';', ':'},
    {187, '=', '+'},
    {188, ',', '<'},
    {189, '-', '_'},
    {190, '.', '>'},
    {191, '/', '?'},
    {192, '`', '~'},
    {219, '[', '{'},
    {220, '\\', '|'},
    {221, ']', '}'},
    {222, '\'', '"'},
    {106, '*', '*'},
    {107, '+', '+'},
    {109, '-', '-'},
    {111, '/', '/'},
};

constexpr u32 FirstLetter = 'A';
constexpr u32 LastLetter = 'Z';
constexpr u32 FirstPadDigit = 96;
constexpr u32 LastPadDigit = 105;
constexpr u32 PadPoint = 110;

bool IsLetter(u32 code)
{
    return code >= FirstLetter && code <= LastLetter;
}

std::string TranslateLetter(u32 code, bool shift, bool control, bool capsLock)
{
    if (control)
        return {static_cast<char>(code - FirstLetter + 1)};

    const bool upper = shift != capsLock;
    return {static_cast<char>(upper ? code : code - 'A' + 'a')};
}

std::string TranslatePad(u32 code)
{
    if (code == PadPoint)
        return ".";
    return {static_cast<char>('0' + (code - FirstPadDigit))};
}

} // namespace

std::optional<KeyPress> FindKeyPress(char character)
{
    if (character >= 'a' && character <= 'z')
        return KeyPress{static_cast<u32>(character - 'a' + 'A'), false};
    if (character >= 'A' && character <= 'Z')
        return KeyPress{static_cast<u32>(character), true};
    if (character == '\n')
        return KeyPress{13, false};

    for (const KeyRow& key : Keys) {
        if (key.Plain == character)
            return KeyPress{key.Code, false};
        if (key.Shifted == character)
            return KeyPress{key.Code, true};
    }
    return std::nullopt;
}

std::string TranslateKey(u32 code, const u8* keyState)
{
    const bool shift = keyState[KeyShift] & 0x80;
    const bool control = keyState[KeyControl] & 0x80;
    if (IsLetter(code))
        return TranslateLetter(code, shift, control, keyState[KeyCapsLock] & 1);
    if (control)
        return {};
    if ((code >= FirstPadDigit && code <= LastPadDigit) || code == PadPoint)
        return TranslatePad(code);

    for (const KeyRow& key : Keys) {
        if (key.Code == code)
            return {shift ? key.Shifted : key.Plain};
    }
    return {};
}

std::string KeyNameFor(u32 code)
{
    if (IsLetter(code) || (code >= '0' && code <= '9'))
        return {static_cast<char>(code)};
    return "Key" + std::to_string(code);
}
