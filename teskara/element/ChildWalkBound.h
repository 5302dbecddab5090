#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"

#include <cstddef>

// Ends a walk over children that scripts keep moving or making, which else might not end. Children are only counted when
// the walk is a long one and something has moved or was made since it began.
class ChildWalkBound
{
public:
    ChildWalkBound(const TeskElement& parent, const u32& relinks)
        : m_Parent(parent), m_Relinks(relinks), m_RelinksAtStart(relinks), m_NextIDAtStart(g_UIManager.NextElementID)
    {
    }

    // False: this step is one too many.
    bool Step()
    {
        if (++m_Steps <= Limits::ChildWalkSteps || !HasListChanged())
            return true;
        if (m_Limit == 0)
            m_Limit = Limits::ChildWalkFactor * CountChildren() + Limits::ChildWalkSteps;
        return m_Steps <= m_Limit;
    }

private:
    bool HasListChanged() const
    {
        return m_Relinks != m_RelinksAtStart || g_UIManager.NextElementID != m_NextIDAtStart;
    }

    // Those that were made since do not count.
    std::size_t CountChildren() const
    {
        std::size_t count = 0;
        for (const TeskElement* child = m_Parent.FirstChild; child; child = child->Next)
            count += child->ID < m_NextIDAtStart;
        return count;
    }

    const TeskElement& m_Parent;
    const u32& m_Relinks;
    u32 m_RelinksAtStart;
    u32 m_NextIDAtStart;
    std::size_t m_Steps = 0;
    std::size_t m_Limit = 0;
};
