// The commands that go through scripts: paths, commands of the host, atoms.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"

namespace {

void PrintOutcome(ProbeOutput& output, const PathResult& result, const std::string& value)
{
    switch (result.Outcome) {
    case PathOutcome::Value:
        output.Result(value);
        return;
    case PathOutcome::None:
        output.Result("none");
        return;
    case PathOutcome::Unknown:
        output.Result("unknown");
        return;
    case PathOutcome::NoPath:
        throw CommandError("this is no path");
    }
}

void Get(ProbeSession& session, const CommandCall& call)
{
    const PathResult result = session.Sequences.Evaluate(call.Line());
    PrintOutcome(session.Output, result, TypedValueText(result.Value, session.Types));
}

void Do(ProbeSession& session, const CommandCall& call)
{
    const auto path = ReadScriptPath(call.Line());
    if (!path || path->back().Kind != PathStepKind::Method)
        throw CommandError("this path does not end in a method");
    PrintOutcome(session.Output, session.Sequences.Evaluate(call.Line()), BoolText(true));
}

void Command(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(std::to_string(session.Commands.Execute(call.Line())));
}

void Expand(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(OnOneLine(session.Sequences.Expand(call.Line())));
}

void Echo(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(OnOneLine(call.Line()));
}

void RunAtom(ProbeSession& session, const CommandCall& call)
{
    const u32 atom = session.Atoms.Find(call.Text(0));
    if (!atom)
        throw CommandError("no atom " + Quoted(call.Text(0)));

    std::vector<std::string> arguments;
    for (std::size_t index = 1; index < call.Count(); ++index)
        arguments.push_back(call.Text(index));
    std::string text;
    if (!session.Atoms.Run(atom, arguments, nullptr, text))
        throw CommandError("too many atoms run inside each other");
}

void Return(ProbeSession& session, const CommandCall& call)
{
    RunningAtom* atom = session.Atoms.Running();
    if (!atom)
        throw CommandError("no atom runs");
    atom->Text = call.Line();
}

constexpr ProbeCommand Commands[] = {
    {"get", "PATH", 1, 1, CommandForm::Path, Get},
    {"do", "PATH", 1, 1, CommandForm::Path, Do},
    {"command", "TEXT", 0, 1, CommandForm::Line, Command},
    {"expand", "TEXT", 0, 1, CommandForm::Path, Expand},
    {"echo", "TEXT", 0, 1, CommandForm::Line, Echo},
    {"run", "ATOM [ARG...]", 1, AnyNumber, CommandForm::Words, RunAtom},
    {"return", "TEXT", 0, 1, CommandForm::Line, Return},
};

} // namespace

std::span<const ProbeCommand> ScriptCommands()
{
    return Commands;
}
