// The commands for context menus, which programs make in code.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"

namespace {

ProbeMenu& FindMenu(ProbeSession& session, const CommandCall& call)
{
    const auto found = session.Menus.find(call.Text(0));
    if (found == session.Menus.end())
        throw CommandError("no menu " + Quoted(call.Text(0)));
    return *found->second;
}

void Menu(ProbeSession& session, const CommandCall& call)
{
    session.Menus[call.Text(0)] = std::make_unique<ProbeMenu>(call.Text(0), call.Body(), session.Menus, session.Output);
}

void Open(ProbeSession& session, const CommandCall& call)
{
    const bool opened = FindMenu(session, call).Create(call.Integer(1), call.Integer(2));
    session.Output.Result(BoolText(opened));
}

void Close(ProbeSession& session, const CommandCall& call)
{
    if (call.Has(1) && call.Text(1) != "up")
        throw CommandError("not up: " + Quoted(call.Text(1)));
    FindMenu(session, call).DestroyMenu(call.Has(1));
}

// What has no check mark, checked or not, is none.
void Check(ProbeSession& session, const CommandCall& call)
{
    ProbeMenu& menu = FindMenu(session, call);
    if (call.Has(2)) {
        menu.SetItemCheck(call.Unsigned(1), call.Switch(2));
        return;
    }
    bool checked = false;
    const bool isItem = menu.GetItemCheck(call.Unsigned(1), checked);
    session.Output.Result(isItem ? BoolText(checked) : "none");
}

constexpr ProbeCommand Commands[] = {
    {"menu", "NAME <<", 1, 1, CommandForm::Words, Menu},
    {"menu-open", "NAME X Y", 3, 3, CommandForm::Words, Open},
    {"menu-close", "NAME [up]", 1, 2, CommandForm::Words, Close},
    {"menu-check", "NAME ID [on|off]", 2, 3, CommandForm::Words, Check},
};

} // namespace

std::span<const ProbeCommand> MenuCommands()
{
    return Commands;
}
