#pragma once

#include "host/record/Field.h"
#include "host/record/RecordingFormat.h"

namespace host {

// What the forms of fields are made of.

inline bool TakeTag(ItemView& bytes, RecordingFormat::Tag tag)
{
    return bytes.TakeByte() == tag && !bytes.IsBroken();
}

// A form of two functions that know their type.
template <class Value, void (*Write)(const Value&, ItemBytes&, BoundaryNames&),
    bool (*Read)(Value&, ItemView&, BoundaryNames&)>
constexpr FieldForm MakeForm = {
    [](const void* value, ItemBytes& bytes, BoundaryNames& names) {
        Write(*static_cast<const Value*>(value), bytes, names);
    },
    [](void* value, ItemView& bytes, BoundaryNames& names) {
        return Read(*static_cast<Value*>(value), bytes, names) && !bytes.IsBroken();
    },
};

} // namespace host
