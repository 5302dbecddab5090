#include "host/display/Font.h"

#include <algorithm>

namespace host {

Font::Font(u32 id, FontFamily& family, u8 height) : m_ID(id), m_Family(family)
{
    const Typeface* main = family.Main();
    m_EmSize = std::max(1.0f, static_cast<float>(height) / (main->Ascent() + main->Descent()));
    m_Baseline = main->Ascent() * m_EmSize;
    PlaceOf(main);
}

Font::~Font()
{
    for (const SizedFace& face : m_Faces)
        hb_font_destroy(face.Shaping);
}

std::size_t Font::PlaceFor(char32_t character, std::size_t present)
{
    if (character < U' ' || m_Faces[present].Face->HasCharacter(character))
        return present;
    if (m_Faces[0].Face->HasCharacter(character))
        return 0;

    const Typeface* face = m_Family.ForCharacter(character);
    return face ? PlaceOf(face) : 0;
}

std::size_t Font::PlaceOf(const Typeface* face)
{
    const auto found =
        std::find_if(m_Faces.begin(), m_Faces.end(), [face](const SizedFace& sized) { return sized.Face == face; });
    if (found != m_Faces.end())
        return static_cast<std::size_t>(found - m_Faces.begin());

    m_Faces.push_back({face, face->NewShapingFont(m_EmSize)});
    return m_Faces.size() - 1;
}

} // namespace host
