#include "host/script/LuaState.h"

#include <new>
#include <stdexcept>

namespace host {

namespace {

constexpr int CountedAtOnce = 256; // instructions

// The text that is being compiled, in two pieces.
struct SourceReader {
    std::string_view Prefix;
    std::string_view Text;

    static const char* Read(lua_State*, void* data, std::size_t* size)
    {
        auto& reader = *static_cast<SourceReader*>(data);
        std::string_view& piece = reader.Prefix.empty() ? reader.Text : reader.Prefix;
        const char* start = piece.data();
        *size = piece.size();
        piece = {};
        return start;
    }
};

} // namespace

LuaState::LuaState(const ScriptLimits& limits)
    : m_Budget(limits), m_Main(lua_newstate(Allocate, this)), m_Thread(m_Main)
{
    if (!m_Main)
        throw std::bad_alloc();

    lua_atpanic(
        m_Main, [](lua_State*) -> int { throw std::runtime_error("an error of a script's that nobody caught"); });

    // New threads take over both from the one that makes them.
    *static_cast<LuaState**>(lua_getextraspace(m_Main)) = this;
    lua_sethook(m_Main, CountInstructions, LUA_MASKCOUNT, CountedAtOnce);
}

LuaState::~LuaState()
{
    lua_close(m_Main);
}

LuaState& LuaState::Of(lua_State* thread)
{
    return **static_cast<LuaState**>(lua_getextraspace(thread));
}

bool LuaState::Call(int arguments, int results)
{
    lua_State* thread = m_Thread;
    const int status = lua_pcall(thread, arguments, results, 0);
    if (status == LUA_OK)
        return true;

    TakeError(thread, status);
    return false;
}

int LuaState::Compile(std::string_view prefix, std::string_view text, const char* name)
{
    int reference = LUA_NOREF;
    Protect([&](lua_State* thread) {
        SourceReader reader{prefix, text};
        const int status = lua_load(thread, SourceReader::Read, &reader, name, "t");
        if (status == LUA_ERRMEM)
            m_Budget.RunOutOfMemory();
        if (status != LUA_OK)
            lua_error(thread);
        reference = luaL_ref(thread, LUA_REGISTRYINDEX);
    });
    return reference;
}

void LuaState::TakeError(lua_State* thread, int status)
{
    if (status == LUA_ERRMEM)
        m_Budget.RunOutOfMemory();
    if (status == LUA_ERRMEM && m_Budget.WhySpent())
        m_Error = m_Budget.WhySpent();
    else if (lua_type(thread, -1) == LUA_TSTRING)
        m_Error = lua_tostring(thread, -1);
    else if (lua_isinteger(thread, -1))
        m_Error = std::to_string(lua_tointeger(thread, -1));
    else
        m_Error = std::string("the error is a ") + luaL_typename(thread, -1) + " value";
    lua_pop(thread, 1);
}

void LuaState::AddFunction(lua_State* thread, const char* name, lua_CFunction function, void* owner)
{
    lua_pushlightuserdata(thread, owner);
    lua_pushcclosure(thread, function, 1);
    lua_setfield(thread, -2, name);
}

void* LuaState::Allocate(void* state, void* block, std::size_t oldSize, std::size_t size)
{
    return static_cast<LuaState*>(state)->m_Budget.Reallocate(block, oldSize, size);
}

void LuaState::CountInstructions(lua_State* thread, lua_Debug* where)
{
    const char* why = Of(thread).m_Budget.Spend(CountedAtOnce);
    if (!why)
        return;

    lua_getinfo(thread, "Sl", where);
    lua_pushfstring(thread, "%s:%d: %s", where->short_src, where->currentline, why);
    lua_error(thread);
}

} // namespace host
