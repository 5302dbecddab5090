#include "teskara/core/CIndex.h"

#include <gtest/gtest.h>

#include <vector>

TEST(CIndex, StartsEmpty)
{
    const CIndex<int> index;
    EXPECT_EQ(0u, index.Size());
    EXPECT_EQ(nullptr, index.Get(0));
}

TEST(CIndex, GrowsByTenSlots)
{
    CIndex<int> index;
    int entry = 0;
    for (std::size_t slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(slot, index.Add(&entry));
        EXPECT_EQ(10u, index.Size());
    }
    EXPECT_EQ(10u, index.Add(&entry));
    EXPECT_EQ(20u, index.Size());
    EXPECT_EQ(nullptr, index.Get(19));
    EXPECT_EQ(nullptr, index.Get(20));
}

TEST(CIndex, GrowsByAnotherNumberOfSlotsIfToldTo)
{
    CIndex<int> index(3);
    int entry = 0;
    for (int count = 0; count < 4; ++count)
        index.Add(&entry);
    EXPECT_EQ(6u, index.Size());
}

TEST(CIndex, AGrowthOfZeroStillGivesASlot)
{
    CIndex<int> index(0);
    int entry = 0;
    EXPECT_EQ(0u, index.Add(&entry));
    EXPECT_EQ(1u, index.Add(&entry));
    EXPECT_EQ(2u, index.Size());
}

TEST(CIndex, TheFirstFreeSlotIsUsedAgain)
{
    CIndex<int> index;
    int entry = 0;
    int other = 0;
    for (int count = 0; count < 10; ++count)
        index.Add(&entry);

    index.Set(7, nullptr);
    index.Set(2, nullptr);
    index.Set(5, nullptr);
    EXPECT_EQ(2u, index.Add(&other));
    EXPECT_EQ(&other, index.Get(2));
    EXPECT_EQ(5u, index.Add(&other));
    EXPECT_EQ(7u, index.Add(&other));
    EXPECT_EQ(10u, index.Size());
    EXPECT_EQ(10u, index.Add(&other));
}

TEST(CIndex, ASlotThatWasFilledBySetIsNotGivenOut)
{
    CIndex<int> index;
    int entry = 0;
    index.Add(&entry);
    index.Set(1, &entry);
    EXPECT_EQ(2u, index.Add(&entry));
}

TEST(CIndex, ANullEntryLeavesItsSlotFree)
{
    CIndex<int> index;
    int entry = 0;
    EXPECT_EQ(0u, index.Add(nullptr));
    EXPECT_EQ(10u, index.Size());
    EXPECT_EQ(0u, index.Add(&entry));
}

TEST(CIndex, BeyondTheEndNothingIsSet)
{
    CIndex<int> index;
    int entry = 0;
    index.Set(0, &entry);
    index.Set(5, nullptr);
    EXPECT_EQ(0u, index.Size());
    EXPECT_EQ(0u, index.Add(&entry));
}

TEST(CIndex, ResizeOnlyAddsFreeSlots)
{
    CIndex<int> index;
    int entry = 0;
    EXPECT_TRUE(index.Resize(3));
    EXPECT_EQ(3u, index.Size());
    EXPECT_EQ(nullptr, index.Get(2));
    EXPECT_FALSE(index.Resize(3));
    EXPECT_FALSE(index.Resize(0));
    EXPECT_EQ(3u, index.Size());
    for (std::size_t slot = 0; slot < 4; ++slot)
        EXPECT_EQ(slot, index.Add(&entry));
    EXPECT_EQ(13u, index.Size());
}

TEST(CIndex, HundredThousandEntriesFillItInOrder)
{
    constexpr std::size_t count = 100000;
    CIndex<int> index;
    std::vector<int> entries(count);
    for (std::size_t slot = 0; slot < count; ++slot)
        ASSERT_EQ(slot, index.Add(&entries[slot]));

    index.Set(count - 1, nullptr);
    index.Set(12, nullptr);
    EXPECT_EQ(12u, index.Add(&entries[0]));
    EXPECT_EQ(count - 1, index.Add(&entries[0]));
    EXPECT_EQ(count, index.Size());
    EXPECT_EQ(&entries[4711], index.Get(4711));
}
