#include "host/display/Typeface.h"

#include FT_OUTLINE_H

#include <cmath>

namespace host {

namespace {

u32 g_LastID = 0;

// Only the vertical hinting: stems keep their shape, and lines of text stay sharp at top and bottom.
constexpr FT_Int32 LoadFlags = FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP;

// A bolder outline grows by this share of the em.
constexpr FT_Pos EmboldenShare = 24;

hb_face_t* OpenShape(const std::string& file, int index)
{
    hb_blob_t* blob = hb_blob_create_from_file_or_fail(file.c_str());
    if (!blob)
        return nullptr;

    hb_face_t* shape = hb_face_create(blob, static_cast<unsigned>(index));
    hb_blob_destroy(blob);
    return shape;
}

} // namespace

std::unique_ptr<Typeface> Typeface::Open(FT_Library library, const std::string& file, int index, bool embolden)
{
    FT_Face face = nullptr;
    if (FT_New_Face(library, file.c_str(), index, &face) != 0)
        return nullptr;

    hb_face_t* shape = FT_IS_SCALABLE(face) && face->units_per_EM > 0 ? OpenShape(file, index) : nullptr;
    if (!shape) {
        FT_Done_Face(face);
        return nullptr;
    }
    return std::unique_ptr<Typeface>(new Typeface(face, shape, embolden));
}

Typeface::Typeface(FT_Face face, hb_face_t* shape, bool embolden)
    : m_ID(++g_LastID), m_Face(face), m_Shape(shape), m_Embolden(embolden)
{
}

Typeface::~Typeface()
{
    hb_face_destroy(m_Shape);
    FT_Done_Face(m_Face);
}

bool Typeface::HasCharacter(char32_t character) const
{
    return FT_Get_Char_Index(m_Face, character) != 0;
}

float Typeface::Ascent() const
{
    return static_cast<float>(m_Face->ascender) / static_cast<float>(m_Face->units_per_EM);
}

float Typeface::Descent() const
{
    return static_cast<float>(-m_Face->descender) / static_cast<float>(m_Face->units_per_EM);
}

hb_font_t* Typeface::NewShapingFont(float emSize) const
{
    hb_font_t* font = hb_font_create(m_Shape);
    const int scale = static_cast<int>(std::lround(emSize * 64));
    hb_font_set_scale(font, scale, scale);
    return font;
}

FT_GlyphSlot Typeface::Rasterize(u32 glyph, u32 emSize) const
{
    if (FT_Set_Char_Size(m_Face, 0, static_cast<FT_F26Dot6>(emSize), 72, 72) != 0
        || FT_Load_Glyph(m_Face, glyph, LoadFlags) != 0)
        return nullptr;

    if (m_Embolden && m_Face->glyph->format == FT_GLYPH_FORMAT_OUTLINE)
        FT_Outline_Embolden(&m_Face->glyph->outline, static_cast<FT_Pos>(emSize) / EmboldenShare);
    return FT_Render_Glyph(m_Face->glyph, FT_RENDER_MODE_NORMAL) == 0 ? m_Face->glyph : nullptr;
}

} // namespace host
