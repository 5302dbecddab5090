#include "teskara/element/TeskElement.h"

namespace {

// The two directions in which the tree is walked.
struct Direction {
    TeskElement* TeskElement::*FirstChild;
    TeskElement* TeskElement::*NextSibling;
};

constexpr Direction Forward = {&TeskElement::FirstChild, &TeskElement::Next};
constexpr Direction Backward = {&TeskElement::LastChild, &TeskElement::Previous};

// The first candidate of a list from here on; with visibleOnly, the first visible one.
TeskElement* FirstUsable(const Direction& direction, TeskElement* candidate, bool visibleOnly)
{
    while (visibleOnly && candidate && !candidate->Visible)
        candidate = candidate->*direction.NextSibling;
    return candidate;
}

// Climbs until a parent has a sibling to go on with.
TeskElement* Climb(const Direction& direction, TeskElement* element, bool visibleOnly, TeskElement* stop)
{
    while (element != stop) {
        element = element->Parent;
        if (!element || element == stop)
            return nullptr;

        TeskElement* sibling = element->*direction.NextSibling;
        if (!sibling)
            continue;

        // Skips one element; the tab order of interfaces rests on it.
        if (!visibleOnly || sibling->Visible)
            return sibling->*direction.NextSibling;
        if (TeskElement* found = FirstUsable(direction, sibling, true))
            return found;
    }
    return nullptr;
}

TeskElement* WalkTree(const Direction& direction, TeskElement* from, bool visibleOnly, TeskElement* stop)
{
    if (from->Visible || !visibleOnly) {
        if (TeskElement* child = FirstUsable(direction, from->*direction.FirstChild, visibleOnly))
            return child;
    }
    if (TeskElement* sibling = FirstUsable(direction, from->*direction.NextSibling, visibleOnly))
        return sibling;

    return Climb(direction, from, visibleOnly, stop);
}

} // namespace

TeskElement* TeskElement::Walk(bool visibleOnly, TeskElement* stop)
{
    return WalkTree(Forward, this, visibleOnly, stop);
}

TeskElement* TeskElement::WalkReverse(bool visibleOnly, TeskElement* stop)
{
    return WalkTree(Backward, this, visibleOnly, stop);
}
