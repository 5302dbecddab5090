#include "teskara/core/LockedList.h"

#include <gtest/gtest.h>

#include <thread>

TEST(LockedList, WhatCameLastGoesFirst)
{
    LockedList<int> list;
    int entries[3] = {};
    for (int& entry : entries)
        list.Push(&entry);

    EXPECT_EQ(&entries[2], list.Pop());
    EXPECT_EQ(&entries[1], list.Pop());
    EXPECT_FALSE(list.IsEmpty());
    EXPECT_EQ(&entries[0], list.Pop());
    EXPECT_TRUE(list.IsEmpty());
}

TEST(LockedList, AnEmptyListGivesNull)
{
    LockedList<int> list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(nullptr, list.Pop());
}

TEST(LockedList, ClearLeavesItEmpty)
{
    LockedList<int> list;
    int entry = 0;
    list.Push(&entry);
    list.Push(&entry);
    EXPECT_EQ(2u, list.Count());
    list.Clear();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(nullptr, list.Pop());
}

TEST(LockedList, TwoThreadsLoseNoEntry)
{
    LockedList<int> list;
    int entry = 0;
    const auto push = [&] {
        for (int count = 0; count < 1000; ++count)
            list.Push(&entry);
    };
    std::thread other(push);
    push();
    other.join();
    EXPECT_EQ(2000u, list.Count());
}
