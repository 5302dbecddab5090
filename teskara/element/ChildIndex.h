#pragma once

#include "teskara/core/Types.h"

#include <span>
#include <vector>

class TeskElement;

// What a parent of many children keeps beside their list, so that a search need not go through memory from one child to
// the next. It is filled when it is first asked and serves until the list changes. Without memory it has no answers, and
// the list does.
class ChildIndex
{
public:
    // Of fewer children the list itself is walked.
    static constexpr u32 LeastChildren = 16;

    // The list has changed.
    void Forget() { m_Children.clear(); }

    // The children of a parent from the bottom up to this one; empty if it is none of them.
    std::span<TeskElement* const> UpTo(const TeskElement& parent, const TeskElement& child);

private:
    void Fill(const TeskElement& parent);

    std::vector<TeskElement*> m_Children;
};
