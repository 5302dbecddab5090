#include "host/script/ObjectAccess.h"

#include "host/record/ToolkitCalls.h"
#include "host/script/ScriptError.h"
#include "host/script/ScriptObjects.h"
#include "host/script/ScriptValues.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"

#include <cstring>
#include <optional>
#include <string_view>

namespace host {

namespace {

// Where a function of an object finds what it was made with; the first upvalue is its owner.
enum Upvalue : int {
    NamesUpvalue = 2, // Index: what is known of the names of the type
    ObjectUpvalue = 2, // CallMember
    NameUpvalue = 3, // CallMember and CallMethod
    NeedsUpvalue = 4,
};

// A member of a type that does not tell what its members need: it is read, and called if that gives nothing.
constexpr int UnknownNeeds = -1;

enum class NameKind { Member, Method };

bool Has(MvTypeDefinition& type, NameKind kind, const char* name)
{
    u32 id = 0;
    return kind == NameKind::Member ? type.GetMemberID(name, id) : type.GetMethodID(name, id);
}

// How many arguments a name needs in the first of the types that have it; nothing if none has.
std::optional<int> FindNeeds(MvTypeDefinition* type, NameKind kind, const char* name)
{
    while (type && !Has(*type, kind, name))
        type = type->GetBase();
    if (!type)
        return std::nullopt;

    const auto* described = dynamic_cast<const ToolkitType*>(type);
    int needs = UnknownNeeds;
    const auto visit = [&](const ScriptRow& row) {
        if (std::string_view(row.Name) == name)
            needs = row.Needs;
    };
    if (described && kind == NameKind::Member)
        described->VisitMembers(visit);
    else if (described)
        described->VisitMethods(visit);
    return needs;
}

ScriptObject& LivingObject(lua_State* thread, int index)
{
    ScriptObject* object = ScriptObjects::At(thread, index);
    if (!object)
        RaiseArgumentError(thread, index, "an object of the interface is needed");
    if (!object->Value.Type)
        RaiseError(thread, object->IsElement ? "the element is gone" : "the object is gone");
    return *object;
}

int FailForName(lua_State* thread, const MvTypeDefinition& type, const char* name)
{
    const char* article = std::strchr("aeiou", type.GetName()[0]) ? "an" : "a";
    return luaL_error(thread, "%s %s has no member or method '%s'", article, type.GetName(), name);
}

void CheckNeeds(lua_State* thread, const char* name, int given)
{
    const auto needs = static_cast<int>(lua_tointeger(thread, lua_upvalueindex(NeedsUpvalue)));
    if (given < needs)
        luaL_error(thread, "%s needs %d argument%s", name, needs, needs == 1 ? "" : "s");
}

} // namespace

void ObjectAccess::FillMetatable(lua_State* thread, MvTypeDefinition& type)
{
    lua_pushlightuserdata(thread, this);
    lua_newtable(thread);
    lua_pushcclosure(thread, Index, 2);
    lua_setfield(thread, -2, "__index");
    LuaState::AddFunction(thread, "__newindex", NewIndex, this);
    LuaState::AddFunction(thread, "__eq", Equals, this);
    LuaState::AddFunction(thread, "__tostring", ToText, this);
    lua_pushstring(thread, type.GetName());
    lua_setfield(thread, -2, "__name");
}

void ObjectAccess::AddFunctions(lua_State* thread)
{
    LuaState::AddFunction(thread, "member", ReadMember, this);
}

int ObjectAccess::PushMember(lua_State* thread, ScriptObject& object, const char* name, int firstArgument) const
{
    ArgumentTexts arguments(thread, m_Values, firstArgument);
    const RunningThread running(thread);
    const _MvTypeVar asked = object.Value; // the object may go meanwhile
    _MvTypeVar result;
    const int done = Toolkit::DispatchMember(asked, name, arguments.Count(), arguments.Texts(), result);
    if (done == DispatchUnknown)
        return FailForName(thread, *asked.Type, name);

    m_Values.Push(thread, done == DispatchDone ? result : _MvTypeVar());
    return 1;
}

// What an object has at the index that lies behind it.
int ObjectAccess::PushIndexed(lua_State* thread, const ScriptObject& object) const
{
    ArgumentTexts index(thread, m_Values, 2);
    const RunningThread running(thread);
    const _MvTypeVar asked = object.Value;
    _MvTypeVar result;
    const int done = Toolkit::GetIndex(asked, index.Count(), index.Texts(), result);
    if (done == DispatchUnknown)
        return FailForName(thread, *asked.Type, index.Texts()[0]);

    m_Values.Push(thread, done == DispatchDone ? result : _MvTypeVar());
    return 1;
}

// Puts what is to be done with a name into the table on top of the stack: a function, or the number of arguments that
// a member needs.
void ObjectAccess::LearnName(lua_State* thread, MvTypeDefinition& type, const char* name)
{
    if (const std::optional<int> needs = FindNeeds(&type, NameKind::Member, name)) {
        lua_pushinteger(thread, *needs);
    } else if (const std::optional<int> needed = FindNeeds(&type, NameKind::Method, name)) {
        lua_pushlightuserdata(thread, this);
        lua_pushnil(thread);
        lua_pushstring(thread, name);
        lua_pushinteger(thread, *needed);
        lua_pushcclosure(thread, CallMethod, 4);
    } else {
        FailForName(thread, type, name);
    }
    lua_setfield(thread, -2, name);
}

int ObjectAccess::Index(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<ObjectAccess>(thread);
    ScriptObject& object = LivingObject(thread, 1);
    lua_settop(thread, 2);
    if (lua_type(thread, 2) == LUA_TNUMBER)
        return access.PushIndexed(thread, object);
    const char* name = luaL_checkstring(thread, 2);
    lua_pushvalue(thread, lua_upvalueindex(NamesUpvalue));
    lua_pushvalue(thread, 2);
    if (lua_rawget(thread, 3) == LUA_TNIL) {
        lua_pop(thread, 1);
        access.LearnName(thread, *object.Value.Type, name);
        lua_getfield(thread, 3, name);
    }
    if (lua_isfunction(thread, -1))
        return 1;

    const auto needs = static_cast<int>(lua_tointeger(thread, -1));
    lua_settop(thread, 2);
    if (needs <= 0)
        access.PushMember(thread, object, name, 3);
    if (needs == 0 || (needs < 0 && !lua_isnil(thread, -1)))
        return 1;

    lua_pushlightuserdata(thread, &access);
    lua_pushvalue(thread, 1);
    lua_pushvalue(thread, 2);
    lua_pushinteger(thread, needs);
    lua_pushcclosure(thread, CallMember, 4);
    return 1;
}

int ObjectAccess::NewIndex(lua_State* thread)
{
    const ScriptObject& object = LivingObject(thread, 1);
    const char* name = luaL_checkstring(thread, 2);
    const std::string setter = std::string("Set") + name;
    if (FindNeeds(object.Value.Type, NameKind::Method, setter.c_str()))
        return luaL_error(thread, "'%s' cannot be assigned; call %s", name, setter.c_str());
    return luaL_error(thread, "'%s' cannot be assigned", name);
}

int ObjectAccess::Equals(lua_State* thread)
{
    const ScriptObject* left = ScriptObjects::At(thread, 1);
    const ScriptObject* right = ScriptObjects::At(thread, 2);
    lua_pushboolean(thread,
        left && right && left->Value.Type && left->Value.Type == right->Value.Type
            && left->Value.Value.Object == right->Value.Value.Object);
    return 1;
}

int ObjectAccess::ToText(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<ObjectAccess>(thread);
    const ScriptObject* object = ScriptObjects::At(thread, 1);
    std::string text;
    if (!object || !object->Value.Type)
        text = "gone";
    else if (!access.m_Values.AppendText(object->Value, text))
        text = object->Value.Type->GetName();
    lua_pushlstring(thread, text.data(), text.size());
    return 1;
}

// A member with its object, as object.Name gives it. Written with a colon it is the same, but for what is both a member
// and a method: then it is the method.
int ObjectAccess::CallMember(lua_State* thread)
{
    const char* name = lua_tostring(thread, lua_upvalueindex(NameUpvalue));
    lua_pushvalue(thread, lua_upvalueindex(ObjectUpvalue));
    lua_insert(thread, 1);
    ScriptObject& object = LivingObject(thread, 1);
    const bool hasColon = lua_gettop(thread) > 1 && lua_rawequal(thread, 1, 2);
    if (hasColon)
        lua_remove(thread, 1);
    CheckNeeds(thread, name, lua_gettop(thread) - 1);
    if (hasColon && FindNeeds(object.Value.Type, NameKind::Method, name))
        return CallMethod(thread);
    return LuaState::OwnerOf<ObjectAccess>(thread).PushMember(thread, object, name, 2);
}

int ObjectAccess::CallMethod(lua_State* thread)
{
    auto& access = LuaState::OwnerOf<ObjectAccess>(thread);
    const char* name = lua_tostring(thread, lua_upvalueindex(NameUpvalue));
    if (!ScriptObjects::At(thread, 1))
        return luaL_error(thread, "%s is a method: it is called with a colon, object:%s(...)", name, name);

    const ScriptObject& object = LivingObject(thread, 1);
    CheckNeeds(thread, name, lua_gettop(thread) - 1);
    ArgumentTexts arguments(thread, access.m_Values, 2);
    const RunningThread running(thread);
    const _MvTypeVar asked = object.Value;
    const int done = Toolkit::DispatchMethod(asked, name, arguments.Count(), arguments.Texts());
    if (done == DispatchUnknown)
        return FailForName(thread, *asked.Type, name);

    lua_pushboolean(thread, done == DispatchDone);
    return 1;
}

int ObjectAccess::ReadMember(lua_State* thread)
{
    ScriptObject& object = LivingObject(thread, 1);
    return LuaState::OwnerOf<ObjectAccess>(thread).PushMember(thread, object, luaL_checkstring(thread, 2), 3);
}

} // namespace host
