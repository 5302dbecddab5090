#pragma once

#include "teskara/core/Export.h"

#include <mutex>

// A lock that one thread may take several times.
using CriticalSection = std::recursive_mutex;

// A lock held for the length of a scope, once it was asked for.
class TESKARA_EXPORT CPortableLock
{
public:
    virtual ~CPortableLock() = default;

    // The lock to work on, borrowed; null for none.
    virtual void SetLock(CriticalSection* lock) = 0;
    virtual void Lock() = 0;
    virtual void Unlock() = 0;
    virtual bool IsLocked() = 0;
};
