#include "teskara/collections/RowOrder.h"

#include "teskara/collections/RowStore.h"
#include "tests/unit/Allocations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

class RowOrderTest : public testing::Test
{
protected:
    ListBoxItem& Add(const std::string& text, const std::string& value = {})
    {
        ListBoxItem& item = *Store.Add(nullptr, text.c_str(), value.c_str(), 0);
        EXPECT_TRUE(Order.Append(item));
        return item;
    }

    void AddAll(const std::vector<std::string>& texts)
    {
        for (const std::string& text : texts)
            Add(text, text);
    }

    // The texts from top to bottom; each row must know its place.
    std::vector<std::string> Texts()
    {
        std::vector<std::string> texts;
        for (ListBoxItem* item : Order.Rows()) {
            EXPECT_EQ(texts.size(), item->Order);
            EXPECT_EQ(item, Order.At(item->Order));
            texts.push_back(item->Text.value_or("(none)"));
        }
        EXPECT_EQ(texts.size(), Order.Count());
        return texts;
    }

    ListBoxItem& Row(u32 row) { return *Order.At(row); }

    std::vector<std::string> Sorted(const std::vector<std::string>& texts, u32 type)
    {
        Order.Clear();
        AddAll(texts);
        Order.Sort(type);
        return Texts();
    }

    RowStore Store;
    RowOrder Order;
};

using Strings = std::vector<std::string>;

} // namespace

TEST_F(RowOrderTest, NewRowsStandBelowTheOthers)
{
    AddAll({"c", "a", "b"});
    EXPECT_EQ((Strings{"c", "a", "b"}), Texts());
    EXPECT_EQ(nullptr, Order.At(3));
    EXPECT_EQ(nullptr, Order.At(0xffffffffu));
}

TEST_F(RowOrderTest, RemovingARowMovesTheRowsBelowItUpByOne)
{
    AddAll({"a", "b", "c", "d"});
    Order.Remove(Row(1));
    EXPECT_EQ((Strings{"a", "c", "d"}), Texts());
    Order.Remove(Row(2));
    Order.Remove(Row(0));
    EXPECT_EQ((Strings{"c"}), Texts());
}

TEST_F(RowOrderTest, MovingARowShiftsThoseBetweenTowardsItsOldPlace)
{
    AddAll({"a", "b", "c", "d", "e"});
    Order.Move(Row(1), 3);
    EXPECT_EQ((Strings{"a", "c", "d", "b", "e"}), Texts());
    Order.Move(Row(4), 0);
    EXPECT_EQ((Strings{"e", "a", "c", "d", "b"}), Texts());
    Order.Move(Row(2), 2);
    EXPECT_EQ((Strings{"e", "a", "c", "d", "b"}), Texts());
}

TEST_F(RowOrderTest, TextsSortByTheirBytesWithRegardToCase)
{
    EXPECT_EQ((Strings{"", "A", "B", "Z", "a", "aa", "b", "\xc3\xa4"}),
        Sorted({"b", "\xc3\xa4", "a", "", "Z", "B", "aa", "A"}, SortText));
}

TEST_F(RowOrderTest, TextsThatBeginAlikeSortByTheirEnds)
{
    EXPECT_EQ((Strings{"abcdefg", "abcdefgh", "abcdefgha", "abcdefghb", "abcdefghbb"}),
        Sorted({"abcdefghbb", "abcdefghb", "abcdefgha", "abcdefg", "abcdefgh"}, SortText));
}

TEST_F(RowOrderTest, ValuesSortAsTexts)
{
    EXPECT_EQ((Strings{"1", "10", "100", "9"}), Sorted({"9", "100", "10", "1"}, SortValue));
    EXPECT_EQ((Strings{"9", "100", "10", "1"}), Sorted({"1", "10", "100", "9"}, SortValueReverse));
}

TEST_F(RowOrderTest, EveryOtherTypeLeavesTheOrder)
{
    for (const u32 type : {u32{SortNone}, u32{SortUser}, u32{SortCustom}, 7u, 0xffffffffu})
        EXPECT_EQ((Strings{"b", "c", "a"}), Sorted({"b", "c", "a"}, type));
}

TEST_F(RowOrderTest, EqualRowsKeepTheirOrderInEveryType)
{
    for (const u32 type : {SortText, SortTextReverse}) {
        Order.Clear();
        std::vector<const ListBoxItem*> added;
        for (int count = 0; count < 100; ++count)
            added.push_back(&Add("same"));
        Order.Sort(type);
        EXPECT_TRUE(std::equal(added.begin(), added.end(), Order.Rows().begin(), Order.Rows().end()));
    }
}

TEST_F(RowOrderTest, ARowWithoutTextSortsAsAnEmptyOne)
{
    AddAll({"b", "a", ""});
    Row(0).SetText(nullptr);
    Order.Sort(SortText);
    EXPECT_EQ((Strings{"(none)", "", "a"}), Texts());
}

TEST_F(RowOrderTest, RowsAddedAfterASortStandBelowTheSortedOnes)
{
    AddAll({"c", "b"});
    Order.Sort(SortText);
    Add("a");
    EXPECT_EQ((Strings{"b", "c", "a"}), Texts());
}

TEST_F(RowOrderTest, ASortThatWaitsComesBeforeOneOfAnotherType)
{
    Add("x", "1");
    Add("y", "0");
    Add("x", "0");
    Order.Sort(SortValue);
    Order.Sort(SortText);
    EXPECT_EQ((Strings{"x", "x", "y"}), Texts());
    EXPECT_STREQ("0", Row(0).GetValue());
}

TEST_F(RowOrderTest, ARowIsWhereTheSortPutItWhenItIsAskedFor)
{
    AddAll({"c", "a", "b"});
    Order.Sort(SortText);
    EXPECT_EQ(2u, Order.RowOf(*Store.Find(1)));
    Order.Sort(SortTextReverse);
    Order.Move(*Store.Find(1), 2);
    EXPECT_EQ((Strings{"b", "a", "c"}), Texts());
    Order.Sort(SortText);
    Order.Remove(*Store.Find(1));
    EXPECT_EQ((Strings{"a", "b"}), Texts());
}

TEST_F(RowOrderTest, SortingAgreesWithAPlainStableSort)
{
    std::mt19937 random(3);
    std::vector<ListBoxItem*> plain;
    for (int round = 0; round < 200; ++round) {
        for (auto count = random() % 5; count > 0; --count)
            plain.push_back(&Add(std::string(random() % 12, static_cast<char>('a' + random() % 3))));
        if (!plain.empty() && random() % 4 == 0) {
            const auto gone = plain.begin() + static_cast<int>(random() % plain.size());
            Order.Remove(**gone);
            plain.erase(gone);
        }
        const bool reverse = random() % 2 == 0;
        std::stable_sort(plain.begin(), plain.end(), [&](const ListBoxItem* left, const ListBoxItem* right) {
            return reverse ? *right->Text < *left->Text : *left->Text < *right->Text;
        });
        Order.Sort(reverse ? SortTextReverse : SortText);
        if (random() % 2 == 0)
            continue; // so that some sorts wait for the next one
        ASSERT_TRUE(std::equal(plain.begin(), plain.end(), Order.Rows().begin(), Order.Rows().end()));
    }
}

TEST_F(RowOrderTest, WithoutMemoryRowsAreSortedAllTheSame)
{
    AddAll({"d", "b", "c", "a"});
    Order.Sort(SortText);
    Allocations::FailAfter(0, Allocations::Failing::FromThenOn);
    Order.Settle();
    Allocations::Allow();
    EXPECT_EQ((Strings{"a", "b", "c", "d"}), Texts());
}

TEST_F(RowOrderTest, ArrangingReplacesTheOrder)
{
    AddAll({"a", "b", "c"});
    const ListBoxItem* const first = Order.At(0);
    std::vector<ListBoxItem*> rows(Order.Rows().begin(), Order.Rows().end());
    std::reverse(rows.begin(), rows.end());
    Order.Arrange(rows);
    EXPECT_EQ((Strings{"c", "b", "a"}), Texts());
    EXPECT_EQ(2u, Order.RowOf(*first));
}

TEST_F(RowOrderTest, OnlyRowsThatComeOrGoCountAsChanges)
{
    AddAll({"b", "a"});
    const u32 changes = Order.GetChanges();
    Order.Sort(SortText);
    Order.Settle();
    Order.Move(Row(0), 1);
    EXPECT_EQ(changes, Order.GetChanges());
    Order.Remove(Row(0));
    EXPECT_NE(changes, Order.GetChanges());
}
