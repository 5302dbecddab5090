#pragma once

#include "teskara/element/ScriptHold.h"
#include "teskara/script/MvTypeVar.h"

// The object with a ScriptHold that a value stands for; null if it has ended meanwhile. For the types of what is no
// element: TableType<TeskFont, HeldObject<TeskFont>>.
template <class Object> Object* HeldObject(MvValue value)
{
    auto* object = static_cast<Object*>(value.Object);
    return ScriptHold<Object>::IsAlive(object) ? object : nullptr;
}
