#include "host/script/ScriptValues.h"

#include "host/SignedNumber.h"
#include "host/probe/HostTypes.h"
#include "host/record/ToolkitCalls.h"
#include "host/script/ScriptObjects.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace host {

namespace {

constexpr std::size_t NumberSize = 40;
constexpr std::size_t BytesOfStep = 16; // of a text that is handed over in the time of an instruction
constexpr int LuaDigits = 14; // as many as Lua itself writes

using NumberText = char[NumberSize];

std::string_view WriteNumber(NumberText& text, lua_Integer number)
{
    const auto end = std::to_chars(text, text + sizeof text, number);
    return {text, static_cast<std::size_t>(end.ptr - text)};
}

std::string_view WriteNumber(NumberText& text, lua_Number number)
{
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::general, LuaDigits);
    return {text, static_cast<std::size_t>(end.ptr - text)};
}

std::string_view WriteNumber(NumberText& text, lua_State* thread, int index)
{
    return lua_isinteger(thread, index) ? WriteNumber(text, lua_tointeger(thread, index))
                                        : WriteNumber(text, lua_tonumber(thread, index));
}

// 0.3 as a float is 0.3 for a script as well, not 0.30000001192093.
lua_Number Widen(float value)
{
    NumberText text;
    const auto end = std::to_chars(text, text + sizeof text, value);
    lua_Number number = static_cast<lua_Number>(value);
    ReadSignedNumber({text, static_cast<std::size_t>(end.ptr - text)}, number);
    return number;
}

std::string_view WithoutPlus(std::string_view text)
{
    return text.substr(text.starts_with('+') ? 1 : 0);
}

lua_Integer ReadInteger(std::string_view text)
{
    text = WithoutPlus(text);
    lua_Integer number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

lua_Number ReadNumber(std::string_view text)
{
    lua_Number number = 0;
    ReadSignedNumber(WithoutPlus(text), number);
    return number;
}

bool SameWord(std::string_view text, std::string_view upperWord)
{
    if (text.size() != upperWord.size())
        return false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char letter = text[index];
        if ((letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter) != upperWord[index])
            return false;
    }
    return true;
}

void PushPoint(lua_State* thread, const _Point3f& point)
{
    lua_createtable(thread, 0, 3);
    lua_pushnumber(thread, Widen(point.x));
    lua_setfield(thread, -2, "X");
    lua_pushnumber(thread, Widen(point.y));
    lua_setfield(thread, -2, "Y");
    lua_pushnumber(thread, Widen(point.z));
    lua_setfield(thread, -2, "Z");
}

void PushText(lua_State* thread, std::string_view text)
{
    lua_pushlstring(thread, text.data(), text.size());
}

// A slider writes its value with six decimals: here they are told from texts that look like numbers, like 1.50.
std::string_view WithoutPadding(std::string_view text)
{
    constexpr std::size_t Decimals = 6;
    const std::size_t point = text.find('.');
    if (point == 0 || point == std::string_view::npos || text.size() - point - 1 != Decimals)
        return text;
    if (text.find_first_not_of("0123456789", point + 1) != std::string_view::npos)
        return text;

    text.remove_suffix(text.size() - text.find_last_not_of('0') - 1);
    if (text.back() == '.')
        text.remove_suffix(1);
    return text;
}

} // namespace

void ScriptValues::Push(lua_State* thread, const _MvTypeVar& value) const
{
    const HostValueType* own = m_Types.AsOwn(value.Type);
    if (!own) {
        m_Objects.Push(thread, value);
        return;
    }

    switch (own->Kind()) {
    case HostValueKind::String:
        lua_pushstring(thread, value.Value.Text); // nil if there is none
        break;
    case HostValueKind::Int:
        lua_pushinteger(thread, value.Value.Integer);
        break;
    case HostValueKind::Int64:
        lua_pushinteger(thread, value.Value.Integer64);
        break;
    case HostValueKind::Uint:
        lua_pushinteger(thread, value.Value.Unsigned);
        break;
    case HostValueKind::Bool:
        lua_pushboolean(thread, value.Value.Bool);
        break;
    case HostValueKind::Float:
        lua_pushnumber(thread, Widen(value.Value.Float));
        break;
    case HostValueKind::Point3f:
        if (value.Value.Object)
            PushPoint(thread, *static_cast<const _Point3f*>(value.Value.Object));
        else
            lua_pushnil(thread);
        break;
    default:
        PushText(thread, own->TextOf(value.Value));
        break;
    }
}

void ScriptValues::PushVariable(lua_State* thread, std::string_view text)
{
    text = WithoutPadding(text);
    const char* end = text.data() + text.size();
    NumberText again;
    lua_Integer integer = 0;
    if (std::from_chars(text.data(), end, integer).ptr == end && WriteNumber(again, integer) == text) {
        lua_pushinteger(thread, integer);
        return;
    }
    lua_Number number = 0;
    if (ReadSignedNumber(text, number) == text.size() && WriteNumber(again, number) == text) {
        lua_pushnumber(thread, number);
        return;
    }
    if (text == "TRUE" || text == "FALSE")
        lua_pushboolean(thread, text == "TRUE");
    else
        PushText(thread, text);
}

void ScriptValues::PushArgument(lua_State* thread, std::string_view type, const char* text)
{
    const std::string_view given = text ? text : "";
    if (type == "int" || type == "uint" || type == "int64")
        lua_pushinteger(thread, ReadInteger(given));
    else if (type == "float")
        lua_pushnumber(thread, ReadNumber(given));
    else if (type == "bool")
        lua_pushboolean(thread, SameWord(given, "TRUE") || ReadNumber(given) != 0);
    else
        PushText(thread, given);
}

_MvTypeVar ScriptValues::Read(lua_State* thread, int index) const
{
    _MvTypeVar value;
    const auto use = [&](HostValueKind kind) { value.Type = &m_Types.Own(kind); };
    switch (lua_type(thread, index)) {
    case LUA_TSTRING:
        use(HostValueKind::String);
        value.Value.Text = lua_tostring(thread, index);
        break;
    case LUA_TBOOLEAN:
        use(HostValueKind::Bool);
        value.Value.Bool = lua_toboolean(thread, index);
        break;
    case LUA_TNUMBER:
        if (!lua_isinteger(thread, index)) {
            use(HostValueKind::Float);
            value.Value.Float = static_cast<float>(lua_tonumber(thread, index));
            break;
        }
        value.Value.Integer64 = lua_tointeger(thread, index);
        use(value.Value.Integer64 == static_cast<i32>(value.Value.Integer64) ? HostValueKind::Int
                                                                             : HostValueKind::Int64);
        break;
    default:
        if (const ScriptObject* object = ScriptObjects::At(thread, index))
            value = object->Value;
        break;
    }
    return value;
}

bool ScriptValues::AppendText(lua_State* thread, int index, std::string& text) const
{
    NumberText number;
    switch (lua_type(thread, index)) {
    case LUA_TSTRING:
        text.append(lua_tostring(thread, index), lua_rawlen(thread, index));
        return true;
    case LUA_TBOOLEAN:
        text += lua_toboolean(thread, index) ? "TRUE" : "FALSE";
        return true;
    case LUA_TNUMBER:
        text += WriteNumber(number, thread, index);
        return true;
    default:
        const ScriptObject* object = ScriptObjects::At(thread, index);
        return object && AppendText(object->Value, text);
    }
}

bool ScriptValues::AppendText(const _MvTypeVar& value, std::string& text) const
{
    if (!value.Type)
        return false;

    NumberText number;
    if (const HostValueType* own = m_Types.AsOwn(value.Type)) {
        if (own->Kind() == HostValueKind::String) {
            text += value.Value.Text ? value.Value.Text : "";
            return value.Value.Text;
        }
        if (own->Kind() == HostValueKind::Int)
            text += WriteNumber(number, lua_Integer{value.Value.Integer});
        else
            text += own->TextOf(value.Value);
        return true;
    }

    char buffer[4096];
    buffer[0] = '\0';
    if (!Toolkit::ToText(value, buffer, sizeof buffer))
        return false;
    text += buffer;
    return true;
}

ArgumentTexts::ArgumentTexts(lua_State* thread, const ScriptValues& values, int first)
{
    m_Count = std::max(lua_gettop(thread) - first + 1, 0);
    if (m_Count > Most)
        luaL_error(thread, "too many arguments");

    ScriptBudget& budget = LuaState::Of(thread).Budget();
    std::size_t bytes = 0;
    for (int index = 0; index < m_Count; ++index) {
        const int place = first + index;
        if (lua_type(thread, place) != LUA_TSTRING) {
            std::string text;
            if (!values.AppendText(thread, place, text))
                luaL_argerror(thread, index + 1, "a text, a number, a truth value or an object is needed");
            PushText(thread, text);
            lua_replace(thread, place);
        }
        m_Texts[index] = const_cast<char*>(lua_tostring(thread, place)); // nobody writes there
        bytes += lua_rawlen(thread, place);
        if (lua_rawlen(thread, place) > budget.Limits().TextBytes)
            luaL_argerror(thread, index + 1, "the text is too long");
    }
    m_Texts[m_Count] = nullptr;
    if (const char* why = budget.SpendSteps(bytes / BytesOfStep))
        luaL_error(thread, "%s", why);
}

} // namespace host
