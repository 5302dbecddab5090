#pragma once

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Types.h"
#include "teskara/markup/XMLArena.h"

#include <array>
#include <cstddef>
#include <string_view>

// Whether a name has exactly these characters, all of them ASCII. name: terminated.
inline bool IsSpelled(std::u16string_view units, const char* name)
{
    for (const char16_t unit : units)
        if (unit != static_cast<u8>(*name++) || unit > 127)
            return false;
    return *name == 0;
}

// Remembers the names of the tags and attributes read last. A document says the same few names again and again; they
// are stored and hashed once, and again only if another name has taken their place here.
class XMLNameTable
{
public:
    // units: not empty. store: makes a text of the units.
    template <typename Store> XMLName Get(std::u16string_view units, Store store)
    {
        XMLName& name = m_Names[(units.front() * 5u + units.back() + units.size() * 16u) % Size];
        if (name.Text && IsSpelled(units, name.Text))
            return name;

        const XMLText text = store(units);
        name = text.Text ? XMLName{text.Text, text.Length, FoldedHash(text.View())} : XMLName{};
        return name;
    }

private:
    static constexpr std::size_t Size = 128;

    std::array<XMLName, Size> m_Names{};
};
