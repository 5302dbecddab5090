#pragma once

#include "host/script/LuaState.h"
#include "teskara/core/HostInterface.h"

#include <optional>
#include <string>

namespace host {

// A script file that runs: a coroutine of Lua's, from time to time.
class ScriptTask : public HostScript
{
public:
    // atoms: how many atoms run at present; borrowed.
    ScriptTask(std::string name, LuaReference coroutine, lua_State* thread, const int& atoms)
        : m_Name(std::move(name)), m_Coroutine(std::move(coroutine)), m_Thread(thread), m_Atoms(atoms)
    {
    }

    ~ScriptTask() override;

    const char* GetName() const override { return m_Name.c_str(); }
    bool IsInsideAtom() const override { return m_Atoms > m_AtomsOutside; }
    const char* GetUserInput() const override { return m_Answer ? m_Answer->c_str() : nullptr; }
    void SetUserInput(const char* text) override;

    const std::string& Name() const { return m_Name; }
    lua_State* Thread() const { return m_Thread; }

    // From now on it waits, for a time in milliseconds or for the answer to its dialogs.
    void WaitUntil(u32 tick) { m_WakeTick = tick; }
    void WaitForAnswer() { m_WaitsForAnswer = true; }

    // It must not go on: it is due at once, and then ends.
    void End() { m_IsEnded = true; }
    bool IsEnded() const { return m_IsEnded; }

    // Whether it can go on.
    bool IsDue(u32 now) const;
    bool HasDialog() const;

    // It goes on: what it waited for is forgotten.
    void GoOn();

private:
    std::string m_Name;
    LuaReference m_Coroutine;
    lua_State* m_Thread;
    const int& m_Atoms;
    int m_AtomsOutside = 0; // that ran when the task went on
    std::optional<std::string> m_Answer;
    std::optional<u32> m_WakeTick;
    bool m_WaitsForAnswer = false;
    bool m_IsEnded = false;
};

} // namespace host
