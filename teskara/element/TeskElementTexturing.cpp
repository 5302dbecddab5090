#include "teskara/core/HostCalls.h"
#include "teskara/core/HostInterface.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskTexture.h"

#include <array>
#include <memory>
#include <new>

namespace {

// Parts of a bordered image, or of the rectangle that it is drawn into.
enum Part : u8 { TopLeft, Top, TopRight, Left, Center, Right, BottomLeft, Bottom, BottomRight };

constexpr u32 PartCount = 9;
constexpr u32 OrientationCount = 4;

// The pieces of the rectangle, in the order in which they are drawn.
constexpr Part PieceOrder[PartCount] = {TopLeft, Left, TopRight, Bottom, Top, Right, BottomLeft, BottomRight, Center};

// For each orientation, which part of the image lies on each piece: quarter turns clockwise.
constexpr Part ImageParts[OrientationCount][PartCount] = {
    // clang-format off
    // top left    left    top right    bottom  top     right   bottom left  bottom right  center
    {TopLeft,      Left,   TopRight,    Bottom, Top,    Right,  BottomLeft,  BottomRight,  Center},
    {BottomLeft,   Bottom, TopLeft,     Right,  Left,   Top,    BottomRight, TopRight,     Center},
    {BottomRight,  Right,  BottomLeft,  Top,    Bottom, Left,   TopRight,    TopLeft,      Center},
    {TopRight,     Top,    BottomRight, Left,   Right,  Bottom, TopLeft,     BottomLeft,   Center},
    // clang-format on
};

// A rectangle cut into nine parts by a border.
class NineParts
{
public:
    NineParts(const tagRECT& rect, u32 border)
        : m_X{rect.left, WrapAdd(rect.left, border), WrapSub(rect.right, border), rect.right},
          m_Y{rect.top, WrapAdd(rect.top, border), WrapSub(rect.bottom, border), rect.bottom}
    {
    }

    tagRECT operator[](Part part) const
    {
        const std::size_t column = part % 3;
        const std::size_t row = part / 3;
        return {m_X[column], m_Y[row], m_X[column + 1], m_Y[row + 1]};
    }

private:
    std::array<i32, 4> m_X;
    std::array<i32, 4> m_Y;
};

tagRECT SourceOf(const TeskTexture& texture)
{
    return {texture.Left, texture.Top, texture.Right, texture.Bottom};
}

TeskDrawRecord AsDrawRecord(const TeskTexturedRect& rect)
{
    TeskDrawRecord record;
    record.Flags = rect.Flags;
    record.Destination = rect.Destination;
    record.Source = rect.Source;
    record.TextureID = rect.Texture ? rect.Texture->TextureID : 0;
    record.Alpha = rect.Alpha;
    record.Orientation = rect.Orientation;
    record.ColorMask = rect.ColorMask;
    return record;
}

} // namespace

// Everything but the destination. False: there is no texture, or its image cannot be loaded.
bool TeskElement::DescribeTexture(TeskDrawRecord& record, const TeskTexture* texture) const
{
    if (!texture || !texture->Prepare())
        return false;

    record.Flags = texture->Flags | TextureHasAlpha;
    record.Source = SourceOf(*texture);
    record.TextureID = texture->TextureID;
    record.Alpha = TruncateToByte(static_cast<double>(AbsoluteAlpha * texture->Alpha * 255.0f));
    record.Orientation = texture->Orientation;
    record.ColorMask = texture->ColorMask;
    return true;
}

bool TeskElement::TexturedRect(const tagRECT& rect, TeskTexture* texture)
{
    TeskDrawRecord record;
    if (!DescribeTexture(record, texture))
        return false;

    record.Destination = rect;
    return Host::DrawTexturedRect(record);
}

// Corners keep their size, edges and centre stretch. All pieces go to the host at once.
bool TeskElement::TexturedRectBordered(const tagRECT& rect, TeskTexture* texture, u32 border)
{
    TeskDrawRecord piece;
    if (!texture || !texture->Prepare() || !texture->GetSize() || !DescribeTexture(piece, texture))
        return false;
    if (border == 0 || texture->Border == 0) {
        piece.Destination = rect;
        return Host::DrawTexturedRect(piece);
    }

    const NineParts destination(rect, border);
    const NineParts source(SourceOf(*texture), texture->Border);
    const auto& imageParts = ImageParts[texture->Orientation < OrientationCount ? texture->Orientation : 0];
    std::array<TeskDrawRecord, PartCount> pieces;
    for (u32 index = 0; index < PartCount; ++index) {
        piece.Destination = destination[PieceOrder[index]];
        piece.Source = source[imageParts[index]];
        pieces[index] = piece;
    }
    return Host::DrawTexturedRects(PartCount, pieces.data());
}

// Only the first texture is looked at, since the rectangles of one call share theirs.
bool TeskElement::TexturedRects(u32 count, const TeskTexturedRect* records)
{
    if (!records)
        return false;
    if (count == 0)
        return true;
    if (!records[0].Texture || !records[0].Texture->Prepare())
        return false;

    const std::unique_ptr<TeskDrawRecord[]> drawRecords(new (std::nothrow) TeskDrawRecord[count]);
    if (!drawRecords)
        return false;

    for (u32 index = 0; index < count; ++index)
        drawRecords[index] = AsDrawRecord(records[index]);
    return Host::DrawTexturedRects(count, drawRecords.get());
}
