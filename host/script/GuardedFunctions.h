#pragma once

#include <lua.hpp>

namespace host {

// Functions of Lua's libraries in a form in which no script gets past its limits: what a call has to end for cannot be
// caught, and nothing loops for long where instructions aren't counted.

// Adds pcall to the table on top of the stack.
void AddGuardedCall(lua_State* thread);

// Adds those of the base library, pcall among them.
void AddGuardedBase(lua_State* thread);

// Adds those of another library; none if it needs no guard.
void AddGuarded(lua_State* thread, const char* library);

} // namespace host
