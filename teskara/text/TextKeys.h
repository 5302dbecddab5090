#pragma once

#include "teskara/core/Types.h"

// The keys that text fields act on: Windows virtual-key codes.
enum TextKey : u32 {
    KeyBackspace = 8,
    KeyTab = 9,
    KeyEnter = 13,
    KeyEscape = 27,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyInsert = 45,
    KeyDelete = 46,
    KeyA = 65,
    KeyC = 67,
    KeyV = 86,
    KeySeparator = 108,
};

// Keys from here on give no characters.
constexpr u32 CharacterKeys = 256;
