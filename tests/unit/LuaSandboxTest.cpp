// What scripts that nobody trusts can do, and that every call of theirs ends.

#include "host/script/LuaState.h"
#include "host/script/ScriptGlobals.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using host::LuaState;
using host::ScriptCall;
using host::ScriptGlobals;
using host::ScriptLimits;
using host::ScriptTrust;

class LuaSandbox : public testing::Test
{
protected:
    // What a script returns as a text, or why it failed.
    std::string Run(const std::string& script)
    {
        const ScriptCall call(State);
        const host::LuaReference function(State, State.Compile({}, script, "=script"));
        if (function.Number() == LUA_NOREF)
            return State.Error();

        function.Push(State.Thread());
        if (!State.Call(0, 1))
            return State.Error();
        std::string result = luaL_tolstring(State.Thread(), -1, nullptr);
        lua_pop(State.Thread(), 2);
        return result;
    }

    // The script has to be stopped, and the next one runs as ever.
    void ExpectStopped(const std::string& script, const char* why)
    {
        const std::string error = Run(script);
        EXPECT_NE(std::string::npos, error.find(why)) << script << ": " << error;
        EXPECT_EQ("3", Run("return 1 + 2")) << script;
    }

    static constexpr const char* TooMany = "stopped, since it ran too many instructions";
    static constexpr const char* TooMuch = "stopped, since it took too much memory";

    LuaState State{{1'000'000, std::chrono::milliseconds(20000), 1024 * 1024, 8 * 1024 * 1024}};
    ScriptGlobals Globals{State, ScriptTrust::None};
};

TEST_F(LuaSandbox, ScriptsHaveNoWayToFilesProcessesAndTheInsideOfLua)
{
    for (const char* name :
        {"io", "require", "package", "debug", "dofile", "loadfile", "collectgarbage", "warn", "os.execute", "os.exit",
            "os.getenv", "os.remove", "os.rename", "os.tmpname", "os.setlocale", "string.dump", "coroutine.close"})
        EXPECT_EQ("nil", Run(std::string("return ") + name)) << name;
    EXPECT_EQ("number", Run("return type(os.time())"));
    EXPECT_EQ("number", Run("return type(os.clock())"));
    EXPECT_EQ("string", Run("return type(os.date())"));
}

TEST_F(LuaSandbox, TextsAreCompiledAndCompiledChunksAreNot)
{
    EXPECT_EQ("3", Run("return load('return 1 + 2')()"));
    EXPECT_EQ("7", Run("return load('return x', 'name', {x = 7})()"));
    EXPECT_EQ("nil", Run("return (load('1 +'))"));
    EXPECT_EQ("nil", Run("return (load('\\27Lua'))"));
    EXPECT_NE(std::string::npos, Run("return select(2, load('\\27Lua'))").find("attempt to load a binary chunk"));
    EXPECT_NE(std::string::npos, Run("return load(function() return nil end)").find("string expected"));
}

TEST_F(LuaSandbox, VariablesAreSharedAndNamesOfTheHostsAreNot)
{
    Run("Shared = 5");
    EXPECT_EQ("5", Run("return Shared"));
    EXPECT_EQ("5", Run("return _G.Shared"));
    EXPECT_EQ("script:1: 'pcall' belongs to the host and cannot be assigned", Run("pcall = 5"));
    EXPECT_EQ("script:1: 'string' belongs to the host and cannot be assigned", Run("_G.string = {}"));
    EXPECT_EQ("script:1: this belongs to the host and cannot be changed", Run("string.format = print"));
    EXPECT_NE(std::string::npos, Run("rawset(string, 'format', 1)").find("this is protected"));
    EXPECT_NE(std::string::npos, Run("rawset(_G, 'print', 1)").find("this is protected"));
    EXPECT_NE(std::string::npos, Run("setmetatable(_G, nil)").find("this is protected"));
    EXPECT_NE(std::string::npos, Run("table.insert(string, 1)").find("cannot be changed"));
    EXPECT_EQ("false", Run("return getmetatable(_G)"));
    EXPECT_EQ("false", Run("return getmetatable(string)"));
}

TEST_F(LuaSandbox, TheFunctionsOfTextsCannotBeChanged)
{
    EXPECT_EQ("false", Run("return getmetatable('')"));
    EXPECT_EQ("script:1: attempt to index a boolean value", Run("getmetatable('').__index.format = 1"));
    EXPECT_NE(std::string::npos, Run("('').format = 1").find("attempt to index a string value"));
    EXPECT_EQ("A1", Run("return ('a%d'):format(1):upper()"));
}

TEST_F(LuaSandbox, WhatRunsWithoutEndIsStopped)
{
    ExpectStopped("while true do end", TooMany);
    ExpectStopped("local function f() return f() end f()", TooMany);
    ExpectStopped("repeat until load('return false')()", TooMany);
    ExpectStopped("for _ in function() return 1 end do end", TooMany);
    ExpectStopped("local t = setmetatable({}, {__index = function(t, k) return t[k + 1] end}) "
                  "while true do pcall(function() return t[1] end) end",
        "stopped");
}

TEST_F(LuaSandbox, ALimitCannotBeCaught)
{
    ExpectStopped("while true do pcall(function() while true do end end) end", TooMany);
    ExpectStopped("xpcall(function() while true do end end, function() while true do end end)", "stopped");
    ExpectStopped("pcall(pcall, pcall, function() while true do end end) while true do end", TooMany);
    ExpectStopped("local t <close> = setmetatable({}, {__close = function() while true do end end}) "
                  "while true do end",
        "stopped");
    ExpectStopped(
        "pcall(function() string.rep('x', 1 << 40) end) pcall(string.rep, 'x', 2000000) return 'went on'", TooMuch);
    ExpectStopped("local t = setmetatable({}, {__tostring = function() while true do end end}) error(t)",
        "the error is a table value");
}

TEST_F(LuaSandbox, CoroutinesCountAsTheirCaller)
{
    ExpectStopped("coroutine.wrap(function() while true do end end)()", TooMany);
    ExpectStopped("coroutine.resume(coroutine.create(function() while true do end end)) return 'went on'", TooMany);
    ExpectStopped("while true do pcall(coroutine.wrap(function() while true do end end)) end", TooMany);
    ExpectStopped(
        "while true do coroutine.wrap(function() local n = 0 for i = 1, 50 do n = n + i end end)() end", "stopped");
    ExpectStopped(
        "Kept = coroutine.wrap(function() while true do coroutine.yield() end end) while true do Kept() end", TooMany);
    ExpectStopped("local co co = coroutine.wrap(function() "
                  "  local t <close> = setmetatable({}, {__close = function() while true do end end}) "
                  "  coroutine.yield() end) "
                  "co() while true do end",
        TooMany);
}

TEST_F(LuaSandbox, CoroutinesWorkAsEver)
{
    EXPECT_EQ("1 2 3 nil",
        Run("local next = coroutine.wrap(function() for i = 1, 3 do coroutine.yield(i) end end) "
            "local t = {} for i = 1, 4 do t[i] = tostring((next())) end return table.concat(t, ' ')"));
    EXPECT_EQ("true 5 6",
        Run("local co = coroutine.create(function(a, b) local c = coroutine.yield(a + b) "
            "return c end) local _, sum = coroutine.resume(co, 2, 3) "
            "local ok, c = coroutine.resume(co, 6) return tostring(ok) .. ' ' .. sum .. ' ' .. c"));
    EXPECT_EQ("false script:1: why",
        Run("local ok, why = coroutine.resume(coroutine.create(function() error('why') "
            "end)) return tostring(ok) .. ' ' .. why"));
    EXPECT_EQ("script:1: why", Run("coroutine.wrap(function() error('why') end)()"));
    EXPECT_EQ("true 4",
        Run("local co = coroutine.wrap(function() local ok, n = pcall(coroutine.yield) "
            "return tostring(ok) .. ' ' .. n end) co() return co(4)"));
    EXPECT_EQ("false why",
        Run("local co = coroutine.wrap(function() local ok, why = pcall(function() "
            "coroutine.yield() error('why', 0) end) return tostring(ok) .. ' ' .. why end) co() "
            "return co()"));
    EXPECT_NE(std::string::npos, Run("coroutine.yield()").find("outside a coroutine"));
    EXPECT_NE(std::string::npos, Run("return select(2, coroutine.resume(coroutine.running()))").find("non-suspended"));
}

TEST_F(LuaSandbox, MemoryIsBoundedInEachCall)
{
    ExpectStopped("local t = {} for i = 1, 1e9 do t[i] = i end", TooMuch);
    ExpectStopped("local s = 'x' while true do s = s .. s end", TooMuch);
    ExpectStopped("return ('x'):rep(10 * 1024 * 1024)", TooMuch);
    ExpectStopped("return table.concat(setmetatable({}, {__index = type}), '', 1, 1 << 40)", TooMuch);
    ExpectStopped("local t = {} while true do t = {t} end", TooMuch);
    ExpectStopped("local function deep(n) return n + deep(n) end return deep(1)", TooMuch);
    EXPECT_EQ("400000", Run("return #('x'):rep(100000):rep(4)"));
}

TEST_F(LuaSandbox, WhatIsKeptBetweenCallsIsBoundedAsWell)
{
    for (int call = 0; call < 40; ++call)
        Run("Kept = Kept or {} Kept[#Kept + 1] = ('x'):rep(500000)");
    EXPECT_EQ("true", Run("return #Kept < 20"));
    Run("Kept = nil");
    EXPECT_EQ("500000", Run("return #('x'):rep(500000)"));
}

TEST_F(LuaSandbox, FunctionsThatLoopWithoutInstructionsAreBounded)
{
    EXPECT_EQ("", Run("return ('').rep('', 1 << 60)"));
    EXPECT_NE(std::string::npos, Run("table.move({}, 1, 1 << 60, 2)").find("too many fields to move"));
    EXPECT_NE(std::string::npos, Run("table.move({}, math.mininteger, math.maxinteger, 2)").find("too many fields"));
    for (const char* call : {"table.sort(t)", "table.insert(t, 1, 1)", "table.remove(t, 1)", "table.concat(t)"})
        EXPECT_NE(std::string::npos,
            Run(std::string("local t = setmetatable({}, {__len = function() return 1 << 50 end}) ") + call)
                .find("a table with __len cannot be used here"))
            << call;
    EXPECT_NE(std::string::npos, Run("return table.unpack({}, 1, 1 << 40)").find("too many results"));
    ExpectStopped("local t = {} for i = 1, 2000 do t[i] = i % 7 end "
                  "while true do table.sort(t, function(a, b) return a > b end) end",
        TooMany);
}

TEST_F(LuaSandbox, SortingLongTextsIsStopped)
{
    const char* texts = "local a = ('x'):rep(300000) local b, t = a .. 'b', {} a = a .. 'a' "
                        "for i = 1, 4000 do t[i] = i % 2 == 0 and a or b end ";
    ExpectStopped(std::string(texts) + "table.sort(t)", TooMany);
    ExpectStopped(std::string(texts) + "table.sort(t, string.find)", TooMany);
    ExpectStopped("local t = {} for i = 1, 20000 do t[i] = '1' end table.sort(t, utf8.len)", TooMany);
    EXPECT_EQ("1 2 a b", Run("local t = {'b', '2', 'a', '1'} table.sort(t) return table.concat(t, ' ')"));
    EXPECT_NE(std::string::npos, Run("table.sort({1, 'a'})").find("attempt to compare"));
    EXPECT_NE(std::string::npos, Run("table.sort({1, 2}, 1)").find("function expected"));
}

TEST_F(LuaSandbox, LoopsOfTheLibraryThatCallItsOtherFunctionsAreStopped)
{
    const char* holes = "local t = {} for i = 1, 3000 do t[i] = '' end for i = 3, 3000 do t[i] = nil end ";
    const char* texts = "local t = {} for i = 1, 10000 do t[i] = '' end ";
    const char* moves = "while true do table.move(t, 3, 2900, 1, {}) end";
    ExpectStopped(std::string(holes) + "setmetatable(t, {__index = next}) " + moves, TooMany);
    ExpectStopped(std::string(holes) + "setmetatable(t, {__index = (pairs(t))}) " + moves, TooMany);
    ExpectStopped(
        std::string(texts) + "setmetatable(t, {__index = table.concat}) while true do local a, b = t[10001], t.x end",
        "stopped");
    ExpectStopped(std::string(texts) + "while true do table.insert(t, 1, '') end", "stopped");
    ExpectStopped(
        "local t = setmetatable({}, {__index = type}) while true do table.unpack(t, 1, 10000) end", "stopped");
}

TEST_F(LuaSandbox, TablesAreGoneThroughAsEver)
{
    EXPECT_EQ("a 1", Run("for key, value in pairs({a = 1}) do return key .. ' ' .. value end"));
    EXPECT_EQ("x 7",
        Run("local t = setmetatable({}, {__pairs = function() return function(_, k) if not k then return 'x', 7 end "
            "end "
            "end}) for key, value in pairs(t) do return key .. ' ' .. value end"));
    EXPECT_EQ("nil", Run("return next({})"));
    EXPECT_EQ("2 3", Run("return table.concat({table.unpack({1, 2, 3}, 2)}, ' ')"));
    EXPECT_EQ("1 2", Run("return table.concat(table.move({1, 2}, 1, 2, 1, {}), ' ')"));
    EXPECT_EQ("4", Run("local t = {} for i = 1, 4 do table.insert(t, i) end return table.remove(t)"));
    EXPECT_EQ("5", Run("return (table.unpack(setmetatable({5}, {__len = function() return 1 end})))"));
}

TEST_F(LuaSandbox, WhatTakesLongToCompileIsNotCompiled)
{
    const std::string choices = "local text = 'x = a' .. (' or b'):rep(";
    EXPECT_NE(std::string::npos, Run(choices + "40000) return load(text)").find("the script is too long"));
    ExpectStopped(choices + "4000) while true do load(text) end", TooMany);
    ExpectStopped("x = a" + std::string(100000, '\n'), "the script is too long");
}

TEST_F(LuaSandbox, PatternsWithoutEndAreStopped)
{
    ExpectStopped("return ('a'):rep(40):find(('a*'):rep(20) .. 'b')", TooMany);
    ExpectStopped("return ('a'):rep(60):match(('a-'):rep(30) .. 'b')", TooMany);
    ExpectStopped("for _ in ('a'):rep(100000):gmatch('.-.-.-b') do end", TooMany);
    ExpectStopped("return ('x'):rep(300000):gsub('.-' .. '[' .. ('y'):rep(1000) .. ']', '')", TooMany);
    ExpectStopped("return ('('):rep(400000):find('%b()')", TooMany);
    EXPECT_NE(std::string::npos, Run("return ('a'):find(('(a?)'):rep(300))").find("too many captures"));
    EXPECT_NE(std::string::npos, Run("return ('a'):rep(300):find(('a?'):rep(300))").find("pattern too complex"));
    EXPECT_EQ("nil", Run("return (('a'):rep(400000):find(('a'):rep(200000) .. 'b', 1, true))"));
}

TEST_F(LuaSandbox, NothingIsCalledWhenATableIsCollected)
{
    EXPECT_NE(std::string::npos, Run("setmetatable({}, {__gc = function() end})").find("__gc is not available"));
    EXPECT_EQ("nil",
        Run("local meta = {} setmetatable({}, meta) meta.__gc = function() Called = true end meta = nil "
            "for i = 1, 100000 do local t = {} end return Called"));
}

TEST_F(LuaSandbox, CallsThatGoTooDeepFail)
{
    EXPECT_NE(std::string::npos,
        Run("local function deep() local ok, why = pcall(deep) return why end return deep()").find("C stack overflow"));
    EXPECT_NE(std::string::npos,
        Run("local function deep() return coroutine.wrap(deep)() end return deep()").find("C stack overflow"));
    EXPECT_NE(std::string::npos,
        Run("return select(2, load('return ' .. ('('):rep(1000) .. '1' .. (')'):rep(1000)))").find("overflow"));
    EXPECT_NE(std::string::npos,
        Run("local t = setmetatable({}, {}) getmetatable(t).__index = t return t.x").find("'__index' chain too long"));
    EXPECT_EQ("3", Run("return 1 + 2"));
}

TEST_F(LuaSandbox, ErrorsThatAreNoTextsAreNamed)
{
    EXPECT_EQ("script:1: the error is a table value", Run("error({})"));
    EXPECT_EQ("script:2: the error is a nil value", Run("\nerror()"));
    EXPECT_EQ("script:1: 42", Run("error(42, 0)"));
    EXPECT_EQ("false why handled",
        Run("local ok, why = xpcall(error, function(why) return why .. ' handled' end, 'why') "
            "return tostring(ok) .. ' ' .. why"));
    EXPECT_EQ("true 3",
        Run("local ok, sum = xpcall(function(a, b) return a + b end, error, 1, 2) "
            "return tostring(ok) .. ' ' .. sum"));
    EXPECT_EQ("script:1: the error is a function value", Run("error(print or pcall)"));
}

TEST_F(LuaSandbox, EveryErrorSaysItsLine)
{
    EXPECT_EQ("script:3: why", Run("local f = function()\n\nerror('why', 0) end f()"));
    EXPECT_EQ("script:2: invalid order function for sorting",
        Run("local t = {} for i = 1, 100 do t[i] = i end\ntable.sort(t, function() return true end)"));
    EXPECT_EQ("script:2: attempt to yield from outside a coroutine", Run("\ncoroutine.yield()"));
    EXPECT_EQ("script:2: C stack overflow", Run("local function f()\nreturn coroutine.wrap(f)() end\n\nf()"));
    EXPECT_EQ("script:2: stopped, since it took too much memory", Run("\nlocal s = ('x'):rep(1 << 30)"));
    EXPECT_EQ("script:3: stopped, since it took too much memory", Run("local t = {}\nfor i = 1, 1e9 do\nt[i] = i end"));
    EXPECT_EQ("script:2: stopped, since it took too much memory", Run("local function f()\nreturn 1 + f() end\nf()"));
    EXPECT_EQ("script:3: stopped, since it took too much memory",
        Run("pcall(coroutine.wrap(function()\nlocal s = 'x' while true do\ns = s .. s end end))\n"));
}

TEST_F(LuaSandbox, ALongErrorIsCut)
{
    EXPECT_EQ(1000u, Run("error(('x'):rep(100000))").size());
}

TEST_F(LuaSandbox, TimeIsBoundedWhereInstructionsAreLong)
{
    LuaState slow{{1'000'000'000, std::chrono::milliseconds(50), 64 * 1024 * 1024, 128 * 1024 * 1024}};
    const ScriptGlobals globals(slow, ScriptTrust::None);
    const ScriptCall call(slow);
    const host::LuaReference function(
        slow, slow.Compile({}, "local a, b = ('x'):rep(1000000), ('x'):rep(1000000) while a == b do end", "=script"));
    function.Push(slow.Thread());
    EXPECT_FALSE(slow.Call(0, 0));
    EXPECT_EQ("script:1: stopped, since it ran too long", slow.Error());
}

TEST_F(LuaSandbox, MemoryOutsideOfLuaIsCountedAsWell)
{
    host::ScriptBudget& budget = State.Budget();
    const std::size_t before = budget.Bytes();
    {
        const ScriptCall call(State);
        EXPECT_TRUE(budget.TakeBytes(1000 * 1024));
        EXPECT_EQ(before + 1000 * 1024, budget.Bytes());
        EXPECT_FALSE(budget.TakeBytes(100 * 1024));
        EXPECT_FALSE(budget.TakeBytes(~std::size_t{0})) << "which would wrap";
        EXPECT_EQ(before + 1000 * 1024, budget.Bytes());
        EXPECT_NE(std::string::npos, Run("return #('x'):rep(400000)").find(TooMuch));
        budget.GiveBytes(1000 * 1024);
    }
    EXPECT_EQ("400000", Run("return #('x'):rep(400000)"));
}

TEST(LuaTrust, TrustedScriptsHaveTheWholeLibraryAndTheSameLimits)
{
    LuaState state{{100'000, std::chrono::milliseconds(20000), 1024 * 1024, 8 * 1024 * 1024}};
    const ScriptGlobals globals(state, ScriptTrust::Full);
    const auto run = [&](const char* script) {
        const ScriptCall call(state);
        const host::LuaReference function(state, state.Compile({}, script, "=script"));
        function.Push(state.Thread());
        if (!state.Call(0, 1))
            return state.Error();
        std::string result = luaL_tolstring(state.Thread(), -1, nullptr);
        lua_pop(state.Thread(), 2);
        return result;
    };
    EXPECT_EQ("function", run("return type(io.open)"));
    EXPECT_EQ("function", run("return type(require)"));
    EXPECT_EQ("function", run("return type(string.dump)"));
    EXPECT_EQ("script:1: stopped, since it ran too many instructions",
        run("while true do pcall(coroutine.wrap(function() while true do end end)) end"));
}

} // namespace
