// The commands that start and end the toolkit, and those that ask its manager.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"

namespace {

void Cold(ProbeSession& session, const CommandCall&)
{
    if (!session.IsFirstCommand())
        throw CommandError("cold must come first");
}

void CallF1(ProbeSession& session, const CommandCall&)
{
    F1(&session.Host);
}

void Initialize(ProbeSession&, const CommandCall&)
{
    g_UIManager.Initialize();
}

void Shutdown(ProbeSession&, const CommandCall&)
{
    g_UIManager.Shutdown();
}

void Reset(ProbeSession&, const CommandCall&)
{
    g_UIManager.Reset();
}

void ResetMouse(ProbeSession&, const CommandCall&)
{
    g_UIManager.ResetMouseState();
}

void Version(ProbeSession& session, const CommandCall&)
{
    session.Output.Result(std::to_string(g_UIManager.GetVersion()));
}

std::string ElementByIdText(u32 id)
{
    const auto& elements = g_UIManager.ElementsByID;
    const auto found = elements.find(id);
    return ElementText(id && found != elements.end() ? found->second : nullptr);
}

std::string HeldModifiers()
{
    std::string words;
    const auto add = [&words](bool held, const char* word) {
        if (held)
            words += (words.empty() ? "" : ",") + std::string(word);
    };
    add(g_UIManager.ShiftDown, "shift");
    add(g_UIManager.CtrlDown, "ctrl");
    add(g_UIManager.AltDown, "alt");
    return words;
}

void Manager(ProbeSession& session, const CommandCall&)
{
    const CUIManager& manager = g_UIManager;
    session.Output.Result("focus=" + ElementByIdText(manager.FocusElementID) + " over="
        + ElementByIdText(manager.MouseOverElementID) + " left=" + ElementByIdText(manager.LeftPressElementID)
        + " right=" + ElementByIdText(manager.RightPressElementID)
        + " capture=" + ElementByIdText(manager.MouseCaptureElementID)
        + " tooltip=" + ElementByIdText(manager.TooltipElementID) + " mods=" + HeldModifiers()
        + " buttons=" + std::to_string(manager.LeftButtonState) + ',' + std::to_string(manager.RightButtonState)
        + " mouse=" + PointText(manager.MousePosition) + " file=" + Quoted(manager.CurrentFile));
}

void Register(ProbeSession& session, const CommandCall& call)
{
    session.Factories.Register(call.Text(0), call.Unsigned(1));
}

void Unregister(ProbeSession&, const CommandCall& call)
{
    TeskElementFactory* factory = g_UIManager.FindFactory(call.Text(0).c_str());
    if (!factory)
        throw CommandError("no kind " + Quoted(call.Text(0)));
    factory->Unregister();
}

constexpr ProbeCommand Commands[] = {
    {"cold", "", 0, 0, CommandForm::Words, Cold},
    {"f1", "", 0, 0, CommandForm::Words, CallF1},
    {"initialize", "", 0, 0, CommandForm::Words, Initialize},
    {"shutdown", "", 0, 0, CommandForm::Words, Shutdown},
    {"reset", "", 0, 0, CommandForm::Words, Reset},
    {"reset-mouse", "", 0, 0, CommandForm::Words, ResetMouse},
    {"version", "", 0, 0, CommandForm::Words, Version},
    {"manager", "", 0, 0, CommandForm::Words, Manager},
    {"register", "KIND VERSION", 2, 2, CommandForm::Words, Register},
    {"unregister", "KIND", 1, 1, CommandForm::Words, Unregister},
};

} // namespace

std::span<const ProbeCommand> LifeCommands()
{
    return Commands;
}
