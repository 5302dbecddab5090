#pragma once

#include <array>
#include <span>

// A row of the matrix: what a script does in the middle of everything.
struct Act {
    const char* Name;
    void (*Run)();
};

// What a script does through the script types, as this.Parent.METHOD[ARGUMENTS].
struct ScriptAct {
    enum Object { This, Parent, Elder };

    Object On;
    const char* Method;
    std::array<const char*, 3> Arguments; // as many as are not null
};

std::span<const Act> AllActs();
std::span<const ScriptAct> AllScriptActs();

// False: the type of the object does not know the method, or the object is gone.
bool Perform(const ScriptAct& act);
