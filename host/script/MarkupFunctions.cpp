#include "host/script/MarkupFunctions.h"

#include "host/files/ElementMarkup.h"
#include "host/files/UsedFiles.h"
#include "host/script/LuaState.h"

namespace host {

namespace {

int Markup(lua_State* thread)
{
    const char* name = luaL_checkstring(thread, 1);
    const auto markup = FindElementMarkup(LuaState::OwnerOf<UsedFiles>(thread), name);
    if (markup)
        lua_pushlstring(thread, markup->data(), markup->size());
    else
        lua_pushnil(thread);
    return 1;
}

} // namespace

void AddMarkupFunctions(lua_State* thread, UsedFiles& files)
{
    LuaState::AddFunction(thread, "markup", Markup, &files);
}

} // namespace host
