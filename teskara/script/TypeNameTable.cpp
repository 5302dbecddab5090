#include "teskara/script/TypeNameTable.h"

#include <memory>

namespace {

const _MvTypeMember* FindHandler(const _MvTypeMember* record, MvTypeHandler handler)
{
    while (record && record->Handler != handler)
        record = record->Next;
    return record;
}

} // namespace

TypeNameTable::~TypeNameTable()
{
    for (std::size_t position = 0; position < m_Chains.Size(); ++position) {
        _MvTypeMember* record = m_Chains.Get(position);
        while (record) {
            const std::unique_ptr<_MvTypeMember> owned(record);
            record = record->Next;
        }
    }
}

std::size_t TypeNameTable::PositionOf(std::string_view name) const
{
    const auto entry = m_Positions.find(name);
    return entry != m_Positions.end() ? entry->second : 0;
}

_MvTypeMember* TypeNameTable::Find(std::string_view name) const
{
    const std::size_t position = PositionOf(name);
    return position != 0 ? m_Chains.Get(position - 1) : nullptr;
}

bool TypeNameTable::FindID(const char* name, u32& id) const
{
    const _MvTypeMember* known = name ? Find(name) : nullptr;
    if (!known)
        return false;

    id = known->ID;
    return true;
}

u32 TypeNameTable::NextID(std::string_view name) const
{
    const _MvTypeMember* known = Find(name);
    return known ? known->ID : m_NextID;
}

bool TypeNameTable::Add(u32 id, std::string_view name, MvTypeHandler handler)
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

bool TypeNameTable::Remove(std::string_view name, MvTypeHandler handler)
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
