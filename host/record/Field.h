#pragma once

#include "host/record/BoundaryNames.h"
#include "host/record/ItemBytes.h"
#include "teskara/core/HostInterface.h"

#include <span>
#include <string>
#include <type_traits>

namespace host {

// A list of texts that ends with its count, like the words of a command.
struct TextList {
    int Count = 0;
    char** Texts = nullptr;
};

// A text that is written into somebody's memory of a fixed size.
struct TextBuffer {
    char* Bytes = nullptr;
    u32 Size = 0;
};

// The draw records of one call.
struct ImageList {
    u32 Count = 0;
    const TeskDrawRecord* Records = nullptr;
};

// A clock's reading.
struct Tick {
    u32 Milliseconds = 0;
};

// A value that the toolkit has given to the host, and gets back.
struct HeldValue {
    _MvTypeVar Value;
};

// How values of a kind lie in a recording. Read gives false for anything but what Write wrote. Pointers that are read
// hold until the outermost call returns.
struct FieldForm {
    void (*Write)(const void* value, ItemBytes& bytes, BoundaryNames& names);
    bool (*Read)(void* value, ItemView& bytes, BoundaryNames& names);
};

template <class Value> const FieldForm& FormOf();
template <> const FieldForm& FormOf<i64>();
template <> const FieldForm& FormOf<u64>();
template <> const FieldForm& FormOf<float>();
template <> const FieldForm& FormOf<double>();
template <> const FieldForm& FormOf<const char*>();
template <> const FieldForm& FormOf<std::string>();
template <> const FieldForm& FormOf<std::u16string>();
template <> const FieldForm& FormOf<TextList>();
template <> const FieldForm& FormOf<TextBuffer>();
template <> const FieldForm& FormOf<Tick>();
template <> const FieldForm& FormOf<_Point2i>();
template <> const FieldForm& FormOf<_Point3f>();
template <> const FieldForm& FormOf<tagRECT>();
template <> const FieldForm& FormOf<TeskDrawRecord>();
template <> const FieldForm& FormOf<ImageList>();
template <> const FieldForm& FormOf<MvTypeDefinition*>();
template <> const FieldForm& FormOf<_MvTypeVar>();
template <> const FieldForm& FormOf<HeldValue>();
template <> const FieldForm& FormOf<const void*>();

// The smaller whole numbers are numbers as well.
template <class Value> const FieldForm& FormOf()
{
    static_assert(std::is_integral_v<Value> || std::is_enum_v<Value>);
    static constexpr FieldForm Form = {
        [](const void* value, ItemBytes& bytes, BoundaryNames& names) {
            if constexpr (std::is_signed_v<Value>) {
                const auto number = static_cast<i64>(*static_cast<const Value*>(value));
                FormOf<i64>().Write(&number, bytes, names);
            } else {
                const auto number = static_cast<u64>(*static_cast<const Value*>(value));
                FormOf<u64>().Write(&number, bytes, names);
            }
        },
        [](void* value, ItemView& bytes, BoundaryNames& names) {
            std::conditional_t<std::is_signed_v<Value>, i64, u64> number = 0;
            if (!FormOf<decltype(number)>().Read(&number, bytes, names))
                return false;
            *static_cast<Value*>(value) = static_cast<Value>(number);
            return static_cast<decltype(number)>(*static_cast<Value*>(value)) == number;
        },
    };
    return Form;
}

// One argument or result of a call: where it lies while the call lasts. What stands for an argument is a variable of its
// own, so that a replay can set it.
struct Field {
    void* Value = nullptr;
    const FieldForm* Form = nullptr;
    bool IsResult = false;
};

template <class Value> Field In(Value& value)
{
    using Plain = std::remove_const_t<Value>;
    return {const_cast<Plain*>(&value), &FormOf<Plain>(), false};
}

template <class Value> Field Out(Value& value)
{
    return {&value, &FormOf<Value>(), true};
}

} // namespace host
