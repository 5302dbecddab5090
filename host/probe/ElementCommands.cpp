// The commands that load, make, delete, show and walk elements.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"

namespace {

struct LoadArguments {
    bool HasParent = false;
    TeskElement* Parent = nullptr;
    TeskSkin* Skin = nullptr;
    std::size_t File = 0; // index of the first argument behind the options
};

LoadArguments ReadLoadOptions(ProbeSession& session, const CommandCall& call)
{
    LoadArguments arguments;
    std::size_t index = 0;
    for (; call.Text(index).starts_with("--"); index += 2) {
        const std::string& option = call.Text(index);
        if (option == "--parent") {
            arguments.HasParent = true;
            arguments.Parent = session.FindElement(call.Text(index + 1));
        } else if (option == "--skin") {
            arguments.Skin = g_UIManager.FindSkin(call.Text(index + 1).c_str());
        } else {
            throw CommandError("no option " + option);
        }
    }
    if (call.Count() > index + 3)
        throw CommandError("too many arguments");
    arguments.File = index;
    return arguments;
}

bool LoadFile(ProbeSession& session, const CommandCall& call, bool replace)
{
    const LoadArguments arguments = ReadLoadOptions(session, call);
    const char* file = call.Text(arguments.File).c_str();
    if (!call.Has(arguments.File + 1))
        return arguments.HasParent ? g_UIManager.LoadInterfaceXML(arguments.Parent, file, replace, arguments.Skin)
                                   : g_UIManager.LoadInterfaceXML(file, replace, arguments.Skin);

    const std::string& element = call.Text(arguments.File + 1);
    const std::string& name = call.Has(arguments.File + 2) ? call.Text(arguments.File + 2) : element;
    return arguments.HasParent
        ? g_UIManager.LoadInterfaceXML(arguments.Parent, file, element.c_str(), name.c_str(), replace, arguments.Skin)
        : g_UIManager.LoadInterfaceXML(file, element.c_str(), name.c_str(), replace, arguments.Skin);
}

void Load(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(LoadFile(session, call, false)));
}

void Reload(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(LoadFile(session, call, true)));
}

void Unload(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.UnloadInterfaceXML(call.Text(0).c_str())));
}

void Make(ProbeSession& session, const CommandCall& call)
{
    TeskElement* parent = call.Has(2) ? &session.Element(call.Text(2)) : g_UIManager.Screen;
    session.Output.Result(ElementText(g_UIManager.LoadElement(parent, call.Text(0).c_str(), call.Text(1).c_str())));
}

void Delete(ProbeSession& session, const CommandCall& call)
{
    TeskElement& element = session.Element(call.Text(0));
    if (!element.Parent)
        throw CommandError("no parent: " + ElementText(&element));
    element.Parent->DeleteChild(&element);
}

// NAME [visible] [STOP]
struct WalkArguments {
    TeskElement& Start;
    bool VisibleOnly;
    TeskElement* Stop;
};

WalkArguments ReadWalk(ProbeSession& session, const CommandCall& call)
{
    const bool visibleOnly = call.Has(1) && call.Text(1) == "visible";
    const std::size_t stop = visibleOnly ? 2 : 1;
    if (call.Count() > stop + 1)
        throw CommandError("too many arguments");
    return {session.Element(call.Text(0)), visibleOnly, call.Has(stop) ? &session.Element(call.Text(stop)) : nullptr};
}

void Walk(ProbeSession& session, const CommandCall& call)
{
    const WalkArguments walk = ReadWalk(session, call);
    session.Output.Result(ElementText(walk.Start.Walk(walk.VisibleOnly, walk.Stop)));
}

void WalkReverse(ProbeSession& session, const CommandCall& call)
{
    const WalkArguments walk = ReadWalk(session, call);
    session.Output.Result(ElementText(walk.Start.WalkReverse(walk.VisibleOnly, walk.Stop)));
}

void Center(ProbeSession& session, const CommandCall& call)
{
    session.Element(call.Text(0)).Center();
}

void ShowElement(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.ShowElement(session.NameOf(call.Text(0)).c_str(), true)));
}

void HideElement(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.ShowElement(session.NameOf(call.Text(0)).c_str(), false)));
}

void ToggleElement(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.ToggleElement(session.NameOf(call.Text(0)).c_str())));
}

void Focus(ProbeSession& session, const CommandCall& call)
{
    g_UIManager.SetFocusElement(call.Text(0) == "none" ? nullptr : &session.Element(call.Text(0)));
}

const char* VisibleWord(const TeskElement& element)
{
    return element.Visible ? "visible" : "hidden";
}

void Show(ProbeSession& session, const CommandCall& call)
{
    const TeskElement& element = session.Element(call.Text(0));
    session.Output.Result(ElementText(&element) + " id=" + std::to_string(element.ID)
        + " pos=" + PointText({element.X, element.Y}) + " size=(" + std::to_string(element.Width) + ','
        + std::to_string(element.Height) + ") abs=" + PointText({element.AbsoluteX, element.AbsoluteY}) + ' '
        + VisibleWord(element) + " strata=" + std::to_string(element.Strata) + " alpha=" + FloatText(element.Alpha));
}

void PrintTree(ProbeOutput& output, const TeskElement& element, std::size_t depth)
{
    output.Result(std::string(depth * 2, ' ') + ElementText(&element) + ' ' + PointText({element.X, element.Y}) + ' '
        + std::to_string(element.Width) + 'x' + std::to_string(element.Height) + ' ' + VisibleWord(element));
    for (const TeskElement* child = element.FirstChild; child; child = child->Next)
        PrintTree(output, *child, depth + 1);
}

void Tree(ProbeSession& session, const CommandCall& call)
{
    const TeskElement* root = call.Has(0) ? &session.Element(call.Text(0)) : g_UIManager.Screen;
    if (!root)
        throw CommandError("there is no screen");
    PrintTree(session.Output, *root, 0);
}

constexpr ProbeCommand Commands[] = {
    {"load", "[--parent NAME] [--skin NAME] FILE [ELEMENT [NEWNAME]]", 1, 7, CommandForm::Words, Load},
    {"reload", "[--parent NAME] [--skin NAME] FILE [ELEMENT [NEWNAME]]", 1, 7, CommandForm::Words, Reload},
    {"unload", "FILE", 1, 1, CommandForm::Words, Unload},
    {"make", "KIND NAME [PARENT]", 2, 3, CommandForm::Words, Make},
    {"delete", "NAME", 1, 1, CommandForm::Words, Delete},
    {"walk", "NAME [visible] [STOP]", 1, 3, CommandForm::Words, Walk},
    {"walk-reverse", "NAME [visible] [STOP]", 1, 3, CommandForm::Words, WalkReverse},
    {"center", "NAME", 1, 1, CommandForm::Words, Center},
    {"show-element", "NAME", 1, 1, CommandForm::Words, ShowElement},
    {"hide-element", "NAME", 1, 1, CommandForm::Words, HideElement},
    {"toggle-element", "NAME", 1, 1, CommandForm::Words, ToggleElement},
    {"focus", "NAME | none", 1, 1, CommandForm::Words, Focus},
    {"show", "NAME", 1, 1, CommandForm::Words, Show},
    {"tree", "[NAME]", 0, 1, CommandForm::Words, Tree},
};

} // namespace

std::span<const ProbeCommand> ElementCommands()
{
    return Commands;
}
