#pragma once

#include "host/display/Font.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <unordered_map>

namespace host {

// All fonts of the host. Fonts of the same name, height and style are one, counted.
class FontLibrary
{
public:
    FontLibrary();
    ~FontLibrary();
    FontLibrary(const FontLibrary&) = delete;
    FontLibrary& operator=(const FontLibrary&) = delete;

    // Makes or shares a font. 0 if the system has none to offer, or for a height of 0.
    u32 Acquire(const char* name, u8 height, bool fixed, bool bold);
    void Release(u32 id);

    // Null for an id that is not in use.
    Font* Find(u32 id) const;

    // How many times fonts were acquired and not released.
    std::size_t Acquired() const;

private:
    using FamilyKey = std::tuple<std::string, bool, bool>; // name, fixed, bold
    using FontKey = std::tuple<std::string, u8, bool, bool>; // name, height, fixed, bold

    struct Entry {
        FontKey Key;
        std::unique_ptr<Font> Value;
        u32 Count = 0;
    };

    FontFamily* FamilyFor(const std::string& name, bool fixed, bool bold);

    FT_Library m_Library = nullptr;
    std::map<FamilyKey, std::unique_ptr<FontFamily>> m_Families;
    std::map<FontKey, u32> m_IDs;
    std::unordered_map<u32, Entry> m_Fonts;
    u32 m_LastID = 0;
};

} // namespace host
