#include "host/script/GuardedFunctions.h"

#include "host/script/LuaState.h"
#include "host/script/PatternFunctions.h"
#include "host/script/TableFunctions.h"

#include <string_view>

namespace host {

namespace {

bool HasFailed(int status)
{
    return status != LUA_OK && status != LUA_YIELD;
}

// An error was caught, and lies on top of the stack. If it ends the whole call it is raised again.
void LetLimitsPass(lua_State* thread, int status)
{
    LuaState& state = LuaState::Of(thread);
    if (status == LUA_ERRMEM)
        state.RaiseOutOfMemory(thread);
    if (state.Budget().WhySpent())
        lua_error(thread);
}

// --- Protected calls

int FinishCall(lua_State* thread, int status, lua_KContext below)
{
    if (!HasFailed(status))
        return lua_gettop(thread) - static_cast<int>(below);

    LetLimitsPass(thread, status);
    lua_pushboolean(thread, false);
    lua_pushvalue(thread, -2);
    return 2;
}

int ProtectedCall(lua_State* thread)
{
    luaL_checkany(thread, 1);
    lua_pushboolean(thread, true);
    lua_insert(thread, 1);
    return FinishCall(thread, lua_pcallk(thread, lua_gettop(thread) - 2, LUA_MULTRET, 0, 0, FinishCall), 0);
}

// The handler, at the bottom of the stack, is called once the error has ended what it ended. While an error of the limits
// is raised nothing is counted, and a handler would run without limits.
int FinishCallWithHandler(lua_State* thread, int status, lua_KContext)
{
    if (!HasFailed(status))
        return lua_gettop(thread) - 1;

    LetLimitsPass(thread, status);
    lua_pushvalue(thread, 1);
    lua_insert(thread, -2);
    lua_call(thread, 1, 1);
    lua_pushboolean(thread, false);
    lua_insert(thread, -2);
    return 2;
}

int ProtectedCallWithHandler(lua_State* thread)
{
    luaL_checktype(thread, 2, LUA_TFUNCTION);
    lua_pushvalue(thread, 2);
    lua_remove(thread, 2);
    lua_insert(thread, 1);
    lua_pushboolean(thread, true);
    lua_insert(thread, 2);
    const int arguments = lua_gettop(thread) - 3;
    const int status = lua_pcallk(thread, arguments, LUA_MULTRET, 0, 0, FinishCallWithHandler);
    return FinishCallWithHandler(thread, status, 0);
}

// --- Coroutines

lua_State* ThreadArgument(lua_State* thread, int index)
{
    lua_State* other = lua_tothread(thread, index);
    luaL_argexpected(thread, other, index, "coroutine");
    return other;
}

// Resumes with what lies on top of the stack. The number of results, or -1: it failed, and the error lies on top.
int ResumeThread(lua_State* thread, lua_State* other, int arguments)
{
    if (!lua_checkstack(other, arguments)) {
        lua_pushliteral(thread, "too many arguments to resume");
        return -1;
    }
    lua_xmove(thread, other, arguments);
    int results = 0;
    int status = LUA_OK;
    {
        const RunningThread running(other);
        status = lua_resume(other, thread, arguments, &results);
    }
    if (HasFailed(status)) {
        lua_xmove(other, thread, 1);
        LetLimitsPass(thread, status);
        return -1;
    }
    if (!lua_checkstack(thread, results + 1)) {
        lua_pop(other, results);
        lua_pushliteral(thread, "too many results to resume");
        return -1;
    }
    lua_xmove(other, thread, results);
    return results;
}

int Resume(lua_State* thread)
{
    lua_State* other = ThreadArgument(thread, 1);
    const int results = ResumeThread(thread, other, lua_gettop(thread) - 1);
    lua_pushboolean(thread, results >= 0);
    lua_insert(thread, results < 0 ? -2 : -(results + 1));
    return results < 0 ? 2 : results + 1;
}

// There is no way to close a coroutine from outside: what closes another while it is closed itself would go as deep
// as it likes, since Lua doesn't count that.
int ResumeWrapped(lua_State* thread)
{
    lua_State* other = lua_tothread(thread, lua_upvalueindex(1));
    const int results = ResumeThread(thread, other, lua_gettop(thread));
    return results < 0 ? lua_error(thread) : results;
}

int Wrap(lua_State* thread)
{
    luaL_checktype(thread, 1, LUA_TFUNCTION);
    lua_State* other = lua_newthread(thread);
    lua_pushvalue(thread, 1);
    lua_xmove(thread, other, 1);
    lua_pushcclosure(thread, ResumeWrapped, 1);
    return 1;
}

// --- Texts

// Compiles a text. A compiled chunk could do anything.
int Load(lua_State* thread)
{
    std::size_t length = 0;
    const char* text = luaL_checklstring(thread, 1, &length);
    const char* name = luaL_optstring(thread, 2, "=load");
    const bool hasVariables = !lua_isnone(thread, 3);
    LuaState::CheckSource(thread, {text, length});
    const int status = luaL_loadbufferx(thread, text, length, name, "t");
    if (HasFailed(status)) {
        LetLimitsPass(thread, status);
        lua_pushnil(thread);
        lua_insert(thread, -2);
        return 2;
    }
    if (hasVariables) {
        lua_pushvalue(thread, 3);
        lua_setupvalue(thread, -2, 1);
    }
    return 1;
}

// The library's runs through each repetition of nothing.
int Repeat(lua_State* thread)
{
    std::size_t length = 0;
    std::size_t separatorLength = 0;
    luaL_checklstring(thread, 1, &length);
    luaL_checkinteger(thread, 2);
    luaL_optlstring(thread, 3, "", &separatorLength);
    if (length + separatorLength == 0) {
        lua_pushliteral(thread, "");
        return 1;
    }
    lua_pushvalue(thread, lua_upvalueindex(1));
    lua_insert(thread, 1);
    lua_call(thread, lua_gettop(thread) - 1, 1);
    return 1;
}

void AddGuardedString(lua_State* thread)
{
    luaL_requiref(thread, "string", luaopen_string, false);
    lua_getfield(thread, -1, "rep");
    lua_pushcclosure(thread, Repeat, 1);
    lua_setfield(thread, -3, "rep");
    lua_pop(thread, 1);
    AddPatternFunctions(thread);
}

constexpr luaL_Reg CallFunctions[] = {
    {"pcall", ProtectedCall},
    {nullptr, nullptr},
};

constexpr luaL_Reg BaseFunctions[] = {
    {"xpcall", ProtectedCallWithHandler},
    {"load", Load},
    {nullptr, nullptr},
};

constexpr luaL_Reg CoroutineFunctions[] = {
    {"resume", Resume},
    {"wrap", Wrap},
    {nullptr, nullptr},
};

} // namespace

void AddGuardedCall(lua_State* thread)
{
    luaL_setfuncs(thread, CallFunctions, 0);
}

void AddGuardedBase(lua_State* thread)
{
    AddGuardedCall(thread);
    luaL_setfuncs(thread, BaseFunctions, 0);
    AddGuardedTableAccess(thread);
}

void AddGuarded(lua_State* thread, const char* library)
{
    const std::string_view name = library;
    if (name == "coroutine")
        luaL_setfuncs(thread, CoroutineFunctions, 0);
    else if (name == "table")
        AddTableFunctions(thread);
    else if (name == "string")
        AddGuardedString(thread);
}

} // namespace host
