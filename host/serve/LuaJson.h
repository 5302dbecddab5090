#pragma once

#include "host/serve/JsonLine.h"

#include <lua.hpp>

namespace host {

class ScriptValues;

// A value of Lua's, as JSON: a table is a list if its keys are 1, 2, 3 and so on, else an object; what JSON cannot say is
// a text. Tables inside tables end after a few levels.
Json LuaToJson(lua_State* thread, int index, const ScriptValues& values);

} // namespace host
