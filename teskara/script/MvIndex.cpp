#include "teskara/script/MvIndex.h"

#include "teskara/core/Limits.h"
#include "teskara/script/ContainerWatch.h"
#include "teskara/script/MvIndexIterator.h"
#include "teskara/script/MvTypeDefinition.h"

#include <new>

// What the type does with a value may delete the index: each operation that it stands in ends with it, or looks
// whether the index is still there.

void MvIndex::EntryDeleter::operator()(_MvTypeVar* entry) const noexcept
{
    const std::unique_ptr<_MvTypeVar> memory(entry);
    try {
        entry->Type->FreeValue(entry->Value);
    } catch (...) {
        return; // the value is the type's, and so is what it loses
    }
}

MvIndex::MvIndex(MvTypeDefinition* type, const char* subtype)
    : MvContainer("index"), Type(type), SubType(subtype ? std::optional<utf8string>(subtype) : std::nullopt)
{
}

MvIndex::~MvIndex()
{
    Retire();
    FreeAll();
}

bool MvIndex::Clear()
{
    if (!CanChange())
        return false;

    const ContainerWatch self(*this);
    FreeAll();
    if (self.Exists())
        m_IsFreeing = false;
    return true;
}

u32 MvIndex::Add(int argc, char** argv)
{
    if (!CanChange() || Count >= Limits::IndexPositions)
        return 0;

    const ContainerWatch self(*this);
    Entry entry = MakeEntry(argc, argv);
    if (!entry || !self.Exists() || !CanChange())
        return 0;

    try {
        const auto position = static_cast<u32>(m_Entries.Add(entry.get())) + 1;
        entry.release();
        ++Count;
        return position;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

bool MvIndex::Set(u32 position, int argc, char** argv)
{
    if (!CanChange() || !HasPosition(position))
        return false;

    const ContainerWatch self(*this);
    Entry entry = MakeEntry(argc, argv);
    if (!entry || !self.Exists() || !CanChange())
        return false;

    const Entry old = Replace(position, std::move(entry));
    return true;
}

bool MvIndex::Remove(u32 position)
{
    return CanChange() && HasPosition(position) && Replace(position, nullptr);
}

bool MvIndex::Collapse()
{
    if (!CanChange())
        return false;

    std::size_t next = 0;
    for (std::size_t slot = 0; slot < m_Entries.Size(); ++slot) {
        _MvTypeVar* entry = m_Entries.Get(slot);
        if (!entry)
            continue;
        m_Entries.Set(slot, nullptr);
        m_Entries.Set(next++, entry);
    }
    return true;
}

bool MvIndex::Resize(u32 size)
try {
    return CanChange() && size <= Limits::IndexPositions && m_Entries.Resize(size);
} catch (const std::bad_alloc&) {
    return false;
}

bool MvIndex::Swap(u32 a, u32 b)
{
    if (!CanChange())
        return false;
    if (a == b)
        return true;
    if (!HasPosition(a) || !HasPosition(b))
        return false;

    _MvTypeVar* entry = m_Entries.Get(a - 1);
    m_Entries.Set(a - 1, m_Entries.Get(b - 1));
    m_Entries.Set(b - 1, entry);
    return true;
}

bool MvIndex::Move(u32 from, u32 to)
{
    if (!CanChange())
        return false;
    if (from == to)
        return true;
    if (!HasPosition(from) || !HasPosition(to))
        return false;

    const Entry old = Replace(to, Replace(from, nullptr));
    return true;
}

bool MvIndex::GetEntry(u32 position, _MvTypeVar& result)
{
    const _MvTypeVar* entry = HasPosition(position) ? m_Entries.Get(position - 1) : nullptr;
    if (!entry)
        return false;

    result = *entry;
    return true;
}

std::unique_ptr<MvIterator> MvIndex::NewIterator()
{
    return std::unique_ptr<MvIterator>(new (std::nothrow) MvIndexIterator(*this));
}

// A new value of the type; null if the type makes none of it.
MvIndex::Entry MvIndex::MakeEntry(int argc, char** argv) const
{
    try {
        if (!Type)
            return nullptr;

        // The index may go meanwhile.
        const std::optional<utf8string> subtype = SubType;
        Entry entry(new _MvTypeVar{Type, {}});
        const bool isMade = Type->InitVariable(entry->Value, subtype ? subtype->c_str() : nullptr)
            && entry->Type->FromArguments(entry->Value, argc, argv);
        return isMade ? std::move(entry) : nullptr;
    } catch (...) {
        return nullptr;
    }
}

// Puts an entry, or null, at a position, and gives what was there.
MvIndex::Entry MvIndex::Replace(u32 position, Entry entry)
{
    Entry old(m_Entries.Get(position - 1));
    Count += (entry ? 1u : 0u) - (old ? 1u : 0u);
    m_Entries.Set(position - 1, entry.release());
    return old;
}

// Nothing can be changed from then on. The index may be gone afterwards.
void MvIndex::FreeAll()
{
    const ContainerWatch self(*this);
    m_IsFreeing = true;
    for (u32 position = 1; self.Exists() && position <= m_Entries.Size(); ++position)
        Replace(position, nullptr);
}
