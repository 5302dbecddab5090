// The commands that are the user: mouse, keyboard and frames.

#include "host/probe/ProbeCommands.h"

#include "host/probe/Keyboard.h"
#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"

namespace {

void Move(ProbeSession& session, const CommandCall& call)
{
    _Point2i position = {call.Integer(0), call.Integer(1)};
    session.Output.Result(BoolText(g_UIManager.OnMouseMove(position)));
}

bool IsLeft(const CommandCall& call)
{
    const std::string& word = call.Text(0);
    if (word != "left" && word != "right")
        throw CommandError("neither left nor right: " + Quoted(word));
    return word == "left";
}

void Press(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(IsLeft(call) ? g_UIManager.OnLMouseDown() : g_UIManager.OnRMouseDown()));
}

void Release(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(IsLeft(call) ? g_UIManager.OnLMouseUp() : g_UIManager.OnRMouseUp()));
}

void Wheel(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.OnMouseWheel(call.Integer(0))));
}

void KeyDown(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.OnKeyDown(call.Unsigned(0))));
}

void KeyUp(ProbeSession& session, const CommandCall& call)
{
    session.Output.Result(BoolText(g_UIManager.OnKeyUp(call.Unsigned(0))));
}

void Type(ProbeSession&, const CommandCall& call)
{
    std::vector<KeyPress> presses;
    for (const char character : call.Rest(0)) {
        const auto press = FindKeyPress(character);
        if (!press)
            throw CommandError("no key gives " + Quoted(std::string_view(&character, 1)));
        presses.push_back(*press);
    }

    for (const KeyPress& press : presses) {
        if (press.Shift)
            g_UIManager.OnKeyDown(KeyShift);
        g_UIManager.OnKeyDown(press.Code);
        g_UIManager.OnKeyUp(press.Code);
        if (press.Shift)
            g_UIManager.OnKeyUp(KeyShift);
    }
}

void Render(ProbeSession&, const CommandCall& call)
{
    const u32 frames = call.Has(0) ? call.Unsigned(0) : 1;
    for (u32 frame = 0; frame < frames; ++frame)
        g_UIManager.Render();
}

constexpr ProbeCommand Commands[] = {
    {"move", "X Y", 2, 2, CommandForm::Words, Move},
    {"press", "left|right", 1, 1, CommandForm::Words, Press},
    {"release", "left|right", 1, 1, CommandForm::Words, Release},
    {"wheel", "N", 1, 1, CommandForm::Words, Wheel},
    {"keydown", "CODE", 1, 1, CommandForm::Words, KeyDown},
    {"keyup", "CODE", 1, 1, CommandForm::Words, KeyUp},
    {"type", "TEXT", 1, AnyNumber, CommandForm::Words, Type},
    {"render", "[N]", 0, 1, CommandForm::Words, Render},
};

} // namespace

std::span<const ProbeCommand> InputCommands()
{
    return Commands;
}
