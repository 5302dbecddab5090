#pragma once

#include "host/script/LuaState.h"
#include "teskara/script/MvTypeVar.h"

#include <string>
#include <string_view>

class HostTypes;

namespace host {

class ScriptObjects;

// Values between Lua, the toolkit and texts. A truth value is TRUE or FALSE as a text, a whole number has no fraction.
class ScriptValues
{
public:
    ScriptValues(HostTypes& types, ScriptObjects& objects) : m_Types(types), m_Objects(objects) { }

    // Pushes what a typed value is for scripts; nil if it is none. A float has the fewest digits that stand for it.
    void Push(lua_State* thread, const _MvTypeVar& value) const;

    // Pushes the number or the truth value that reads as the text, else the text. Six decimals are a number's.
    static void PushVariable(lua_State* thread, std::string_view text);

    // Pushes an argument as the type asks that is written in an atom's list of parameters.
    static void PushArgument(lua_State* thread, std::string_view type, const char* text);

    // What lies at a place of the stack as a typed value. Without a type: it has none. A text is borrowed from there.
    _MvTypeVar Read(lua_State* thread, int index) const;

    // Appends a value as people read it. False: it has no text.
    bool AppendText(lua_State* thread, int index, std::string& text) const;
    bool AppendText(const _MvTypeVar& value, std::string& text) const;

private:
    HostTypes& m_Types;
    ScriptObjects& m_Objects;
};

// The texts that a call in Lua hands to the toolkit: what lies on the stack from a place on. It lies there as texts
// afterwards. Raises an error in the script if something cannot be one, and if it is too much.
class ArgumentTexts
{
public:
    ArgumentTexts(lua_State* thread, const ScriptValues& values, int first);

    int Count() const { return m_Count; }
    char** Texts() { return m_Texts; }

private:
    static constexpr int Most = 64;

    char* m_Texts[Most + 1];
    int m_Count = 0;
};

} // namespace host
