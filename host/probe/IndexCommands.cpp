// The commands for script indexes, which programs make in code.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"
#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIndexIterator.h"

namespace {

MvIndex& FindIndex(ProbeSession& session, const CommandCall& call)
{
    const auto found = session.Indexes.find(call.Text(0));
    if (found == session.Indexes.end())
        throw CommandError("no index " + Quoted(call.Text(0)));
    return *found->second;
}

// The arguments of a command from one on, as an index takes them.
class IndexValue
{
public:
    IndexValue(const CommandCall& call, std::size_t first)
    {
        for (std::size_t index = first; call.Has(index); ++index)
            m_Texts.push_back(const_cast<char*>(call.Text(index).c_str())); // nobody writes there
    }

    int Count() const { return static_cast<int>(m_Texts.size()); }
    char** Texts() { return m_Texts.data(); }

private:
    std::vector<char*> m_Texts;
};

void Make(ProbeSession& session, const CommandCall& call)
{
    MvTypeDefinition* type = session.Types.Find(call.Text(1).c_str());
    if (!type)
        throw CommandError("no type " + Quoted(call.Text(1)));

    std::unique_ptr<MvIndex>& index = session.Indexes[call.Text(0)];
    index = nullptr; // the old one goes before there is a new one
    index = std::make_unique<MvIndex>(type, call.Has(2) ? call.Text(2).c_str() : nullptr);
}

void Add(ProbeSession& session, const CommandCall& call)
{
    IndexValue value(call, 1);
    session.Output.Result(std::to_string(FindIndex(session, call).Add(value.Count(), value.Texts())));
}

void Set(ProbeSession& session, const CommandCall& call)
{
    IndexValue value(call, 2);
    const u32 position = call.Unsigned(1);
    session.Output.Result(BoolText(FindIndex(session, call).Set(position, value.Count(), value.Texts())));
}

template <bool (MvIndex::*Change)()> void ChangeAll(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText((FindIndex(session, call).*Change)()));
}

template <bool (MvIndex::*Change)(u32)> void ChangeOne(ProbeSession& session, const CommandCall& call)
{
    const u32 number = call.Unsigned(1);
    session.Output.Result(BoolText((FindIndex(session, call).*Change)(number)));
}

template <bool (MvIndex::*Change)(u32, u32)> void ChangeTwo(ProbeSession& session, const CommandCall& call)
{
    const u32 first = call.Unsigned(1);
    const u32 second = call.Unsigned(2);
    session.Output.Result(BoolText((FindIndex(session, call).*Change)(first, second)));
}

void Collapse(ProbeSession& session, const CommandCall& call)
{
    FindIndex(session, call).Collapse();
}

void Lock(ProbeSession& session, const CommandCall& call)
{
    FindIndex(session, call).Locked = call.Switch(1);
}

void Delete(ProbeSession& session, const CommandCall& call)
{
    FindIndex(session, call);
    session.Indexes.erase(call.Text(0));
}

void Walk(ProbeSession& session, const CommandCall& call)
{
    MvIndex& index = FindIndex(session, call);
    session.Output.Result("count " + std::to_string(index.GetCount()));
    MvIndexIterator entry(index);
    for (bool isThere = entry.First(); isThere; isThere = entry.Next()) {
        _MvTypeVar key;
        _MvTypeVar value;
        entry.GetKey(key);
        entry.GetValue(value);
        session.Output.Result(TypedValueText(key, session.Types) + ": " + TypedValueText(value, session.Types));
    }
}

constexpr ProbeCommand Commands[] = {
    {"index", "NAME TYPE [SUBTYPE]", 2, 3, CommandForm::Words, Make},
    {"index-add", "NAME VALUE...", 1, AnyNumber, CommandForm::Words, Add},
    {"index-set", "NAME POSITION VALUE...", 2, AnyNumber, CommandForm::Words, Set},
    {"index-remove", "NAME POSITION", 2, 2, CommandForm::Words, ChangeOne<&MvIndex::Remove>},
    {"index-swap", "NAME A B", 3, 3, CommandForm::Words, ChangeTwo<&MvIndex::Swap>},
    {"index-move", "NAME FROM TO", 3, 3, CommandForm::Words, ChangeTwo<&MvIndex::Move>},
    {"index-resize", "NAME SIZE", 2, 2, CommandForm::Words, ChangeOne<&MvIndex::Resize>},
    {"index-clear", "NAME", 1, 1, CommandForm::Words, ChangeAll<&MvIndex::Clear>},
    {"index-collapse", "NAME", 1, 1, CommandForm::Words, Collapse},
    {"index-lock", "NAME on|off", 2, 2, CommandForm::Words, Lock},
    {"index-delete", "NAME", 1, 1, CommandForm::Words, Delete},
    {"index-walk", "NAME", 1, 1, CommandForm::Words, Walk},
};

} // namespace

std::span<const ProbeCommand> IndexCommands()
{
    return Commands;
}
