#pragma once

#include "teskara/core/Types.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include <hb.h>

#include <memory>
#include <string>

namespace host {

// One face of one font file, at no size of its own.
class Typeface
{
public:
    // Opens a face. Null if the file holds none that can be scaled. embolden: the outlines are to be made bolder.
    static std::unique_ptr<Typeface> Open(FT_Library library, const std::string& file, int index, bool embolden);
    ~Typeface();
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    // A number that no other face of this process has or gets.
    u32 ID() const { return m_ID; }

    bool HasCharacter(char32_t character) const;

    // Height above and depth below the baseline, both positive, for an em of 1.
    float Ascent() const;
    float Descent() const;

    // A font of this face for shaping, with positions in 64ths of a pixel. The caller destroys it.
    hb_font_t* NewShapingFont(float emSize) const;

    // Draws a glyph with grey levels. emSize in 64ths of a pixel. Null if there is no such glyph; else valid until the
    // next call.
    FT_GlyphSlot Rasterize(u32 glyph, u32 emSize) const;

private:
    Typeface(FT_Face face, hb_face_t* shape, bool embolden);

    u32 m_ID;
    FT_Face m_Face;
    hb_face_t* m_Shape;
    bool m_Embolden;
};

} // namespace host
