#include "host/display/FontLibrary.h"

namespace host {

namespace {

// They share what the system's list of fonts takes; it goes with the last one.
int g_Libraries = 0;

} // namespace

FontLibrary::FontLibrary()
{
    ++g_Libraries;
    if (FT_Init_FreeType(&m_Library) != 0)
        m_Library = nullptr;
}

FontLibrary::~FontLibrary()
{
    m_Fonts.clear();
    m_Families.clear();
    if (m_Library)
        FT_Done_FreeType(m_Library);
    if (--g_Libraries == 0)
        FcFini();
}

u32 FontLibrary::Acquire(const char* name, u8 height, bool fixed, bool bold)
{
    if (!m_Library || height == 0)
        return 0;

    const FontKey key = {name ? name : "", height, fixed, bold};
    const auto known = m_IDs.find(key);
    if (known != m_IDs.end()) {
        ++m_Fonts[known->second].Count;
        return known->second;
    }

    FontFamily* family = FamilyFor(std::get<0>(key), fixed, bold);
    if (!family->Main())
        return 0;

    const u32 id = ++m_LastID;
    m_Fonts[id] = {key, std::make_unique<Font>(id, *family, height), 1};
    m_IDs[key] = id;
    return id;
}

std::size_t FontLibrary::Acquired() const
{
    std::size_t count = 0;
    for (const auto& font : m_Fonts)
        count += font.second.Count;
    return count;
}

void FontLibrary::Release(u32 id)
{
    const auto found = m_Fonts.find(id);
    if (found == m_Fonts.end() || --found->second.Count > 0)
        return;

    m_IDs.erase(found->second.Key);
    m_Fonts.erase(found);
}

Font* FontLibrary::Find(u32 id) const
{
    const auto found = m_Fonts.find(id);
    return found == m_Fonts.end() ? nullptr : found->second.Value.get();
}

FontFamily* FontLibrary::FamilyFor(const std::string& name, bool fixed, bool bold)
{
    std::unique_ptr<FontFamily>& family = m_Families[{name, fixed, bold}];
    if (!family)
        family = std::make_unique<FontFamily>(m_Library, name, fixed, bold);
    return family.get();
}

} // namespace host
