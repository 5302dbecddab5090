#pragma once

#include "teskara/core/CPortableLock.h"

// A scoped lock on a critical section. Not taken by construction; given back by destruction if it is held.
class TESKARA_EXPORT CWinLock : public CPortableLock
{
public:
    CWinLock() = default;
    explicit CWinLock(CriticalSection* lock) : m_Lock(lock) { }
    ~CWinLock() override { CWinLock::Unlock(); }
    CWinLock(const CWinLock&) = delete;
    CWinLock& operator=(const CWinLock&) = delete;

    void SetLock(CriticalSection* lock) override;
    void Lock() override;
    void Unlock() override;
    bool IsLocked() override { return m_Held; }

private:
    CriticalSection* m_Lock = nullptr;
    bool m_Held = false;
};
