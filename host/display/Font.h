#pragma once

#include "host/display/FontFamily.h"

#include <vector>

namespace host {

// A family at one height. The em is chosen so that the main face's ascent and descent together fit the height.
class Font
{
public:
    // A face of the family at this font's size.
    struct SizedFace {
        const Typeface* Face = nullptr;
        hb_font_t* Shaping = nullptr;
    };

    // The family is borrowed and must have a main face. height in pixels.
    Font(u32 id, FontFamily& family, u8 height);
    ~Font();
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    u32 ID() const { return m_ID; }

    // Size of the em, and distance of the baseline from the top of the text, in pixels.
    float EmSize() const { return m_EmSize; }
    float Baseline() const { return m_Baseline; }

    // The main face's place is 0.
    const SizedFace& FaceAt(std::size_t place) const { return m_Faces[place]; }

    // Place of the face to show a character with; the present one, if it has it.
    std::size_t PlaceFor(char32_t character, std::size_t present);

private:
    std::size_t PlaceOf(const Typeface* face);

    u32 m_ID;
    FontFamily& m_Family;
    float m_EmSize = 0;
    float m_Baseline = 0;
    std::vector<SizedFace> m_Faces;
};

} // namespace host
