#pragma once

#include "teskara/core/Types.h"
#include "teskara/element/ScriptHold.h"
#include "teskara/script/MvTypeVar.h"

// The object with a ScriptHold that a value stands for; null if it has ended meanwhile. For the types of what is no
// element: TableType<TeskFont, HeldObject<TeskFont>>.
template <class Object> Object* HeldObject(MvValue value)
{
    auto* object = static_cast<Object*>(value.Object);
    return ScriptHold<Object>::IsAlive(object) ? object : nullptr;
}

// The same for objects that also have a Serial, since an address may come back: the value tells it in its second word.
// A host that keeps the pointer alone gives no serial number back.
template <class Object> Object* NumberedObject(MvValue value)
{
    Object* object = HeldObject<Object>(value);
    const u64 serial = value.Words[1];
    return object && (serial == 0 || serial == object->Serial) ? object : nullptr;
}

// Makes a value that stands for such an object. False: the object is null, or there is no memory.
template <class Object> bool PutNumbered(MvValue& value, Object* object)
{
    if (!object || !object->Hold.HandOut(object))
        return false;

    value.Object = object;
    value.Words[1] = object->Serial;
    return true;
}
