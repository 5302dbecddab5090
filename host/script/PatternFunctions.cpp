#include "host/script/PatternFunctions.h"

#include "host/script/LuaState.h"
#include "host/script/PatternMatcher.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace host {

namespace {

constexpr std::string_view SpecialCharacters = "^$*+?.([%-";
constexpr std::size_t CharactersOfStep = 16; // that are looked at in the time of an instruction

std::string_view TextArgument(lua_State* thread, int index)
{
    std::size_t length = 0;
    const char* text = luaL_checklstring(thread, index, &length);
    return {text, length};
}

// The place where a search begins: an argument that counts from 1, or from the end if it is negative. It may lie behind
// the end.
std::size_t StartArgument(lua_State* thread, int index, std::size_t length)
{
    const lua_Integer start = luaL_optinteger(thread, index, 1);
    if (start > 0)
        return static_cast<std::size_t>(start) - 1;
    const auto size = static_cast<lua_Integer>(length);
    return start == 0 || start < -size ? 0 : static_cast<std::size_t>(size + start);
}

int FindPlain(lua_State* thread, std::string_view subject, std::string_view wanted, std::size_t start)
{
    if (const char* why = LuaState::Of(thread).Budget().SpendSteps((subject.size() - start) / CharactersOfStep))
        return luaL_error(thread, "%s", why);

    const char* from = subject.data() + start;
    const void* found = memmem(from, subject.size() - start, wanted.data(), wanted.size()); // linear, unlike others
    if (!found) {
        lua_pushnil(thread);
        return 1;
    }
    const lua_Integer first = static_cast<const char*>(found) - subject.data() + 1;
    lua_pushinteger(thread, first);
    lua_pushinteger(thread, first + static_cast<lua_Integer>(wanted.size()) - 1);
    return 2;
}

int FindPattern(lua_State* thread, std::string_view subject, std::string_view pattern, std::size_t start, bool places)
{
    const bool isAnchored = pattern.starts_with('^');
    pattern.remove_prefix(isAnchored ? 1 : 0);
    PatternMatcher matcher(thread, subject, pattern);
    const char* subjectEnd = subject.data() + subject.size();
    const char* at = subject.data() + start;
    do {
        const char* end = matcher.MatchAt(at);
        if (!end)
            continue;
        if (!places)
            return matcher.PushCaptures(at, end, true);
        lua_pushinteger(thread, at - subject.data() + 1);
        lua_pushinteger(thread, end - subject.data());
        return matcher.PushCaptures(at, end, false) + 2;
    } while (at++ < subjectEnd && !isAnchored);
    lua_pushnil(thread);
    return 1;
}

int Find(lua_State* thread)
{
    const std::string_view subject = TextArgument(thread, 1);
    const std::string_view pattern = TextArgument(thread, 2);
    const std::size_t start = StartArgument(thread, 3, subject.size());
    if (start > subject.size()) {
        lua_pushnil(thread);
        return 1;
    }
    const bool isPlain = lua_toboolean(thread, 4) || pattern.find_first_of(SpecialCharacters) == pattern.npos;
    return isPlain ? FindPlain(thread, subject, pattern, start) : FindPattern(thread, subject, pattern, start, true);
}

int Match(lua_State* thread)
{
    const std::string_view subject = TextArgument(thread, 1);
    const std::string_view pattern = TextArgument(thread, 2);
    const std::size_t start = StartArgument(thread, 3, subject.size());
    if (start <= subject.size())
        return FindPattern(thread, subject, pattern, start, false);

    lua_pushnil(thread);
    return 1;
}

// The iterator of gmatch. Upvalues: subject, pattern, where it goes on, and the end of the last match, which an empty
// match must not touch.
int NextMatch(lua_State* thread)
{
    const std::string_view subject = TextArgument(thread, lua_upvalueindex(1));
    const char* subjectEnd = subject.data() + subject.size();
    const auto next = lua_tointeger(thread, lua_upvalueindex(3));
    const auto last = lua_tointeger(thread, lua_upvalueindex(4));
    PatternMatcher matcher(thread, subject, TextArgument(thread, lua_upvalueindex(2)));
    for (lua_Integer place = next; place <= static_cast<lua_Integer>(subject.size()); ++place) {
        const char* at = subject.data() + place;
        const char* end = matcher.MatchAt(at);
        if (!end || end - subject.data() == last)
            continue;
        lua_pushinteger(thread, end - subject.data());
        lua_pushvalue(thread, -1);
        lua_replace(thread, lua_upvalueindex(3));
        lua_replace(thread, lua_upvalueindex(4));
        return matcher.PushCaptures(at, end, true);
    }
    lua_pushinteger(thread, subjectEnd - subject.data() + 1);
    lua_replace(thread, lua_upvalueindex(3));
    return 0;
}

int MatchEach(lua_State* thread)
{
    const std::size_t length = TextArgument(thread, 1).size();
    TextArgument(thread, 2);
    const std::size_t start = std::min(StartArgument(thread, 3, length), length + 1);
    lua_settop(thread, 2);
    lua_pushinteger(thread, static_cast<lua_Integer>(start));
    lua_pushinteger(thread, -1);
    lua_pushcclosure(thread, NextMatch, 4);
    return 1;
}

// Adds a replacement text, in which %1 stands for a capture.
void AddText(lua_State* thread, luaL_Buffer& result, PatternMatcher& matcher, const char* start, const char* end)
{
    std::string_view text = TextArgument(thread, 3);
    while (!text.empty()) {
        const std::size_t escape = std::min(text.find('%'), text.size());
        luaL_addlstring(&result, text.data(), escape);
        text.remove_prefix(escape);
        if (text.empty())
            return;
        const char code = text.size() > 1 ? text[1] : '\0';
        if (code == '%') {
            luaL_addchar(&result, '%');
        } else if (code == '0') {
            luaL_addlstring(&result, start, static_cast<std::size_t>(end - start));
        } else if (code >= '1' && code <= '9') {
            matcher.PushCapture(code - '1', start, end);
            luaL_tolstring(thread, -1, nullptr);
            lua_remove(thread, -2);
            luaL_addvalue(&result);
        } else {
            luaL_error(thread, "invalid use of '%%' in replacement string");
        }
        text.remove_prefix(2);
    }
}

// Adds what stands for a match: a text, or what a table or a function says. False and nil leave the match as it is.
void AddReplacement(lua_State* thread, luaL_Buffer& result, PatternMatcher& matcher, const char* start, const char* end)
{
    switch (lua_type(thread, 3)) {
    case LUA_TFUNCTION:
        lua_pushvalue(thread, 3);
        lua_call(thread, matcher.PushCaptures(start, end, true), 1);
        break;
    case LUA_TTABLE:
        matcher.PushCapture(0, start, end);
        lua_gettable(thread, 3);
        break;
    default:
        AddText(thread, result, matcher, start, end);
        return;
    }

    if (!lua_toboolean(thread, -1)) {
        lua_pop(thread, 1);
        luaL_addlstring(&result, start, static_cast<std::size_t>(end - start));
    } else if (lua_isstring(thread, -1)) {
        luaL_addvalue(&result);
    } else {
        luaL_error(thread, "invalid replacement value (a %s)", luaL_typename(thread, -1));
    }
}

int Replace(lua_State* thread)
{
    const std::string_view subject = TextArgument(thread, 1);
    std::string_view pattern = TextArgument(thread, 2);
    const int type = lua_type(thread, 3);
    luaL_argexpected(thread, type == LUA_TNUMBER || type == LUA_TSTRING || type == LUA_TFUNCTION || type == LUA_TTABLE,
        3, "string/function/table");
    const auto most = luaL_optinteger(thread, 4, static_cast<lua_Integer>(subject.size()) + 1);
    const bool isAnchored = pattern.starts_with('^');
    pattern.remove_prefix(isAnchored ? 1 : 0);
    PatternMatcher matcher(thread, subject, pattern);
    const char* subjectEnd = subject.data() + subject.size();
    const char* at = subject.data();
    const char* last = nullptr;
    lua_Integer count = 0;
    luaL_Buffer result;
    luaL_buffinit(thread, &result);
    while (count < most) {
        const char* end = matcher.MatchAt(at);
        if (end && end != last) {
            ++count;
            AddReplacement(thread, result, matcher, at, end);
            at = last = end;
        } else if (at < subjectEnd) {
            luaL_addchar(&result, *at);
            ++at;
        } else {
            break;
        }
        if (isAnchored)
            break;
    }
    luaL_addlstring(&result, at, static_cast<std::size_t>(subjectEnd - at));
    luaL_pushresult(&result);
    lua_pushinteger(thread, count);
    return 2;
}

constexpr luaL_Reg Functions[] = {
    {"find", Find},
    {"gmatch", MatchEach},
    {"gsub", Replace},
    {"match", Match},
    {nullptr, nullptr},
};

} // namespace

void AddPatternFunctions(lua_State* thread)
{
    luaL_setfuncs(thread, Functions, 0);
}

} // namespace host
