#pragma once

#include "teskara/core/Types.h"

class MvTypeDefinition;

// The 16 bytes of a typed value. Pointers use the low 8 bytes; int, uint, bool and float the low 4.
union MvValue {
    void* Object;
    const char* Text;
    u64 Unsigned64;
    i64 Integer64;
    u32 Unsigned;
    i32 Integer;
    float Float;
    bool Bool;
    u64 Words[2] = {0, 0};
};
static_assert(sizeof(MvValue) == 16);

// A typed value that crosses between host and toolkit. A null type means that there is no value.
struct _MvTypeVar {
    MvTypeDefinition* Type = nullptr;
    MvValue Value;
};
