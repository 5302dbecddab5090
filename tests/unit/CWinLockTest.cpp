#include "teskara/core/CWinLock.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

bool IsFree(CriticalSection& section)
{
    bool taken = false;
    std::thread([&] {
        taken = section.try_lock();
        if (taken)
            section.unlock();
    }).join();
    return taken;
}

} // namespace

TEST(CWinLock, ConstructionTakesNothing)
{
    CriticalSection section;
    CWinLock lock(&section);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(IsFree(section));
}

TEST(CWinLock, HoldsFromLockToUnlock)
{
    CriticalSection section;
    CWinLock lock(&section);
    lock.Lock();
    EXPECT_TRUE(lock.IsLocked());
    EXPECT_FALSE(IsFree(section));
    lock.Unlock();
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(IsFree(section));
}

TEST(CWinLock, DestructionGivesBackWhatIsHeld)
{
    CriticalSection section;
    {
        CWinLock lock(&section);
        lock.Lock();
    }
    EXPECT_TRUE(IsFree(section));
}

TEST(CWinLock, TheSameSectionOnceMoreStaysHeld)
{
    CriticalSection section;
    CWinLock lock(&section);
    lock.Lock();
    lock.SetLock(&section);
    EXPECT_TRUE(lock.IsLocked());
    EXPECT_FALSE(IsFree(section));
}

TEST(CWinLock, TwiceIsOnce)
{
    CriticalSection section;
    CWinLock lock(&section);
    lock.Lock();
    lock.Lock();
    lock.Unlock();
    EXPECT_TRUE(IsFree(section));
    lock.Unlock();
    EXPECT_FALSE(lock.IsLocked());
}

TEST(CWinLock, WithoutASectionNothingIsHeld)
{
    CWinLock lock;
    lock.Lock();
    EXPECT_FALSE(lock.IsLocked());
    lock.Unlock();
}

TEST(CWinLock, AnotherSectionReleasesTheOneThatIsHeld)
{
    CriticalSection first;
    CriticalSection second;
    CWinLock lock(&first);
    lock.Lock();
    lock.SetLock(&second);
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_TRUE(IsFree(first));
    lock.Lock();
    EXPECT_FALSE(IsFree(second));
}

TEST(CWinLock, OneThreadMayTakeASectionSeveralTimes)
{
    CriticalSection section;
    CWinLock outer(&section);
    CWinLock inner(&section);
    outer.Lock();
    inner.Lock();
    outer.Unlock();
    EXPECT_FALSE(IsFree(section));
    inner.Unlock();
    EXPECT_TRUE(IsFree(section));
}
