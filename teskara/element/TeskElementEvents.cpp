#include "teskara/core/CUIManager.h"
#include "teskara/core/DepthScope.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/TeskElement.h"

namespace {

u32 g_NotificationDepth = 0;

// Room for the text of any 32-bit number, and for the name of a key.
constexpr u32 NumberTextSize = 32;
constexpr u32 KeyNameSize = 64;

// Runs the script of a key, if there is one and the key has a name.
bool RunKeyScript(const ScriptPointer& script, u32 key)
{
    if (!script)
        return false;

    char name[KeyNameSize];
    if (!Host::GetKeyName(key, name, sizeof(name)))
        return false;

    TeskElement::RunScript(script, name);
    return true;
}

// Runs the script of a mouse event; true if there is one.
bool RunMouseScript(const ScriptPointer& script, const _Point2i& point)
{
    const bool taken = script != nullptr;
    TeskElement::RunScript(script, point);
    return taken;
}

// An element with only a click script still takes the press, so that the release comes back to it.
bool RunPressScript(const ScriptPointer& pressScript, const ScriptPointer& clickScript, const _Point2i& point)
{
    const bool takesClick = clickScript != nullptr;
    return RunMouseScript(pressScript, point) || takesClick;
}

} // namespace

void TeskElement::RunScript(const ScriptPointer& script)
{
    if (script)
        script->Execute(0, nullptr);
}

void TeskElement::RunScript(const ScriptPointer& script, const _Point2i& point)
{
    if (!script)
        return;

    char x[NumberTextSize];
    char y[NumberTextSize];
    WriteInteger(x, sizeof(x), point.x);
    WriteInteger(y, sizeof(y), point.y);
    char* arguments[] = {x, y};
    script->Execute(2, arguments);
}

void TeskElement::RunScript(const ScriptPointer& script, char* argument)
{
    if (script)
        script->Execute(1, &argument);
}

bool TeskElement::OnLMouseUp(_Point2i& point)
{
    return RunMouseScript(Events.OnLeftClick, point);
}

bool TeskElement::OnLMouseDown(_Point2i& point)
{
    return RunPressScript(Events.OnLeftDown, Events.OnLeftClick, point);
}

bool TeskElement::OnRMouseUp(_Point2i& point)
{
    return RunMouseScript(Events.OnRightClick, point);
}

bool TeskElement::OnRMouseDown(_Point2i& point)
{
    return RunPressScript(Events.OnRightDown, Events.OnRightClick, point);
}

bool TeskElement::OnLMouseDoubleClick(_Point2i& point)
{
    return RunMouseScript(Events.OnDoubleLeftClick, point);
}

bool TeskElement::OnRMouseDoubleClick(_Point2i& point)
{
    return RunMouseScript(Events.OnDoubleRightClick, point);
}

bool TeskElement::OnMouseMove(_Point2i& point)
{
    return RunMouseScript(Events.OnMouseMove, point);
}

bool TeskElement::OnMouseWheel(int offset)
{
    if (!Events.OnMouseWheel)
        return false;

    char text[NumberTextSize];
    WriteInteger(text, sizeof(text), offset);
    RunScript(Events.OnMouseWheel, text);
    return true;
}

bool TeskElement::OnKeyUp(unsigned int key)
{
    return RunKeyScript(Events.OnKeyUp, key);
}

bool TeskElement::OnKeyDown(unsigned int key)
{
    return RunKeyScript(Events.OnKeyDown, key);
}

void TeskElement::OnMouseEnter(_Point2i& point)
{
    RunScript(Events.OnMouseEnter, point);
}

// A tooltip that shows for this element goes away first.
void TeskElement::OnMouseExit(TeskElement*)
{
    if (g_UIManager.TooltipElementID == ID)
        HideAutoTooltip();
    RunScript(Events.OnMouseExit);
}

void TeskElement::OnKeyboardEnter()
{
    RunScript(Events.OnKeyboardEnter);
}

void TeskElement::OnKeyboardExit(TeskElement*)
{
    RunScript(Events.OnKeyboardExit);
}

void TeskElement::OnLMouseDownOther(TeskElement*) { }

// Passing a notification up is not a new one.
void TeskElement::OnNotify(TeskElement* source, unsigned int code, unsigned long long value)
{
    if (Parent)
        Parent->OnNotify(source, code, value);
}

void TeskElement::Notify(TeskElement* source, u32 code, u64 value)
{
    const DepthScope depth(g_NotificationDepth, Limits::NestedNotifications);
    if (depth.Entered())
        OnNotify(source, code, value);
}

void TeskElement::NotifyParent(u32 code, u64 value)
{
    if (Parent)
        Parent->Notify(this, code, value);
}
