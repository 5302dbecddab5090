#include "teskara/collections/RowSet.h"
#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <vector>

TEST(RowSet, KnowsWhatIsIn)
{
    RowSet set;
    EXPECT_TRUE(set.Insert(3));
    EXPECT_TRUE(set.Insert(1));
    EXPECT_TRUE(set.Insert(3));
    EXPECT_EQ(2u, set.Count());
    EXPECT_TRUE(set.Contains(3));
    EXPECT_FALSE(set.Contains(2));
    EXPECT_FALSE(set.Remove(2));
    EXPECT_TRUE(set.Remove(3));
    EXPECT_FALSE(set.Contains(3));
    set.Clear();
    EXPECT_EQ(0u, set.Count());
}

TEST(RowSet, PlacesFollowTheIds)
{
    RowSet set;
    for (const u32 id : {9u, 2u, 1000000u, 5u})
        set.Insert(id);
    EXPECT_EQ(2u, set.At(0));
    EXPECT_EQ(5u, set.At(1));
    EXPECT_EQ(9u, set.At(2));
    EXPECT_EQ(1000000u, set.At(3));
    EXPECT_EQ(0u, set.At(4));
    EXPECT_EQ(0u, set.At(0xffffffffu));
}

TEST(RowSet, AWalkBearsWithChanges)
{
    RowSet set;
    EXPECT_EQ(0u, set.FirstAfter(0));
    EXPECT_EQ(0u, set.Last());
    for (const u32 id : {1u, 2u, 3u, 4u})
        set.Insert(id);
    EXPECT_EQ(4u, set.Last());
    EXPECT_EQ(1u, set.FirstAfter(0));
    set.Remove(1);
    set.Remove(2);
    EXPECT_EQ(3u, set.FirstAfter(1));
    set.Clear();
    EXPECT_EQ(0u, set.FirstAfter(3));
}

TEST(RowSet, WithoutMemoryNothingIsInserted)
{
    RowSet set;
    set.Insert(1);
    Allocations::FailAfter(0, Allocations::Failing::Once);
    const bool inserted = set.Insert(1000000);
    Allocations::Allow();
    EXPECT_FALSE(inserted);
    EXPECT_EQ(1u, set.Count());
    EXPECT_FALSE(set.Contains(1000000));
}

TEST(RowSet, IdsFarApartAreWalkedInTheirOrder)
{
    const std::vector<u32> ids = {1, 63, 64, 65, 4095, 4096, 4097, 8191, 70000, 70001, 1000000};
    RowSet set;
    for (const u32 id : ids)
        set.Insert(id);
    u32 id = 0;
    for (u32 place = 0; place < ids.size(); ++place) {
        id = set.FirstAfter(id);
        EXPECT_EQ(ids[place], id);
        EXPECT_EQ(ids[place], set.At(place));
    }
    EXPECT_EQ(0u, set.FirstAfter(id));
    EXPECT_EQ(1000000u, set.Last());
}
