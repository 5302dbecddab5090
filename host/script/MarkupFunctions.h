#pragma once

#include <lua.hpp>

namespace host {

class UsedFiles;

// Adds markup to the table on top of the stack: markup(name) gives the markup of an element of the interface files that
// were loaded, or nil. It reads no other files. The list of files is borrowed.
void AddMarkupFunctions(lua_State* thread, UsedFiles& files);

} // namespace host
