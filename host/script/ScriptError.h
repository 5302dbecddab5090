#pragma once

struct lua_State;

namespace host {

// End the running function of a script with an error, as luaL_error and luaL_argerror do, which do not say that they never
// come back. message: copied.
[[noreturn]] void RaiseError(lua_State* thread, const char* message);
[[noreturn]] void RaiseArgumentError(lua_State* thread, int argument, const char* message);

} // namespace host
