#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ColorCodes.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"

#include <cstring>

namespace {

using FontDraw = u64 (TeskFont::*)(const char* text, i32 x, i32 y, u64 width);

// Draws between x and right, where there is room.
u64 DrawUpTo(TeskFont* font, FontDraw draw, const char* text, i32 x, i32 y, i32 right)
{
    if (!font || x >= right)
        return 0;

    return (font->*draw)(text, x, y, static_cast<u64>(static_cast<i64>(right) - x));
}

bool IsEmpty(const char* text)
{
    return !text || !*text;
}

i32 Advance(i32 x, u64 width)
{
    return WrapAdd(x, static_cast<u32>(width));
}

// Draws a text piece by piece, each in its colour. drawPiece(piece, x) gives the width drawn. Returns the width of all.
template <class DrawPiece> u64 DrawPieces(TeskFont& font, const char* text, i32 x, DrawPiece drawPiece)
{
    char buffer[Limits::TextBuffer2048];
    CopyBounded(buffer, sizeof(buffer), text);

    const u32 fontColor = font.Color;
    ColorCodes::Stack colors;
    u64 width = 0;
    char* next = std::strchr(buffer, ColorCodes::Mark);
    if (next)
        *next++ = 0;
    if (*buffer)
        width += drawPiece(buffer, x);
    while (next) {
        char* piece = next;
        next = std::strchr(piece, ColorCodes::Mark);
        if (next)
            *next++ = 0;
        const char* rest = colors.Apply(piece, font.Color);
        width += drawPiece(rest, Advance(x, width));
    }
    font.Color = fontColor;
    return width;
}

} // namespace

u64 TeskElement::DrawTextA(TeskFont* font, const char* text, i32 x, i32 y)
{
    return font ? font->Draw(text, x, y, 0) : 0;
}

u64 TeskElement::DrawTextClipped(TeskFont* font, const char* text, i32 x, i32 y)
{
    return DrawUpTo(font, &TeskFont::Draw, text, x, y, WrapAdd(AbsoluteX, Width));
}

u64 TeskElement::DrawTextClipped(TeskFont* font, const char* text, i32 x, i32 y, i32 right)
{
    return IsEmpty(text) ? 0 : DrawUpTo(font, &TeskFont::Draw, text, x, y, right);
}

u64 TeskElement::DrawTextCenter(TeskFont* font, const char* text, i32 x, i32 y)
{
    return DrawTextCenter(font, text, x, y, WrapAdd(AbsoluteX, Width));
}

u64 TeskElement::DrawTextCenter(TeskFont* font, const char* text, i32 x, i32 y, i32 right)
{
    return IsEmpty(text) ? 0 : DrawUpTo(font, &TeskFont::DrawCenter, text, x, y, right);
}

u64 TeskElement::DrawTextRight(TeskFont* font, const char* text, i32 x, i32 y)
{
    return DrawTextRight(font, text, x, y, WrapAdd(AbsoluteX, Width));
}

u64 TeskElement::DrawTextRight(TeskFont* font, const char* text, i32 x, i32 y, i32 right)
{
    return IsEmpty(text) ? 0 : DrawUpTo(font, &TeskFont::DrawRight, text, x, y, right);
}

u64 TeskElement::DrawColoredText(TeskFont* font, const char* text, i32 x, i32 y)
{
    if (!font || IsEmpty(text))
        return 0;
    if (!std::strchr(text, ColorCodes::Mark))
        return DrawTextA(font, text, x, y);

    return DrawPieces(*font, text, x, [&](const char* piece, i32 pieceX) { return DrawTextA(font, piece, pieceX, y); });
}

u64 TeskElement::DrawColoredTextClipped(TeskFont* font, const char* text, i32 x, i32 y, i32 right)
{
    if (!font || IsEmpty(text))
        return 0;
    if (!std::strchr(text, ColorCodes::Mark))
        return DrawTextClipped(font, text, x, y, right);

    return DrawPieces(
        *font, text, x, [&](const char* piece, i32 pieceX) { return DrawTextClipped(font, piece, pieceX, y, right); });
}

u64 TeskElement::ColorStrlen(const char* text)
{
    u64 length = 0;
    for (const char* place = TextOrEmpty(text); *place;) {
        if (*place == ColorCodes::Mark) {
            place = ColorCodes::Skip(place);
        } else {
            ++length;
            ++place;
        }
    }
    return length;
}

void TeskElement::StripColor(const char* from, char* to)
{
    if (!to)
        return;

    for (const char* place = TextOrEmpty(from); *place;) {
        if (*place == ColorCodes::Mark)
            place = ColorCodes::Skip(place);
        else
            *to++ = *place++;
    }
    *to = 0;
}
