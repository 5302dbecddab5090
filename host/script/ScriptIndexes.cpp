#include "host/script/ScriptIndexes.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

constexpr std::size_t IndexBytes = 512; // that an index counts without its entries
constexpr std::size_t EntryBytes = 64;
constexpr u64 BytesOfStep = 64; // that are looked through in the time of an instruction
constexpr u64 PositionsOfStep = 2;

// The kinds whose values can be made from texts.
bool IsMadeFromText(HostValueKind kind)
{
    return kind != HostValueKind::Point3f && kind != HostValueKind::FilePath;
}

} // namespace

std::shared_ptr<MvIndex> ScriptIndexes::Make(const char* typeName)
{
    MvTypeDefinition* type = m_Types.FindOwn(typeName);
    const HostValueType* own = m_Types.AsOwn(type);
    if (!own || !IsMadeFromText(own->Kind()) || !TakeOwn(IndexBytes))
        return nullptr;

    const auto end = [this](MvIndex* index) {
        Forget(index);
        delete index;
    };
    const std::shared_ptr<MvIndex> index(new MvIndex(type), end);
    m_Records[index.get()] = {index, IndexBytes, true};
    return index;
}

std::shared_ptr<MvIndex> ScriptIndexes::ShareOf(const void* object) const
{
    const auto found = m_Records.find(object);
    return found == m_Records.end() ? nullptr : found->second.Own.lock();
}

bool ScriptIndexes::Take(const MvIndex& index, std::size_t bytes)
{
    Record& record = m_Records[&index];
    if (record.IsOwn ? !TakeOwn(bytes) : m_LentBytes + bytes > m_State.Budget().Limits().CallBytes)
        return false;

    record.Bytes += bytes;
    m_LentBytes += record.IsOwn ? 0 : bytes;
    return true;
}

// What the program put there itself was never taken.
void ScriptIndexes::Give(const MvIndex& index, std::size_t bytes)
{
    const auto found = m_Records.find(&index);
    if (found == m_Records.end())
        return;

    Record& record = found->second;
    bytes = std::min(bytes, record.Bytes);
    record.Bytes -= bytes;
    if (record.IsOwn)
        m_State.Budget().GiveBytes(bytes);
    else
        m_LentBytes -= bytes;
}

std::size_t ScriptIndexes::BytesOf(std::size_t textBytes)
{
    return EntryBytes + textBytes;
}

std::size_t ScriptIndexes::BytesOf(const _MvTypeVar& entry) const
{
    const HostValueType* own = m_Types.AsOwn(entry.Type);
    const bool isText = own && own->Kind() == HostValueKind::String && entry.Value.Text;
    return BytesOf(isText ? std::strlen(entry.Value.Text) : 0);
}

void ScriptIndexes::Forget(const void* object)
{
    const auto found = m_Records.find(object);
    if (found == m_Records.end())
        return;

    if (found->second.IsOwn)
        m_State.Budget().GiveBytes(found->second.Bytes);
    else
        m_LentBytes -= found->second.Bytes;
    m_Records.erase(found);
}

const char* ScriptIndexes::SpendPositions(u32 count) const
{
    return m_State.Budget().SpendSteps(count / PositionsOfStep);
}

// Lua doesn't know how much hangs on what nobody holds any longer, so that may have to be collected first.
bool ScriptIndexes::TakeOwn(std::size_t bytes)
{
    ScriptBudget& budget = m_State.Budget();
    if (budget.TakeBytes(bytes))
        return true;
    if (budget.WhySpent())
        return false;

    budget.SpendSteps(budget.Bytes() / BytesOfStep);
    m_State.Collect();
    if (budget.TakeBytes(bytes))
        return true;
    budget.RunOutOfMemory();
    return false;
}

} // namespace host
