#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"
#include "teskara/element/ChildWalkBound.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

namespace {

// What a field becomes when the parent's dimension is this.
u32 Resolve(u32 value, const ElementPosition& position, u32 parentDimension, u32 (*truncate)(float))
{
    switch (position.Type) {
    case PositionShare: {
        const QuietFloats quiet;
        return truncate(static_cast<float>(parentDimension) * position.Share());
    }
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
