#include "host/script/LuaState.h"
#include "host/script/ScriptGlobals.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// What an expression gives in a state, results joined by blanks; or the error.
std::string Evaluate(host::LuaState& state, const std::string& expression)
{
    const host::ScriptCall call(state);
    const std::string script = "local t = table.pack(pcall(function() return " + expression
        + " end)) for i = 1, t.n do t[i] = tostring(t[i]) end return table.concat(t, ' ')";
    const host::LuaReference function(state, state.Compile({}, script, "=script"));
    function.Push(state.Thread());
    if (!state.Call(0, 1))
        return state.Error();

    std::string result = lua_tostring(state.Thread(), -1);
    lua_pop(state.Thread(), 1);
    return result;
}

constexpr const char* Expressions[] = {
    "('hello world'):find('o w')",
    "('hello world'):find('o', 6)",
    "('hello world'):find('o', -4)",
    "('hello world'):find('xyz')",
    "('hello'):find('', 6)",
    "('hello'):find('', 7)",
    "('hello'):find('l+')",
    "('hello'):find('(l)(l)')",
    "('hello'):find('()ll()')",
    "('a.b'):find('.', 1, true)",
    "('a\\0b'):find('\\0b')",
    "('a\\0b'):find('%z')",
    "(''):find('^$')",
    "('hello'):match('^h(.-)o$')",
    "('hello'):match('^e')",
    "('key = value'):match('^(%w+)%s*=%s*(%w+)$')",
    "('2024-05-06'):match('(%d+)-(%d+)-(%d+)')",
    "('  trim  '):match('^%s*(.-)%s*$')",
    "('f(a(b)c)d'):match('%b()')",
    "('f(a(b c'):match('%b()')",
    "('THE (quick) fox'):find('%((%a+)%)')",
    "('THE (quick) fox'):gsub('%f[%a]%a+', 'w')",
    "('hello hello'):match('(h%a+) %1')",
    "('hello world'):match('(h%a+) %1')",
    "('abc'):match('[a-b]+')",
    "('a-c'):match('[a%-]+')",
    "('a]c'):match('[]]')",
    "('a]c'):match('[^]]+')",
    "('a^c'):match('[a^]+')",
    "('x-z'):match('[x-]+')",
    "('tab\\there'):match('%c')",
    "('Ab1_ .'):gsub('%a', 'a')",
    "('Ab1_ .'):gsub('%A', 'a')",
    "('Ab1_ .'):gsub('%l', 'l')",
    "('Ab1_ .'):gsub('%u', 'u')",
    "('Ab1_ .'):gsub('%d', 'd')",
    "('Ab1_ .'):gsub('%p', 'p')",
    "('Ab1_ .'):gsub('%s', 's')",
    "('Ab1_ .'):gsub('%w', 'w')",
    "('Ab1_ .'):gsub('%W', 'w')",
    "('Ab1g .'):gsub('%x', 'x')",
    "('Ab1g .'):gsub('%g', 'g')",
    "('\\xc3\\xa9t\\xe9'):gsub('%a', 'a')",
    "('abc'):gsub('', '-')",
    "('abc'):gsub('.', '%0%0')",
    "('abc'):gsub('(.)(.)', '%2%1')",
    "('abc'):gsub('.', '%%')",
    "('abc'):gsub('^.', 'x')",
    "('aaa'):gsub('a', 'b', 2)",
    "('aaa'):gsub('a', 'b', 0)",
    "('aaa'):gsub('a', 'b', -1)",
    "('abc'):gsub('%w', {a = 1, b = true, c = false})",
    "('abc'):gsub('%w', function(c) if c == 'b' then return 'B' end end)",
    "('abc'):gsub('()', function(n) return n end)",
    "('abc'):gsub('b*', 'x')",
    "('abc'):gsub('a-', 'x')",
    "('aXb'):match('a?X?b?c?$')",
    "('aaab'):match('a-b')",
    "('x'):rep(3, ','):gsub(',', '%0 ')",
    "('abc'):gsub('a', '%2')",
    "('abc'):gsub('a', '%')",
    "('abc'):gsub('a', '%x')",
    "('abc'):gsub('a', function() end)",
    "('abc'):gsub('.', {a = {}})",
    "('abc'):find('[a')",
    "('abc'):find('[a%')",
    "('abc'):find('[^')",
    "('abc'):find('%')",
    "('abc'):find('(a')",
    "('abc'):find('a)')",
    "('abc'):find('%1')",
    "('abc'):find('(a%1)')",
    "('abc'):find('%b(')",
    "('abc'):find('%f')",
    "('abc'):find('%fa')",
    "('abc'):gsub('a')",
    "('abc'):gsub('a', 1, 'x')",
    R"((function() local t = {} for k, v in ('a=1, b=2'):gmatch('(%w+)=(%w+)') do t[#t + 1] = k .. v end
        return table.concat(t, ' ') end)())",
    "(function() local t = {} for w in ('one two'):gmatch('%a+') do t[#t + 1] = w end return table.concat(t) end)()",
    "(function() local n = 0 for _ in ('abc'):gmatch('') do n = n + 1 end return n end)()",
    "(function() local t = {} for p in ('abc'):gmatch('()b*') do t[#t + 1] = p end return table.concat(t) end)()",
    "(function() local t = {} for w in ('abc'):gmatch('%a', 2) do t[#t + 1] = w end return table.concat(t) end)()",
    "(function() local t = {} for w in ('abc'):gmatch('%a', -1) do t[#t + 1] = w end return table.concat(t) end)()",
    "(function() local t = {} for w in ('abc'):gmatch('%a', 9) do t[#t + 1] = w end return table.concat(t) end)()",
    "(function() local n = 0 for _ in ('aa'):gmatch('^a') do n = n + 1 end return n end)()",
};

// A trusted state has Lua's own functions.
TEST(PatternMatcher, MatchesAsLuaDoes)
{
    host::LuaState guarded;
    host::LuaState own;
    const host::ScriptGlobals guardedGlobals(guarded, host::ScriptTrust::None);
    const host::ScriptGlobals ownGlobals(own, host::ScriptTrust::Full);
    for (const char* expression : Expressions)
        EXPECT_EQ(Evaluate(own, expression), Evaluate(guarded, expression)) << expression;
}

// Every pattern of three of these pieces on a few subjects.
TEST(PatternMatcher, MatchesAsLuaDoesOnPatternsThatNobodyWrote)
{
    host::LuaState guarded;
    host::LuaState own;
    const host::ScriptGlobals guardedGlobals(guarded, host::ScriptTrust::None);
    const host::ScriptGlobals ownGlobals(own, host::ScriptTrust::Full);
    const std::string script = R"((function()
        local pieces = {'a', '.', '%a', '[ab]', '[^a]', '*', '-', '?', '(', ')', '$', '%1', '%b', '[', '^'}
        local subjects = {'', 'a', 'ab', 'aab', 'baab'}
        local found = {}
        local function try(pattern)
            for _, subject in ipairs(subjects) do
                local ok, first, last, capture = pcall(string.find, subject, pattern)
                found[#found + 1] = tostring(first) .. tostring(last) .. tostring(capture)
            end
        end
        for _, first in ipairs(pieces) do
            for _, second in ipairs(pieces) do
                for _, third in ipairs(pieces) do
                    try(first .. second .. third)
                end
            end
        end
        return table.concat(found, '\n')
    end)())";
    EXPECT_TRUE(Evaluate(own, script) == Evaluate(guarded, script));
}

} // namespace
