#pragma once

#include "teskara/core/Types.h"

#include <string_view>

// What a key gives in the user's layout, with the keys that are held now: one or two characters, in UTF-8.
class TypedText
{
public:
    // key: below CharacterKeys.
    explicit TypedText(u32 key);

    // Empty if the key gives no character.
    std::string_view Bytes() const { return {m_Bytes, m_Size}; }

private:
    static constexpr std::size_t MostCharacters = 2;

    char m_Bytes[3 * MostCharacters];
    std::size_t m_Size = 0;
};
