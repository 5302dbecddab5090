#include "teskara/script/MvTypeDefinition.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Limits.h"

#include <memory>
#include <new>

namespace {

const _MvTypeMember* FindHandler(const _MvTypeMember* record, MvTypeHandler handler)
{
    while (record && record->Handler != handler)
        record = record->Next;
    return record;
}

DispatchResult ResultOf(bool answered)
{
    return answered ? DispatchDone : DispatchFailed;
}

} // namespace

// --- Names

MvTypeDefinition::NameTable::~NameTable()
{
    for (std::size_t position = 0; position < m_Chains.Size(); ++position) {
        _MvTypeMember* record = m_Chains.Get(position);
        while (record) {
            const std::unique_ptr<_MvTypeMember> owned(record);
            record = record->Next;
        }
    }
}

std::size_t MvTypeDefinition::NameTable::PositionOf(std::string_view name) const
{
    const auto entry = m_Positions.find(name);
    return entry != m_Positions.end() ? entry->second : 0;
}

_MvTypeMember* MvTypeDefinition::NameTable::Find(std::string_view name) const
{
    const std::size_t position = PositionOf(name);
    return position != 0 ? m_Chains.Get(position - 1) : nullptr;
}

bool MvTypeDefinition::NameTable::FindID(const char* name, u32& id) const
{
    const _MvTypeMember* known = name ? Find(name) : nullptr;
    if (!known)
        return false;

    id = known->ID;
    return true;
}

u32 MvTypeDefinition::NameTable::NextID(std::string_view name) const
{
    const _MvTypeMember* known = Find(name);
    return known ? known->ID : m_NextID;
}

bool MvTypeDefinition::NameTable::Add(u32 id, std::string_view name, MvTypeHandler handler)
{
    if (id >= m_NextID)
        m_NextID = id + 1;

    _MvTypeMember* head = Find(name);
    if (FindHandler(head, handler))
        return false;

    auto record = std::make_unique<_MvTypeMember>();
    record->ID = id;
    record->Name = name;
    record->Handler = handler;
    record->Next = head;
    if (head) {
        head->Previous = record.get();
        m_Chains.Set(PositionOf(name) - 1, record.release());
        return true;
    }

    // Should the chains fail to grow, the name is left with a place of 0, which reads as unknown.
    std::size_t& position = m_Positions.try_emplace(record->Name, 0).first->second;
    position = m_Chains.Add(record.get()) + 1;
    record.release();
    return true;
}

bool MvTypeDefinition::NameTable::Remove(std::string_view name, MvTypeHandler handler)
{
    _MvTypeMember* record = const_cast<_MvTypeMember*>(FindHandler(Find(name), handler));
    if (!record)
        return false;

    const std::unique_ptr<_MvTypeMember> owned(record);
    const auto entry = m_Positions.find(name);
    if (record->Next)
        record->Next->Previous = record->Previous;
    if (record->Previous)
        record->Previous->Next = record->Next;
    else
        m_Chains.Set(entry->second - 1, record->Next);

    if (!record->Previous && !record->Next)
        m_Positions.erase(entry);
    return true;
}

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

bool MvTypeDefinition::AddTo(NameTable& table, u32 id, const char* name, MvTypeHandler handler)
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
