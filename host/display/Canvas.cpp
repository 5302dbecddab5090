#include "host/display/Canvas.h"

#include "host/display/LineShape.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

// What lies behind the interface.
constexpr SDL_Color Background = {17, 20, 26, 255};

enum : u32 {
    FlagSource = 1,
    FlagAlpha = 2,
    FlagColorMask = 4,
};

SDL_Color ToColor(u32 argb)
{
    return {
        static_cast<u8>(argb >> 16), static_cast<u8>(argb >> 8), static_cast<u8>(argb), static_cast<u8>(argb >> 24)};
}

u8 Multiply(u8 a, u8 b)
{
    return static_cast<u8>((a * b + 127) / 255);
}

// The colour by which an image is multiplied.
SDL_Color ImageColor(const TeskDrawRecord& record)
{
    SDL_Color color = record.Flags & FlagColorMask ? ToColor(record.ColorMask) : SDL_Color{255, 255, 255, 255};
    if (record.Flags & FlagAlpha)
        color.a = Multiply(color.a, record.Alpha);
    return color;
}

SDL_Color LineColor(const TeskDrawRecord& record)
{
    if (record.TextureID != TextureCache::WhiteID)
        return ImageColor(record);

    // A plain line has its final alpha in its colour. One that is drawn alone has it beside the colour instead, as the
    // low byte of 255 times the alpha, which is the negative of it.
    SDL_Color color = ToColor(record.ColorMask);
    if (record.Flags & FlagAlpha)
        color.a = static_cast<u8>(0 - record.Alpha);
    return color;
}

// Turns an image by quarter turns clockwise: each turn brings the lower left corner to the upper left.
TextureCorners Turn(const TextureCorners& corners, u8 quarterTurns)
{
    TextureCorners turned = corners;
    for (int turn = 0; turn < quarterTurns; ++turn) {
        const SDL_FPoint bottomRight = {turned.TopRight.x + turned.BottomLeft.x - turned.TopLeft.x,
            turned.TopRight.y + turned.BottomLeft.y - turned.TopLeft.y};
        turned = {turned.BottomLeft, turned.TopLeft, bottomRight};
    }
    return turned;
}

// A place in an image, or so far outside that it makes no difference, so that arithmetic with it stays in range.
i32 Near(i32 coordinate)
{
    constexpr i32 Farthest = 1 << 24;
    return std::clamp(coordinate, -Farthest, Farthest);
}

// Any other orientation is as good as none.
u8 QuarterTurns(u8 orientation)
{
    return orientation < 4 ? orientation : u8{0};
}

// Where a part of an image lies after the image was turned clockwise.
tagRECT TurnPart(tagRECT part, int width, int height, u8 quarterTurns)
{
    for (u8 turn = 0; turn < quarterTurns; ++turn) {
        part = {height - part.bottom, part.left, height - part.top, part.right};
        std::swap(width, height);
    }
    return part;
}

struct Span {
    float From;
    float To;
};

// A stretch of the image along one axis as shares of its size. What lies outside of the image shows its last pixel,
// and an empty stretch the pixel at its place, as in the middle of an image that is all border.
Span SharesOf(i32 from, i32 to, int size, float drawn, bool smooth)
{
    const auto whole = static_cast<float>(size);
    float start = std::clamp(static_cast<float>(from), 0.0f, whole);
    float end = std::clamp(static_cast<float>(to), 0.0f, whole);
    if (start == end) {
        start = std::min(start, whole - 1);
        end = start + 1;
    }

    // Enlarged, it begins and ends in the middle of its outer pixels, so that smoothing takes in nothing of the
    // neighbours.
    if (smooth && drawn > std::abs(end - start)) {
        const float inward = end > start ? 0.5f : -0.5f;
        start += inward;
        end -= inward;
    }
    return {start / whole, end / whole};
}

} // namespace

Canvas::Canvas(SDL_Renderer* renderer)
    : m_Renderer(renderer), m_Textures(renderer), m_Atlas(m_Renderer), m_Painter(m_Renderer, m_Atlas, m_Shaper)
{
}

void Canvas::BeginFrame(int width, int height, float scale)
{
    if (scale != m_Scale)
        m_Atlas.Reset();
    m_Scale = scale;
    m_Textures.Collect();
    m_Renderer.BeginFrame(static_cast<int>(std::lround(static_cast<float>(width) * scale)),
        static_cast<int>(std::lround(static_cast<float>(height) * scale)), Background);
}

void Canvas::ResetDevice()
{
    m_Atlas.Reset();
    m_Renderer.Invalidate();
}

void Canvas::DrawRect(const tagRECT& rect, u32 color)
{
    m_Renderer.AddQuad(nullptr, ToTarget(rect), {}, ToColor(color));
}

bool Canvas::DrawTexturedRect(const TeskDrawRecord& record)
{
    Piece piece;
    if (!FindPiece(record, piece))
        return false;

    const PixelRect target = ToTarget(record.Destination);
    m_Renderer.AddQuad(
        piece.Picture->Texture, target, CornersOf(piece, target.Width(), target.Height()), ImageColor(record));
    return true;
}

bool Canvas::DrawLine(const TeskDrawRecord& record, u32 width)
{
    Piece piece;
    if (!FindPiece(record, piece))
        return false;

    const PixelRect ends = ToTarget(record.Destination);
    const float half = m_Scale / 2;
    const LineShape line = {{ends.Left + half, ends.Top + half}, {ends.Right + half, ends.Bottom + half},
        std::max(1.0f, static_cast<float>(width)) * m_Scale};
    const float length = std::hypot(ends.Width(), ends.Height());
    line.AddTo(m_Renderer, piece.Picture->Texture, CornersOf(piece, length, line.Width), LineColor(record));
    return true;
}

u32 Canvas::DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format)
{
    Font* found = m_Fonts.Find(font);
    return found ? m_Painter.Draw(*found, text, {box, ToColor(color), format, m_Scale}) : 0;
}

bool Canvas::MeasureText(u32 font, const char* text, int& width)
{
    Font* found = m_Fonts.Find(font);
    if (!found || !text)
        return false;

    // One byte may be a part of a character, from a caller that measures byte by byte.
    width = text[0] && !text[1] ? m_Shaper.CharacterWidth(*found, static_cast<u8>(text[0]))
                                : m_Shaper.Shape(*found, text).Width;
    return true;
}

bool Canvas::MeasureCharacter(u32 font, u32 character, int& width)
{
    Font* found = m_Fonts.Find(font);
    if (!found)
        return false;

    width = m_Shaper.CharacterWidth(*found, character);
    return true;
}

PixelRect Canvas::ToTarget(const tagRECT& rect) const
{
    return {std::round(static_cast<float>(rect.left) * m_Scale), std::round(static_cast<float>(rect.top) * m_Scale),
        std::round(static_cast<float>(rect.right) * m_Scale), std::round(static_cast<float>(rect.bottom) * m_Scale)};
}

bool Canvas::FindPiece(const TeskDrawRecord& record, Piece& piece)
{
    const Image* image = m_Textures.Find(record.TextureID);
    if (!image)
        return false;

    piece = {image, {0, 0, image->Width, image->Height}, QuarterTurns(record.Orientation)};
    if (record.Flags & FlagSource)
        piece.Part = {
            Near(record.Source.left), Near(record.Source.top), Near(record.Source.right), Near(record.Source.bottom)};
    if (piece.Turns == 0 || !m_Renderer.IsSoftware())
        return true;

    // The processor draws upright pieces only, so it gets them from an image that is turned already.
    piece.Part = TurnPart(piece.Part, image->Width, image->Height, piece.Turns);
    piece.Picture = m_Textures.FindTurned(record.TextureID, piece.Turns);
    piece.Turns = 0;
    return piece.Picture != nullptr;
}

TextureCorners Canvas::CornersOf(const Piece& piece, float width, float height) const
{
    // The processor stretches each part of an image by itself and needs its exact edges.
    const bool smooth = !m_Renderer.IsSoftware();
    const bool upright = piece.Turns % 2 == 0;
    const Image& image = *piece.Picture;
    const Span x = SharesOf(piece.Part.left, piece.Part.right, image.Width, upright ? width : height, smooth);
    const Span y = SharesOf(piece.Part.top, piece.Part.bottom, image.Height, upright ? height : width, smooth);
    return Turn({{x.From, y.From}, {x.To, y.From}, {x.From, y.To}}, piece.Turns);
}

} // namespace host
