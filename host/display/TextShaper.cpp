#include "host/display/TextShaper.h"

#include "host/display/Characters.h"

#include <functional>

namespace host {

namespace {

constexpr std::size_t TextsKept = 4096;

int ToPixels(hb_position_t position)
{
    return (position + 32) >> 6;
}

// A ligature would make a text narrower than its letters, which callers measure one by one.
constexpr hb_feature_t Features[] = {
    {HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    {HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
};

} // namespace

std::size_t TextShaper::KeyHash::operator()(const KeyView& key) const
{
    return std::hash<std::string_view>()(key.Text) ^ (key.Font * std::size_t{0x9E3779B97F4A7C15});
}

TextShaper::TextShaper() : m_Buffer(hb_buffer_create()) { }

TextShaper::~TextShaper()
{
    hb_buffer_destroy(m_Buffer);
}

ShapedText& TextShaper::Shape(Font& font, std::string_view text)
{
    const KeyView key = {font.ID(), text};
    const auto recent = m_Recent.find(key);
    if (recent != m_Recent.end())
        return recent->second;

    RotateWhenFull();
    const auto older = m_Older.find(key);
    if (older != m_Older.end())
        return m_Recent.insert(m_Older.extract(older)).position->second;

    ShapedText& shaped = m_Recent[Key{font.ID(), std::string(text)}];
    ShapeLine(font, text, shaped);
    return shaped;
}

int TextShaper::CharacterWidth(Font& font, u32 character)
{
    // Callers that walk a text byte by byte ask for parts of characters: the first part counts as a letter of medium
    // width, the others as nothing, so that the sum comes close.
    if (character >= 0x80 && character < 0x100)
        return character < 0xC0 ? 0 : CharacterWidth(font, 'n');

    m_Character.clear();
    AppendUtf8(m_Character, character);
    return Shape(font, m_Character).Width;
}

void TextShaper::ShapeLine(Font& font, std::string_view text, ShapedText& shaped)
{
    m_Line.assign(text);
    for (char& character : m_Line)
        if (static_cast<unsigned char>(character) < ' ' || character == 0x7F)
            character = ' ';

    std::size_t start = 0;
    std::size_t place = 0;
    for (std::size_t at = 0; at < m_Line.size();) {
        const std::size_t before = at;
        const std::size_t next = font.PlaceFor(DecodeCharacter(m_Line, at), place);
        if (next == place)
            continue;
        ShapeRun(font.FaceAt(place), start, before - start, shaped);
        start = before;
        place = next;
    }
    ShapeRun(font.FaceAt(place), start, m_Line.size() - start, shaped);
}

void TextShaper::ShapeRun(const Font::SizedFace& face, std::size_t start, std::size_t length, ShapedText& shaped)
{
    if (length == 0)
        return;

    hb_buffer_clear_contents(m_Buffer);
    hb_buffer_add_utf8(m_Buffer, m_Line.data(), static_cast<int>(m_Line.size()), static_cast<unsigned>(start),
        static_cast<int>(length));
    hb_buffer_guess_segment_properties(m_Buffer);
    hb_shape(face.Shaping, m_Buffer, Features, static_cast<unsigned>(std::size(Features)));

    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(m_Buffer, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(m_Buffer, &count);
    for (unsigned index = 0; index < count; ++index) {
        const hb_glyph_position_t& position = positions[index];
        shaped.Glyphs.push_back({face.Face, infos[index].codepoint, shaped.Width + ToPixels(position.x_offset),
            -ToPixels(position.y_offset), 0});
        shaped.Width += ToPixels(position.x_advance);
    }
}

void TextShaper::RotateWhenFull()
{
    if (m_Recent.size() < TextsKept)
        return;

    m_Older.clear();
    m_Recent.swap(m_Older);
}

} // namespace host
