#include "tests/unit/ListTest.h"

#include <random>

// Lists that a script sorts.
class TeskListBoxSortTest : public ListTest
{
protected:
    using Answer = std::function<std::string(const std::vector<std::string>& arguments)>;

    bool SortWith(TeskListBox& list, Answer answer)
    {
        Host.NamedScripts["Compare"] = std::move(answer);
        return list.SortByAtom(Host.FindAtom("Compare"));
    }

    // By the lengths of the texts, with what the rows are called.
    static Answer ByLength(TeskListBox& list)
    {
        return [&list](const std::vector<std::string>& ids) {
            const auto lengthOf = [&](const std::string& id) {
                return static_cast<int>(list.RetrieveItem(static_cast<u32>(std::stoul(id)))->Text->size());
            };
            return std::to_string(lengthOf(ids.at(0)) - lengthOf(ids.at(1)));
        };
    }
};

TEST_F(TeskListBoxSortTest, AScriptSortsStably)
{
    TeskListBox& list = MakeListOf({"ccc", "b", "aa", "a", "cc"});
    EXPECT_TRUE(SortWith(list, ByLength(list)));
    EXPECT_EQ((Strings{"b", "a", "aa", "cc", "ccc"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, AnAnswerThatIsNoNumberMeansEqual)
{
    TeskListBox& list = MakeListOf({"b", "a"});
    EXPECT_TRUE(SortWith(list, [](const auto&) { return "more"; }));
    EXPECT_EQ((Strings{"b", "a"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, AScriptThatContradictsItselfLosesNoRow)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f", "g"});
    std::mt19937 random(5);
    for (int turn = 0; turn < 20; ++turn) {
        EXPECT_TRUE(SortWith(list, [&](const auto&) { return std::to_string(static_cast<int>(random() % 3) - 1); }));
        Strings texts = Texts(list);
        std::sort(texts.begin(), texts.end());
        EXPECT_EQ((Strings{"a", "b", "c", "d", "e", "f", "g"}), texts);
    }
}

TEST_F(TeskListBoxSortTest, AScriptThatAddsOrRemovesRowsLeavesTheOrder)
{
    TeskListBox& list = MakeListOf({"c", "b", "a"});
    int calls = 0;
    EXPECT_TRUE(SortWith(list, [&](const auto&) {
        if (++calls == 2)
            list.RemoveItem(2);
        return "1";
    }));
    EXPECT_EQ((Strings{"c", "a"}), Texts(list));
    EXPECT_EQ(2, calls);

    EXPECT_TRUE(SortWith(list, [&](const auto&) {
        list.AddItem("x", nullptr, 0);
        return "1";
    }));
    EXPECT_EQ((Strings{"c", "a", "x"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, AScriptMayEmptyTheList)
{
    TeskListBox& list = MakeListOf({"c", "b", "a"});
    EXPECT_TRUE(SortWith(list, [&](const auto&) {
        list.ClearItems();
        list.AddItem("new", nullptr, 0);
        return "1";
    }));
    EXPECT_EQ((Strings{"new"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, AScriptMayEndTheList)
{
    TeskListBox& list = MakeListOf({"c", "b", "a"});
    EXPECT_TRUE(SortWith(list, [&](const auto&) {
        Parent.DeleteChild(&list);
        return "1";
    }));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskListBoxSortTest, AListThatIsBeingSortedIsNotSortedByAScriptAgain)
{
    TeskListBox& list = MakeListOf({"bb", "a"});
    EXPECT_TRUE(SortWith(list, [&, answer = ByLength(list)](const std::vector<std::string>& ids) {
        EXPECT_FALSE(list.SortByAtom(Host.FindAtom("Compare")));
        return answer(ids);
    }));
    EXPECT_EQ((Strings{"a", "bb"}), Texts(list));
    EXPECT_TRUE(SortWith(list, ByLength(list)));
}

TEST_F(TeskListBoxSortTest, WhatAScriptSortsMeanwhileGivesWay)
{
    TeskListBox& list = MakeListOf({"bb", "a", "ccc"}, "<Sort>TextReverse</Sort>");
    EXPECT_TRUE(SortWith(list, [&, answer = ByLength(list)](const std::vector<std::string>& ids) {
        list.ApplySort();
        return answer(ids);
    }));
    EXPECT_EQ((Strings{"a", "bb", "ccc"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, WithoutAComparisonACustomListStaysAsItIs)
{
    TeskListBox& list = MakeListOf({"b", "a"}, "<Sort>custom</Sort>");
    list.ApplySort();
    EXPECT_EQ((Strings{"b", "a"}), Texts(list));
}

TEST_F(TeskListBoxSortTest, TheHostMayCompareTheRowsOfACustomList)
{
    TeskListBox& list = MakeListOf({"bb", "a", "ccc"}, "<Sort>custom</Sort>");
    list.CustomCompare = [](const ListBoxItem* left, const ListBoxItem* right) {
        return static_cast<int>(right->Text->size()) - static_cast<int>(left->Text->size());
    };
    list.ApplySort();
    EXPECT_EQ((Strings{"ccc", "bb", "a"}), Texts(list));
    list.AddItem("dddd", nullptr, 0);
    EXPECT_EQ((Strings{"dddd", "ccc", "bb", "a"}), Texts(list));

    list.SortType = SortText;
    list.ApplySort();
    EXPECT_EQ((Strings{"a", "bb", "ccc", "dddd"}), Texts(list));
}
