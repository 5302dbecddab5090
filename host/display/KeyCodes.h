#pragma once

#include "teskara/core/Types.h"

#include <SDL.h>

namespace host {

// Key codes are those of the interface files: Windows virtual-key codes.
enum : u32 {
    KeyShift = 16,
    KeyControl = 17,
    KeyAlt = 18,
    KeyCapsLock = 20,
    KeyNumLock = 144,
    KeyTypedText = 231, // stands for text that no single key gave
};

// The code of an SDL key; 0 if it has none.
u32 ToKeyCode(const SDL_Keysym& key);

// A key's name for scripts; null if it has none. The text is static.
const char* NameOfKey(u32 key);

// The character that a key gives on an American keyboard, as a byte; 0 if none. Control with a letter gives a control
// character.
u8 CharacterOfKey(u32 key, bool shift, bool control, bool capsLock);

} // namespace host
