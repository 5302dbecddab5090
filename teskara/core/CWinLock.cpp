#include "teskara/core/CWinLock.h"

void CWinLock::SetLock(CriticalSection* lock)
{
    if (lock == m_Lock)
        return;

    Unlock();
    m_Lock = lock;
}

void CWinLock::Lock()
{
    if (!m_Lock || m_Held)
        return;

    m_Lock->lock();
    m_Held = true;
}

void CWinLock::Unlock()
{
    if (!m_Held)
        return;

    m_Held = false;
    m_Lock->unlock();
}
