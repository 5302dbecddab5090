// What lies under a point.

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ChildIndex.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

#include <cmath>

namespace {

// Distance of a point from an element's centre, in single precision.
float CenterDistance(const TeskElement& element, const _Point2i& point)
{
    const float dx = static_cast<float>(WrapSub(WrapAdd(element.Width >> 1, element.AbsoluteX), point.x));
    const float dy = static_cast<float>(WrapSub(WrapAdd(element.Height >> 1, element.AbsoluteY), point.y));
    return std::sqrt(dy * dy + dx * dx);
}

} // namespace

// A circle has the whole width or height as its radius, so only its far corners are cut.
bool TeskElement::HitTest(_Point2i& point)
{
    if (!Covers(point))
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

    const ElementWatch self(*this);
    TeskElement* child = CandidateFrom(skip ? skip->Previous : LastChild, point);
    while (child) {
        const ElementWatch watch(*child);
        const ElementWatch below(child->Previous);
        if (TeskElement* found = child->FindMouseOver(point, nullptr))
            return found;
        if (!self.Exists())
            return nullptr;
        TeskElement* next = watch.Exists() ? child->Previous : below.Get();
        child = CandidateFrom(next && next->Parent == this ? next : nullptr, point);
    }
    return this;
}

// The first child, from this one downwards, in which something may be found.
TeskElement* TeskElement::CandidateFrom(TeskElement* child, const _Point2i& point)
{
    if (!child)
        return nullptr;

    const auto children = ChildrenUpTo(*child);
    for (std::size_t left = children.size(); left > 0; --left) {
        if (children[left - 1]->MayBeFoundAt(point))
            return children[left - 1];
    }
    if (!children.empty())
        return nullptr;

    while (child && !child->MayBeFoundAt(point))
        child = child->Previous;
    return child;
}

// Empty where the list has to be walked.
std::span<TeskElement* const> TeskElement::ChildrenUpTo(const TeskElement& child)
{
    ChildIndex* index = IndexOfChildren(ChildIndex::LeastForPlaces);
    return index ? index->UpTo(*this, child) : std::span<TeskElement* const>();
}
