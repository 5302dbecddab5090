#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

#include <string_view>
#include <vector>

// The lines that were entered, in a ring of slots, and a walk among them. Slots are made as they are used, up to
// Limits::RingLines of them; what was asked for beyond that is not remembered.
//
// Lines that are given out stay good until the next one is added.
class TESKARA_EXPORT LineHistory
{
public:
    // With a capacity of 0 it stays empty. Forgets what there was.
    void Reset(u32 capacity);

    // Puts a line into the next slot, in the place of what is there. The walk starts anew from it. Throws, and changes
    // nothing, if there is no memory.
    void Add(std::string_view line);

    // The line before or after the one given out last, round and round. Null if there are none.
    const utf8string* Previous();
    const utf8string* Next();

    // The line in the last slot that is in use: the newest one until the ring has come round. Null if there is none.
    const utf8string* Last() const;

    // --- Slots, counted from 0

    u32 Write = 0; // that the next line goes to
    u32 Read = 0; // that was given out last, or Write after a new line
    u32 Count() const { return static_cast<u32>(m_Lines.size()); }

private:
    std::vector<utf8string> m_Lines;
    u32 m_Capacity = 0;
};
