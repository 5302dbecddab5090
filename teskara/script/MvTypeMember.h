#pragma once

#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/script/MvTypeVar.h"

// Answers a member or carries out a method in place of the type's own operation. result is null for a method.
using MvTypeHandler = bool (*)(MvTypeDefinition& type, MvValue value, int argc, char** argv, _MvTypeVar* result);

// A name of a type. Several handlers may stand behind one name, the newest first.
struct _MvTypeMember {
    u32 ID = 0;
    utf8string Name;
    MvTypeHandler Handler = nullptr; // null: the type's GetMember or GetMethod answers
    _MvTypeMember* Previous = nullptr;
    _MvTypeMember* Next = nullptr;
};
