#include "teskara/script/MvTypeDefinition.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"

#include <new>

namespace {

DispatchResult ResultOf(bool answered)
{
    return answered ? DispatchDone : DispatchFailed;
}

} // namespace

MvTypeDefinition::MvTypeDefinition(const char* name)
{
    CopyBounded(m_Name, sizeof(m_Name), TextOrEmpty(name));
}

MvTypeDefinition::~MvTypeDefinition() = default;

// --- Variables of the type

bool MvTypeDefinition::FromValue(MvValue&)
{
    return false;
}

bool MvTypeDefinition::FromText(MvValue& value, const char*)
{
    return FromValue(value);
}

bool MvTypeDefinition::FromArguments(MvValue& value, int argc, char** argv)
{
    char text[Limits::TextBuffer4096] = "";
    std::size_t length = 0;
    for (int index = 0; argv && index < argc; ++index) {
        if (index > 0)
            length += CopyBounded(text + length, sizeof(text) - length, " ");
        length += CopyBounded(text + length, sizeof(text) - length, TextOrEmpty(argv[index]));
    }
    return FromText(value, text);
}

bool MvTypeDefinition::InitVariable(MvValue& value, const char* subtype)
{
    if (*TextOrEmpty(subtype))
        return false;

    InitValue(value, subtype);
    return true;
}

void MvTypeDefinition::InitValue(MvValue& value, const char*)
{
    value.Words[0] = 0;
}

void MvTypeDefinition::FreeValue(MvValue&) { }

// --- Members and methods

bool MvTypeDefinition::GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result)
{
    return GetMemberByName(value, member.Name.c_str(), argc, argv, result);
}

bool MvTypeDefinition::GetMemberByName(MvValue, const char*, int, char**, _MvTypeVar&)
{
    return false;
}

bool MvTypeDefinition::GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv)
{
    return GetMethodByName(value, method.Name.c_str(), argc, argv);
}

bool MvTypeDefinition::GetMethodByName(MvValue, const char*, int, char**)
{
    return false;
}

int MvTypeDefinition::GetIndex(MvValue value, int argc, char** argv, _MvTypeVar& result)
{
    return UnknownIndex(value, argc, argv, result);
}

// --- Dispatch by name

int MvTypeDefinition::DispatchMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result)
{
    if (!name)
        return DispatchUnknown;

    _MvTypeMember* member = m_Members.Find(name);
    if (!member)
        return UnknownMember(value, name, argc, argv, result);
    if (member->Handler)
        return ResultOf(member->Handler(*this, value, argc, argv, &result));
    return ResultOf(GetMember(value, *member, argc, argv, result));
}

int MvTypeDefinition::DispatchMethod(MvValue value, const char* name, int argc, char** argv)
{
    if (!name)
        return DispatchUnknown;

    _MvTypeMember* method = m_Methods.Find(name);
    if (!method)
        return UnknownMethod(value, name, argc, argv);
    if (method->Handler)
        return ResultOf(method->Handler(*this, value, argc, argv, nullptr));
    return ResultOf(GetMethod(value, *method, argc, argv));
}

int MvTypeDefinition::UnknownIndex(MvValue, int, char**, _MvTypeVar&)
{
    return DispatchUnknown;
}

int MvTypeDefinition::UnknownMember(MvValue, const char*, int, char**, _MvTypeVar&)
{
    return DispatchUnknown;
}

int MvTypeDefinition::UnknownMethod(MvValue, const char*, int, char**)
{
    return DispatchUnknown;
}

// --- Text of a value

bool MvTypeDefinition::ToTextCopy(MvValue value, char* buffer)
{
    return ToTextFallback(value, buffer);
}

// The operation below knows no size, so it writes into a buffer that is large enough for it.
bool MvTypeDefinition::ToText(MvValue value, char* buffer, u32 size)
{
    char text[Limits::TextBuffer4096] = "";
    if (!buffer || !ToTextCopy(value, text))
        return false;

    text[sizeof(text) - 1] = 0;
    CopyBounded(buffer, size, text);
    return true;
}

bool MvTypeDefinition::ToTextFallback(MvValue, char*)
{
    return false;
}

// --- Inheritance

void MvTypeDefinition::SetBase(MvTypeDefinition* base)
{
    for (const MvTypeDefinition* type = base; type; type = type->m_Base) {
        if (type == this)
            return;
    }
    m_Base = base;
}

bool MvTypeDefinition::InheritsMember(const char* name)
{
    return m_Base && name && (m_Base->m_Members.Find(name) || m_Base->InheritsMember(name));
}

bool MvTypeDefinition::InheritsMethod(const char* name)
{
    return m_Base && name && (m_Base->m_Methods.Find(name) || m_Base->InheritsMethod(name));
}

MvTypeDefinition* MvTypeDefinition::GetVariableType()
{
    return this;
}

// --- Registering

bool MvTypeDefinition::AddTo(TypeNameTable& table, u32 id, const char* name, MvTypeHandler handler)
{
    try {
        return name && table.Add(id, name, handler);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool MvTypeDefinition::RegisterMember(const char* name, MvTypeHandler handler)
{
    return name && AddMember(m_Members.NextID(name), name, handler);
}

bool MvTypeDefinition::AddMember(u32 id, const char* name, MvTypeHandler handler)
{
    return AddTo(m_Members, id, name, handler);
}

bool MvTypeDefinition::RemoveMember(const char* name, MvTypeHandler handler)
{
    return name && m_Members.Remove(name, handler);
}

bool MvTypeDefinition::RegisterMethod(const char* name, MvTypeHandler handler)
{
    return name && AddMethod(m_Methods.NextID(name), name, handler);
}

bool MvTypeDefinition::AddMethod(u32 id, const char* name, MvTypeHandler handler)
{
    return AddTo(m_Methods, id, name, handler);
}

bool MvTypeDefinition::RemoveMethod(const char* name, MvTypeHandler handler)
{
    return name && m_Methods.Remove(name, handler);
}

bool MvTypeDefinition::GetMemberID(const char* name, u32& id) const
{
    return m_Members.FindID(name, id);
}

bool MvTypeDefinition::GetMethodID(const char* name, u32& id) const
{
    return m_Methods.FindID(name, id);
}
