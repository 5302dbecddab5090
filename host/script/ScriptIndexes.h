#pragma once

#include "host/probe/HostTypes.h"
#include "host/script/LuaState.h"
#include "teskara/script/MvIndex.h"

#include <memory>
#include <unordered_map>

namespace host {

// The indexes that scripts hold, and the memory that they put into them. An index that a script has made lives as long
// as scripts hold it, and its memory counts with theirs. An index that a program hands over is the program's: scripts
// may fill all of these together as far as one call may take memory.
class ScriptIndexes
{
public:
    // Both are borrowed.
    ScriptIndexes(LuaState& state, HostTypes& types) : m_State(state), m_Types(types) { }

    // A new index of a type of the host's. Null: it cannot be made from texts, or there is no memory for it.
    std::shared_ptr<MvIndex> Make(const char* typeName);

    // The share of an index that a script has made; null for any other object.
    std::shared_ptr<MvIndex> ShareOf(const void* object) const;

    // Counts memory before it is put into an index. False: it would be too much, and of a script's own index nothing
    // more can be made in this call.
    bool Take(const MvIndex& index, std::size_t bytes);
    void Give(const MvIndex& index, std::size_t bytes);

    // What an entry counts, made of so many bytes of text, and one that is there.
    static std::size_t BytesOf(std::size_t textBytes);
    std::size_t BytesOf(const _MvTypeVar& entry) const;

    // An object is going away.
    void Forget(const void* object);

    // Counts work on so many positions. Null, or why the script has to stop.
    const char* SpendPositions(u32 count) const;

private:
    struct Record {
        std::weak_ptr<MvIndex> Own; // expired: it is a program's
        std::size_t Bytes = 0;
        bool IsOwn = false;
    };

    bool TakeOwn(std::size_t bytes);

    LuaState& m_State;
    HostTypes& m_Types;
    std::unordered_map<const void*, Record> m_Records;
    std::size_t m_LentBytes = 0; // in indexes of programs
};

} // namespace host
