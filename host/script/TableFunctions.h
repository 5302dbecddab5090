#pragma once

#include <lua.hpp>

namespace host {

// Adds next, pairs, rawset and setmetatable to the table on top of the stack.
void AddGuardedTableAccess(lua_State* thread);

// Adds the library's functions that go through tables. They do what Lua's do, but what they take counts: no script gets
// past its limits in them.
void AddTableFunctions(lua_State* thread);

} // namespace host
