#include "host/script/ScriptObjects.h"

#include "teskara/script/MvTypeDefinition.h"

#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace host {

namespace {

const char MetatableMark = 0; // its address is a key of the metatables of objects

// A tab stands among the frames, but its values are no elements.
bool IsElementType(const MvTypeDefinition& type)
{
    if (std::string_view(type.GetName()) == "tesktab")
        return false;

    const MvTypeDefinition* base = &type;
    while (base && std::string_view(base->GetName()) != "teskelement")
        base = base->GetBase();
    return base;
}

} // namespace

void ScriptObjects::Push(lua_State* thread, const _MvTypeVar& value)
{
    if (!value.Type || !value.Value.Object) {
        lua_pushnil(thread);
        return;
    }

    const auto kept = m_Elements.find(value.Value.Object);
    if (kept != m_Elements.end()) {
        lua_rawgeti(thread, LUA_REGISTRYINDEX, kept->second.Reference);
        return;
    }

    ScriptObject& object = *PushNew(thread, value);
    if (!IsElementType(*value.Type)) {
        Link(object);
        object.Share = m_Sharer(value);
        return;
    }
    lua_pushvalue(thread, -1);
    m_Elements[value.Value.Object] = {&object, luaL_ref(thread, LUA_REGISTRYINDEX)};
    object.IsElement = true;
}

ScriptObject* ScriptObjects::At(lua_State* thread, int index)
{
    if (lua_type(thread, index) != LUA_TUSERDATA || !lua_getmetatable(thread, index))
        return nullptr;

    const bool isObject = lua_rawgetp(thread, -1, &MetatableMark) != LUA_TNIL;
    lua_pop(thread, 2);
    return isObject ? static_cast<ScriptObject*>(lua_touserdata(thread, index)) : nullptr;
}

void ScriptObjects::Invalidate(void* object)
{
    for (auto held = m_Others.find(object); held != m_Others.end(); held = m_Others.find(object)) {
        ScriptObject& ending = *held->second;
        Unlink(ending);
        ending.Value = {};
        ending.Share = nullptr;
    }

    const auto kept = m_Elements.find(object);
    if (kept == m_Elements.end())
        return;

    kept->second.Object->Value = {};
    luaL_unref(m_State.Thread(), LUA_REGISTRYINDEX, kept->second.Reference);
    m_Elements.erase(kept);
}

void ScriptObjects::ForgetType(MvTypeDefinition* type)
{
    std::vector<ScriptObject*> ending;
    for (const auto& [address, first] : m_Others) {
        for (ScriptObject* held = first; held; held = held->Next) {
            if (held->Value.Type == type)
                ending.push_back(held);
        }
    }
    for (ScriptObject* held : ending) {
        Unlink(*held);
        held->Value = {};
        held->Share = nullptr; // the last one ends the object, and tells those that are left
    }

    for (auto kept = m_Elements.begin(); kept != m_Elements.end();) {
        if (kept->second.Object->Value.Type != type) {
            ++kept;
            continue;
        }
        kept->second.Object->Value = {};
        luaL_unref(m_State.Thread(), LUA_REGISTRYINDEX, kept->second.Reference);
        kept = m_Elements.erase(kept);
    }

    const auto metatable = m_Metatables.find(type);
    if (metatable == m_Metatables.end())
        return;
    luaL_unref(m_State.Thread(), LUA_REGISTRYINDEX, metatable->second);
    m_Metatables.erase(metatable);
}

ScriptObject* ScriptObjects::PushNew(lua_State* thread, const _MvTypeVar& value)
{
    auto* object = new (lua_newuserdatauv(thread, sizeof(ScriptObject), 0)) ScriptObject;
    PushMetatable(thread, *value.Type);
    lua_setmetatable(thread, -2);
    object->Value = value;
    return object;
}

void ScriptObjects::PushMetatable(lua_State* thread, MvTypeDefinition& type)
{
    const auto made = m_Metatables.find(&type);
    if (made != m_Metatables.end()) {
        lua_rawgeti(thread, LUA_REGISTRYINDEX, made->second);
        return;
    }

    lua_createtable(thread, 0, 8);
    lua_pushboolean(thread, true);
    lua_rawsetp(thread, -2, &MetatableMark);
    LuaState::AddFunction(thread, "__gc", Collect, this);
    lua_pushboolean(thread, false);
    lua_setfield(thread, -2, "__metatable"); // scripts don't get to see it
    m_Filler(thread, type);
    lua_pushvalue(thread, -1);
    m_Metatables[&type] = luaL_ref(thread, LUA_REGISTRYINDEX);
}

void ScriptObjects::Link(ScriptObject& object)
{
    ScriptObject*& first = m_Others[object.Value.Value.Object];
    object.Next = first;
    if (first)
        first->Previous = &object;
    first = &object;
    object.IsLinked = true;
}

void ScriptObjects::Unlink(ScriptObject& object)
{
    if (!std::exchange(object.IsLinked, false))
        return;

    if (object.Next)
        object.Next->Previous = object.Previous;
    if (object.Previous)
        object.Previous->Next = object.Next;
    else if (object.Next)
        m_Others[object.Value.Value.Object] = object.Next;
    else
        m_Others.erase(object.Value.Value.Object);
    object.Previous = object.Next = nullptr;
}

int ScriptObjects::Collect(lua_State* thread)
{
    auto& objects = LuaState::OwnerOf<ScriptObjects>(thread);
    auto& object = *static_cast<ScriptObject*>(lua_touserdata(thread, 1));
    objects.Unlink(object);
    object.~ScriptObject();
    return 0;
}

} // namespace host
