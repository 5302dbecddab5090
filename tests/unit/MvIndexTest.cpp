#include "teskara/script/MvIndex.h"

#include "teskara/core/Limits.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/IndexTest.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <stdexcept>

namespace {

class MvIndexTest : public testing::Test
{
protected:
    ~MvIndexTest() override
    {
        Index.reset();
        EXPECT_EQ(0, Words.Alive) << "each entry is freed once";
    }

    void Fill(std::initializer_list<const char*> words)
    {
        for (const char* word : words)
            EXPECT_NE(0u, Add(*Index, word));
    }

    WordType Words;
    std::unique_ptr<MvIndex> Index = std::make_unique<MvIndex>(&Words);
};

TEST_F(MvIndexTest, StartsEmptyUnlockedAndWithoutASubtype)
{
    EXPECT_STREQ("index", Index->GetTypeName());
    EXPECT_EQ(&Words, Index->Type);
    EXPECT_FALSE(Index->SubType.has_value());
    EXPECT_FALSE(Index->Locked);
    EXPECT_EQ(0u, Index->GetCount());
    EXPECT_EQ(0u, Index->GetSize());
    _MvTypeVar entry;
    EXPECT_FALSE(Index->GetEntry(0, entry));
    EXPECT_FALSE(Index->GetEntry(1, entry));
    EXPECT_EQ(nullptr, entry.Type);
}

TEST_F(MvIndexTest, AddGivesThePositionOfTheFirstThatIsEmpty)
{
    EXPECT_EQ(1u, Add(*Index, "a"));
    EXPECT_EQ(2u, Add(*Index, "b"));
    EXPECT_EQ(3u, Add(*Index, "c"));
    EXPECT_TRUE(Index->Remove(1));
    EXPECT_TRUE(Index->Remove(2));
    EXPECT_EQ(1u, Add(*Index, "d"));
    EXPECT_EQ(2u, Add(*Index, "e"));
    EXPECT_EQ(4u, Add(*Index, "f"));
    EXPECT_EQ("d e c f", TextOf(*Index));
    EXPECT_EQ(4u, Index->Count);
}

TEST_F(MvIndexTest, AnEntryHoldsItsTypeAndItsValue)
{
    Fill({"a"});
    _MvTypeVar entry;
    ASSERT_TRUE(Index->GetEntry(1, entry));
    EXPECT_EQ(&Words, entry.Type);
    EXPECT_EQ("a", *static_cast<std::string*>(entry.Value.Object));
    EXPECT_FALSE(Index->GetEntry(2, entry));
    EXPECT_FALSE(Index->GetEntry(11, entry));
}

TEST_F(MvIndexTest, ItGrowsByTenPositions)
{
    Fill({"a"});
    EXPECT_EQ(10u, Index->GetSize());
    for (int count = 0; count < 10; ++count)
        Fill({"b"});
    EXPECT_EQ(20u, Index->GetSize());
}

TEST_F(MvIndexTest, ArgumentsAreOneValueWithBlanksBetween)
{
    char* argv[] = {const_cast<char*>("to"), const_cast<char*>("be"), nullptr};
    EXPECT_EQ(1u, Index->Add(2, argv));
    EXPECT_EQ(2u, Index->Add(3, argv));
    EXPECT_EQ(3u, Index->Add(0, nullptr));
    EXPECT_EQ(4u, Index->Add(-1, argv));
    EXPECT_EQ("to be to be   ", TextOf(*Index));
}

TEST_F(MvIndexTest, AValueThatTheTypeRefusesIsFreedAndNotAdded)
{
    EXPECT_EQ(0u, Add(*Index, "bad"));
    EXPECT_EQ(1, Words.Freed);
    EXPECT_EQ(0u, Index->GetCount());
    EXPECT_EQ(0u, Index->GetSize());
}

TEST_F(MvIndexTest, ValuesAreMadeWithTheSubtype)
{
    Fill({"a"});
    MvIndex other(&Words, "small");
    EXPECT_EQ("small", other.SubType);
    Add(other, "a");
    Add(other, "b");
    Set(other, 1, "c");
    EXPECT_EQ((std::vector<std::string>{"none", "small", "small", "small"}), Words.Subtypes);

    Words.RefusedSubtype = "small";
    EXPECT_EQ(0u, Add(other, "d"));
    EXPECT_FALSE(Set(other, 1, "d"));
    EXPECT_EQ("c b", TextOf(other));
}

TEST_F(MvIndexTest, WithoutATypeNothingIsAdded)
{
    MvIndex index(nullptr);
    EXPECT_TRUE(index.Resize(3));
    EXPECT_EQ(0u, Add(index, "a"));
    EXPECT_FALSE(Set(index, 1, "a"));
}

TEST_F(MvIndexTest, SetFreesWhatStoodThere)
{
    Fill({"a", "b"});
    EXPECT_TRUE(Set(*Index, 2, "c"));
    EXPECT_EQ(1, Words.Freed);
    EXPECT_TRUE(Set(*Index, 4, "d"));
    EXPECT_EQ("a c - d", TextOf(*Index));
    EXPECT_EQ(3u, Index->GetCount());
    EXPECT_EQ(3u, Add(*Index, "e"));
}

TEST_F(MvIndexTest, SetOutOfRangeOrToNoValueChangesNothing)
{
    Fill({"a"});
    EXPECT_FALSE(Set(*Index, 0, "b"));
    EXPECT_FALSE(Set(*Index, 11, "b"));
    EXPECT_FALSE(Set(*Index, 0xffffffff, "b"));
    EXPECT_FALSE(Set(*Index, 1, "bad"));
    EXPECT_EQ("a", TextOf(*Index));
}

TEST_F(MvIndexTest, RemoveLeavesItsPositionEmpty)
{
    Fill({"a", "b", "c"});
    EXPECT_TRUE(Index->Remove(2));
    EXPECT_EQ("a - c", TextOf(*Index));
    EXPECT_EQ(2u, Index->GetCount());
    EXPECT_EQ(10u, Index->GetSize());
    EXPECT_FALSE(Index->Remove(2));
    EXPECT_FALSE(Index->Remove(0));
    EXPECT_FALSE(Index->Remove(11));
    EXPECT_EQ(1, Words.Freed);
}

TEST_F(MvIndexTest, CollapseClosesTheGapsAndKeepsTheOrder)
{
    EXPECT_TRUE(Index->Collapse());
    Fill({"a", "b", "c", "d", "e"});
    Index->Remove(1);
    Index->Remove(3);
    Set(*Index, 9, "f");
    EXPECT_TRUE(Index->Collapse());
    EXPECT_EQ("b d e f", TextOf(*Index));
    EXPECT_EQ(4u, Index->GetCount());
    EXPECT_EQ(10u, Index->GetSize());
    EXPECT_EQ(5u, Add(*Index, "g"));
    EXPECT_TRUE(Index->Collapse());
    EXPECT_EQ("b d e f g", TextOf(*Index));
}

TEST_F(MvIndexTest, ResizeOnlyGrows)
{
    EXPECT_FALSE(Index->Resize(0));
    EXPECT_TRUE(Index->Resize(3));
    EXPECT_EQ(3u, Index->GetSize());
    EXPECT_FALSE(Index->Resize(3));
    EXPECT_FALSE(Index->Resize(2));
    EXPECT_TRUE(Set(*Index, 3, "c"));
    Fill({"a", "b", "d"});
    EXPECT_EQ("a b c d", TextOf(*Index));
    EXPECT_EQ(13u, Index->GetSize());
    EXPECT_FALSE(Index->Resize(13));
    EXPECT_TRUE(Index->Resize(14));
}

TEST_F(MvIndexTest, ItsPositionsAreLimited)
{
    EXPECT_FALSE(Index->Resize(0xffffffff));
    EXPECT_FALSE(Index->Resize(Limits::IndexPositions + 1));
    EXPECT_EQ(0u, Index->GetSize());
    EXPECT_TRUE(Index->Resize(Limits::IndexPositions - 1));
    EXPECT_TRUE(Index->Resize(Limits::IndexPositions));
    EXPECT_TRUE(Set(*Index, Limits::IndexPositions, "z"));
    EXPECT_FALSE(Set(*Index, Limits::IndexPositions + 1, "z"));
}

TEST_F(MvIndexTest, SwapAlsoSwapsWithNothing)
{
    Fill({"a", "b"});
    EXPECT_TRUE(Index->Swap(1, 2));
    EXPECT_EQ("b a", TextOf(*Index));
    EXPECT_TRUE(Index->Swap(1, 4));
    EXPECT_EQ("- a - b", TextOf(*Index));
    EXPECT_TRUE(Index->Swap(3, 2));
    EXPECT_EQ("- - a b", TextOf(*Index));
    EXPECT_TRUE(Index->Swap(1, 2));
    EXPECT_EQ(2u, Index->GetCount());
    EXPECT_FALSE(Index->Swap(0, 1));
    EXPECT_FALSE(Index->Swap(1, 11));
    EXPECT_TRUE(Index->Swap(11, 11)) << "which is asked for nothing";
    EXPECT_EQ(1u, Add(*Index, "c"));
    EXPECT_EQ(0, Words.Freed);
}

TEST_F(MvIndexTest, MoveFreesWhatStandsThereAndLeavesItsPlaceEmpty)
{
    Fill({"a", "b", "c"});
    EXPECT_TRUE(Index->Move(1, 3));
    EXPECT_EQ("- b a", TextOf(*Index));
    EXPECT_EQ(1, Words.Freed);
    EXPECT_EQ(2u, Index->GetCount());
    EXPECT_TRUE(Index->Move(3, 5));
    EXPECT_EQ("- b - - a", TextOf(*Index));
    EXPECT_TRUE(Index->Move(2, 2));
    EXPECT_TRUE(Index->Move(1, 2)) << "where nothing stands, nothing is moved";
    EXPECT_EQ("- - - - a", TextOf(*Index));
    EXPECT_EQ(1u, Index->GetCount());
    EXPECT_FALSE(Index->Move(0, 5));
    EXPECT_FALSE(Index->Move(5, 11));
    EXPECT_TRUE(Index->Move(11, 11));
    EXPECT_EQ("- - - - a", TextOf(*Index));
    EXPECT_EQ(1u, Add(*Index, "d"));
}

TEST_F(MvIndexTest, ClearFreesAllEntriesAndKeepsThePositions)
{
    Fill({"a", "b", "c"});
    Index->Remove(2);
    EXPECT_TRUE(Index->Clear());
    EXPECT_EQ(0u, Index->GetCount());
    EXPECT_EQ(3, Words.Freed);
    EXPECT_EQ(10u, Index->GetSize());
    EXPECT_TRUE(Index->Clear());
    EXPECT_EQ(1u, Add(*Index, "d"));
}

TEST_F(MvIndexTest, LockedItRefusesEveryChange)
{
    Fill({"a", "b"});
    Index->Locked = true;
    EXPECT_FALSE(Index->Clear());
    EXPECT_EQ(0u, Add(*Index, "c"));
    EXPECT_FALSE(Set(*Index, 1, "c"));
    EXPECT_FALSE(Index->Remove(1));
    EXPECT_FALSE(Index->Collapse());
    EXPECT_FALSE(Index->Resize(20));
    EXPECT_FALSE(Index->Swap(1, 2));
    EXPECT_FALSE(Index->Swap(1, 1));
    EXPECT_FALSE(Index->Move(1, 2));
    EXPECT_FALSE(Index->Move(1, 1));
    EXPECT_EQ("a b", TextOf(*Index));
    EXPECT_EQ(10u, Index->GetSize());
    EXPECT_EQ(2u, Words.Subtypes.size()) << "no value is made in vain";
}

TEST_F(MvIndexTest, LockedItIsFreedAllTheSame)
{
    Fill({"a", "b"});
    Index->Locked = true;
    Index.reset();
    EXPECT_EQ(2, Words.Freed);
}

// --- The type calls back

TEST_F(MvIndexTest, WhatLocksItWhileAValueIsMadeIsHeeded)
{
    Fill({"a"});
    Words.OnText = [this] { Index->Locked = true; };
    EXPECT_EQ(0u, Add(*Index, "b"));
    Index->Locked = false;
    Words.OnText = [this] { Index->Locked = true; };
    EXPECT_FALSE(Set(*Index, 1, "b"));
    EXPECT_EQ("a", TextOf(*Index));
}

TEST_F(MvIndexTest, AnotherValueMayBeAddedWhileOneIsMade)
{
    Words.OnText = [this] { EXPECT_EQ(1u, Add(*Index, "inner")); };
    EXPECT_EQ(2u, Add(*Index, "outer"));
    Words.OnText = [this] { EXPECT_TRUE(Index->Clear()); };
    EXPECT_TRUE(Set(*Index, 2, "c"));
    EXPECT_EQ("- c", TextOf(*Index));
    EXPECT_EQ(1u, Index->GetCount());
}

TEST_F(MvIndexTest, WhatIsFreedIsInTheIndexNoLonger)
{
    Fill({"a", "b", "c"});
    Words.OnFree = [this] {
        EXPECT_EQ("a - c", TextOf(*Index));
        EXPECT_EQ(2u, Index->GetCount());
        EXPECT_FALSE(Index->Remove(2));
        EXPECT_EQ(2u, Add(*Index, "d"));
    };
    EXPECT_TRUE(Index->Remove(2));
    Words.OnFree = [this] { EXPECT_EQ("a e c", TextOf(*Index)); };
    EXPECT_TRUE(Set(*Index, 2, "e"));
    Words.OnFree = [this] {
        EXPECT_EQ("- e a", TextOf(*Index));
        EXPECT_TRUE(Index->Clear());
    };
    EXPECT_TRUE(Index->Move(1, 3));
    EXPECT_EQ("", TextOf(*Index));
}

TEST_F(MvIndexTest, WhileItIsClearedNothingElseChangesIt)
{
    Fill({"a", "b", "c"});
    Words.OnFree = [this] {
        EXPECT_EQ("- b c", TextOf(*Index));
        EXPECT_EQ(0u, Add(*Index, "d"));
        EXPECT_FALSE(Index->Clear());
        EXPECT_FALSE(Index->Swap(2, 3));
        EXPECT_FALSE(Index->Resize(100));
        Index->Locked = true;
    };
    EXPECT_TRUE(Index->Clear());
    EXPECT_EQ(0u, Index->GetCount());
    EXPECT_TRUE(Index->Locked);
    Index->Locked = false;
    EXPECT_EQ(1u, Add(*Index, "d"));
}

TEST_F(MvIndexTest, ItMayBeDeletedWhereverItsTypeIsCalled)
{
    const auto remake = [this] {
        Index = std::make_unique<MvIndex>(&Words, "small");
        Fill({"a", "b", "c"});
        return [this] { Index.reset(); };
    };
    Words.OnInit = remake();
    EXPECT_EQ(0u, Add(*Index, "d"));
    Words.OnText = remake();
    EXPECT_EQ(0u, Add(*Index, "d"));
    Words.OnInit = remake();
    EXPECT_FALSE(Set(*Index, 2, "d"));
    Words.OnText = remake();
    EXPECT_FALSE(Set(*Index, 2, "d"));
    Words.OnFree = remake();
    EXPECT_TRUE(Set(*Index, 2, "d"));
    Words.OnFree = remake();
    EXPECT_TRUE(Index->Remove(2));
    Words.OnFree = remake();
    EXPECT_TRUE(Index->Move(1, 2));
    Words.OnFree = remake();
    EXPECT_TRUE(Index->Clear());
    EXPECT_EQ(nullptr, Index);
    EXPECT_EQ(0, Words.Alive);
}

TEST_F(MvIndexTest, ATypeThatThrowsMakesNoValue)
{
    Fill({"a"});
    const auto fail = [] { throw std::runtime_error("no"); };
    Words.OnInit = fail;
    EXPECT_EQ(0u, Add(*Index, "b"));
    Words.OnText = fail;
    EXPECT_FALSE(Set(*Index, 1, "b"));
    Words.OnFree = fail;
    EXPECT_TRUE(Index->Remove(1));
    EXPECT_EQ("", TextOf(*Index));
}

TEST_F(MvIndexTest, WithoutMemoryNothingIsChanged)
{
    Fill({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
    bool isAdded = false;
    for (std::size_t count = 0; !isAdded; ++count) {
        Allocations::FailAfter(count, Allocations::Failing::Once);
        isAdded = Add(*Index, "k") != 0;
        Allocations::Allow();
        EXPECT_EQ(isAdded ? 11u : 10u, Index->GetCount());
    }
    Allocations::FailAfter(0, Allocations::Failing::Once);
    EXPECT_FALSE(Index->Resize(100000));
    Allocations::Allow();
    EXPECT_EQ(20u, Index->GetSize());
}

} // namespace
