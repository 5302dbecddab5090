#include "host/script/IndexType.h"

#include "host/probe/HostTypes.h"
#include "host/probe/ValueText.h"
#include "host/record/ToolkitCalls.h"
#include "host/script/ScriptIndexes.h"
#include "teskara/core/Limits.h"
#include "teskara/script/MvIndexIterator.h"
#include "teskara/script/ScriptTable.h"

#include <charconv>
#include <cstring>
#include <new>
#include <string>

namespace host {

namespace {

// What is asked of an index, with what.
struct IndexCall {
    MvIndex& Index;
    ScriptIndexes& Indexes;
    HostTypes& Types;
    int Count;
    char** Texts;

    // A position, or 0, which is none.
    u32 Position(int argument) const
    {
        const std::string_view text = Texts[argument];
        u32 position = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), position);
        return read.ec == std::errc() && read.ptr == text.data() + text.size() ? position : 0;
    }

    // How many bytes of text make the value that begins at an argument.
    std::size_t ValueBytes(int first) const
    {
        std::size_t bytes = 0;
        for (int index = first; index < Count; ++index)
            bytes += std::strlen(Texts[index]) + 1;
        return bytes;
    }

    // What the entry at a position counts; 0 if there is none.
    std::size_t EntryBytes(u32 position) const
    {
        _MvTypeVar entry;
        return Index.GetEntry(position, entry) ? Indexes.BytesOf(entry) : 0;
    }
};

// --- Members

bool PutUint(const IndexCall& call, u32 number, _MvTypeVar& result)
{
    result.Type = &call.Types.Own(HostValueKind::Uint);
    result.Value.Unsigned = number;
    return true;
}

bool GetCount(const IndexCall& call, _MvTypeVar& result)
{
    return PutUint(call, call.Index.GetCount(), result);
}

bool GetSize(const IndexCall& call, _MvTypeVar& result)
{
    return PutUint(call, call.Index.GetSize(), result);
}

bool IsLocked(const IndexCall& call, _MvTypeVar& result)
{
    result.Type = &call.Types.Own(HostValueKind::Bool);
    result.Value.Bool = call.Index.Locked;
    return true;
}

bool GetTypeName(const IndexCall& call, _MvTypeVar& result)
{
    if (!call.Index.Type)
        return false;

    result.Type = &call.Types.Own(HostValueKind::String);
    result.Value.Text = call.Index.Type->GetName();
    return true;
}

bool GetAt(const IndexCall& call, _MvTypeVar& result)
{
    return call.Index.GetEntry(call.Position(0), result);
}

// --- Changes. Memory is taken before, and what was too much is given back.

// A longer value would be cut.
bool CanHold(const IndexCall& call, int first)
{
    return call.ValueBytes(first) <= Limits::TextBuffer4096;
}

bool Add(const IndexCall& call, _MvTypeVar& result)
{
    const std::size_t bytes = ScriptIndexes::BytesOf(call.ValueBytes(0));
    if (!CanHold(call, 0) || !call.Indexes.Take(call.Index, bytes))
        return false;

    const u32 position = call.Index.Add(call.Count, call.Texts);
    if (position == 0)
        call.Indexes.Give(call.Index, bytes);
    return position > 0 && PutUint(call, position, result);
}

bool Set(const IndexCall& call)
{
    const u32 position = call.Position(0);
    const std::size_t bytes = ScriptIndexes::BytesOf(call.ValueBytes(1));
    if (!CanHold(call, 1) || !call.Indexes.Take(call.Index, bytes))
        return false;

    const std::size_t old = call.EntryBytes(position);
    const bool isSet = call.Index.Set(position, call.Count - 1, call.Texts + 1);
    call.Indexes.Give(call.Index, isSet ? old : bytes);
    return isSet;
}

bool Remove(const IndexCall& call)
{
    const u32 position = call.Position(0);
    const std::size_t old = call.EntryBytes(position);
    const bool isRemoved = call.Index.Remove(position);
    call.Indexes.Give(call.Index, isRemoved ? old : 0);
    return isRemoved;
}

bool Move(const IndexCall& call)
{
    const u32 from = call.Position(0);
    const u32 to = call.Position(1);
    const std::size_t old = from == to ? 0 : call.EntryBytes(to);
    const bool isMoved = call.Index.Move(from, to);
    call.Indexes.Give(call.Index, isMoved ? old : 0);
    return isMoved;
}

bool Swap(const IndexCall& call)
{
    return call.Index.Swap(call.Position(0), call.Position(1));
}

bool Resize(const IndexCall& call)
{
    const u32 before = call.Index.GetSize();
    const u32 size = call.Position(0);
    const std::size_t bytes = size > before ? (size - before) * sizeof(void*) : 0;
    if (bytes == 0 || !call.Indexes.Take(call.Index, bytes))
        return false;

    const bool isResized = call.Index.Resize(size);
    call.Indexes.Give(call.Index, isResized ? 0 : bytes);
    return isResized;
}

bool Collapse(const IndexCall& call)
{
    call.Indexes.SpendPositions(call.Index.GetSize());
    return call.Index.Collapse();
}

bool Clear(const IndexCall& call)
{
    call.Indexes.SpendPositions(call.Index.GetSize());
    std::size_t bytes = 0;
    for (u32 position = 1; position <= call.Index.GetSize(); ++position)
        bytes += call.EntryBytes(position);
    const bool isCleared = call.Index.Clear();
    call.Indexes.Give(call.Index, isCleared ? bytes : 0);
    return isCleared;
}

// --- The tables

struct Member : ScriptRow {
    bool (*Answer)(const IndexCall& call, _MvTypeVar& result);
};

struct Method : ScriptRow {
    bool (*Act)(const IndexCall& call);
};

// clang-format off
constexpr Member Members[] = {
    {{0, "Count",  "uint",   0}, GetCount},
    {{1, "Size",   "uint",   0}, GetSize},
    {{2, "Type",   "string", 0}, GetTypeName},
    {{3, "Locked", "bool",   0}, IsLocked},
    {{4, "Get",    nullptr,  1}, GetAt},
    {{5, "Add",    "uint",   1}, Add},
};

constexpr Method Methods[] = {
    {{0, "Set",      nullptr, 2}, Set},
    {{1, "Remove",   nullptr, 1}, Remove},
    {{2, "Swap",     nullptr, 2}, Swap},
    {{3, "Move",     nullptr, 2}, Move},
    {{4, "Resize",   nullptr, 1}, Resize},
    {{5, "Clear",    nullptr, 0}, Clear},
    {{6, "Collapse", nullptr, 0}, Collapse},
};
// clang-format on

constexpr ScriptTable<Member> MemberTable = Members;
constexpr ScriptTable<Method> MethodTable = Methods;

MvIndex* IndexOf(MvValue value)
{
    return static_cast<MvIndex*>(value.Object);
}

} // namespace

IndexType::IndexType(ScriptIndexes& indexes, HostTypes& types)
    : ToolkitType("index"), m_Indexes(indexes), m_Types(types)
{
    bool isComplete = true;
    for (const ScriptRow& row : MemberTable)
        isComplete &= AddMember(row.ID, row.Name, nullptr);
    for (const ScriptRow& row : MethodTable)
        isComplete &= AddMethod(row.ID, row.Name, nullptr);
    if (!isComplete)
        throw std::bad_alloc();
}

bool IndexType::GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result)
{
    const Member* row = MemberTable.Find(member.ID);
    MvIndex* index = IndexOf(value);
    const auto share = m_Indexes.ShareOf(index); // taking memory may collect what nobody holds
    return row && index && argc >= row->Needs && row->Answer({*index, m_Indexes, m_Types, argc, argv}, result);
}

bool IndexType::GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv)
{
    const Method* row = MethodTable.Find(method.ID);
    MvIndex* index = IndexOf(value);
    const auto share = m_Indexes.ShareOf(index);
    return row && index && argc >= row->Needs && row->Act({*index, m_Indexes, m_Types, argc, argv});
}

int IndexType::GetIndex(MvValue value, int argc, char** argv, _MvTypeVar& result)
{
    MvIndex* index = IndexOf(value);
    const bool isThere = index && argc == 1 && GetAt({*index, m_Indexes, m_Types, argc, argv}, result);
    return isThere ? DispatchDone : DispatchFailed;
}

bool IndexType::ToText(MvValue value, char* buffer, u32 size)
{
    MvIndex* index = IndexOf(value);
    if (!index || !buffer || size == 0)
        return false;

    m_Indexes.SpendPositions(index->GetSize());
    std::string text;
    MvIndexIterator entry(*index);
    for (bool isThere = entry.First(); isThere && text.size() < size; isThere = entry.Next()) {
        _MvTypeVar found;
        char part[Limits::TextBuffer4096] = "";
        if (!entry.GetValue(found) || !Toolkit::ToText(found, part, sizeof part))
            continue;
        text += text.empty() ? "" : ", ";
        text += part;
    }
    CopyText(buffer, size, text);
    return true;
}

void IndexType::VisitMembers(const RowVisitor& visit) const
{
    for (const ScriptRow& row : MemberTable)
        visit(row);
}

void IndexType::VisitMethods(const RowVisitor& visit) const
{
    for (const ScriptRow& row : MethodTable)
        visit(row);
}

} // namespace host
