#include "host/record/BoundaryScriptTable.h"

#include "host/record/Boundary.h"

namespace host {

bool BoundaryScriptTable::ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag)
{
    bool isValue = false;
    m_Boundary.Cross(Operation::ParseTypedValue, {In(text), In(flag), Out(result), Out(isValue)},
        [&] { isValue = m_Inner->ParseTypedValue(text, result, flag); });
    return isValue;
}

MvTypeDefinition* BoundaryScriptTable::FindTypeByName(const char* name, u32 unused1, u32 unused2)
{
    MvTypeDefinition* type = nullptr;
    m_Boundary.Cross(Operation::FindTypeByName, {In(name), In(unused1), In(unused2), Out(type)},
        [&] { type = m_Inner->FindTypeByName(name, unused1, unused2); });
    return type;
}

char* BoundaryScriptTable::MakeTempBuffer(std::size_t size, const char* text)
{
    char* buffer = nullptr;
    bool isMade = false;
    m_Boundary.Cross(Operation::MakeTempBuffer, {In(size), In(text), Out(isMade)}, [&] {
        buffer = m_Inner->MakeTempBuffer(size, text);
        isMade = buffer;
    });
    return isMade && !buffer ? m_Boundary.Names().KeepBuffer(size, text) : buffer;
}

u32 BoundaryScriptTable::RegisterTransientClass2(const char* name)
{
    u32 id = 0;
    m_Boundary.Cross(
        Operation::RegisterTransientClass2, {In(name), Out(id)}, [&] { id = m_Inner->RegisterTransientClass2(name); });
    return id;
}

void BoundaryScriptTable::InvalidateTransientObject2(u32 classID, void* object)
{
    const void* address = object;
    m_Boundary.Cross(Operation::InvalidateTransientObject2, {In(classID), In(address)},
        [&] { m_Inner->InvalidateTransientObject2(classID, object); });
    m_Boundary.Names().Forget(object);
}

u32 BoundaryScriptTable::CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra)
{
    u32 query = 0;
    m_Boundary.Cross(Operation::CreateQuery, {In(owner), In(text), In(extra), Out(query)},
        [&] { query = m_Inner->CreateQuery(owner, text, extra); });
    return query;
}

bool BoundaryScriptTable::EvaluateQuery(u32 query, _MvTypeVar& object, bool& result)
{
    bool isDone = false;
    m_Boundary.Cross(Operation::EvaluateQuery, {In(query), In(object), Out(result), Out(isDone)},
        [&] { isDone = m_Inner->EvaluateQuery(query, object, result); });
    return isDone;
}

void BoundaryScriptTable::FreeQuery(u32 query)
{
    m_Boundary.Cross(Operation::FreeQuery, {In(query)}, [&] { m_Inner->FreeQuery(query); });
}

} // namespace host
