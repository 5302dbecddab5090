#include "host/probe/ProbeSession.h"

#include "host/probe/ProbeCommands.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"

namespace {

// More than the toolkit lets run inside each other, so that its own limits are seen.
constexpr std::size_t MostNested = 512;

} // namespace

ProbeSession::ProbeSession(const std::string& folder)
    : Platform(Refusals), Atoms(References, [this](const CommandLine& command) { Run(command); }),
      Sequences(Atoms, Types, References, Texts), Factories(Output), Host(*this)
{
    Output.HideFolder(folder);
    Files.UseFolder(folder);
    SetPlatform(&Platform);

    // The manager is older than this clock.
    g_UIManager.FrameTick = Platform.Tick;
}

std::vector<std::string> ProbeSession::Answer(const CommandLine& command)
{
    if (++m_Commands == 1 && CommandCall::NameOf(command) != "cold") {
        F1(&Host);
        g_UIManager.Initialize();
    }
    Run(command);
    return Output.Take();
}

void ProbeSession::Run(const CommandLine& command)
{
    if (m_Depth >= MostNested) {
        Output.Error("commands run too deep inside each other");
        return;
    }

    ++m_Depth;
    try {
        Carry(command);
    } catch (const CommandError& error) {
        Output.Error(error.what());
    }
    --m_Depth;
}

void ProbeSession::Carry(const CommandLine& line)
{
    const std::string name = CommandCall::NameOf(line);
    const ProbeCommand* command = FindProbeCommand(name);
    if (!command)
        throw CommandError("no command " + Quoted(name));

    CommandCall::Expander expand;
    if (Atoms.Running())
        expand = [this](const std::string& text, bool quoted) {
            return quoted ? Sequences.ExpandParameters(text) : Sequences.ExpandOutsideQuotes(text);
        };
    const CommandCall call(line, command->Form, expand);
    if (call.Count() < command->Least || (command->Most != AnyNumber && call.Count() > command->Most))
        throw CommandError("usage: " + std::string(TrimBlanks(name + ' ' + command->Usage)));

    command->Run(*this, call);
}

void ProbeSession::End()
{
    Output.TraceNone();
    Indexes.clear();
    g_UIManager.Shutdown();
    Output.Take();
}

TeskElement* ProbeSession::FindElement(const std::string& name)
{
    const RunningAtom* atom = Atoms.Running();
    const bool self = name == "this" && atom && atom->Self;
    return self ? ElementOf(*atom->Self) : g_UIManager.FindElement(name.c_str());
}

TeskElement& ProbeSession::Element(const std::string& name)
{
    TeskElement* element = FindElement(name);
    if (!element)
        throw CommandError("no element " + Quoted(name));
    return *element;
}

std::string ProbeSession::NameOf(const std::string& name)
{
    const TeskElement* element = FindElement(name);
    return element ? element->FullName : name;
}
