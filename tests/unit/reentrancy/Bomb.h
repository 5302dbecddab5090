#pragma once

#include <functional>
#include <string>
#include <string_view>

// The act under test. It runs once, where the place under test is reached for the first time.
class Bomb
{
public:
    void Arm(const char* place, std::function<void()> act)
    {
        m_Place = place;
        m_Act = std::move(act);
        m_WentOff = false;
    }

    void Disarm() { m_Place.clear(); }

    // Everything that calls out says where it is.
    void Reach(std::string_view place)
    {
        if (m_WentOff || place != m_Place)
            return;

        m_WentOff = true;
        m_Act();
    }

    bool WentOff() const { return m_WentOff; }

private:
    std::string m_Place;
    std::function<void()> m_Act;
    bool m_WentOff = false;
};

// Outlives the library's end, which runs scripts too.
extern Bomb& g_Bomb;
