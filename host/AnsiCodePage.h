#pragma once

#include "teskara/core/Types.h"

namespace host {

// The code page through which typed characters come: Windows-1252. A character that has no byte there borrows the ones
// that the page leaves open, and keeps them until the next such character comes. So every character can be typed.
class AnsiCodePage
{
public:
    // Writes a character as one or two bytes and returns how many.
    int Encode(char32_t character, char* bytes);

    // The unit that has borrowed a byte; 0 if none has.
    char16_t BorrowerOf(u8 byte) const;

private:
    char16_t m_Borrowers[2] = {};
};

} // namespace host
