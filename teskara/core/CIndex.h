#pragma once

#include "teskara/core/CWinLock.h"

#include <cstddef>
#include <vector>

// A table of borrowed pointers. A null slot is free, and the first free slot is reused; a full table grows by a fixed
// number of slots.
template <class T>
class CIndex
{
public:
    explicit CIndex(std::size_t growth = 10)
        : m_Growth(growth)
    {
    }

    // Puts the entry into the first free slot and returns the slot.
    std::size_t Add(T* entry)
    {
        const std::size_t slot = FirstFree();
        if (slot == m_Slots.size())
            m_Slots.resize(m_Slots.size() + m_Growth, nullptr);
        m_Slots[slot] = entry;
        return slot;
    }

    // Null beyond the end, and for a free slot.
    T* Get(std::size_t slot) const { return slot < m_Slots.size() ? m_Slots[slot] : nullptr; }

    // Beyond the end nothing happens. Null frees the slot.
    void Set(std::size_t slot, T* entry)
    {
        if (slot < m_Slots.size())
            m_Slots[slot] = entry;
    }

    // Number of slots, the free ones included.
    std::size_t Size() const { return m_Slots.size(); }

    CriticalSection& Section() { return m_Section; }

private:
    std::size_t FirstFree() const
    {
        for (std::size_t slot = 0; slot < m_Slots.size(); ++slot) {
            if (!m_Slots[slot])
                return slot;
        }
        return m_Slots.size();
    }

    std::size_t m_Growth;
    std::vector<T*> m_Slots;
    CriticalSection m_Section;
};
