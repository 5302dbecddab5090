#pragma once

#include "teskara/core/CWinLock.h"

#include <vector>

// A last-in-first-out list of pointers under a lock of its own. The pointers are borrowed.
template <class T> class LockedList
{
public:
    void Push(T* entry)
    {
        CWinLock lock(&m_Section);
        lock.Lock();
        m_Entries.push_back(entry);
    }

    // The entry pushed last; null on an empty list.
    T* Pop()
    {
        CWinLock lock(&m_Section);
        lock.Lock();
        if (m_Entries.empty())
            return nullptr;

        T* entry = m_Entries.back();
        m_Entries.pop_back();
        return entry;
    }

    void Clear()
    {
        CWinLock lock(&m_Section);
        lock.Lock();
        m_Entries.clear();
    }

    bool IsEmpty() const { return m_Entries.empty(); }
    std::size_t Count() const { return m_Entries.size(); }

private:
    CriticalSection m_Section;
    std::vector<T*> m_Entries;
};
