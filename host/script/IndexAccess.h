#pragma once

#include "host/script/LuaState.h"

namespace host {

class IndexType;
class ScriptIndexes;
class ScriptValues;

// What Lua offers for indexes beyond what it does for all objects: Index("int") makes one, numbers[3] = 7 sets and
// numbers[3] = nil removes, #numbers counts, and pairs(numbers) walks.
class IndexAccess
{
public:
    // All are borrowed.
    IndexAccess(ScriptIndexes& indexes, IndexType& type, const ScriptValues& values)
        : m_Indexes(indexes), m_Type(type), m_Values(values)
    {
    }

    // Adds Index to the table on top of the stack.
    void AddFunctions(lua_State* thread);

    // Adds to the metatable of indexes, which lies on top of the stack.
    void FillMetatable(lua_State* thread);

private:
    static int Make(lua_State* thread);
    static int Assign(lua_State* thread);
    static int Count(lua_State* thread);
    static int Walk(lua_State* thread);
    static int Step(lua_State* thread);

    ScriptIndexes& m_Indexes;
    IndexType& m_Type;
    const ScriptValues& m_Values;
};

} // namespace host
