#include "host/script/IndexAccess.h"

#include "host/script/IndexType.h"
#include "host/script/ScriptError.h"
#include "host/script/ScriptIndexes.h"
#include "host/script/ScriptObjects.h"
#include "host/script/ScriptValues.h"
#include "teskara/script/MvIndexIterator.h"

#include <algorithm>
#include <new>

namespace host {

namespace {

constexpr int IteratorUpvalue = 2; // of Step; the first is its owner
constexpr const char* IteratorName = "index iterator";

// The index that the first argument stands for.
const _MvTypeVar& LivingIndex(lua_State* thread, const IndexType& type)
{
    const ScriptObject* object = ScriptObjects::At(thread, 1);
    if (!object || (object->Value.Type && object->Value.Type != &type))
        RaiseArgumentError(thread, 1, "an index is needed");
    if (!object->Value.Type)
        RaiseError(thread, "the object is gone");
    return object->Value;
}

MvIndex& IndexOf(const _MvTypeVar& value)
{
    return *static_cast<MvIndex*>(value.Value.Object);
}

int EndIterator(lua_State* thread)
{
    static_cast<MvIndexIterator*>(lua_touserdata(thread, 1))->~MvIndexIterator();
    return 0;
}

// The iterator lies in memory of Lua's, so that it counts with what scripts take.
void PushIterator(lua_State* thread, MvIndex& index)
{
    void* memory = lua_newuserdatauv(thread, sizeof(MvIndexIterator), 0);
    if (luaL_newmetatable(thread, IteratorName)) {
        lua_pushcfunction(thread, EndIterator);
        lua_setfield(thread, -2, "__gc");
        lua_pushboolean(thread, false);
        lua_setfield(thread, -2, "__metatable");
    }
    new (memory) MvIndexIterator(index);
    lua_setmetatable(thread, -2);
}

// Why a value was not taken.
int FailToAssign(lua_State* thread, MvIndex& index, const char* text)
{
    if (const char* why = LuaState::Of(thread).Budget().WhySpent())
        return luaL_error(thread, "%s", why);
    if (index.Locked)
        return luaL_error(thread, "the index is locked");
    const lua_Integer position = lua_tointeger(thread, 2);
    if (position < 1 || position > index.GetSize())
        return luaL_error(thread, "the index has no position %s: Add and Resize make more", lua_tostring(thread, 2));
    return luaL_error(thread, "'%s' is no %s", text, index.Type ? index.Type->GetName() : "value");
}

} // namespace

void IndexAccess::AddFunctions(lua_State* thread)
{
    LuaState::AddFunction(thread, "Index", Make, this);
}

void IndexAccess::FillMetatable(lua_State* thread)
{
    LuaState::AddFunction(thread, "__newindex", Assign, this);
    LuaState::AddFunction(thread, "__len", Count, this);
    LuaState::AddFunction(thread, "__pairs", Walk, this);
}

// Index(type)
int IndexAccess::Make(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<IndexAccess>(thread);
    const char* typeName = luaL_checkstring(thread, 1);
    const RunningThread running(thread);
    const std::shared_ptr<MvIndex> index = access.m_Indexes.Make(typeName);
    if (const char* why = LuaState::Of(thread).Budget().WhySpent())
        return luaL_error(thread, "%s", why);
    if (!index)
        return luaL_error(thread, "there is no index of type '%s'", typeName);

    _MvTypeVar value;
    value.Type = &access.m_Type;
    value.Value.Object = index.get();
    access.m_Values.Push(thread, value);
    return 1;
}

// index[position] = value; nil removes.
int IndexAccess::Assign(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<IndexAccess>(thread);
    const _MvTypeVar asked = LivingIndex(thread, access.m_Type);
    if (lua_type(thread, 2) != LUA_TNUMBER)
        return luaL_error(thread, "'%s' cannot be assigned", luaL_tolstring(thread, 2, nullptr));

    const bool removes = lua_isnil(thread, 3);
    lua_settop(thread, removes ? 2 : 3);
    ArgumentTexts texts(thread, access.m_Values, 2);
    const RunningThread running(thread);
    const int done =
        access.m_Type.DispatchMethod(asked.Value, removes ? "Remove" : "Set", texts.Count(), texts.Texts());
    const bool isGone = ScriptObjects::At(thread, 1)->Value.Type == nullptr;
    if (done == DispatchDone || isGone || (removes && !IndexOf(asked).Locked))
        return 0;
    return FailToAssign(thread, IndexOf(asked), removes ? "nil" : texts.Texts()[1]);
}

int IndexAccess::Count(lua_State* thread)
{
    const auto& access = LuaState::OwnerOf<IndexAccess>(thread);
    lua_pushinteger(thread, IndexOf(LivingIndex(thread, access.m_Type)).GetCount());
    return 1;
}

// pairs(index): the object stays on the loop's stack, which keeps an index of the script's own alive.
int IndexAccess::Walk(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<IndexAccess>(thread);
    lua_settop(thread, 1);
    lua_pushlightuserdata(thread, &access);
    PushIterator(thread, IndexOf(LivingIndex(thread, access.m_Type)));
    lua_pushcclosure(thread, Step, IteratorUpvalue);
    lua_insert(thread, 1);
    lua_pushnil(thread);
    return 3;
}

int IndexAccess::Step(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<IndexAccess>(thread);
    auto& iterator = *static_cast<MvIndexIterator*>(lua_touserdata(thread, lua_upvalueindex(IteratorUpvalue)));
    _MvTypeVar key;
    _MvTypeVar value;
    const bool isThere = iterator.Next() && iterator.GetKey(key) && iterator.GetValue(value);
    MvContainer* container = iterator.GetContainer();
    const i64 before = lua_isnoneornil(thread, 2) ? 0 : lua_tointeger(thread, 2);
    const i64 passed = (isThere ? key.Value.Integer64 : container ? container->GetSize() : before) - before;
    if (const char* why = access.m_Indexes.SpendPositions(static_cast<u32>(std::max(passed, i64{0}))))
        return luaL_error(thread, "%s", why);
    if (!isThere) {
        lua_pushnil(thread);
        return 1;
    }
    access.m_Values.Push(thread, key);
    access.m_Values.Push(thread, value);
    return 2;
}

} // namespace host
