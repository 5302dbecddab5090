#include "host/script/MapFunctions.h"

#include "host/record/ToolkitCalls.h"
#include "host/script/LuaState.h"
#include "host/script/ScriptObjects.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapBlip.h"
#include "teskara/windows/TeskMapView.h"

namespace host {

namespace {

// Null: the argument is no such element.
template <class Element> Element* ElementAt(lua_State* thread, int index)
{
    const ScriptObject* object = ScriptObjects::At(thread, index);
    if (!object || !object->IsElement)
        return nullptr;
    return dynamic_cast<Element*>(static_cast<TeskElement*>(object->Value.Value.Object));
}

int MoveBlip(lua_State* thread)
{
    const TeskMapBlip* blip = ElementAt<TeskMapBlip>(thread, 1);
    if (!blip || !blip->Map())
        return luaL_argerror(thread, 1, "a blip of a map is needed");

    _Point3f location;
    location.x = static_cast<float>(luaL_checknumber(thread, 2));
    location.y = static_cast<float>(luaL_checknumber(thread, 3));
    location.z = static_cast<float>(luaL_optnumber(thread, 4, 0));
    Toolkit::MoveBlip(blip->Map()->ID, blip->ID, location);
    return 0;
}

// The frame may run scripts of a template as it is made.
int ViewBlip(lua_State* thread)
{
    const TeskMapView* view = ElementAt<TeskMapView>(thread, 1);
    const TeskMapBlip* blip = ElementAt<TeskMapBlip>(thread, 2);
    if (!view)
        return luaL_argerror(thread, 1, "a view of maps is needed");
    if (!blip)
        return luaL_argerror(thread, 2, "a blip of a map is needed");

    const RunningThread running(thread);
    lua_pushboolean(thread, Toolkit::ViewBlip(view->ID, blip->ID));
    return 1;
}

} // namespace

void AddMapFunctions(lua_State* thread)
{
    lua_pushcfunction(thread, MoveBlip);
    lua_setfield(thread, -2, "moveblip");
    lua_pushcfunction(thread, ViewBlip);
    lua_setfield(thread, -2, "viewblip");
}

} // namespace host
