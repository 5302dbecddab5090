#include "host/script/ScriptTasks.h"

#include "host/Console.h"
#include "host/script/CommandTable.h"
#include "host/script/PlainNumbers.h"
#include "host/script/ScriptError.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::size_t MostTasks = 64;
constexpr lua_Number LongestWait = 1'000'000; // seconds

} // namespace

void ScriptTasks::AddFunctions(lua_State* thread)
{
    LuaState::AddFunction(thread, "wait", Wait, this);
    LuaState::AddFunction(thread, "answer", Answer, this);
    LuaState::AddFunction(thread, "ask", Ask, this);
    LuaState::AddFunction(thread, "input", Input, this);
}

bool ScriptTasks::Start(const std::string& name, std::string_view text)
{
    const TrailStep step(m_Console.Trail(), name);
    if (m_Tasks.size() >= MostTasks) {
        m_Console.PrintText("too many scripts are running", LineWeight::Error);
        return false;
    }

    const ScriptCall call(m_State);
    const LuaReference function(m_State, m_State.Compile({}, text, ('=' + name).c_str()));
    std::unique_ptr<ScriptTask> task;
    const bool isReady = function.Number() != LUA_NOREF && m_State.Protect([&](lua_State* thread) {
        lua_State* coroutine = lua_newthread(thread);
        LuaReference reference(m_State, luaL_ref(thread, LUA_REGISTRYINDEX));
        function.Push(coroutine);
        task = std::make_unique<ScriptTask>(name, std::move(reference), coroutine, m_Atoms);
    });
    if (!isReady) {
        SayWhyFailed(name);
        return false;
    }
    ScriptTask& started = *m_Tasks.emplace_back(std::move(task));
    if (!Resume(started))
        std::erase_if(m_Tasks, [&](const auto& other) { return other.get() == &started; });
    return true;
}

void ScriptTasks::Advance(u32 now)
{
    m_Now = now;
    std::vector<ScriptTask*> due; // a script may start others
    for (const auto& task : m_Tasks)
        if (task.get() != m_Current && task->IsDue(now))
            due.push_back(task.get());
    for (ScriptTask* task : due)
        if (!Resume(*task))
            std::erase_if(m_Tasks, [&](const auto& other) { return other.get() == task; });
}

void ScriptTasks::EndAll()
{
    for (const auto& task : m_Tasks)
        task->End();
}

// False: the task has ended.
bool ScriptTasks::Resume(ScriptTask& task)
{
    if (task.IsEnded()) {
        const TrailStep step(m_Console.Trail(), task.Name());
        m_Console.PrintText("ended, since scripts keep too much memory", LineWeight::Error);
        return false;
    }
    const TrailStep step(m_Console.Trail(), task.Name());
    const ScriptCall call(m_State);
    ScriptTask* outer = std::exchange(m_Current, &task);
    task.GoOn();
    int status = LUA_OK;
    int results = 0;
    {
        lua_State* from = m_State.Thread();
        const RunningThread running(task.Thread());
        const PlainNumbers plain;
        status = lua_resume(task.Thread(), from, 0, &results);
    }
    m_Current = outer;
    if (status == LUA_YIELD || status == LUA_OK) {
        lua_pop(task.Thread(), results);
        return status == LUA_YIELD;
    }
    if (status != LUA_ERRMEM)
        m_State.NotePlace(task.Thread());
    m_State.TakeError(task.Thread(), status);
    SayWhyFailed(task.Name());
    return false;
}

void ScriptTasks::SayWhyFailed(const std::string& name)
{
    if (m_State.Budget().WhySpent() && !m_State.Budget().TakeNews())
        return;

    const std::string chunk = name + ':';
    const std::string& why = m_State.Error();
    m_Console.PrintText(why.starts_with(chunk) ? why.substr(chunk.size()) : why, LineWeight::Error);
}

ScriptTask& ScriptTasks::WaitingTask(lua_State* thread, const char* function)
{
    ScriptTask* task = LuaState::OwnerOf<ScriptTasks>(thread).m_Current;
    if (!task || task->Thread() != thread || !lua_isyieldable(thread)) {
        RaiseError(thread,
            lua_pushfstring(thread, "%s can only be called by a script that was started by the command run", function));
    }
    return *task;
}

int ScriptTasks::Wait(lua_State* thread)
{
    const lua_Number seconds = luaL_checknumber(thread, 1);
    ScriptTask& task = WaitingTask(thread, "wait");
    const lua_Number waited = seconds > 0 ? std::min(seconds, LongestWait) : 0;
    task.WaitUntil(LuaState::OwnerOf<ScriptTasks>(thread).m_Now + static_cast<u32>(waited * 1000));
    return lua_yield(thread, 0);
}

int ScriptTasks::Answer(lua_State* thread)
{
    return AwaitAnswer(thread, WaitingTask(thread, "answer"));
}

// ask(text), or ask(text, "okcancel") or "yesno": shows a text with buttons and gives the text of the one that was
// pressed, or nil.
int ScriptTasks::Ask(lua_State* thread)
{
    constexpr const char* kinds[] = {"ok", "okcancel", "yesno", nullptr};
    const char* text = luaL_checkstring(thread, 1);
    const char* kind = kinds[luaL_checkoption(thread, 2, kinds[0], kinds)];
    return OpenDialog(thread, WaitingTask(thread, "ask"), {"MessageBox", std::string("-") + kind, text});
}

// input(text), or input(text, default): asks for a line and gives what was typed, or nil. A text that looks like a flag
// is none behind the flags that are there.
int ScriptTasks::Input(lua_State* thread)
{
    const char* text = luaL_checkstring(thread, 1);
    const char* initial = luaL_optstring(thread, 2, "");
    return OpenDialog(thread, WaitingTask(thread, "input"), {"InputBox", "-skin", "", "-template", "", text, initial});
}

int ScriptTasks::OpenDialog(lua_State* thread, ScriptTask& task, std::vector<std::string> words)
{
    if (task.HasDialog())
        return luaL_error(thread, "a dialog of this script is open already");

    task.SetUserInput(nullptr);
    {
        const RunningThread running(thread);
        LuaState::OwnerOf<ScriptTasks>(thread).m_Commands.Execute(std::move(words));
    }
    return AwaitAnswer(thread, task);
}

int ScriptTasks::AwaitAnswer(lua_State* thread, ScriptTask& task)
{
    if (!task.HasDialog())
        return GiveAnswer(thread, LUA_OK, 0);

    task.WaitForAnswer();
    return lua_yieldk(thread, 0, 0, GiveAnswer);
}

int ScriptTasks::GiveAnswer(lua_State* thread, int, lua_KContext)
{
    lua_pushstring(thread, LuaState::OwnerOf<ScriptTasks>(thread).m_Current->GetUserInput());
    return 1;
}

} // namespace host
