#pragma once

#include "teskara/core/DepthScope.h"

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <utility>

// The act under test, which runs where the place under test is reached. It says whether it found anything to act on.
class Bomb
{
public:
    enum class Fuse {
        Once, // the first time
        EachTime, // every time, also inside itself, until there were enough
    };

    void Arm(const char* place, Fuse fuse, std::function<bool()> act)
    {
        m_Place = place;
        m_Act = std::move(act);
        m_Left = fuse == Fuse::Once ? 1 : MostTimes;
        m_Reached = 0;
        m_WentOff = false;
        m_Acted = false;
    }

    void Disarm() { m_Place.clear(); }

    // Writes down from now on which places are reached.
    void Listen() { m_Listens = true; }

    // What was written down, which ends it.
    std::set<std::string> Heard()
    {
        m_Listens = false;
        return std::exchange(m_Heard, {});
    }

    // Everything that calls out says where it is, in parts if that takes more than a name.
    void Reach(std::string_view place) { Reach({place}); }
    void Reach(std::initializer_list<std::string_view> place)
    {
        if (m_Listens)
            m_Heard.insert(Joined(place));
        if (!IsArmedFor(place))
            return;
        ++m_Reached;
        if (m_Left == 0)
            return;

        const DepthScope depth(m_Depth, DeepestNesting);
        if (!depth.Entered())
            return;

        --m_Left;
        m_WentOff = true;
        m_Acted |= m_Act();
    }

    bool WentOff() const { return m_WentOff; }
    bool Acted() const { return m_Acted; }

    // Whether the place came once more while the bomb was armed, so that another fuse would make a difference.
    bool CameAgain() const { return m_Reached > 1; }

private:
    static constexpr u32 MostTimes = 30;
    static constexpr u32 DeepestNesting = 3;

    static std::string Joined(std::initializer_list<std::string_view> parts)
    {
        std::string joined;
        for (const std::string_view part : parts)
            joined += part;
        return joined;
    }

    // Without joining them, since places are reached far more often than the one that counts.
    bool IsArmedFor(std::initializer_list<std::string_view> parts) const
    {
        std::string_view rest = m_Place;
        for (const std::string_view part : parts) {
            if (!rest.starts_with(part))
                return false;
            rest.remove_prefix(part.size());
        }
        return rest.empty();
    }

    std::string m_Place;
    std::function<bool()> m_Act;
    std::set<std::string> m_Heard;
    u32 m_Left = 0;
    u32 m_Reached = 0;
    u32 m_Depth = 0;
    bool m_WentOff = false;
    bool m_Acted = false;
    bool m_Listens = false;
};

// Outlives the library's end, which runs scripts too.
extern Bomb& g_Bomb;
