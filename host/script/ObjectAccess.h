#pragma once

#include "host/script/LuaState.h"

class MvTypeDefinition;

namespace host {

class ScriptValues;
struct ScriptObject;

// What scripts do with objects of the toolkit's. A member is read as object.Name; one that needs arguments is called as
// object.Name(...). A number in brackets is the type's own index. A method is called as object:Name(...) and says whether it succeeded.
class ObjectAccess
{
public:
    explicit ObjectAccess(const ScriptValues& values) : m_Values(values) { }

    // Fills the metatable of a type's objects, which lies on top of the stack.
    void FillMetatable(lua_State* thread, MvTypeDefinition& type);

    // Adds functions for scripts to the table on top of the stack: member(object, name, ...) reads any member.
    void AddFunctions(lua_State* thread);

private:
    int PushMember(lua_State* thread, ScriptObject& object, const char* name, int firstArgument) const;
    int PushIndexed(lua_State* thread, const ScriptObject& object) const;
    void LearnName(lua_State* thread, MvTypeDefinition& type, const char* name);

    static int Index(lua_State* thread);
    static int NewIndex(lua_State* thread);
    static int Equals(lua_State* thread);
    static int ToText(lua_State* thread);
    static int CallMember(lua_State* thread);
    static int CallMethod(lua_State* thread);
    static int ReadMember(lua_State* thread);

    const ScriptValues& m_Values;
};

} // namespace host
