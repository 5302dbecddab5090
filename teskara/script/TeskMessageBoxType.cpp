#include "teskara/script/TeskMessageBoxType.h"

namespace {

constexpr ScriptMember<TeskElement> Members[] = {
    {0, "Type", Script::Nothing},
};

} // namespace

TeskMessageBoxType::TeskMessageBoxType(const char* name) : ElementType(name, Members) { }
