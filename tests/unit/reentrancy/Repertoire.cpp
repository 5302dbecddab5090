#include "tests/unit/reentrancy/Repertoire.h"

#include "tests/unit/reentrancy/Acts.h"
#include "tests/unit/reentrancy/Kinds.h"
#include "tests/unit/reentrancy/Places.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

// A place that no row names is tried on so many of the ways that lead there.
constexpr int MostWays = 2;

class Explorer
{
public:
    Explorer(const Subject& subject, const std::function<void()>& build, const std::function<void()>& clear)
        : m_Subject(subject), m_Build(build), m_Clear(clear)
    {
    }

    Repertoire Explore()
    {
        if (!m_Subject.Has(IsMade) && !m_Subject.IsForeignClass())
            AddStatedPlaces();
        for (const Place& place : AllPlaces())
            Go({place.Way, place.Drive});
        for (const Way& way : MoreWays())
            Go(way);
        AddDeeds();
        return std::move(m_Found);
    }

private:
    // Of a foreign class the rest is what its kind does.
    bool IsAsked(const std::string& place) const
    {
        return !m_Subject.IsForeignClass() || (place.starts_with("virtual ") && !place.ends_with(" of the child"));
    }

    void AddStatedPlaces()
    {
        for (const Place& place : AllPlaces()) {
            if (!m_Subject.Reaches(place.Needs, place.Unless))
                continue;
            m_Found.Stops.push_back({place.Name, place.Way, place.Drive});
            m_WaysTo[place.Name] = MostWays;
        }
    }

    void Go(const Way& way)
    {
        if (!m_Gone.insert(way.Drive).second)
            return;

        m_Build();
        g_Bomb.Listen();
        way.Drive();
        for (const std::string& place : g_Bomb.Heard()) {
            if (IsAsked(place) && m_WaysTo[place]++ < MostWays)
                m_Found.Stops.push_back({place, way.Name, way.Drive});
        }
        m_Clear();
    }

    void AddDeeds()
    {
        for (const Act& act : AllActs()) {
            if (m_Subject.Has(act.Needs))
                m_Found.Deeds.push_back({act.Name, act.Run, act.At == Act::MayMiss});
        }
        for (const ScriptAct& act : AllScriptActs()) {
            const auto number = std::to_string(&act - AllScriptActs().data());
            if (m_Subject.Has(IsMade) ? Knows(act) : m_Subject.Has(act.Needs))
                m_Found.Deeds.push_back(
                    {std::string(act.Method) + " " + number, [&act] { return Perform(act); }, false});
        }
    }

    bool Knows(const ScriptAct& act)
    {
        m_Build();
        const bool knows = Perform(act);
        m_Clear();
        return knows;
    }

    const Subject& m_Subject;
    const std::function<void()>& m_Build;
    const std::function<void()>& m_Clear;
    std::set<void (*)()> m_Gone;
    std::map<std::string, int> m_WaysTo;
    Repertoire m_Found;
};

} // namespace

Repertoire FindRepertoire(
    const Subject& subject, const std::function<void()>& build, const std::function<void()>& clear)
{
    return Explorer(subject, build, clear).Explore();
}
