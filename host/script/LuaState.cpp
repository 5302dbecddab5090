#include "host/script/LuaState.h"

#include "host/script/PlainNumbers.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <stdexcept>

namespace host {

namespace {

constexpr int CountedAtOnce = 256; // instructions

constexpr std::size_t LongestError = 1000; // characters
constexpr const char* TooDeep = "stack overflow";

// Whether an error begins with a name, a line and a colon.
bool HasPlace(std::string_view error)
{
    constexpr std::string_view digits = "0123456789";
    const std::size_t line = error.find(':') + 1;
    const std::size_t end = line == 0 ? error.npos : error.find_first_not_of(digits, line);
    return end != error.npos && end > line && error.substr(end).starts_with(": ");
}

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

LuaState::LuaState(const ScriptLimits& limits) : m_Budget(limits), m_Main(lua_newstate(Allocate, this))
{
    if (!m_Main)
        throw std::bad_alloc();

    m_Thread = m_Main;
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

bool LuaState::Collect()
{
    lua_gc(m_Thread, LUA_GCCOLLECT);
    return m_Budget.HasRoom();
}

void LuaState::MakeRoom()
{
    if (std::exchange(m_IsMakingRoom, true))
        return;

    if (!Collect() && m_Relief) {
        m_Relief();
        if (!Collect())
            m_Budget.AcceptBytes();
    }
    m_IsMakingRoom = false;
}

bool LuaState::Call(int arguments, int results)
{
    const PlainNumbers plain;
    lua_State* thread = m_Thread;
    const int handler = lua_gettop(thread) - arguments; // where the function lies now
    if (!lua_checkstack(thread, 1)) {
        lua_settop(thread, handler - 1);
        m_Error = TooDeep;
        return false;
    }
    lua_pushcfunction(thread, HandleError);
    lua_insert(thread, handler);
    const int status = lua_pcall(thread, arguments, results, handler);
    if (status != LUA_OK)
        TakeError(thread, status);
    lua_remove(thread, handler);
    return status == LUA_OK;
}

int LuaState::Compile(std::string_view prefix, std::string_view text, const char* name)
{
    int reference = LUA_NOREF;
    Protect([&](lua_State* thread) {
        CheckSource(thread, text);
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

void LuaState::CheckSource(lua_State* thread, std::string_view text)
{
    ScriptBudget& budget = Of(thread).m_Budget;
    if (text.size() > budget.Limits().SourceBytes)
        luaL_error(thread, "the script is too long");
    if (const char* why = budget.Spend(text.size()))
        luaL_error(thread, "%s", why);
}

void LuaState::TakeError(lua_State* thread, int status)
{
    const bool isException = status < 0; // one of C++'s, and what lies there is no error
    if (status == LUA_ERRMEM)
        m_Budget.RunOutOfMemory();
    if (status == LUA_ERRMEM)
        m_Error = m_Budget.WhySpent();
    else if (isException)
        m_Error = "the host could not do it";
    else if (lua_type(thread, -1) == LUA_TSTRING)
        m_Error.assign(lua_tostring(thread, -1), std::min<std::size_t>(lua_rawlen(thread, -1), LongestError));
    else if (lua_isinteger(thread, -1))
        m_Error = std::to_string(lua_tointeger(thread, -1));
    else
        m_Error = std::string("the error is a ") + luaL_typename(thread, -1) + " value";
    lua_pop(thread, 1);
    if (!HasPlace(m_Error))
        m_Error.insert(0, m_Place);
    m_Place[0] = '\0';
}

void LuaState::NotePlace(lua_State* thread)
{
    m_Place[0] = '\0';
    lua_Debug where;
    for (int level = 0; lua_getstack(thread, level, &where); ++level) {
        lua_getinfo(thread, "Sl", &where);
        if (where.currentline > 0) {
            std::snprintf(m_Place, sizeof m_Place, "%s:%d: ", where.short_src, where.currentline);
            return;
        }
    }
}

int LuaState::RaiseOutOfMemory(lua_State* thread)
{
    m_Budget.RunOutOfMemory();
    lua_pushfstring(thread, "%s%s", m_Place, m_Budget.WhySpent());
    return lua_error(thread);
}

void LuaState::AddFunction(lua_State* thread, const char* name, lua_CFunction function, void* owner)
{
    lua_pushlightuserdata(thread, owner);
    lua_pushcclosure(thread, function, 1);
    lua_setfield(thread, -2, name);
}

void* LuaState::Allocate(void* state, void* block, std::size_t oldSize, std::size_t size)
{
    LuaState& self = *static_cast<LuaState*>(state);
    void* moved = self.m_Budget.Reallocate(block, oldSize, size);
    if (!moved && size > 0 && self.m_Thread)
        self.NotePlace(self.m_Thread); // Lua doesn't ask for it when memory runs out
    return moved;
}

// It is called where the error is raised, and leaves it as it is.
int LuaState::HandleError(lua_State* thread)
{
    Of(thread).NotePlace(thread);
    return 1;
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
