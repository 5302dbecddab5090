#pragma once

#include "teskara/core/Types.h"

#include <optional>
#include <string>

// A US keyboard. Codes are Windows virtual-key codes.

enum : u32 {
    KeyShift = 16,
    KeyControl = 17,
    KeyCapsLock = 20,
    KeyNumLock = 144,
};

struct KeyPress {
    u32 Code = 0;
    bool Shift = false;
};

// The key that gives the character; nothing if no key does.
std::optional<KeyPress> FindKeyPress(char character);

// What a key gives with the keys of keyState held (0x80) or toggled (1); empty if it gives no character.
std::string TranslateKey(u32 code, const u8* keyState);

// Letters and digits by their character, the others by their number.
std::string KeyNameFor(u32 code);
