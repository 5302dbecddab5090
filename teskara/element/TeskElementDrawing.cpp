#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/element/TeskTexture.h"

namespace {

// The number that stands in place of a texture in a plain line.
constexpr u32 PlainLineTexture = 1;

// Four bars inside a rectangle: top and bottom over the whole width, left and right between them.
void DrawBars(const tagRECT& rect, u32 width, u32 color)
{
    const i32 innerLeft = WrapAdd(rect.left, width);
    const i32 innerTop = WrapAdd(rect.top, width);
    const i32 innerRight = WrapSub(rect.right, width);
    const i32 innerBottom = WrapSub(rect.bottom, width);
    Host::DrawRect({rect.left, rect.top, rect.right, innerTop}, color);
    Host::DrawRect({rect.left, innerTop, innerLeft, innerBottom}, color);
    Host::DrawRect({innerRight, innerTop, rect.right, innerBottom}, color);
    Host::DrawRect({rect.left, innerBottom, rect.right, rect.bottom}, color);
}

tagRECT AsRect(const _Line& line)
{
    return {line.x1, line.y1, line.x2, line.y2};
}

// False: the host refused one of them, or there is no list.
bool DrawEachLine(TeskDrawRecord& record, const _Line* lines, u32 count, u32 width)
{
    if (!lines)
        return count == 0;

    bool done = true;
    for (u32 index = 0; index < count; ++index) {
        record.Destination = AsRect(lines[index]);
        done &= Host::DrawLine(record, width);
    }
    return done;
}

} // namespace

u32 TeskElement::AdjustColor(u32 color) const
{
    const QuietFloats quiet;
    const float scaled = static_cast<float>(color >> 24) / 255.0f * AbsoluteAlpha * 255.0f;
    return static_cast<u32>(TruncateToByte(static_cast<double>(scaled))) << 24 | (color & 0x00ffffffu);
}

// Far edges of the screen still count as on it. Without a screen nothing is on it.
bool TeskElement::IsOffScreen(const tagRECT& rect) const
{
    const TeskScreen* screen = g_UIManager.Screen;
    if (!screen)
        return true;

    return rect.right < 0 || rect.bottom < 0 || static_cast<i64>(rect.left) > static_cast<i64>(screen->Width)
        || static_cast<i64>(rect.top) > static_cast<i64>(screen->Height);
}

bool TeskElement::FillRect(const tagRECT& rect, u32 color)
{
    if (!IsOffScreen(rect))
        Host::DrawRect(rect, AdjustColor(color));
    return true;
}

bool TeskElement::FillRectBordered(const tagRECT& rect, u32 color, u32 border, u32 borderColor)
{
    if (border == 0)
        return FillRect(rect, color);
    if (IsOffScreen(rect))
        return true;

    DrawBars(rect, border, AdjustColor(borderColor));
    Host::DrawRect({WrapAdd(rect.left, border), WrapAdd(rect.top, border), WrapSub(rect.right, border),
                       WrapSub(rect.bottom, border)},
        AdjustColor(color));
    return true;
}

bool TeskElement::DrawBorder(const tagRECT& rect, u32 width, u32 color)
{
    DrawBars(rect, width, AdjustColor(color));
    return true;
}

// A line drawn alone has the colour as it was given, and in its alpha byte the low bits of a larger number; hosts rely
// on both. Lines of a list differ.
bool TeskElement::DrawLine(const _Line& line, u32 color, u32 width)
{
    TeskDrawRecord record;
    record.Flags = TextureHasAlpha | TextureHasColorMask;
    record.Destination = AsRect(line);
    record.TextureID = PlainLineTexture;
    record.Alpha = static_cast<u8>((AdjustColor(color) >> 24) * 255u);
    record.ColorMask = color;
    return Host::DrawLine(record, width);
}

bool TeskElement::DrawLines(const _Line* lines, u32 count, u32 color, u32 width)
{
    TeskDrawRecord record;
    record.Flags = TextureHasColorMask;
    record.TextureID = PlainLineTexture;
    record.ColorMask = AdjustColor(color);
    return DrawEachLine(record, lines, count, width);
}

bool TeskElement::DrawLine(const _Line& line, TeskTexture* texture, u32 width)
{
    return DrawLines(&line, 1, texture, width);
}

bool TeskElement::DrawLines(const _Line* lines, u32 count, TeskTexture* texture, u32 width)
{
    TeskDrawRecord record;
    if (!DescribeTexture(record, texture))
        return false;

    return DrawEachLine(record, lines, count, width);
}
