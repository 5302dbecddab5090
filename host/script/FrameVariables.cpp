#include "host/script/FrameVariables.h"

#include "host/script/ScriptGlobals.h"

#include <cstdio>

namespace host {

namespace {

void SetField(lua_State* thread, const char* name, lua_Integer number)
{
    lua_pushinteger(thread, number);
    lua_setfield(thread, -2, name);
}

// Adds a table that scripts can only read, and keeps it.
LuaReference AddTable(LuaState& state, lua_State* thread, const char* name)
{
    lua_newtable(thread);
    lua_pushvalue(thread, -1);
    LuaReference table(state, luaL_ref(thread, LUA_REGISTRYINDEX));
    ScriptGlobals::MakeReadOnly(thread);
    lua_setfield(thread, -2, name);
    return table;
}

} // namespace

FrameVariables::FrameVariables(LuaState& state, ScriptGlobals& globals) : m_State(state)
{
    globals.Add([this](lua_State* thread) {
        m_Display = AddTable(m_State, thread, "Display");
        m_Mouse = AddTable(m_State, thread, "Mouse");
        lua_pushvalue(thread, -1);
        m_Names = LuaReference(m_State, luaL_ref(thread, LUA_REGISTRYINDEX));
    });
    Set({});
}

void FrameVariables::Set(const FrameState& frame)
{
    m_State.Protect([&](lua_State* thread) {
        m_Display.Push(thread);
        SetField(thread, "Width", frame.Width);
        SetField(thread, "Height", frame.Height);
        m_Mouse.Push(thread);
        SetField(thread, "X", frame.Mouse.x);
        SetField(thread, "Y", frame.Mouse.y);

        m_Names.Push(thread);
        SetField(thread, "FPS", frame.FramesPerSecond);
        SetField(thread, "Frame", frame.Number);
        lua_pushstring(thread, frame.Skin.c_str());
        lua_setfield(thread, -2, "Skin");
        char text[64];
        std::snprintf(
            text, sizeof text, "%04d-%02d-%02d", frame.Time.tm_year + 1900, frame.Time.tm_mon + 1, frame.Time.tm_mday);
        lua_pushstring(thread, text);
        lua_setfield(thread, -2, "Date");
        std::snprintf(text, sizeof text, "%02d:%02d:%02d", frame.Time.tm_hour, frame.Time.tm_min, frame.Time.tm_sec);
        lua_pushstring(thread, text);
        lua_setfield(thread, -2, "Time");
        lua_settop(thread, 0);
    });
}

} // namespace host
