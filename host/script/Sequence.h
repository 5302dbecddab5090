#pragma once

#include "host/script/LuaState.h"
#include "host/script/ScriptRest.h"

#include <string>
#include <vector>

namespace host {

struct Sequence;

// A step of a path: the name it begins with, a member or a method, and its arguments.
struct SequenceStep {
    enum class Kind { Name, Member, Method };

    Kind StepKind = Kind::Name;
    std::string Name;
    std::vector<Sequence> Arguments;
    bool IsConstant = true; // no argument has to be evaluated
};

// A piece of a text: one that stands for itself, or ${...} with a path or an expression in it.
struct SequencePart {
    enum class Kind { Text, Path, Expression, Nothing };

    Kind PartKind = Kind::Text;
    std::string Text; // for an expression, its source
    std::vector<SequenceStep> Path;
    LuaReference Function; // of an expression
    LuaReference NameKey; // of a path, the name it begins with as a text of Lua's
    mutable bool IsErrorSaid = false;
    mutable ScriptRest Rest;
};

// A text with parts that are evaluated at each use.
struct Sequence {
    std::string Original;
    std::string Where; // the file in which it was found, for messages
    std::vector<SequencePart> Parts;

    // Without parts that need to be evaluated it is what this holds.
    const std::string* Constant() const;
};

} // namespace host
