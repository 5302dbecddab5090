#pragma once

#include "host/FrameState.h"
#include "host/script/LuaState.h"

namespace host {

class ScriptGlobals;

// What scripts and texts see of the present frame: Date, Time, FPS, Frame, Display.Width, Display.Height, Mouse.X and
// Mouse.Y.
class FrameVariables
{
public:
    // Both are borrowed. Before the first frame there are zeros.
    FrameVariables(LuaState& state, ScriptGlobals& globals);

    void Set(const FrameState& frame);

private:
    LuaState& m_State;
    LuaReference m_Names; // the table in which the single ones stand
    LuaReference m_Display;
    LuaReference m_Mouse;
};

} // namespace host
