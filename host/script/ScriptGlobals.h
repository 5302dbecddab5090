#pragma once

#include "host/script/LuaState.h"

#include <functional>
#include <string>
#include <vector>

namespace host {

// Whose scripts a host runs.
enum class ScriptTrust {
    None, // an interface's: they reach no file, no process and nothing of Lua's that could harm the host
    Full, // the user's own: they have the whole standard library
};

// The names that scripts see. The host's own, among them the libraries, can be neither assigned nor changed, so that no
// interface takes them from another; every other name is a variable that all scripts share.
class ScriptGlobals
{
public:
    // Opens the libraries.
    ScriptGlobals(LuaState& state, ScriptTrust trust);

    // Pushes what a name stands for, a variable or something of the host's; the name lies on top of the stack, and goes.
    // Calls nothing and takes no memory.
    void PushNamed(lua_State* thread) const;

    // The names of all variables, and of what is the host's but its functions.
    std::vector<std::string> Names() const;

    // Takes their values from all variables.
    void ClearVariables();

    // Adds names: adder finds the table of the host's names on top of the stack.
    void Add(const std::function<void(lua_State* thread)>& adder);

    // Makes the table on top of the stack one that scripts can only read.
    static void MakeReadOnly(lua_State* thread);

private:
    LuaState& m_State;
    int m_HostNames = LUA_NOREF;
};

} // namespace host
