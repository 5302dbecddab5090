#include "host/script/TableFunctions.h"

#include "host/script/LuaState.h"

#include <algorithm>

namespace host {

namespace {

constexpr lua_Integer MostMoved = 1'000'000; // fields that one call may move
constexpr u64 FieldsOfStep = 8; // that are gone through in the time of an instruction
constexpr u64 CharactersOfStep = 64; // that are compared
constexpr u64 StepsOfFunction = 256; // of C, which may take long and count nothing

void Spend(lua_State* thread, u64 steps)
{
    if (const char* why = LuaState::Of(thread).Budget().SpendSteps(steps))
        luaL_error(thread, "%s", why);
}

void RefuseProtected(lua_State* thread)
{
    if (luaL_getmetafield(thread, 1, "__metatable") != LUA_TNIL)
        luaL_error(thread, "this is protected and cannot be changed");
}

// The library's functions loop as often as a length says; one that a script computes could say anything.
u64 PlainLength(lua_State* thread)
{
    luaL_checktype(thread, 1, LUA_TTABLE);
    if (luaL_getmetafield(thread, 1, "__len") != LUA_TNIL)
        luaL_error(thread, "a table with __len cannot be used here");
    return lua_rawlen(thread, 1);
}

// Calls the library's function, the upvalue, with what lies on the stack.
int CallOriginal(lua_State* thread, u64 fields)
{
    Spend(thread, 1 + fields / FieldsOfStep);
    lua_pushvalue(thread, lua_upvalueindex(1));
    lua_insert(thread, 1);
    lua_call(thread, lua_gettop(thread) - 1, LUA_MULTRET);
    return lua_gettop(thread);
}

// --- Access

int Next(lua_State* thread)
{
    luaL_checktype(thread, 1, LUA_TTABLE);
    Spend(thread, 1);
    lua_settop(thread, 2);
    if (lua_next(thread, 1))
        return 2;

    lua_pushnil(thread);
    return 1;
}

int Pairs(lua_State* thread)
{
    luaL_checkany(thread, 1);
    if (luaL_getmetafield(thread, 1, "__pairs") != LUA_TNIL) {
        lua_pushvalue(thread, 1);
        lua_call(thread, 1, 3);
        return 3;
    }
    lua_pushcfunction(thread, Next);
    lua_pushvalue(thread, 1);
    lua_pushnil(thread);
    return 3;
}

int RawSet(lua_State* thread)
{
    luaL_checktype(thread, 1, LUA_TTABLE);
    luaL_checkany(thread, 2);
    luaL_checkany(thread, 3);
    RefuseProtected(thread);
    lua_settop(thread, 3);
    lua_rawset(thread, 1);
    return 1;
}

// What Lua calls when it collects a table, it calls without counting.
int SetMetatable(lua_State* thread)
{
    luaL_checktype(thread, 1, LUA_TTABLE);
    luaL_argexpected(thread, lua_isnil(thread, 2) || lua_istable(thread, 2), 2, "nil or table");
    lua_settop(thread, 2);
    RefuseProtected(thread);
    if (lua_istable(thread, 2)) {
        lua_pushliteral(thread, "__gc");
        if (lua_rawget(thread, 2) != LUA_TNIL)
            return luaL_error(thread, "__gc is not available");
    }
    lua_settop(thread, 2);
    lua_setmetatable(thread, 1);
    return 1;
}

// --- The library

int Concat(lua_State* thread)
{
    const u64 length = PlainLength(thread);
    lua_settop(thread, 4);
    return CallOriginal(thread, length);
}

// At the end it takes no time.
int Insert(lua_State* thread)
{
    const int arguments = lua_gettop(thread);
    const u64 length = PlainLength(thread);
    lua_settop(thread, arguments);
    return CallOriginal(thread, arguments > 2 ? length : 0);
}

int Remove(lua_State* thread)
{
    const int arguments = lua_gettop(thread);
    const u64 length = PlainLength(thread);
    lua_settop(thread, arguments);
    return CallOriginal(thread, arguments > 1 ? length : 0);
}

// The order of a sort without one of the script's, and of one with a function of C. The latter is the upvalue, or nil.
int Compare(lua_State* thread)
{
    lua_settop(thread, 2);
    if (lua_toboolean(thread, lua_upvalueindex(1))) {
        Spend(thread, StepsOfFunction);
        lua_pushvalue(thread, lua_upvalueindex(1));
        lua_insert(thread, 1);
        lua_call(thread, 2, 1);
        return 1;
    }
    const bool areTexts = lua_type(thread, 1) == LUA_TSTRING && lua_type(thread, 2) == LUA_TSTRING;
    const u64 characters = areTexts ? std::min(lua_rawlen(thread, 1), lua_rawlen(thread, 2)) : 0;
    Spend(thread, 1 + characters / CharactersOfStep);
    lua_pushboolean(thread, lua_compare(thread, 1, 2, LUA_OPLT));
    return 1;
}

int Sort(lua_State* thread)
{
    lua_settop(thread, 2);
    if (!lua_isnoneornil(thread, 2))
        luaL_checktype(thread, 2, LUA_TFUNCTION);
    const u64 length = PlainLength(thread);
    lua_settop(thread, 2);
    if (lua_isnil(thread, 2) || lua_iscfunction(thread, 2))
        lua_pushcclosure(thread, Compare, 1);
    return CallOriginal(thread, length);
}

// How many fields lie between two numbers; an error if they are too many.
u64 CountFields(lua_State* thread, lua_Integer first, lua_Integer last, const char* message)
{
    if (last < first)
        return 0;
    const u64 more = static_cast<u64>(last) - static_cast<u64>(first);
    if (more >= MostMoved)
        luaL_error(thread, "%s", message);
    return more + 1;
}

int Move(lua_State* thread)
{
    const u64 fields =
        CountFields(thread, luaL_checkinteger(thread, 2), luaL_checkinteger(thread, 3), "too many fields to move");
    return CallOriginal(thread, fields);
}

int Unpack(lua_State* thread)
{
    lua_settop(thread, 3);
    const lua_Integer first = luaL_optinteger(thread, 2, 1);
    const lua_Integer last = lua_isnil(thread, 3) ? luaL_len(thread, 1) : luaL_checkinteger(thread, 3);
    lua_pushinteger(thread, last); // it is asked for once
    lua_replace(thread, 3);
    return CallOriginal(thread, CountFields(thread, first, last, "too many results to unpack"));
}

constexpr luaL_Reg AccessFunctions[] = {
    {"next", Next},
    {"pairs", Pairs},
    {"rawset", RawSet},
    {"setmetatable", SetMetatable},
    {nullptr, nullptr},
};

constexpr luaL_Reg TableFunctions[] = {
    {"concat", Concat},
    {"insert", Insert},
    {"move", Move},
    {"remove", Remove},
    {"sort", Sort},
    {"unpack", Unpack},
};

} // namespace

void AddGuardedTableAccess(lua_State* thread)
{
    luaL_setfuncs(thread, AccessFunctions, 0);
}

void AddTableFunctions(lua_State* thread)
{
    luaL_requiref(thread, "table", luaopen_table, false);
    for (const luaL_Reg& function : TableFunctions) {
        lua_getfield(thread, -1, function.name);
        lua_pushcclosure(thread, function.func, 1);
        lua_setfield(thread, -3, function.name);
    }
    lua_pop(thread, 1);
}

} // namespace host
