#include "host/display/FontFamily.h"

#include <string_view>

namespace host {

namespace {

constexpr const char* DefaultName = "DejaVu Sans";
constexpr const char* DefaultFixedName = "DejaVu Sans Mono";

void AddName(FcPattern* pattern, const char* name)
{
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(name));
}

FcPattern* NewPattern(const std::string& name, bool fixed, bool bold)
{
    FcPattern* pattern = FcPatternCreate();
    if (!name.empty())
        AddName(pattern, name.c_str());
    AddName(pattern, fixed ? DefaultFixedName : DefaultName);
    AddName(pattern, fixed ? "monospace" : "sans-serif");
    FcPatternAddInteger(pattern, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern, FC_SLANT, FC_SLANT_ROMAN);
    FcPatternAddBool(pattern, FC_SCALABLE, FcTrue);
    if (fixed)
        FcPatternAddInteger(pattern, FC_SPACING, FC_MONO);
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    return pattern;
}

// Shaping reads the tables of these two formats; faces in colour have no outlines to draw.
bool IsUsable(FcPattern* pattern)
{
    FcChar8* format = nullptr;
    if (FcPatternGetString(pattern, FC_FONTFORMAT, 0, &format) != FcResultMatch)
        return false;

    const std::string_view name = reinterpret_cast<const char*>(format);
    FcBool color = FcFalse;
    FcPatternGetBool(pattern, FC_COLOR, 0, &color);
    return !color && (name == "TrueType" || name == "CFF");
}

} // namespace

FontFamily::FontFamily(FT_Library library, const std::string& name, bool fixed, bool bold)
    : m_Library(library), m_Bold(bold)
{
    FcPattern* pattern = NewPattern(name, fixed, bold);
    FcResult result = FcResultMatch;
    m_Sorted = FcFontSort(nullptr, pattern, FcTrue, nullptr, &result);
    FcPatternDestroy(pattern);
    if (!m_Sorted)
        return;

    for (int index = 0; index < m_Sorted->nfont; ++index)
        if (IsUsable(m_Sorted->fonts[index]))
            m_Candidates.push_back({m_Sorted->fonts[index], nullptr, false});
}

FontFamily::~FontFamily()
{
    m_Candidates.clear();
    if (m_Sorted)
        FcFontSetDestroy(m_Sorted);
}

const Typeface* FontFamily::Main()
{
    for (Candidate& candidate : m_Candidates)
        if (const Typeface* face = Open(candidate))
            return face;
    return nullptr;
}

const Typeface* FontFamily::ForCharacter(char32_t character)
{
    for (Candidate& candidate : m_Candidates) {
        FcCharSet* characters = nullptr;
        if (FcPatternGetCharSet(candidate.Pattern, FC_CHARSET, 0, &characters) != FcResultMatch
            || !FcCharSetHasChar(characters, character))
            continue;

        const Typeface* face = Open(candidate);
        if (face && face->HasCharacter(character))
            return face;
    }
    return nullptr;
}

const Typeface* FontFamily::Open(Candidate& candidate)
{
    if (candidate.Tried)
        return candidate.Face.get();

    candidate.Tried = true;
    FcChar8* file = nullptr;
    int index = 0;
    int weight = FC_WEIGHT_REGULAR;
    if (FcPatternGetString(candidate.Pattern, FC_FILE, 0, &file) != FcResultMatch)
        return nullptr;

    FcPatternGetInteger(candidate.Pattern, FC_INDEX, 0, &index);
    FcPatternGetInteger(candidate.Pattern, FC_WEIGHT, 0, &weight);
    const bool embolden = m_Bold && weight < FC_WEIGHT_DEMIBOLD;
    candidate.Face = Typeface::Open(m_Library, reinterpret_cast<const char*>(file), index, embolden);
    return candidate.Face.get();
}

} // namespace host
