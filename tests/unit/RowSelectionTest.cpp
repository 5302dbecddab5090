#include "teskara/collections/RowSelection.h"
#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <vector>

TEST(RowSelection, KnowsWhatIsIn)
{
    RowSelection selection;
    EXPECT_TRUE(selection.Insert(3));
    EXPECT_TRUE(selection.Insert(1));
    EXPECT_TRUE(selection.Insert(3));
    EXPECT_EQ(2u, selection.Count());
    EXPECT_TRUE(selection.Contains(3));
    EXPECT_FALSE(selection.Contains(2));
    EXPECT_FALSE(selection.Remove(2));
    EXPECT_TRUE(selection.Remove(3));
    EXPECT_FALSE(selection.Contains(3));
    selection.Clear();
    EXPECT_EQ(0u, selection.Count());
}

TEST(RowSelection, PlacesFollowTheIds)
{
    RowSelection selection;
    for (const u32 id : {9u, 2u, 1000000u, 5u})
        selection.Insert(id);
    EXPECT_EQ(2u, selection.At(0));
    EXPECT_EQ(5u, selection.At(1));
    EXPECT_EQ(9u, selection.At(2));
    EXPECT_EQ(1000000u, selection.At(3));
    EXPECT_EQ(0u, selection.At(4));
    EXPECT_EQ(0u, selection.At(0xffffffffu));
}

TEST(RowSelection, AWalkBearsWithChanges)
{
    RowSelection selection;
    EXPECT_EQ(0u, selection.FirstAfter(0));
    EXPECT_EQ(0u, selection.Last());
    for (const u32 id : {1u, 2u, 3u, 4u})
        selection.Insert(id);
    EXPECT_EQ(4u, selection.Last());
    EXPECT_EQ(1u, selection.FirstAfter(0));
    selection.Remove(1);
    selection.Remove(2);
    EXPECT_EQ(3u, selection.FirstAfter(1));
    selection.Clear();
    EXPECT_EQ(0u, selection.FirstAfter(3));
}

TEST(RowSelection, WithoutMemoryNothingIsInserted)
{
    RowSelection selection;
    selection.Insert(1);
    Allocations::FailAfter(0, Allocations::Failing::Once);
    const bool inserted = selection.Insert(1000000);
    Allocations::Allow();
    EXPECT_FALSE(inserted);
    EXPECT_EQ(1u, selection.Count());
    EXPECT_FALSE(selection.Contains(1000000));
}

TEST(RowSelection, IdsFarApartAreWalkedInTheirOrder)
{
    const std::vector<u32> ids = {1, 63, 64, 65, 4095, 4096, 4097, 8191, 70000, 70001, 1000000};
    RowSelection selection;
    for (const u32 id : ids)
        selection.Insert(id);
    u32 id = 0;
    for (u32 place = 0; place < ids.size(); ++place) {
        id = selection.FirstAfter(id);
        EXPECT_EQ(ids[place], id);
        EXPECT_EQ(ids[place], selection.At(place));
    }
    EXPECT_EQ(0u, selection.FirstAfter(id));
    EXPECT_EQ(1000000u, selection.Last());
}
