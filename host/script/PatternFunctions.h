#pragma once

#include <lua.hpp>

namespace host {

// Adds find, match, gmatch and gsub to the table on top of the stack. They are Lua's own, but end with the script's
// limits.
void AddPatternFunctions(lua_State* thread);

} // namespace host
