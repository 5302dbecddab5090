#pragma once

#include <lua.hpp>

namespace host {

// Adds moveblip to the table on top of the stack: moveblip(blip, x, y[, z]) moves a blip of a map within its world.
void AddMapFunctions(lua_State* thread);

} // namespace host
