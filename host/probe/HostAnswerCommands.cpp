// The commands that say how the host answers: its scripts, what it refuses, and which calls are printed.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"

namespace {

// NAME, or NAME(int A, int B): the arguments are the words of the line, put together again.
void Atom(ProbeSession& session, const CommandCall& call)
{
    std::string head = call.Text(0);
    for (std::size_t index = 1; index < call.Count(); ++index)
        head += ' ' + call.Text(index);

    std::string_view parameters;
    const std::size_t open = head.find('(');
    if (open != std::string::npos) {
        if (!head.ends_with(')'))
            throw CommandError("the list of parameters is not closed");
        parameters = std::string_view(head).substr(open + 1, head.size() - open - 2);
    }
    const std::string name(TrimBlanks(std::string_view(head).substr(0, open)));
    if (!session.Atoms.CompileNamed(name, parameters, call.Body()))
        throw CommandError("the atom does not compile");
}

void Script(ProbeSession& session, const CommandCall& call)
{
    if (call.Has(1) && call.Text(1) != "atom")
        throw CommandError("not atom: " + Quoted(call.Text(1)));

    if (call.Text(0) == "none" && call.Count() == 1)
        session.Scripts.SelectNone();
    else
        session.Scripts.Select(call.Text(0), call.Has(1));
}

void Answer(ProbeSession& session, const CommandCall&)
{
    const ProbeScript* script = session.Scripts.Current();
    session.Output.Result(QuotedOrNull(script ? script->GetUserInput() : nullptr));
}

void Complete(ProbeSession& session, const CommandCall& call)
{
    session.Host.SetCompletion(call.Text(0), call.Rest(1));
}

HostOperation OperationOf(const CommandCall& call)
{
    const auto operation = FindOperation(call.Text(0));
    if (!operation)
        throw CommandError("no host operation " + Quoted(call.Text(0)));
    return *operation;
}

void Refuse(ProbeSession& session, const CommandCall& call)
{
    session.Refusals.Refuse(OperationOf(call));
}

void Allow(ProbeSession& session, const CommandCall& call)
{
    session.Refusals.Allow(OperationOf(call));
}

void Trace(ProbeSession& session, const CommandCall& call)
{
    std::vector<TraceGroup> groups;
    bool all = false;
    for (std::size_t index = 0; index < call.Count(); ++index) {
        const std::string& word = call.Text(index);
        const auto group = FindTraceGroup(word);
        if (group)
            groups.push_back(*group);
        else if (word == "all")
            all = true;
        else if (word != "none")
            throw CommandError("no group of host calls " + Quoted(word));
    }

    session.Output.TraceNone();
    if (all)
        session.Output.TraceAll();
    for (const TraceGroup group : groups)
        session.Output.Trace(group);
}

constexpr ProbeCommand Commands[] = {
    {"atom", "NAME[(int A, int B)] <<", 1, AnyNumber, CommandForm::Words, Atom},
    {"script", "NAME [atom] | none", 1, 2, CommandForm::Words, Script},
    {"answer", "", 0, 0, CommandForm::Words, Answer},
    {"complete", "FROM TO", 2, AnyNumber, CommandForm::Words, Complete},
    {"refuse", "OPERATION", 1, 1, CommandForm::Words, Refuse},
    {"allow", "OPERATION", 1, 1, CommandForm::Words, Allow},
    {"trace", "GROUP... | all | none", 1, AnyNumber, CommandForm::Words, Trace},
};

} // namespace

std::span<const ProbeCommand> HostAnswerCommands()
{
    return Commands;
}
