#include "teskara/collections/RowStore.h"
#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

ListBoxItem* AddRow(RowStore& rows, const char* text = "row")
{
    return rows.Add(nullptr, text, nullptr, 0);
}

u32 AddedID(RowStore& rows)
{
    return AddRow(rows)->ID;
}

} // namespace

TEST(RowStore, IdsCountFromOne)
{
    RowStore rows;
    for (u32 id = 1; id <= 100; ++id)
        EXPECT_EQ(id, AddedID(rows));
    EXPECT_EQ(100u, rows.LastID());
}

TEST(RowStore, ARowHoldsWhatItWasMadeOf)
{
    RowStore rows;
    const ListBoxItem* item = rows.Add(nullptr, "text", "value", 0xff112233u);
    EXPECT_EQ(item, rows.Find(1));
    EXPECT_STREQ("text", item->GetText());
    EXPECT_STREQ("value", item->GetValue());
    EXPECT_EQ(0xff112233u, item->Color);
    const ListBoxItem* empty = rows.Add(nullptr, nullptr, nullptr, 0);
    EXPECT_STREQ("", empty->GetText());
    EXPECT_STREQ("", empty->GetValue());
}

TEST(RowStore, TheTextOfARowCanBeTakenAway)
{
    RowStore rows;
    ListBoxItem* item = AddRow(rows);
    item->SetText(nullptr);
    EXPECT_EQ(nullptr, item->GetText());
    item->SetText("again");
    EXPECT_STREQ("again", item->GetText());
    item->SetText(item->GetText() + 2);
    EXPECT_STREQ("ain", item->GetText());
}

TEST(RowStore, IdsOutOfRangeFindNothing)
{
    RowStore rows;
    EXPECT_EQ(nullptr, rows.Find(1));
    AddRow(rows);
    EXPECT_NE(nullptr, rows.Find(1));
    for (const u32 id : {0u, 2u, 11u, 0x80000000u, 0xffffffffu})
        EXPECT_EQ(nullptr, rows.Find(id));
}

TEST(RowStore, IdsAreGivenAgainLowestFirst)
{
    RowStore rows;
    for (int count = 0; count < 6; ++count)
        AddRow(rows);
    for (const u32 id : {5u, 2u, 4u})
        rows.Remove(*rows.Find(id));
    EXPECT_EQ(nullptr, rows.Find(4));
    EXPECT_EQ(2u, AddedID(rows));
    EXPECT_EQ(4u, AddedID(rows));
    EXPECT_EQ(5u, AddedID(rows));
    EXPECT_EQ(7u, AddedID(rows));
}

TEST(RowStore, AfterClearingIdsCountFromOneAgain)
{
    RowStore rows;
    for (int count = 0; count < 3; ++count)
        AddRow(rows);
    rows.Remove(*rows.Find(1));
    rows.Clear();
    EXPECT_EQ(0u, rows.LastID());
    EXPECT_EQ(1u, AddedID(rows));
    EXPECT_EQ(2u, AddedID(rows));
}

TEST(RowStore, SerialsAreNeverUsedTwice)
{
    RowStore rows;
    const u64 first = AddRow(rows)->Serial;
    rows.Remove(*rows.Find(1));
    EXPECT_LT(first, AddRow(rows)->Serial);
}

// Each allocation fails in turn, until none is left to fail.
TEST(RowStore, WithoutMemoryNothingIsAdded)
{
    bool isAdded = false;
    for (std::size_t allowed = 0; !isAdded; ++allowed) {
        RowStore rows;
        for (int count = 0; count < 10; ++count)
            AddRow(rows);
        Allocations::FailAfter(allowed, Allocations::Failing::Once);
        isAdded = rows.Add(nullptr, "a text that is too long for a short one", "a value", 0) != nullptr;
        Allocations::Allow();
        EXPECT_EQ(isAdded, rows.Find(11) != nullptr) << allowed;
        EXPECT_EQ(isAdded ? 12u : 11u, AddedID(rows)) << allowed;
        EXPECT_TRUE(allowed > 0 || !isAdded);
    }
}

TEST(RowStore, GivingARowBackNeedsNoMemory)
{
    RowStore rows;
    for (int count = 0; count < 1000; ++count)
        AddRow(rows);
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    for (u32 id = 1000; id > 0; --id)
        rows.Remove(*rows.Find(id));
    Allocations::Allow();
    EXPECT_EQ(1u, AddedID(rows));
}
