#pragma once

#include <lua.hpp>

namespace host {

// Functions of Lua's libraries in a form in which no script gets past its limits: what a call has to end for cannot be
// caught, and nothing loops for long where instructions aren't counted.

// Adds pcall and xpcall to the table on top of the stack.
void AddGuardedCalls(lua_State* thread);

// Adds those of the base library, the two among them.
void AddGuardedBase(lua_State* thread);

// Adds those of another library; none if it needs no guard.
void AddGuarded(lua_State* thread, const char* library);

} // namespace host
