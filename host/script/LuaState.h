#pragma once

#include "host/script/ScriptBudget.h"

#include <lua.hpp>

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace host {

// A Lua state in which every call is bounded, and the ways to call it. Lua is the library that throws: what stands on
// the stack is destroyed when a script fails.
class LuaState
{
public:
    explicit LuaState(const ScriptLimits& limits = {});
    ~LuaState();
    LuaState(const LuaState&) = delete;
    LuaState& operator=(const LuaState&) = delete;

    static LuaState& Of(lua_State* thread);

    // The thread on which a script runs now, else the main one. What the host calls meanwhile belongs there, so that
    // the depth of calls is counted in one place.
    lua_State* Thread() const { return m_Thread; }

    ScriptBudget& Budget() { return m_Budget; }

    // relief: called when no script runs and they keep too much, to take from them what they keep.
    void SetRelief(std::function<void()> relief) { m_Relief = std::move(relief); }

    // Collects what nobody keeps. True: there is room again.
    bool Collect();

    // Makes room for what is to be kept.
    void MakeRoom();

    // Calls what stands on the thread's stack: the function and its arguments. False: it failed, the stack is as if
    // nothing had been called, and Error says why.
    bool Call(int arguments, int results);

    // Does work of the host's that may fail for lack of memory, as work(lua_State*). It finds an empty stack; so many
    // values as it leaves come to lie on the thread's.
    template <class Work> bool Protect(Work&& work)
    {
        lua_CFunction body = [](lua_State* thread) {
            Work& carried = *static_cast<std::remove_reference_t<Work>*>(lua_touserdata(thread, 1));
            lua_settop(thread, 0);
            carried(thread);
            return lua_gettop(thread);
        };
        if (!lua_checkstack(m_Thread, SpareSlots)) {
            m_Error = "stack overflow";
            return false;
        }

        lua_pushcfunction(m_Thread, body);
        lua_pushlightuserdata(m_Thread, &work);
        return Call(1, LUA_MULTRET);
    }

    // Compiles the two texts as one function, and gives a reference to it in the registry. LUA_NOREF: it does not
    // compile, and Error says why. The name stands before the line in each message.
    int Compile(std::string_view prefix, std::string_view text, const char* name);

    // Raises an error in a script that is about to compile a text, if that is too much.
    static void CheckSource(lua_State* thread, std::string_view text);

    const std::string& Error() const { return m_Error; }

    // Takes the error that lies on top of a thread's stack, and makes it a text that begins with its place if that is
    // known.
    void TakeError(lua_State* thread, int status);

    // Notes the place where a thread is, in case its error doesn't say it.
    void NotePlace(lua_State* thread);

    // Memory ran out: raises the error that says where.
    int RaiseOutOfMemory(lua_State* thread);

    // Registers a function of the host's on top of the stack under a name in the table below it. owner: what it gets
    // back by Owner.
    static void AddFunction(lua_State* thread, const char* name, lua_CFunction function, void* owner);
    template <class Owner> static Owner& OwnerOf(lua_State* thread)
    {
        return *static_cast<Owner*>(lua_touserdata(thread, lua_upvalueindex(1)));
    }

private:
    friend class RunningThread;

    static constexpr int SpareSlots = 16;

    static int HandleError(lua_State* thread);
    static void* Allocate(void* state, void* block, std::size_t oldSize, std::size_t size);
    static void CountInstructions(lua_State* thread, lua_Debug* where);

    ScriptBudget m_Budget;
    lua_State* m_Thread = nullptr;
    lua_State* m_Main;
    char m_Place[LUA_IDSIZE + 16] = ""; // "chunk:line: "
    std::string m_Error;
    std::function<void()> m_Relief;
    bool m_IsMakingRoom = false;
};

// Keeps a value of Lua's alive, by its number in the registry; LUA_NOREF for none.
class LuaReference
{
public:
    LuaReference() = default;
    LuaReference(LuaState& state, int number) : m_State(&state), m_Number(number) { }
    LuaReference(LuaReference&& other) noexcept
        : m_State(other.m_State), m_Number(std::exchange(other.m_Number, LUA_NOREF))
    {
    }
    LuaReference& operator=(LuaReference&& other) noexcept
    {
        std::swap(m_State, other.m_State);
        std::swap(m_Number, other.m_Number);
        return *this;
    }
    ~LuaReference()
    {
        if (m_Number != LUA_NOREF)
            luaL_unref(m_State->Thread(), LUA_REGISTRYINDEX, m_Number);
    }

    int Number() const { return m_Number; }

    // Pushes the value.
    void Push(lua_State* thread) const { lua_rawgeti(thread, LUA_REGISTRYINDEX, m_Number); }

private:
    LuaState* m_State = nullptr;
    int m_Number = LUA_NOREF;
};

// A call of scripts by the host. The outermost has the limits.
class ScriptCall
{
public:
    explicit ScriptCall(LuaState& state) : m_State(state) { m_State.Budget().Begin(); }
    ~ScriptCall()
    {
        if (m_State.Budget().End() && m_State.Budget().IsFull())
            m_State.MakeRoom();
    }
    ScriptCall(const ScriptCall&) = delete;
    ScriptCall& operator=(const ScriptCall&) = delete;

private:
    LuaState& m_State;
};

// While a function of the host's that may come back to scripts is called by a thread.
class RunningThread
{
public:
    explicit RunningThread(lua_State* thread) : m_State(LuaState::Of(thread)), m_Before(m_State.m_Thread)
    {
        m_State.m_Thread = thread;
    }
    ~RunningThread() { m_State.m_Thread = m_Before; }
    RunningThread(const RunningThread&) = delete;
    RunningThread& operator=(const RunningThread&) = delete;

private:
    LuaState& m_State;
    lua_State* m_Before;
};

} // namespace host
