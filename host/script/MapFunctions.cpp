#include "host/script/MapFunctions.h"

#include "host/script/ScriptObjects.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapBlip.h"

namespace host {

namespace {

TeskMapBlip* BlipAt(lua_State* thread, int index)
{
    const ScriptObject* object = ScriptObjects::At(thread, index);
    if (!object || !object->IsElement)
        return nullptr;
    return dynamic_cast<TeskMapBlip*>(static_cast<TeskElement*>(object->Value.Value.Object));
}

int MoveBlip(lua_State* thread)
{
    const TeskMapBlip* blip = BlipAt(thread, 1);
    if (!blip || !blip->Map())
        return luaL_argerror(thread, 1, "a blip of a map is needed");

    _Point3f location;
    location.x = static_cast<float>(luaL_checknumber(thread, 2));
    location.y = static_cast<float>(luaL_checknumber(thread, 3));
    location.z = static_cast<float>(luaL_optnumber(thread, 4, 0));
    blip->Map()->UpdateBlip(blip->ID, location);
    return 0;
}

} // namespace

void AddMapFunctions(lua_State* thread)
{
    lua_pushcfunction(thread, MoveBlip);
    lua_setfield(thread, -2, "moveblip");
}

} // namespace host
