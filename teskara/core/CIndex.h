#pragma once

#include "teskara/core/CWinLock.h"

#include <algorithm>
#include <cstddef>
#include <vector>

// A table of borrowed pointers. A null slot is free, and the first free slot is reused; a full table grows by a fixed
// number of slots.
template <class T> class CIndex
{
public:
    explicit CIndex(std::size_t growth = 10) : m_Growth(growth > 0 ? growth : 1) { }

    // Puts the entry into the first free slot and returns the slot.
    std::size_t Add(T* entry)
    {
        const std::size_t slot = FirstFree();
        if (slot == m_Slots.size())
            m_Slots.resize(m_Slots.size() + m_Growth, nullptr);
        m_Slots[slot] = entry;
        m_NoneFreeBelow = entry ? slot + 1 : slot;
        return slot;
    }

    // Null beyond the end, and for a free slot.
    T* Get(std::size_t slot) const { return slot < m_Slots.size() ? m_Slots[slot] : nullptr; }

    // Beyond the end nothing happens. Null frees the slot.
    void Set(std::size_t slot, T* entry)
    {
        if (slot >= m_Slots.size())
            return;

        m_Slots[slot] = entry;
        if (!entry)
            m_NoneFreeBelow = std::min(m_NoneFreeBelow, slot);
    }

    // Adds free slots until there are so many; a table never shrinks. False: there are as many already.
    bool Resize(std::size_t size)
    {
        if (size <= m_Slots.size())
            return false;

        m_Slots.resize(size, nullptr);
        return true;
    }

    // Number of slots, the free ones included.
    std::size_t Size() const { return m_Slots.size(); }

    CriticalSection& Section() { return m_Section; }

private:
    // Slots below the mark are taken, so that filling a table of any length passes each slot once.
    std::size_t FirstFree() const
    {
        std::size_t slot = m_NoneFreeBelow;
        while (slot < m_Slots.size() && m_Slots[slot])
            ++slot;
        return slot;
    }

    std::size_t m_Growth;
    std::size_t m_NoneFreeBelow = 0;
    std::vector<T*> m_Slots;
    CriticalSection m_Section;
};
