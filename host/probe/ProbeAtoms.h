#pragma once

#include "host/probe/CommandLines.h"
#include "host/probe/ScriptReferences.h"
#include "teskara/core/Types.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Atoms are lists of probe commands with named parameters.
struct ProbeAtom {
    std::vector<std::string> Parameters;
    std::vector<CommandLine> Commands;
};

// A running atom: what its commands can use.
struct RunningAtom {
    std::map<std::string, std::string, std::less<>> Parameters;
    const _MvTypeVar* Self = nullptr; // null: the atom runs on nothing
    std::optional<std::string> Text; // set by return, which ends the atom
};

class ProbeAtoms
{
public:
    using CommandRunner = std::function<void(const CommandLine& command)>;

    ProbeAtoms(ScriptReferences& references, CommandRunner runner)
        : m_References(references), m_Runner(std::move(runner))
    {
    }

    // Compiles "atom NAME(PARAMETERS)\n{\nBODY\n}\n". 0: it does not compile.
    u32 Compile(std::string_view source);

    // Makes or replaces a named atom. parameters is a list such as "int A, string B". 0: it does not compile.
    u32 CompileNamed(const std::string& name, std::string_view parameters, std::string_view body);

    // An atom that runs is freed when it returns.
    void Release(u32 atom) { m_Atoms.erase(atom); }

    // 0 if there is none of that name.
    u32 Find(const std::string& name) const;

    // Runs an atom on self, which may be null, and gives its text. False: there is no such atom, or too many are running.
    bool Run(u32 atom, const std::vector<std::string>& arguments, const _MvTypeVar* self, std::string& text);

    // The innermost atom that runs; null if none does.
    RunningAtom* Running() const { return m_Running.empty() ? nullptr : m_Running.back(); }

private:
    u32 Store(std::string_view parameters, std::string_view body);

    ScriptReferences& m_References;
    CommandRunner m_Runner;
    std::map<u32, std::shared_ptr<const ProbeAtom>> m_Atoms;
    std::map<std::string, u32> m_Names;
    std::vector<RunningAtom*> m_Running;
    u32 m_LastAtom = 0;
};
