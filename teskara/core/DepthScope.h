#pragma once

#include "teskara/core/Types.h"

// Counts how deep calls are nested, and refuses to go deeper than a limit.
class DepthScope
{
public:
    DepthScope(u32& depth, u32 limit) : m_Depth(depth), m_Entered(depth < limit)
    {
        if (m_Entered)
            ++m_Depth;
    }

    ~DepthScope()
    {
        if (m_Entered)
            --m_Depth;
    }

    DepthScope(const DepthScope&) = delete;
    DepthScope& operator=(const DepthScope&) = delete;

    // False: the limit is reached, and the call must not go on.
    bool Entered() const { return m_Entered; }

private:
    u32& m_Depth;
    bool m_Entered;
};
