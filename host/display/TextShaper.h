#pragma once

#include "host/display/Font.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

// One glyph of a shaped text. The position is that of its origin, in whole pixels from the start of the baseline.
struct ShapedGlyph {
    const Typeface* Face = nullptr;
    u32 Glyph = 0;
    int X = 0;
    int Y = 0;
    u32 Slot = 0; // in the glyph atlas; see ShapedText::AtlasGeneration
};

// A line of text as glyphs, from left to right.
struct ShapedText {
    std::vector<ShapedGlyph> Glyphs;
    int Width = 0;
    u32 AtlasGeneration = 0; // the atlas's, when the slots were found; 0 for never
};

// Turns texts into glyphs and remembers the ones that were in use lately, so that an unchanged text costs one look-up
// and no memory. Every glyph advances by whole pixels: widths of parts add up to the width of the text.
class TextShaper
{
public:
    TextShaper();
    ~TextShaper();
    TextShaper(const TextShaper&) = delete;
    TextShaper& operator=(const TextShaper&) = delete;

    // Shapes UTF-8. Control characters become blanks. Valid until the next call.
    ShapedText& Shape(Font& font, std::string_view text);

    // Width of a single character; of a byte that is only part of one, see the source.
    int CharacterWidth(Font& font, u32 character);

private:
    struct Key {
        u32 Font;
        std::string Text;
    };
    struct KeyView {
        u32 Font;
        std::string_view Text;
    };
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(const KeyView& key) const;
        std::size_t operator()(const Key& key) const { return operator()(KeyView{key.Font, key.Text}); }
    };
    struct KeyEqual {
        using is_transparent = void;
        template <typename A, typename B> bool operator()(const A& a, const B& b) const
        {
            return a.Font == b.Font && a.Text == b.Text;
        }
    };
    using Texts = std::unordered_map<Key, ShapedText, KeyHash, KeyEqual>;

    void ShapeLine(Font& font, std::string_view text, ShapedText& shaped);
    void ShapeRun(const Font::SizedFace& face, std::size_t start, std::size_t length, ShapedText& shaped);
    void RotateWhenFull();

    Texts m_Recent;
    Texts m_Older; // taken back into m_Recent when used again, else dropped as a whole
    std::string m_Line;
    std::string m_Character;
    hb_buffer_t* m_Buffer;
};

} // namespace host
