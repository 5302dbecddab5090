#pragma once

#include <lua.hpp>

namespace host {

// Adds to the table on top of the stack: moveblip(blip, x, y[, z]) moves a blip of a map within its world, and
// viewblip(view, blip) shows one in a view of maps as well.
void AddMapFunctions(lua_State* thread);

} // namespace host
