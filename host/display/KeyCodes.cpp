#include "host/display/KeyCodes.h"

namespace host {

namespace {

struct KeyRow {
    u32 Code;
    SDL_Scancode Scancode;
    const char* Name;
    char Plain; // without Shift; 0 for none
    char Shifted; // with it
};

// Letters and digits, whose codes are their capitals, are not listed.
constexpr KeyRow Keys[] = {
    {8, SDL_SCANCODE_BACKSPACE, "Backspace", 8, 8},
    {9, SDL_SCANCODE_TAB, "Tab", 9, 9},
    {12, SDL_SCANCODE_CLEAR, "Clear", 0, 0},
    {13, SDL_SCANCODE_RETURN, "Enter", 13, 13},
    {13, SDL_SCANCODE_KP_ENTER, "Enter", 13, 13},
    {19, SDL_SCANCODE_PAUSE, "Pause", 0, 0},
    {20, SDL_SCANCODE_CAPSLOCK, "Caps Lock", 0, 0},
    {27, SDL_SCANCODE_ESCAPE, "Escape", 27, 27},
    {32, SDL_SCANCODE_SPACE, "Space", ' ', ' '},
    {33, SDL_SCANCODE_PAGEUP, "Page Up", 0, 0},
    {34, SDL_SCANCODE_PAGEDOWN, "Page Down", 0, 0},
    {35, SDL_SCANCODE_END, "End", 0, 0},
    {36, SDL_SCANCODE_HOME, "Home", 0, 0},
    {37, SDL_SCANCODE_LEFT, "Left", 0, 0},
    {38, SDL_SCANCODE_UP, "Up", 0, 0},
    {39, SDL_SCANCODE_RIGHT, "Right", 0, 0},
    {40, SDL_SCANCODE_DOWN, "Down", 0, 0},
    {44, SDL_SCANCODE_PRINTSCREEN, "Print Screen", 0, 0},
    {45, SDL_SCANCODE_INSERT, "Insert", 0, 0},
    {46, SDL_SCANCODE_DELETE, "Delete", 0, 0},
    {91, SDL_SCANCODE_LGUI, "Left System", 0, 0},
    {92, SDL_SCANCODE_RGUI, "Right System", 0, 0},
    {93, SDL_SCANCODE_APPLICATION, "Menu", 0, 0},
    {96, SDL_SCANCODE_KP_0, "Num 0", '0', '0'},
    {97, SDL_SCANCODE_KP_1, "Num 1", '1', '1'},
    {98, SDL_SCANCODE_KP_2, "Num 2", '2', '2'},
    {99, SDL_SCANCODE_KP_3, "Num 3", '3', '3'},
    {100, SDL_SCANCODE_KP_4, "Num 4", '4', '4'},
    {101, SDL_SCANCODE_KP_5, "Num 5", '5', '5'},
    {102, SDL_SCANCODE_KP_6, "Num 6", '6', '6'},
    {103, SDL_SCANCODE_KP_7, "Num 7", '7', '7'},
    {104, SDL_SCANCODE_KP_8, "Num 8", '8', '8'},
    {105, SDL_SCANCODE_KP_9, "Num 9", '9', '9'},
    {106, SDL_SCANCODE_KP_MULTIPLY, "Num *", '*', '*'},
    {107, SDL_SCANCODE_KP_PLUS, "Num +", '+', '+'},
    {108, SDL_SCANCODE_SEPARATOR, "Separator", 0, 0},
    {109, SDL_SCANCODE_KP_MINUS, "Num -", '-', '-'},
    {110, SDL_SCANCODE_KP_PERIOD, "Num .", '.', '.'},
    {111, SDL_SCANCODE_KP_DIVIDE, "Num /", '/', '/'},
    {112, SDL_SCANCODE_F1, "F1", 0, 0},
    {113, SDL_SCANCODE_F2, "F2", 0, 0},
    {114, SDL_SCANCODE_F3, "F3", 0, 0},
    {115, SDL_SCANCODE_F4, "F4", 0, 0},
    {116, SDL_SCANCODE_F5, "F5", 0, 0},
    {117, SDL_SCANCODE_F6, "F6", 0, 0},
    {118, SDL_SCANCODE_F7, "F7", 0, 0},
    {119, SDL_SCANCODE_F8, "F8", 0, 0},
    {120, SDL_SCANCODE_F9, "F9", 0, 0},
    {121, SDL_SCANCODE_F10, "F10", 0, 0},
    {122, SDL_SCANCODE_F11, "F11", 0, 0},
    {123, SDL_SCANCODE_F12, "F12", 0, 0},
    {144, SDL_SCANCODE_NUMLOCKCLEAR, "Num Lock", 0, 0},
    {145, SDL_SCANCODE_SCROLLLOCK, "Scroll Lock", 0, 0},
    {160, SDL_SCANCODE_LSHIFT, "Left Shift", 0, 0},
    {161, SDL_SCANCODE_RSHIFT, "Right Shift", 0, 0},
    {162, SDL_SCANCODE_LCTRL, "Left Control", 0, 0},
    {163, SDL_SCANCODE_RCTRL, "Right Control", 0, 0},
    {164, SDL_SCANCODE_LALT, "Left Alt", 0, 0},
    {165, SDL_SCANCODE_RALT, "Right Alt", 0, 0},
    {186, SDL_SCANCODE_SEMICOLON, ";", ';', ':'},
    {187, SDL_SCANCODE_EQUALS, "=", '=', '+'},
    {188, SDL_SCANCODE_COMMA, ",", ',', '<'},
    {189, SDL_SCANCODE_MINUS, "-", '-', '_'},
    {190, SDL_SCANCODE_PERIOD, ".", '.', '>'},
    {191, SDL_SCANCODE_SLASH, "/", '/', '?'},
    {192, SDL_SCANCODE_GRAVE, "`", '`', '~'},
    {219, SDL_SCANCODE_LEFTBRACKET, "[", '[', '{'},
    {220, SDL_SCANCODE_BACKSLASH, "\\", '\\', '|'},
    {221, SDL_SCANCODE_RIGHTBRACKET, "]", ']', '}'},
    {222, SDL_SCANCODE_APOSTROPHE, "'", '\'', '"'},
    {226, SDL_SCANCODE_NONUSBACKSLASH, "<", '<', '>'},
    {KeyShift, SDL_SCANCODE_UNKNOWN, "Shift", 0, 0},
    {KeyControl, SDL_SCANCODE_UNKNOWN, "Control", 0, 0},
    {KeyAlt, SDL_SCANCODE_UNKNOWN, "Alt", 0, 0},
};

constexpr const char* LetterAndDigitNames[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "", "", "", "", "", "",
    "", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V",
    "W", "X", "Y", "Z"};

constexpr char ShiftedDigits[] = ")!@#$%^&*(";

bool IsLetter(u32 key)
{
    return key >= 'A' && key <= 'Z';
}

bool IsDigit(u32 key)
{
    return key >= '0' && key <= '9';
}

const KeyRow* FindRow(u32 key)
{
    for (const KeyRow& row : Keys)
        if (row.Code == key)
            return &row;
    return nullptr;
}

u32 LetterOrDigit(SDL_Keycode key)
{
    if (key >= SDLK_a && key <= SDLK_z)
        return static_cast<u32>(key - SDLK_a + 'A');
    if (key >= SDLK_0 && key <= SDLK_9)
        return static_cast<u32>(key);
    return 0;
}

// For layouts without Latin letters: what the key is where letters are Latin.
u32 LetterOrDigitByPlace(SDL_Scancode place)
{
    if (place >= SDL_SCANCODE_A && place <= SDL_SCANCODE_Z)
        return static_cast<u32>(place - SDL_SCANCODE_A + 'A');
    if (place >= SDL_SCANCODE_1 && place <= SDL_SCANCODE_9)
        return static_cast<u32>(place - SDL_SCANCODE_1 + '1');
    return place == SDL_SCANCODE_0 ? u32{'0'} : 0;
}

} // namespace

u32 ToKeyCode(const SDL_Keysym& key)
{
    if (const u32 code = LetterOrDigit(key.sym))
        return code;
    for (const KeyRow& row : Keys)
        if (row.Scancode == key.scancode && row.Scancode != SDL_SCANCODE_UNKNOWN)
            return row.Code;
    return LetterOrDigitByPlace(key.scancode);
}

const char* NameOfKey(u32 key)
{
    if (IsLetter(key) || IsDigit(key))
        return LetterAndDigitNames[key - '0'];

    const KeyRow* row = FindRow(key);
    return row ? row->Name : nullptr;
}

u8 CharacterOfKey(u32 key, bool shift, bool control, bool capsLock)
{
    if (IsLetter(key)) {
        if (control)
            return static_cast<u8>(key - 'A' + 1);
        return static_cast<u8>(shift != capsLock ? key : key - 'A' + 'a');
    }
    if (control)
        return 0;
    if (IsDigit(key))
        return static_cast<u8>(shift ? ShiftedDigits[key - '0'] : static_cast<char>(key));

    const KeyRow* row = FindRow(key);
    return row ? static_cast<u8>(shift ? row->Shifted : row->Plain) : u8{0};
}

} // namespace host
