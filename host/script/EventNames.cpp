#include "host/script/EventNames.h"

#include "teskara/element/TeskElement.h"

namespace host {

namespace {

struct EventRow {
    const char* Name;
    ScriptPointer ElementEvents::*Script;
};

constexpr EventRow Rows[] = {
    {"OnLoad", &ElementEvents::OnLoad},
    {"OnUnload", &ElementEvents::OnUnload},
    {"OnLeftClick", &ElementEvents::OnLeftClick},
    {"OnRightClick", &ElementEvents::OnRightClick},
    {"OnLeftDown", &ElementEvents::OnLeftDown},
    {"OnRightDown", &ElementEvents::OnRightDown},
    {"OnDoubleLeftClick", &ElementEvents::OnDoubleLeftClick},
    {"OnDoubleRightClick", &ElementEvents::OnDoubleRightClick},
    {"OnMouseEnter", &ElementEvents::OnMouseEnter},
    {"OnMouseExit", &ElementEvents::OnMouseExit},
    {"OnMouseMove", &ElementEvents::OnMouseMove},
    {"OnMouseWheel", &ElementEvents::OnMouseWheel},
    {"OnKeyboardEnter", &ElementEvents::OnKeyboardEnter},
    {"OnKeyboardExit", &ElementEvents::OnKeyboardExit},
    {"OnKeyUp", &ElementEvents::OnKeyUp},
    {"OnKeyDown", &ElementEvents::OnKeyDown},
    {"OnRender", &ElementEvents::OnRender},
};

} // namespace

const char* NameOfEvent(const TeskElement& element, u32 atom)
{
    for (const EventRow& row : Rows) {
        const ScriptPointer& script = element.Events.*row.Script;
        if (script && script->Atom == atom)
            return row.Name;
    }
    return nullptr;
}

} // namespace host
