#include "host/script/ScriptQuery.h"

#include "host/script/ScriptObjects.h"
#include "host/script/ScriptValues.h"
#include "teskara/core/utf8string.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"

namespace host {

namespace {

constexpr int ObjectSlot = 1; // of the table of names; no name finds it

// The member as its type spells it; null if there is none. The first of the types that have it counts.
const char* MemberOf(const MvTypeDefinition* type, std::string_view name)
{
    const char* member = nullptr;
    for (; type && !member; type = type->GetBase()) {
        if (const auto* described = dynamic_cast<const ToolkitType*>(type)) {
            described->VisitMembers([&](const ScriptRow& row) {
                if (NameEqual()(row.Name, name))
                    member = row.Name;
            });
        }
    }
    return member;
}

} // namespace

bool ScriptQuery::Compile(const char* text)
{
    m_Function = LuaReference(m_State, m_State.Compile("local this, _ENV = ...; return ", text, "=query"));
    if (m_Function.Number() == LUA_NOREF)
        return false;

    return m_State.Protect([&](lua_State* thread) {
        PushNames(thread);
        m_Names = LuaReference(m_State, luaL_ref(thread, LUA_REGISTRYINDEX));
    });
}

bool ScriptQuery::Ask(const _MvTypeVar& object, bool& holds)
{
    const bool isReady = m_State.Protect([&](lua_State* thread) {
        m_Function.Push(thread);
        m_Values.Push(thread, object);
        m_Names.Push(thread);
        lua_pushvalue(thread, -2);
        lua_rawseti(thread, -2, ObjectSlot);
    });
    if (!isReady || !m_State.Call(2, 1))
        return false;

    lua_State* thread = m_State.Thread();
    holds = lua_toboolean(thread, -1) && !(lua_isnumber(thread, -1) && lua_tonumber(thread, -1) == 0);
    lua_pop(thread, 1);
    return true;
}

void ScriptQuery::PushNames(lua_State* thread)
{
    lua_createtable(thread, ObjectSlot, 0);
    lua_createtable(thread, 0, 3);
    lua_pushcfunction(thread, FindName);
    lua_setfield(thread, -2, "__index");
    lua_pushcfunction(thread, SetName);
    lua_setfield(thread, -2, "__newindex");
    lua_pushboolean(thread, false);
    lua_setfield(thread, -2, "__metatable"); // scripts don't get to see it
    lua_setmetatable(thread, -2);
}

int ScriptQuery::FindName(lua_State* thread)
{
    lua_settop(thread, 2);
    lua_rawgeti(thread, 1, ObjectSlot);
    const ScriptObject* object = ScriptObjects::At(thread, 3);
    const char* member = nullptr;
    if (object && lua_type(thread, 2) == LUA_TSTRING)
        member = MemberOf(object->Value.Type, lua_tostring(thread, 2));
    if (member) {
        lua_getfield(thread, 3, member);
        return 1;
    }

    lua_pushglobaltable(thread);
    lua_pushvalue(thread, 2);
    lua_gettable(thread, -2);
    return 1;
}

// A function that an expression calls assigns the variables of all scripts.
int ScriptQuery::SetName(lua_State* thread)
{
    lua_settop(thread, 3);
    lua_pushglobaltable(thread);
    lua_replace(thread, 1);
    lua_settable(thread, 1);
    return 0;
}

} // namespace host
