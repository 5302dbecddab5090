#pragma once

#include "teskara/core/DepthScope.h"

#include <functional>
#include <string>
#include <string_view>

// The act under test, which runs where the place under test is reached.
class Bomb
{
public:
    enum class Fuse {
        Once, // the first time
        EachTime, // every time, also inside itself, until there were enough
    };

    void Arm(const char* place, Fuse fuse, std::function<void()> act)
    {
        m_Place = place;
        m_Act = std::move(act);
        m_Left = fuse == Fuse::Once ? 1 : MostTimes;
        m_WentOff = false;
    }

    void Disarm() { m_Left = 0; }

    // Everything that calls out says where it is.
    void Reach(std::string_view place)
    {
        if (m_Left == 0 || place != m_Place)
            return;

        const DepthScope depth(m_Depth, DeepestNesting);
        if (!depth.Entered())
            return;

        --m_Left;
        m_WentOff = true;
        m_Act();
    }

    bool WentOff() const { return m_WentOff; }

private:
    static constexpr u32 MostTimes = 30;
    static constexpr u32 DeepestNesting = 3;

    std::string m_Place;
    std::function<void()> m_Act;
    u32 m_Left = 0;
    u32 m_Depth = 0;
    bool m_WentOff = false;
};

// Outlives the library's end, which runs scripts too.
extern Bomb& g_Bomb;
