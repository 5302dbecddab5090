#pragma once

#include <unordered_set>

// What an object that is no element keeps to be found by scripts. A script may hold its address longer than it lives,
// and the host hears only of elements that go: so the address counts for nothing unless IsAlive.
template <class Object> class ScriptHold
{
public:
    ScriptHold() = default;
    ~ScriptHold()
    {
        if (m_Object)
            All().erase(m_Object);
    }
    ScriptHold(const ScriptHold&) = delete;
    ScriptHold& operator=(const ScriptHold&) = delete;

    // Must come before the address goes to a script. object: what this is a part of. False: there is no memory.
    bool HandOut(const Object* object) noexcept
    try {
        if (!m_Object)
            All().insert(object);
        m_Object = object;
        return true;
    } catch (...) {
        return false;
    }

    static bool IsAlive(const Object* object) { return All().count(object) != 0; }

private:
    // Never destroyed, since objects may end after the program's main function does.
    static std::unordered_set<const Object*>& All()
    {
        static auto* all = new std::unordered_set<const Object*>;
        return *all;
    }

    const Object* m_Object = nullptr;
};
