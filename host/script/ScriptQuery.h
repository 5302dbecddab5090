#pragma once

#include "host/script/LuaState.h"
#include "teskara/script/MvTypeVar.h"

namespace host {

class ScriptValues;

// An expression that is asked of one object after another. A name in it is the member of the object, in any case, else
// what it is in other scripts; this is the object. All that it runs, from first to last, counts as one call of scripts.
class ScriptQuery
{
public:
    // Both are borrowed.
    ScriptQuery(LuaState& state, const ScriptValues& values) : m_State(state), m_Values(values), m_Call(state) { }

    // False: the text is no expression, and the state's Error says why.
    bool Compile(const char* text);

    // Asks a query that was compiled. Any value but nil, false and 0 holds. False: it failed, and Error says why.
    bool Ask(const _MvTypeVar& object, bool& holds);

    // Whether nobody has been told yet that it failed.
    bool TakeNews() { return !std::exchange(m_IsTold, true); }

private:
    static void PushNames(lua_State* thread);
    static int FindName(lua_State* thread);
    static int SetName(lua_State* thread);

    LuaState& m_State;
    const ScriptValues& m_Values;
    ScriptCall m_Call;
    LuaReference m_Function;
    LuaReference m_Names; // the table in which the function finds its names
    bool m_IsTold = false;
};

} // namespace host
