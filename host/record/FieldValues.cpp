// Types, objects and typed values in recordings.

#include "host/record/FieldForms.h"

#include <string_view>

namespace host {

namespace {

using namespace RecordingFormat;

template <class Value> void Write(const Value& value, ItemBytes& bytes, BoundaryNames& names)
{
    FormOf<Value>().Write(&value, bytes, names);
}

template <class Value> bool Read(Value& value, ItemView& bytes, BoundaryNames& names)
{
    return FormOf<Value>().Read(&value, bytes, names);
}

constexpr u8 OfToolkit = 'T';
constexpr u8 OfHost = 'H';

void WriteType(MvTypeDefinition* const& type, ItemBytes& bytes, BoundaryNames& names)
{
    bytes.PutByte(type ? Type : Null);
    if (!type)
        return;
    bytes.PutByte(names.IsToolkitType(type) ? OfToolkit : OfHost);
    bytes.PutText(type->GetName());
}

bool ReadType(MvTypeDefinition*& type, ItemView& bytes, BoundaryNames& names)
{
    type = nullptr;
    if (bytes.Peek() == Null)
        return TakeTag(bytes, Null);
    if (!TakeTag(bytes, Type))
        return false;
    const u8 side = bytes.TakeByte();
    const std::string_view name = bytes.TakeText();
    type = side == OfToolkit ? names.FindToolkitType(name) : names.FindHostType(name);
    return type;
}

// Fonts and textures go without a word.
BoundaryNames::Address AddressOf(const MvTypeDefinition& type)
{
    const std::string_view name = type.GetName();
    return name == "teskfont" || name == "tesktexture" ? BoundaryNames::Address::Passing
                                                       : BoundaryNames::Address::Lasting;
}

void WriteObject(const void* const& object, ItemBytes& bytes, BoundaryNames& names)
{
    bytes.PutByte(Object);
    bytes.PutUnsigned(names.NumberOf(object));
    bytes.PutByte(0);
}

bool ReadObjectValue(MvValue& value, const MvTypeDefinition* type, ItemView& bytes, const BoundaryNames& names)
{
    if (!TakeTag(bytes, Object))
        return false;
    const u64 number = bytes.TakeUnsigned();
    bytes.TakeByte();
    const bool isWhole = number == static_cast<u32>(number) && !bytes.IsBroken();
    return isWhole && names.FindObject(static_cast<u32>(number), type, value);
}

// Objects without a type go to the host alone, and nobody gives them back.
bool ReadObject(const void*&, ItemView&, BoundaryNames&)
{
    return false;
}

// The kinds of value of the host's own types; null for another one.
const HostValueType* OwnType(const MvTypeDefinition* type)
{
    return dynamic_cast<const HostValueType*>(type);
}

void WriteOwnValue(HostValueKind kind, const MvValue& value, ItemBytes& bytes, BoundaryNames& names)
{
    switch (kind) {
    case HostValueKind::String:
        return Write(value.Text, bytes, names);
    case HostValueKind::Int:
        return Write(value.Integer, bytes, names);
    case HostValueKind::Int64:
        return Write(value.Integer64, bytes, names);
    case HostValueKind::Uint:
        return Write(value.Unsigned, bytes, names);
    case HostValueKind::Bool:
        return Write(value.Bool, bytes, names);
    case HostValueKind::Float:
        return Write(value.Float, bytes, names);
    case HostValueKind::Point3f:
        if (value.Object)
            return Write(*static_cast<const _Point3f*>(value.Object), bytes, names);
        break;
    case HostValueKind::FilePath:
        if (value.Object)
            return Write(std::u16string(static_cast<const char16_t*>(value.Object)), bytes, names);
        break;
    case HostValueKind::Count:
        break;
    }
    bytes.PutByte(Null);
}

bool ReadOwnValue(HostValueKind kind, MvValue& value, ItemView& bytes, BoundaryNames& names)
{
    switch (kind) {
    case HostValueKind::String:
        return Read(value.Text, bytes, names);
    case HostValueKind::Int:
        return Read(value.Integer, bytes, names);
    case HostValueKind::Int64:
        return Read(value.Integer64, bytes, names);
    case HostValueKind::Uint:
        return Read(value.Unsigned, bytes, names);
    case HostValueKind::Bool:
        return Read(value.Bool, bytes, names);
    case HostValueKind::Float:
        return Read(value.Float, bytes, names);
    case HostValueKind::Point3f: {
        _Point3f point;
        if (bytes.Peek() == Null)
            return TakeTag(bytes, Null);
        if (!Read(point, bytes, names))
            return false;
        value.Object = names.KeepPoint(point);
        return true;
    }
    case HostValueKind::FilePath: {
        std::u16string path;
        if (bytes.Peek() == Null)
            return TakeTag(bytes, Null);
        if (!Read(path, bytes, names))
            return false;
        value.Object = names.KeepWide(std::move(path));
        return true;
    }
    case HostValueKind::Count:
        break;
    }
    return false;
}

void PutValue(const _MvTypeVar& value, BoundaryNames::Address address, ItemBytes& bytes, BoundaryNames& names)
{
    WriteType(value.Type, bytes, names);
    if (!value.Type)
        return;
    if (names.IsToolkitType(value.Type)) {
        const auto name = names.NameOf(value.Value.Object, value.Type, value.Value.Words[1], address);
        bytes.PutByte(Object);
        bytes.PutUnsigned(name.Number);
        bytes.PutByte(name.TellsSerial ? 1 : 0);
    } else if (const HostValueType* own = OwnType(value.Type)) {
        WriteOwnValue(own->Kind(), value.Value, bytes, names);
    } else {
        bytes.PutByte(Opaque);
    }
}

void WriteValue(const _MvTypeVar& value, ItemBytes& bytes, BoundaryNames& names)
{
    const auto address = value.Type ? AddressOf(*value.Type) : BoundaryNames::Address::Lasting;
    PutValue(value, address, bytes, names);
}

void WriteHeld(const HeldValue& held, ItemBytes& bytes, BoundaryNames& names)
{
    PutValue(held.Value, BoundaryNames::Address::Lasting, bytes, names);
}

bool ReadValue(_MvTypeVar& value, ItemView& bytes, BoundaryNames& names)
{
    value = {};
    if (!ReadType(value.Type, bytes, names))
        return false;
    if (!value.Type)
        return true;
    const HostValueType* own = OwnType(value.Type);
    return own ? ReadOwnValue(own->Kind(), value.Value, bytes, names)
               : ReadObjectValue(value.Value, value.Type, bytes, names);
}

bool ReadHeld(HeldValue& held, ItemView& bytes, BoundaryNames& names)
{
    return ReadValue(held.Value, bytes, names);
}

} // namespace

template <> const FieldForm& FormOf<MvTypeDefinition*>()
{
    return MakeForm<MvTypeDefinition*, WriteType, ReadType>;
}

template <> const FieldForm& FormOf<_MvTypeVar>()
{
    return MakeForm<_MvTypeVar, WriteValue, ReadValue>;
}

template <> const FieldForm& FormOf<HeldValue>()
{
    return MakeForm<HeldValue, WriteHeld, ReadHeld>;
}

template <> const FieldForm& FormOf<const void*>()
{
    return MakeForm<const void*, WriteObject, ReadObject>;
}

} // namespace host
