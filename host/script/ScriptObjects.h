#pragma once

#include "host/script/LuaState.h"
#include "teskara/script/MvTypeVar.h"

#include <functional>
#include <memory>
#include <unordered_map>

namespace host {

// An object of the toolkit's as scripts hold it. When the object is gone there is no type.
struct ScriptObject {
    _MvTypeVar Value;
    std::shared_ptr<void> Share; // of what lives as long as scripts hold it
    bool IsElement = false;
    bool IsLinked = false;
    ScriptObject* Previous = nullptr; // among those of the same address that nothing but scripts holds
    ScriptObject* Next = nullptr;
};

// The objects of the toolkit's that scripts hold, and their end. Of an element there is one, which is kept as long as
// the element lives; of anything else there are as many as were asked for, until Lua collects them.
class ScriptObjects
{
public:
    // Fills the metatable of a type's objects, which lies on top of the thread's stack.
    using TypeFiller = std::function<void(lua_State* thread, MvTypeDefinition& type)>;

    // Gives the share that a new object takes of what it stands for; null for what somebody else keeps.
    using Sharer = std::function<std::shared_ptr<void>(const _MvTypeVar& value)>;

    ScriptObjects(LuaState& state, TypeFiller filler, Sharer sharer)
        : m_State(state), m_Filler(std::move(filler)), m_Sharer(std::move(sharer))
    {
    }

    // Pushes the object that a value of one of the toolkit's types stands for, or nil. Fails only for lack of memory.
    void Push(lua_State* thread, const _MvTypeVar& value);

    // What lies at a place of the stack; null if it is no object of the toolkit's.
    static ScriptObject* At(lua_State* thread, int index);

    // An object is going away: whoever holds it holds nothing.
    void Invalidate(void* object);

    // A type is going away, and its objects with it.
    void ForgetType(MvTypeDefinition* type);

private:
    struct KeptElement {
        ScriptObject* Object;
        int Reference;
    };

    ScriptObject* PushNew(lua_State* thread, const _MvTypeVar& value);
    void PushMetatable(lua_State* thread, MvTypeDefinition& type);
    void Link(ScriptObject& object);
    void Unlink(ScriptObject& object);
    static int Collect(lua_State* thread);

    LuaState& m_State;
    TypeFiller m_Filler;
    Sharer m_Sharer;
    std::unordered_map<const void*, KeptElement> m_Elements; // by address
    std::unordered_map<const MvTypeDefinition*, int> m_Metatables;
    std::unordered_map<const void*, ScriptObject*> m_Others; // by address, the first of those linked
};

} // namespace host
