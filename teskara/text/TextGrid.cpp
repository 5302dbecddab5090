#include "teskara/text/TextGrid.h"

#include "teskara/core/Numbers.h"

#include <algorithm>
#include <utility>

namespace {

// Lowers a distance to a multiple of a step; one that is negative is raised.
i32 WholeSteps(i32 distance, i32 step)
{
    return step > 0 ? distance - distance % step : distance;
}

// One coordinate of a point in the pane.
i32 SnapCoordinate(i32 value, u32 extent, u32 border, i32 margin, i32 step)
{
    const i32 least = static_cast<i32>(border);
    const i32 most = WrapSub(extent, border);
    if (value < least)
        return least;
    if (value > most)
        return most;

    const i32 origin = WrapAdd(border, margin);
    return WrapAdd(WholeSteps(WrapSub(value, origin), step), origin);
}

i32 ClampCoordinate(i32 value, i32 near, u32 extent)
{
    return std::max(near, std::min(value, WrapAdd(near, extent)));
}

} // namespace

i32 TextGrid::Pitch() const
{
    return WrapAdd(CharacterHeight, 1);
}

void TextGrid::Snap(_Point2i& point) const
{
    const i32 x = SnapCoordinate(WrapSub(point.x, X), Width, Border, LeftMargin, CharacterWidth);
    const i32 y = SnapCoordinate(WrapSub(point.y, Y), Height, Border, TopMargin, Pitch());
    point = {WrapAdd(x, X), WrapAdd(y, Y)};
}

void TextGrid::Clamp(_Point2i& point) const
{
    point = {ClampCoordinate(point.x, X, Width), ClampCoordinate(point.y, Y, Height)};
}

std::optional<TextBlock> TextGrid::BlockUnder(tagRECT& selection) const
{
    if (selection.right == selection.left || selection.bottom == selection.top || CharacterWidth < 1 || Pitch() < 1)
        return std::nullopt;

    if (selection.right < selection.left)
        std::swap(selection.left, selection.right);
    if (selection.bottom < selection.top)
        std::swap(selection.top, selection.bottom);

    // A selection that begins left of the text keeps its place on the screen for a column, while one above the text
    // begins with the first row.
    const i32 left = WrapAdd(WrapAdd(X, Border), LeftMargin);
    const i32 top = WrapAdd(WrapAdd(Y, Border), TopMargin);
    selection.left = selection.left >= left ? WrapSub(selection.left, left) : left;
    selection.right = WrapSub(selection.right, left);
    selection.top = selection.top < top ? 0 : WrapSub(selection.top, top);
    selection.bottom = WrapSub(selection.bottom, top);

    const i32 firstColumn = selection.left / CharacterWidth;
    return TextBlock{firstColumn, selection.right / CharacterWidth - firstColumn, selection.top / Pitch(),
        WrapAdd(selection.bottom, CharacterHeight) / Pitch()};
}
