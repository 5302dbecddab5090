#include "host/script/ScriptError.h"

#include <cstdlib>

#include <lua.hpp>

namespace host {

void RaiseError(lua_State* thread, const char* message)
{
    luaL_error(thread, "%s", message);
    std::abort();
}

void RaiseArgumentError(lua_State* thread, int argument, const char* message)
{
    luaL_argerror(thread, argument, message);
    std::abort();
}

} // namespace host
