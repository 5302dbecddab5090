#pragma once

#include "host/script/CallTrail.h"
#include "host/script/LuaState.h"
#include "host/script/ScriptRest.h"
#include "host/script/ScriptValues.h"
#include "teskara/core/Types.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class TeskElement;

namespace host {

class Console;
struct AtomSource;
struct FrameState;

// The scripts of events. Each is a Lua function of its element, which it calls this, and of its parameters.
class Atoms
{
public:
    // Everything is borrowed.
    Atoms(LuaState& state, const ScriptValues& values, Console& console, const FrameState& frame)
        : m_State(state), m_Values(values), m_Console(console), m_Frame(frame)
    {
    }

    // Compiles an atom's text. 0: it does not compile; the line about it waits for SayRefusal.
    u32 Compile(std::string_view text);
    void Release(u32 atom);

    // 0 if there is none of that name.
    u32 Find(const std::string& name) const;

    // Runs an atom. owner: the element whose script it is; null if that is not known. text: where what it returns goes,
    // or null. False, with a line: it failed.
    bool Run(u32 atom, int argc, char** argv, const _MvTypeVar* self, const TeskElement* owner, std::string* text);

    // Prints the line about an atom that did not compile. event: whose script it was, which the toolkit says then; empty
    // if it did not. False: there is none.
    bool SayRefusal(std::string_view event);

    // Atoms that run now, inside each other, and what the innermost runs on; a value without a type if on nothing.
    const int& Depth() const { return m_Depth; }

    std::size_t Count() const { return m_Atoms.size(); }
    _MvTypeVar Self() const { return m_Running ? m_Running->Self : _MvTypeVar(); }

    // The object, or the type, is going away.
    void Invalidate(const void* object);
    void ForgetType(const MvTypeDefinition* type);

private:
    struct Atom {
        LuaReference Function;
        std::vector<std::string> ParameterTypes;
        std::string File; // in which its element stands
        std::string Where; // file, element and event, once it has run
        std::string LastError;
        u32 LastErrorFrame = 0;
        ScriptRest Rest;
    };

    // An atom that runs, inside another or not.
    struct Running {
        Running(Atoms& atoms, const _MvTypeVar* self);
        ~Running();
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

        Atoms& All;
        _MvTypeVar Self;
        Running* Outer;
    };

    // An atom that did not compile.
    struct Refusal {
        std::string Where; // file and element
        std::string Why;
    };

    bool RunBody(Atom& atom, u32 id, int argc, char** argv, std::string* text);
    bool CompileBody(Atom& atom, u32 id, const AtomSource& source);
    void Describe(Atom& atom, u32 id, const TeskElement* owner) const;
    void SayWhyFailed(Atom& atom, u32 id);
    std::string WithoutChunk(const std::string& error, u32 id) const;

    LuaState& m_State;
    const ScriptValues& m_Values;
    Console& m_Console;
    const FrameState& m_Frame;
    std::unordered_map<u32, std::shared_ptr<Atom>> m_Atoms;
    std::unordered_map<std::string, u32> m_Names;
    std::optional<Refusal> m_Refusal;
    Running* m_Running = nullptr; // the innermost
    int m_Depth = 0;
    u32 m_LastID = 0;
};

} // namespace host
