#pragma once

#include "teskara/core/CIndex.h"
#include "teskara/core/utf8string.h"
#include "teskara/script/MvContainer.h"

#include <memory>
#include <optional>

class MvTypeDefinition;

// A script's index: values of one type at numbered positions, of which any may be empty. Values are made from texts as
// the type makes its variables, and freed by the type, which may call back: it may change, lock or delete the index
// while that works on it. While the index frees all entries it lets nothing be changed.
class TESKARA_EXPORT MvIndex : public MvContainer
{
public:
    // type: of all entries; borrowed, and it must outlive the index. Null: nothing can be added. subtype: handed to the
    // type for each entry; null for none.
    explicit MvIndex(MvTypeDefinition* type, const char* subtype = nullptr);
    ~MvIndex() override;

    // --- Changes. Positions count from 1. False: nothing was changed, since the index is locked, or there is no such
    // position, or no such value.

    // Frees all entries. Their positions stay.
    bool Clear();

    // Puts a value at the first empty position, behind the last one if there is none. The position; 0 if it failed.
    u32 Add(int argc, char** argv);

    // Puts a value at a position in the place of what is there.
    bool Set(u32 position, int argc, char** argv);

    // Frees an entry. Its position stays, empty; where there is no entry it fails.
    bool Remove(u32 position);

    // Moves all entries to the first positions, in their order.
    bool Collapse();

    // Adds empty positions until there are so many. Fails if there are as many already.
    bool Resize(u32 size);

    // Swaps what is at two positions, also where that is nothing. The same position twice does nothing and succeeds.
    bool Swap(u32 a, u32 b);

    // Moves what is at a position to another one, and frees what is there. The same position twice does nothing and
    // succeeds.
    bool Move(u32 from, u32 to);

    u32 GetCount() override { return Count; }
    u32 GetSize() override { return static_cast<u32>(m_Entries.Size()); }
    bool GetEntry(u32 position, _MvTypeVar& result) override;
    std::unique_ptr<MvIterator> NewIterator() override;

    MvTypeDefinition* const Type;
    const std::optional<utf8string> SubType;
    u32 Count = 0; // of the entries
    bool Locked = false; // then nothing can be changed

private:
    // Frees the value as its type does.
    struct EntryDeleter {
        void operator()(_MvTypeVar* entry) const noexcept;
    };
    using Entry = std::unique_ptr<_MvTypeVar, EntryDeleter>;

    bool CanChange() const { return !Locked && !m_IsFreeing; }
    bool HasPosition(u32 position) const { return position > 0 && position <= m_Entries.Size(); }
    Entry MakeEntry(int argc, char** argv) const;
    Entry Replace(u32 position, Entry entry);
    void FreeAll();

    CIndex<_MvTypeVar> m_Entries{10}; // owned
    bool m_IsFreeing = false;
};
