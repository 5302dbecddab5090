#pragma once

#include "teskara/core/Types.h"

#include <array>
#include <span>

// A row of the matrix: what a script does in the middle of everything.
struct Act {
    enum Aim { Sure, MayMiss }; // whether it can do something to each of these kinds, at some place at least

    const char* Name;
    bool (*Run)(); // false: there was nothing to do it to
    u64 Needs = 0; // traits of the kinds that it can do something to
    Aim At = Sure;
};

// What a script does through the script types, as this.PART.METHOD[ARGUMENTS].
struct ScriptAct {
    enum Object { This, Parent, Elder, List, Blip };

    Object On;
    const char* Part; // of the object; null if the method is the object's own
    const char* Method;
    std::array<const char*, 3> Arguments; // as many as are not null
    u64 Needs; // traits of the kinds that know it: all of these, and no other kind does
};

std::span<const Act> AllActs();
std::span<const ScriptAct> AllScriptActs();

// False: the type of the object does not know the method, or the object is gone.
bool Perform(const ScriptAct& act);
