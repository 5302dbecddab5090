#include "host/script/ScriptGlobals.h"

#include "host/script/GuardedFunctions.h"

#include <initializer_list>

namespace host {

namespace {

struct LibraryRow {
    const char* Name;
    lua_CFunction Open;
    std::initializer_list<const char*> Functions; // those that can harm nobody
};

// What is left out reaches files or the inside of Lua, or may keep the host waiting in one call; of the latter those
// that are of use come back guarded.
const LibraryRow Libraries[] = {
    {"coroutine", luaopen_coroutine, {"create", "isyieldable", "running", "status", "yield"}},
    {"math", luaopen_math,
        {"abs", "acos", "asin", "atan", "ceil", "cos", "deg", "exp", "floor", "fmod", "huge", "log", "max",
            "maxinteger", "min", "mininteger", "modf", "pi", "rad", "random", "randomseed", "sin", "sqrt", "tan",
            "tointeger", "type", "ult"}},
    {"os", luaopen_os, {"clock", "date", "difftime", "time"}},
    {"string", luaopen_string,
        {"byte", "char", "format", "len", "lower", "pack", "packsize", "reverse", "sub", "unpack", "upper"}},
    {"table", luaopen_table, {"pack"}},
    {"utf8", luaopen_utf8, {"char", "charpattern", "codepoint", "codes", "len", "offset"}},
};

const std::initializer_list<const char*> BaseFunctions = {"assert", "error", "getmetatable", "ipairs", "rawequal",
    "rawget", "rawlen", "select", "tonumber", "tostring", "type", "_VERSION"};

void CopyFields(lua_State* thread, int from, std::initializer_list<const char*> names)
{
    const int source = lua_absindex(thread, from);
    for (const char* name : names) {
        lua_getfield(thread, source, name);
        lua_setfield(thread, -2, name);
    }
}

// "text":upper() finds its functions through the metatable of all texts.
void ShareWithTexts(lua_State* thread)
{
    lua_pushliteral(thread, "");
    lua_getmetatable(thread, -1);
    lua_pushvalue(thread, -3);
    lua_setfield(thread, -2, "__index");
    lua_pushboolean(thread, false);
    lua_setfield(thread, -2, "__metatable");
    lua_pop(thread, 2);
}

// Fills the table on top of the stack.
void OpenGuarded(lua_State* thread)
{
    luaL_requiref(thread, LUA_GNAME, luaopen_base, false);
    lua_insert(thread, -2);
    CopyFields(thread, -2, BaseFunctions);
    lua_remove(thread, -2);
    AddGuardedBase(thread);

    for (const LibraryRow& library : Libraries) {
        luaL_requiref(thread, library.Name, library.Open, false);
        lua_newtable(thread);
        CopyFields(thread, -2, library.Functions);
        lua_remove(thread, -2);
        AddGuarded(thread, library.Name);
        if (library.Open == luaopen_string)
            ShareWithTexts(thread);
        ScriptGlobals::MakeReadOnly(thread);
        lua_setfield(thread, -2, library.Name);
    }
}

// The same with everything, and nothing protected. Limits hold all the same.
void OpenAll(lua_State* thread)
{
    luaL_openlibs(thread);
    lua_pushglobaltable(thread);
    for (lua_pushnil(thread); lua_next(thread, -2);) {
        lua_pushvalue(thread, -2);
        lua_insert(thread, -2);
        lua_settable(thread, -5);
    }
    lua_pop(thread, 1);
    AddGuardedCall(thread);
    lua_getfield(thread, -1, "coroutine");
    AddGuarded(thread, "coroutine");
    lua_pop(thread, 1);
}

int RefuseChange(lua_State* thread)
{
    return luaL_error(thread, "this belongs to the host and cannot be changed");
}

// A variable is made. The upvalue is the table of the host's names.
int MakeVariable(lua_State* thread)
{
    lua_settop(thread, 3);
    lua_pushvalue(thread, 2);
    if (lua_rawget(thread, lua_upvalueindex(1)) != LUA_TNIL)
        return luaL_error(
            thread, "'%s' belongs to the host and cannot be assigned", luaL_tolstring(thread, 2, nullptr));

    lua_pop(thread, 1);
    lua_rawset(thread, 1);
    return 0;
}

// Puts a new table in the place of the variables, which looks for what it doesn't have in the table on top.
void MakeVariables(lua_State* thread)
{
    lua_newtable(thread);
    lua_createtable(thread, 0, 3);
    lua_pushvalue(thread, -3);
    lua_setfield(thread, -2, "__index");
    lua_pushvalue(thread, -3);
    lua_pushcclosure(thread, MakeVariable, 1);
    lua_setfield(thread, -2, "__newindex");
    lua_pushboolean(thread, false);
    lua_setfield(thread, -2, "__metatable");
    lua_setmetatable(thread, -2);

    lua_pushvalue(thread, -1);
    lua_setfield(thread, -3, LUA_GNAME);
    lua_rawseti(thread, LUA_REGISTRYINDEX, LUA_RIDX_GLOBALS);
}

} // namespace

ScriptGlobals::ScriptGlobals(LuaState& state, ScriptTrust trust) : m_State(state)
{
    m_State.Protect([&](lua_State* thread) {
        lua_newtable(thread);
        if (trust == ScriptTrust::Full)
            OpenAll(thread);
        else
            OpenGuarded(thread);
        MakeVariables(thread);
        m_HostNames = luaL_ref(thread, LUA_REGISTRYINDEX);
    });
}

void ScriptGlobals::Add(const std::function<void(lua_State* thread)>& adder)
{
    m_State.Protect([&](lua_State* thread) {
        lua_rawgeti(thread, LUA_REGISTRYINDEX, m_HostNames);
        adder(thread);
        lua_settop(thread, 0);
    });
}

std::vector<std::string> ScriptGlobals::Names() const
{
    std::vector<std::string> names;
    m_State.Protect([&](lua_State* thread) {
        lua_pushglobaltable(thread);
        lua_rawgeti(thread, LUA_REGISTRYINDEX, m_HostNames);
        for (int table = 1; table <= 2; ++table) {
            for (lua_pushnil(thread); lua_next(thread, table); lua_pop(thread, 1)) {
                if (lua_type(thread, -2) == LUA_TSTRING && (table == 1 || !lua_isfunction(thread, -1)))
                    names.emplace_back(lua_tostring(thread, -2));
            }
        }
        lua_settop(thread, 0);
    });
    return names;
}

void ScriptGlobals::ClearVariables()
{
    m_State.Protect([](lua_State* thread) {
        lua_pushglobaltable(thread);
        for (lua_pushnil(thread); lua_next(thread, 1);) {
            lua_pushvalue(thread, 2);
            lua_pushnil(thread);
            lua_rawset(thread, 1);
            lua_settop(thread, 2);
        }
        lua_settop(thread, 0);
    });
}

void ScriptGlobals::PushNamed(lua_State* thread) const
{
    lua_rawgeti(thread, LUA_REGISTRYINDEX, LUA_RIDX_GLOBALS);
    lua_pushvalue(thread, -2);
    if (lua_rawget(thread, -2) == LUA_TNIL) {
        lua_pop(thread, 2);
        lua_rawgeti(thread, LUA_REGISTRYINDEX, m_HostNames);
        lua_pushvalue(thread, -2);
        lua_rawget(thread, -2);
    }
    lua_replace(thread, -3);
    lua_pop(thread, 1);
}

void ScriptGlobals::MakeReadOnly(lua_State* thread)
{
    lua_newtable(thread);
    lua_createtable(thread, 0, 3);
    lua_rotate(thread, -3, -1);
    lua_setfield(thread, -2, "__index");
    lua_pushcfunction(thread, RefuseChange);
    lua_setfield(thread, -2, "__newindex");
    lua_pushboolean(thread, false);
    lua_setfield(thread, -2, "__metatable");
    lua_setmetatable(thread, -2);
}

} // namespace host
