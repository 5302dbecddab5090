#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ChildWalkBound.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

#include <cmath>

namespace {

// What a field becomes when the parent's dimension is this.
u32 Resolve(u32 value, const ElementPosition& position, u32 parentDimension, u32 (*truncate)(float))
{
    switch (position.Type) {
    case PositionShare:
        return truncate(static_cast<float>(parentDimension) * position.Share());
    case PositionFarEdge:
        return parentDimension - position.Factor;
    default:
        return value;
    }
}

u32 TruncateCoordinate(float value)
{
    return static_cast<u32>(TruncateToI32(value));
}

u32 TruncateDimension(float value)
{
    return TruncateToU32(value);
}

// Moves a coordinate with the parent; true if it changed.
bool FollowCoordinate(i32& value, const ElementPosition& position, u32 parentDimension)
{
    const i32 old = value;
    value = static_cast<i32>(Resolve(static_cast<u32>(value), position, parentDimension, TruncateCoordinate));
    return value != old;
}

bool FollowDimension(u32& value, const ElementPosition& position, u32 parentDimension)
{
    const u32 old = value;
    value = Resolve(value, position, parentDimension, TruncateDimension);
    return value != old;
}

// Distance of a point from an element's centre, in single precision.
float CenterDistance(const TeskElement& element, const _Point2i& point)
{
    const float dx = static_cast<float>(WrapSub(WrapAdd(element.Width >> 1, element.AbsoluteX), point.x));
    const float dy = static_cast<float>(WrapSub(WrapAdd(element.Height >> 1, element.AbsoluteY), point.y));
    return std::sqrt(dy * dy + dx * dx);
}

} // namespace

void TeskElement::RecalculateSize(bool recurse)
{
    bool changed = false;
    if (Parent) {
        changed |= FollowCoordinate(X, PositionX, Parent->Width);
        changed |= FollowDimension(Width, PositionWidth, Parent->Width);
        changed |= FollowCoordinate(Y, PositionY, Parent->Height);
        changed |= FollowDimension(Height, PositionHeight, Parent->Height);
    }

    const ElementWatch self(*this);
    SizeRecalculated(changed);
    if (changed && recurse && self.Exists())
        RecalculateChildrenSize();
}

// A child's new size may run a script that deletes or moves anything.
void TeskElement::RecalculateChildrenSize()
{
    const ElementWatch self(*this);
    ChildWalkBound bound(*this, s_Relinks);
    TeskElement* child = FirstChild;
    while (child && bound.Step()) {
        const ElementWatch watchedChild(*child);
        const ElementWatch next(child->Next);
        child->RecalculateSize(true);
        if (!self.Exists())
            return;

        child = watchedChild.Exists() ? child->Next : next.Get();
    }
}

void TeskElement::SizeRecalculated(bool) { }

void TeskElement::Center()
{
    if (!Parent)
        return;

    X = static_cast<i32>((Parent->Width - Width) >> 1);
    Y = static_cast<i32>((Parent->Height - Height) >> 1);
}

// Both far edges count as inside. A circle has the whole width or height as its radius, so only its far corners are
// cut.
bool TeskElement::HitTest(_Point2i& point)
{
    if (point.x < AbsoluteX || point.y < AbsoluteY || point.x > WrapAdd(AbsoluteX, Width)
        || point.y > WrapAdd(AbsoluteY, Height))
        return false;

    const char* shape = g_UIManager.GetElementMetadata(ID, "HitTest");
    if (!shape || !*shape)
        return true;
    if (EqualsNoCase(shape, "widthCircle"))
        return static_cast<double>(CenterDistance(*this, point)) <= static_cast<double>(Width);
    if (EqualsNoCase(shape, "heightCircle"))
        return static_cast<double>(CenterDistance(*this, point)) <= static_cast<double>(Height);
    return true;
}

TeskElement* TeskElement::FindMouseOver(_Point2i& point, TeskElement* skip)
{
    if (skip == this || !Visible || !HitTest(point))
        return nullptr;

    for (TeskElement* child = skip ? skip->Previous : LastChild; child; child = child->Previous) {
        if (TeskElement* found = child->FindMouseOver(point, nullptr))
            return found;
    }
    return this;
}

tagRECT TeskElement::ScreenRect() const
{
    return {AbsoluteX, AbsoluteY, WrapAdd(AbsoluteX, Width), WrapAdd(AbsoluteY, Height)};
}

void TeskElement::SpreadPosition(i32 absoluteX, i32 absoluteY)
{
    AbsoluteX = absoluteX;
    AbsoluteY = absoluteY;
    for (TeskElement* child = FirstChild; child; child = child->Next)
        child->SpreadPosition(WrapAdd(absoluteX, child->X), WrapAdd(absoluteY, child->Y));
}
