#include "host/serve/LuaJson.h"

#include "host/script/ScriptValues.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace host {

namespace {

constexpr int DeepestTable = 8;
constexpr lua_Unsigned MostFields = 100000; // of all tables of a value

class Conversion
{
public:
    Conversion(lua_State* thread, const ScriptValues& values) : m_Thread(thread), m_Values(values) { }

    Json Convert(int index, int levels)
    {
        switch (lua_type(m_Thread, index)) {
        case LUA_TNIL:
            return nullptr;
        case LUA_TBOOLEAN:
            return lua_toboolean(m_Thread, index) != 0;
        case LUA_TNUMBER:
            return Number(index);
        case LUA_TTABLE:
            return levels > 0 && lua_checkstack(m_Thread, Slots) ? Table(index, levels) : Json("table");
        default:
            return Text(index);
        }
    }

private:
    static constexpr int Slots = 4;

    // A number that is none in JSON, such as infinity, is a text.
    Json Number(int index)
    {
        if (lua_isinteger(m_Thread, index))
            return lua_tointeger(m_Thread, index);
        const lua_Number number = lua_tonumber(m_Thread, index);
        return std::isfinite(number) ? Json(number) : Text(index);
    }

    Json Text(int index)
    {
        std::string text;
        if (!m_Values.AppendText(m_Thread, index, text))
            text = lua_typename(m_Thread, lua_type(m_Thread, index));
        return text;
    }

    Json Table(int index, int levels)
    {
        const int table = lua_absindex(m_Thread, index);
        const int top = lua_gettop(m_Thread);
        const lua_Unsigned length = lua_rawlen(m_Thread, table);
        Json list = Json::array();
        Json object = Json::object();
        lua_Unsigned count = 0;
        for (lua_pushnil(m_Thread); m_Fields < MostFields && lua_next(m_Thread, table) != 0; ++count, ++m_Fields) {
            Json value = Convert(-1, levels - 1);
            lua_pop(m_Thread, 1);
            object[Text(-1).get<std::string>()] = std::move(value);
        }
        lua_settop(m_Thread, top);
        if (count == 0 || length != count)
            return object;

        for (lua_Unsigned at = 1; at <= length; ++at)
            list.push_back(std::move(object[std::to_string(at)]));
        return list;
    }

    lua_State* m_Thread;
    const ScriptValues& m_Values;
    lua_Unsigned m_Fields = 0;
};

} // namespace

Json LuaToJson(lua_State* thread, int index, const ScriptValues& values)
{
    return Conversion(thread, values).Convert(index, DeepestTable);
}

} // namespace host
