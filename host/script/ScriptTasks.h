#pragma once

#include "host/script/ScriptTask.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class CommandTable;
class Console;

// The script files that run. Each goes on at the start of a frame until it waits or ends.
class ScriptTasks
{
public:
    // Everything is borrowed. atoms: how many atoms run at present.
    ScriptTasks(LuaState& state, Console& console, const CommandTable& commands, const int& atoms)
        : m_State(state), m_Console(console), m_Commands(commands), m_Atoms(atoms)
    {
    }
    ScriptTasks(const ScriptTasks&) = delete;
    ScriptTasks& operator=(const ScriptTasks&) = delete;

    // Adds functions for scripts to the table on top of the stack: wait(seconds); answer(), which waits until no dialog
    // of the script is open and gives what the user answered to the last one; and ask and input, which open one first.
    void AddFunctions(lua_State* thread);

    // Starts a script; it runs at once, as far as it goes. False, with a line: it does not compile, or there are too
    // many.
    bool Start(const std::string& name, std::string_view text);

    // Lets go on what has waited long enough. now: milliseconds.
    void Advance(u32 now);

    // Ends all scripts that run, in the next frame, with a line for each.
    void EndAll();

    // The script that runs now; null if none does.
    ScriptTask* Current() const { return m_Current; }

    std::size_t Count() const { return m_Tasks.size(); }

private:
    bool Resume(ScriptTask& task);
    void SayWhyFailed(const std::string& name);
    static ScriptTask& WaitingTask(lua_State* thread, const char* function);
    static int Wait(lua_State* thread);
    static int Answer(lua_State* thread);
    static int Ask(lua_State* thread);
    static int Input(lua_State* thread);
    static int OpenDialog(lua_State* thread, ScriptTask& task, std::vector<std::string> words);
    static int AwaitAnswer(lua_State* thread, ScriptTask& task);
    static int GiveAnswer(lua_State* thread, int status, lua_KContext context);

    LuaState& m_State;
    Console& m_Console;
    const CommandTable& m_Commands;
    const int& m_Atoms;
    std::vector<std::unique_ptr<ScriptTask>> m_Tasks;
    ScriptTask* m_Current = nullptr;
    u32 m_Now = 0;
};

} // namespace host
