// Walks over containers: an index, and the containers that a host implements.

#include "teskara/core/CUIManager.h"
#include "teskara/script/MvIndexIterator.h"
#include "teskara/script/MvObjectCollection.h"
#include "teskara/script/MvObjectCollectionIterator.h"
#include "teskara/script/MvQueue.h"
#include "teskara/script/MvQueueIterator.h"
#include "teskara/script/MvSet.h"
#include "teskara/script/MvSetIterator.h"
#include "teskara/script/MvStack.h"
#include "teskara/script/MvStackIterator.h"
#include "tests/unit/IndexTest.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <optional>

namespace {

// Hears of the containers that go.
class ScriptTable : public HostScriptInterface
{
public:
    bool ParseTypedValue(const char*, _MvTypeVar&, u32) override { return false; }
    MvTypeDefinition* FindTypeByName(const char*, u32, u32) override { return nullptr; }
    char* MakeTempBuffer(std::size_t, const char*) override { return nullptr; }
    u32 RegisterTransientClass2(const char* name) override
    {
        Classes.push_back(name);
        return 40 + static_cast<u32>(Classes.size());
    }
    void InvalidateTransientObject2(u32 classID, void* object) override
    {
        Gone.emplace_back(classID, object);
        if (OnGone)
            OnGone();
    }
    u32 CreateQuery(MvTypeDefinition*, const char*, u32) override { return 0; }
    bool EvaluateQuery(u32, _MvTypeVar&, bool&) override { return false; }
    void FreeQuery(u32) override { }

    std::vector<std::string> Classes;
    std::vector<std::pair<u32, void*>> Gone;
    std::function<void()> OnGone;
};

// "3:c", or "none" if the iterator stands on no entry.
std::string EntryOf(MvIterator& iterator)
{
    _MvTypeVar key;
    _MvTypeVar value;
    const bool isValid = iterator.IsValid();
    EXPECT_EQ(isValid, iterator.GetKey(key));
    EXPECT_EQ(isValid, iterator.GetValue(value));
    EXPECT_EQ(isValid, value.Type != nullptr);
    if (!isValid)
        return "none";

    EXPECT_STREQ("int64", key.Type->GetName());
    return std::to_string(key.Value.Integer64) + ':' + *static_cast<std::string*>(value.Value.Object);
}

// All entries from the first on, with blanks between.
std::string WalkOf(MvIterator& iterator)
{
    std::string text;
    for (bool isThere = iterator.First(); isThere; isThere = iterator.Next())
        text += (text.empty() ? "" : " ") + EntryOf(iterator);
    EXPECT_EQ("none", EntryOf(iterator));
    return text;
}

// The same from the last one back.
std::string WalkBack(MvIterator& iterator)
{
    std::string text;
    for (bool isThere = iterator.Last(); isThere; isThere = iterator.Previous())
        text += (text.empty() ? "" : " ") + EntryOf(iterator);
    EXPECT_EQ("none", EntryOf(iterator));
    return text;
}

// An index with the entries "- b - d e", in a toolkit of its own whose host has an int64 type.
struct IndexCase {
    IndexCase()
    {
        Index->Resize(5);
        Set(*Index, 2, "b");
        Set(*Index, 4, "d");
        Set(*Index, 5, "e");
    }

    WordType Words;
    std::unique_ptr<MvIndex> Index = std::make_unique<MvIndex>(&Words);
};

void WithIndex(const std::function<void(IndexCase& given)>& body)
{
    WithToolkit([&](ScriptHost&) {
        IndexCase given;
        body(given);
    });
}

TEST(IteratorsDeathTest, AnIndexIsWalkedInBothDirectionsOverItsGaps)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index);
        EXPECT_EQ("2:b 4:d 5:e", WalkOf(walk));
        EXPECT_EQ("5:e 4:d 2:b", WalkBack(walk));
        const std::unique_ptr<MvIterator> other = given.Index->NewIterator();
        EXPECT_EQ("2:b 4:d 5:e", WalkOf(*other));
        EXPECT_EQ(given.Index.get(), other->GetContainer());
    });
}

TEST(IteratorsDeathTest, AnEmptyIndexHasNoFirstAndNoLastEntry)
{
    WithIndex([](IndexCase& given) {
        MvIndex empty(&given.Words);
        MvIndexIterator walk(empty);
        EXPECT_EQ("", WalkOf(walk));
        EXPECT_EQ("", WalkBack(walk));
        EXPECT_FALSE(walk.Next());
        EXPECT_FALSE(walk.Previous());
        empty.Resize(7);
        EXPECT_EQ("", WalkOf(walk));
        EXPECT_EQ("", WalkBack(walk));
    });
}

TEST(IteratorsDeathTest, ANewIteratorStandsBeforeTheFirstEntry)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index);
        EXPECT_EQ("none", EntryOf(walk));
        EXPECT_FALSE(walk.Previous());
        EXPECT_TRUE(walk.Next());
        EXPECT_EQ("2:b", EntryOf(walk));
    });
}

TEST(IteratorsDeathTest, FromBeyondTheEndsItComesBack)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index);
        WalkOf(walk);
        EXPECT_FALSE(walk.Next());
        EXPECT_TRUE(walk.Previous());
        EXPECT_EQ("5:e", EntryOf(walk));
        WalkBack(walk);
        EXPECT_FALSE(walk.Previous());
        EXPECT_TRUE(walk.Next());
        EXPECT_EQ("2:b", EntryOf(walk));
    });
}

TEST(IteratorsDeathTest, AnIteratorThatIsNotForwardBeginsAtTheEnd)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index, {.Forward = false});
        EXPECT_FALSE(walk.Previous());
        EXPECT_TRUE(walk.Next());
        EXPECT_EQ("5:e", EntryOf(walk));
        EXPECT_EQ("5:e 4:d 2:b", WalkOf(walk));
        EXPECT_EQ("2:b 4:d 5:e", WalkBack(walk));
    });
}

TEST(IteratorsDeathTest, AnIteratorThatIsNotReversibleGoesOneWay)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index, {.Reversible = false, .ByValue = true});
        EXPECT_TRUE(walk.GetFlags().ByValue);
        EXPECT_EQ("2:b 4:d 5:e", WalkOf(walk));
        EXPECT_EQ("", WalkBack(walk));
        EXPECT_TRUE(walk.First());
        EXPECT_TRUE(walk.Next());
        EXPECT_FALSE(walk.Previous());
        EXPECT_EQ("4:d", EntryOf(walk)) << "it stays where it was";
    });
}

TEST(IteratorsDeathTest, AnEntryThatGoesUnderAnIteratorIsNoLongerThere)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index);
        walk.First();
        given.Index->Remove(2);
        EXPECT_EQ("none", EntryOf(walk));
        EXPECT_TRUE(walk.Next());
        EXPECT_EQ("4:d", EntryOf(walk));
        Set(*given.Index, 4, "new");
        EXPECT_EQ("4:new", EntryOf(walk));
        given.Index->Collapse();
        EXPECT_EQ("none", EntryOf(walk)) << "new e - - -";
        EXPECT_FALSE(walk.Next());
        EXPECT_TRUE(walk.Previous());
        EXPECT_EQ("2:e", EntryOf(walk));
        given.Index->Clear();
        EXPECT_EQ("none", EntryOf(walk));
        EXPECT_FALSE(walk.Next());
    });
}

TEST(IteratorsDeathTest, WhatIsAddedBehindAnIteratorIsStillWalked)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator walk(*given.Index);
        std::string text;
        for (bool isThere = walk.First(); isThere && text.size() < 60; isThere = walk.Next()) {
            text += EntryOf(walk) + ' ';
            if (given.Index->GetSize() < 8) {
                given.Index->Resize(given.Index->GetSize() + 1);
                Set(*given.Index, given.Index->GetSize(), "more");
            }
        }
        EXPECT_EQ("2:b 4:d 5:e 6:more 7:more 8:more ", text);
    });
}

TEST(IteratorsDeathTest, WithoutItsContainerEveryOperationGivesFalse)
{
    WithIndex([](IndexCase& given) {
        MvIndexIterator before(*given.Index);
        auto walk = std::make_unique<MvIndexIterator>(*given.Index);
        MvIndexIterator behind(*given.Index, {.Forward = false});
        walk->First();
        behind.First();
        given.Index.reset();
        for (MvIterator* iterator : {static_cast<MvIterator*>(&before), static_cast<MvIterator*>(walk.get()),
                 static_cast<MvIterator*>(&behind)}) {
            EXPECT_EQ(nullptr, iterator->GetContainer());
            EXPECT_FALSE(iterator->First() || iterator->Last() || iterator->Next() || iterator->Previous());
            EXPECT_EQ("none", EntryOf(*iterator));
        }
        walk.reset();
    });
}

TEST(IteratorsDeathTest, IteratorsEndInAnyOrder)
{
    WithIndex([](IndexCase& given) {
        auto first = given.Index->NewIterator();
        auto second = given.Index->NewIterator();
        auto third = given.Index->NewIterator();
        second.reset();
        third.reset();
        auto fourth = given.Index->NewIterator();
        first.reset();
        EXPECT_EQ("2:b 4:d 5:e", WalkOf(*fourth));
        given.Index.reset();
        EXPECT_FALSE(fourth->First());
    });
}

TEST(IteratorsDeathTest, AHostWithoutInt64HasNoKeys)
{
    WithHost([](ScriptHost& host) {
        host.HasTypes = false;
        g_UIManager.Initialize();
        IndexCase given;
        MvIndexIterator walk(*given.Index);
        _MvTypeVar result;
        EXPECT_TRUE(walk.First());
        EXPECT_FALSE(walk.GetKey(result));
        EXPECT_EQ(nullptr, result.Type);
        EXPECT_TRUE(walk.GetValue(result));
    });
}

TEST(IteratorsDeathTest, TheHostHearsOfEachContainerThatGoes)
{
    WithHost([](ScriptHost& host) {
        ScriptTable table;
        host.Interface = &table;
        F1(&host);
        IndexCase given;
        MvIndexIterator walk(*given.Index);
        walk.First();
        void* first = given.Index.get();
        EXPECT_EQ((std::vector<std::string>{"internal_pointer"}), table.Classes);
        table.OnGone = [&] {
            EXPECT_FALSE(walk.IsValid()) << "the iterators know already";
            EXPECT_EQ(3, given.Words.Alive) << "and nothing is freed yet";
        };
        given.Index.reset();
        table.OnGone = nullptr;
        EXPECT_EQ(0, given.Words.Alive);
        auto second = std::make_unique<MvIndex>(&given.Words);
        void* at = second.get();
        second.reset();
        EXPECT_EQ((std::vector<std::pair<u32, void*>>{{41, first}, {41, at}}), table.Gone);
        EXPECT_EQ(1u, table.Classes.size()) << "one class for all of them";
        host.Interface = nullptr;
        F1(&host);
    });
}

TEST(IteratorsDeathTest, AWalkThatBeginsWhileItsContainerGoesEndsWithIt)
{
    WithHost([](ScriptHost& host) {
        ScriptTable table;
        host.Interface = &table;
        F1(&host);
        IndexCase given;
        std::unique_ptr<MvIterator> walk;
        std::unique_ptr<MvIterator> later;
        MvIndex& going = *given.Index;
        table.OnGone = [&] { walk = going.NewIterator(); };
        given.Words.OnFree = [&] { later = going.NewIterator(); };
        given.Index.reset();
        EXPECT_FALSE(walk->First() || walk->IsValid());
        EXPECT_FALSE(later->First() || later->Last());
        host.Interface = nullptr;
        F1(&host);
    });
}

TEST(IteratorsDeathTest, AContainerThatGoesWithoutAHostTellsNobody)
{
    WithHost([](ScriptHost&) {
        IndexCase given;
        given.Index.reset();
        EXPECT_EQ(0, given.Words.Alive);
    });
}

// --- Containers of a host's

// Some words in a vector, of which some may be missing.
template <class Container> class Plain : public Container
{
public:
    explicit Plain(MvTypeDefinition& type) : m_Type(type) { }

    u32 GetCount() override
    {
        return static_cast<u32>(std::count_if(Words.begin(), Words.end(), [](auto& word) { return !!word; }));
    }
    u32 GetSize() override { return Act() ? Size.value_or(static_cast<u32>(Words.size())) : 0; }
    bool GetEntry(u32 position, _MvTypeVar& result) override
    {
        if (!Act() || position == 0 || position > Words.size() || !Words[position - 1])
            return false;

        result.Type = &m_Type;
        result.Value.Object = &*Words[position - 1];
        return true;
    }

    std::vector<std::optional<std::string>> Words = {"x", std::nullopt, "z"};
    std::optional<u32> Size; // what it says instead
    std::function<void()> OnAsked;

private:
    // False: what was done has ended this.
    bool Act() const
    {
        const std::weak_ptr<int> life = m_Life;
        if (const auto act = OnAsked)
            act();
        return !life.expired();
    }

    MvTypeDefinition& m_Type;
    std::shared_ptr<int> m_Life = std::make_shared<int>();
};

template <class Container, class Iterator> void ExpectWalks(const char* typeName)
{
    WithToolkit([&](ScriptHost&) {
        WordType words;
        auto container = std::make_unique<Plain<Container>>(words);
        EXPECT_STREQ(typeName, container->GetTypeName());
        EXPECT_EQ(2u, container->GetCount());
        const std::unique_ptr<MvIterator> made = container->NewIterator();
        EXPECT_NE(nullptr, dynamic_cast<Iterator*>(made.get()));
        EXPECT_EQ("1:x 3:z", WalkOf(*made));
        EXPECT_EQ("3:z 1:x", WalkBack(*made));

        Iterator oneWay(*container, {.Reversible = false});
        EXPECT_EQ("1:x 3:z", WalkOf(oneWay));
        EXPECT_FALSE(oneWay.Last());
        oneWay.First();
        container.reset();
        EXPECT_FALSE(made->First() || oneWay.Next() || oneWay.IsValid());
    });
}

TEST(IteratorsDeathTest, AnObjectCollectionIsWalked)
{
    ExpectWalks<MvObjectCollection, MvObjectCollectionIterator>("objectcollection");
}

TEST(IteratorsDeathTest, AQueueIsWalked)
{
    ExpectWalks<MvQueue, MvQueueIterator>("queue");
}

TEST(IteratorsDeathTest, ASetIsWalked)
{
    ExpectWalks<MvSet, MvSetIterator>("set");
}

TEST(IteratorsDeathTest, AStackIsWalked)
{
    ExpectWalks<MvStack, MvStackIterator>("stack");
}

TEST(IteratorsDeathTest, AContainerMayGoWhileItIsAsked)
{
    WithToolkit([](ScriptHost&) {
        WordType words;
        for (int asked = 0; asked < 3; ++asked) {
            auto container = std::make_unique<Plain<MvSet>>(words);
            MvSetIterator walk(*container);
            int left = asked;
            container->OnAsked = [&] {
                if (left-- == 0)
                    container.reset();
            };
            walk.First();
            EXPECT_FALSE(walk.Next());
            EXPECT_EQ(nullptr, container);
        }
    });
}

TEST(IteratorsDeathTest, AContainerThatThrowsHasNoEntries)
{
    WithToolkit([](ScriptHost&) {
        WordType words;
        Plain<MvStack> stack(words);
        MvStackIterator walk(stack);
        walk.First();
        stack.OnAsked = [] { throw std::runtime_error("no"); };
        EXPECT_EQ("none", EntryOf(walk));
        EXPECT_FALSE(walk.Next());
        EXPECT_FALSE(walk.Last());
    });
}

TEST(IteratorsDeathTest, AContainerMayBeAsLargeAsCanBeSaid)
{
    WithToolkit([](ScriptHost&) {
        WordType words;
        Plain<MvQueue> queue(words);
        queue.Words = {"x"};
        MvQueueIterator walk(queue);
        EXPECT_EQ("1:x", WalkOf(walk));
        queue.Size = std::numeric_limits<u32>::max();
        EXPECT_TRUE(walk.First());
        queue.Size = 1;
        EXPECT_FALSE(walk.Next());
        EXPECT_TRUE(walk.Previous());
    });
}

} // namespace
