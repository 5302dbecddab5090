#include "tests/unit/ListTest.h"

#include <chrono>
#include <string>

class TeskListBoxTest : public ListTest
{
};

TEST_F(TeskListBoxTest, MarkupWithoutValuesGivesEveryDefault)
{
    TeskListBox& list = Make<TeskListBox>("listbox", "<ScrollBar>bar</ScrollBar>");
    EXPECT_EQ(0u, list.BackgroundColor);
    EXPECT_EQ(0u, list.SelectionColor);
    EXPECT_EQ(0u, list.BorderColor);
    EXPECT_EQ(0u, list.Border);
    EXPECT_FALSE(list.SelectMultiple);
    EXPECT_EQ(SortNone, list.SortType);
    EXPECT_EQ(nullptr, list.Texture);
    EXPECT_EQ(nullptr, list.OnSelect);
    EXPECT_EQ(nullptr, list.OnDeSelect);
    EXPECT_EQ(12, list.Font->Size);
    EXPECT_EQ(0xffffffffu, list.TextColor);
    EXPECT_TRUE(list.AutoSort);
    EXPECT_EQ(0u, list.GetItemCount());
    EXPECT_EQ(1u, list.ScrollBar->Range);
}

TEST_F(TeskListBoxTest, MarkupGivesEveryValue)
{
    TeskListBox& list =
        MakeList("<BackgroundColor>1</BackgroundColor><SelectionColor>2</SelectionColor>"
                 "<BorderColor>3</BorderColor><Border>4</Border><SelectMultiple/><Sort>ValueReverse</Sort>"
                 "<OnSelect>a</OnSelect><OnDeSelect>b</OnDeSelect><Texture Filename='#t'/>",
            "ColorMask='ff00ff'");
    EXPECT_EQ(1u, list.BackgroundColor);
    EXPECT_EQ(2u, list.SelectionColor);
    EXPECT_EQ(3u, list.BorderColor);
    EXPECT_EQ(4u, list.Border);
    EXPECT_TRUE(list.SelectMultiple);
    EXPECT_EQ(SortValueReverse, list.SortType);
    EXPECT_NE(nullptr, list.OnSelect);
    EXPECT_NE(nullptr, list.OnDeSelect);
    EXPECT_EQ(0xff00ffu, list.Texture->ColorMask);
    EXPECT_TRUE(list.Texture->Flags & TextureHasColorMask);
}

TEST_F(TeskListBoxTest, AnUnknownSortLeavesTheOrderOfAdding)
{
    EXPECT_EQ(SortNone, MakeList("<Sort>sideways</Sort>").SortType);
}

TEST_F(TeskListBoxTest, RowsInMarkupAreAddedWithTheirAttributes)
{
    TeskListBox& list = MakeList("<Items><item>b</item><item Value='7' Color='ff112233' Default='1'>a</item>"
                                 "<item/><other>c</other><ITEM Default='0'>d</ITEM></Items>");
    EXPECT_EQ((Strings{"b", "a", "d"}), Texts(list));
    EXPECT_STREQ("7", list.RetrieveItem(2)->GetValue());
    EXPECT_EQ(0xff112233u, list.RetrieveItem(2)->Color);
    EXPECT_EQ(list.TextColor, list.RetrieveItem(1)->Color);
    EXPECT_TRUE(list.SelectedItems.Contains(2));
    EXPECT_EQ(1u, list.SelectedItems.Count());
    EXPECT_EQ((Strings{"9:2"}), TakeHeard());
}

TEST_F(TeskListBoxTest, RowsInMarkupAreSortedAtTheEndOfTheLoad)
{
    TeskListBox& list = MakeList("<Sort>Text</Sort><Items><item>c</item><item>a</item><item>b</item></Items>");
    EXPECT_EQ((Strings{"a", "b", "c"}), Texts(list));
    EXPECT_STREQ("c", list.RetrieveItem(1)->GetText());
}

TEST_F(TeskListBoxTest, AListWithoutAScrollBarIsAFailedLoad)
{
    Load("<listbox name='L'><Font/></listbox><frame name='F'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("L"));
    EXPECT_NE(nullptr, g_UIManager.FindElement("F"));
    EXPECT_EQ(1u, Host.Calls.size());
}

TEST_F(TeskListBoxTest, TheScrollBarMayBeAnElementOfItsOwn)
{
    Load("<listbox name='L'><ScrollBar><Width>9</Width><Vertical/></ScrollBar></listbox>");
    const TeskListBox& list = As<TeskListBox>("L");
    EXPECT_EQ("vertical", list.ScrollBar->Name);
    EXPECT_EQ("scrollbar", list.ScrollBar->Type);
    EXPECT_EQ(9u, list.ScrollBar->Width);
    EXPECT_EQ(1u, list.ScrollBar->Range);
}

TEST_F(TeskListBoxTest, AScrollBarFromATemplateIsSixteenWideAndAsHighAsTheList)
{
    const TeskListBox& list = MakeList();
    EXPECT_EQ("vertical", list.ScrollBar->Name);
    EXPECT_EQ(16u, list.ScrollBar->Width);
    EXPECT_EQ(40u, list.ScrollBar->Height);
    EXPECT_TRUE(list.ScrollBar->Vertical);
}

TEST_F(TeskListBoxTest, KnowsTheWordsOfItsKind)
{
    TeskListBox& list = MakeList();
    EXPECT_TRUE(list.IsTypeOf("ListBox"));
    EXPECT_TRUE(list.IsTypeOf("teskelement"));
    EXPECT_FALSE(list.IsTypeOf("combobox"));
    EXPECT_FALSE(list.IsTypeOf(nullptr));
}

TEST_F(TeskListBoxTest, TheIdOfARemovedRowGoesToTheNextOneAtTheEnd)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"});
    list.RemoveItem(2);
    EXPECT_EQ((Strings{"a", "c"}), Texts(list));
    EXPECT_EQ(2u, list.AddItem("d", nullptr, 0));
    EXPECT_EQ((Strings{"a", "c", "d"}), Texts(list));
    EXPECT_TRUE(TakeHeard().empty());
}

TEST_F(TeskListBoxTest, IdsThatNoRowHasDoNothing)
{
    TeskListBox& list = MakeListOf({"a"});
    for (const u32 id : {0u, 2u, 11u, 0xffffffffu}) {
        u32 value = 5;
        list.SelectItem(id);
        list.DeselectItem(id);
        list.ItemToggleSelect(id);
        list.RemoveItem(id);
        list.SetItemText(id, "x");
        list.SetItemColor(id, 1);
        EXPECT_FALSE(list.GetItemValue(id, value));
        EXPECT_EQ(5u, value);
        EXPECT_EQ(nullptr, list.RetrieveItem(id));
    }
    EXPECT_EQ((Strings{"a"}), Texts(list));
    EXPECT_TRUE(TakeHeard().empty());
}

TEST_F(TeskListBoxTest, AValueIsReadAsANumber)
{
    TeskListBox& list = MakeListOf({"12x", "none", "-1"});
    u32 value = 0;
    EXPECT_TRUE(list.GetItemValue(1, value));
    EXPECT_EQ(12u, value);
    EXPECT_TRUE(list.GetItemValue(2, value));
    EXPECT_EQ(0u, value);
    EXPECT_TRUE(list.GetItemValue(3, value));
    EXPECT_EQ(0xffffffffu, value);
}

TEST_F(TeskListBoxTest, FindingGoesByIdAndTheOrderedSearchFromTheTop)
{
    TeskListBox& list = MakeListOf({"B", "x", "b"}, "<Sort>TextReverse</Sort>");
    EXPECT_EQ(1u, list.FindItemByText("b", 99));
    EXPECT_EQ(3u, list.FindOrderedByText("B")->ID);
    EXPECT_EQ(1u, list.FindItemByValue("b", 0));
    EXPECT_EQ(3u, list.FindOrderedByValue("b")->ID);
    EXPECT_EQ(0u, list.FindItemByText("bb", 0));
    EXPECT_EQ(0u, list.FindItemByText(nullptr, 0));
    EXPECT_EQ(0u, list.FindItemByValue(nullptr, 0));
    list.SetItemText(1, nullptr);
    EXPECT_EQ(3u, list.FindItemByText("b", 0));
    EXPECT_EQ(0u, list.FindItemByText("", 0));
}

TEST_F(TeskListBoxTest, ANewTextSortsAnewAndANewColorDoesNot)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"}, "<Sort>Text</Sort>");
    list.SetItemText(1, "d");
    EXPECT_EQ((Strings{"b", "c", "d"}), Texts(list));
    list.ReplaceText(*list.RetrieveItem(2), "z");
    list.SetItemColor(1, 5);
    EXPECT_EQ((Strings{"z", "c", "d"}), Texts(list));
    EXPECT_EQ(5u, list.RetrieveItem(1)->Color);
    list.AutoSort = false;
    list.SetItemText(3, nullptr);
    EXPECT_EQ((Strings{"(none)", "d", "z"}), Texts(list));
}

TEST_F(TeskListBoxTest, WithoutAutoSortNewRowsStandBelow)
{
    TeskListBox& list = MakeListOf({"b"}, "<Sort>Text</Sort>");
    list.AutoSort = false;
    list.AddItem("a", nullptr, 0);
    EXPECT_EQ((Strings{"b", "a"}), Texts(list));
    list.ApplySort();
    EXPECT_EQ((Strings{"a", "b"}), Texts(list));
}

TEST_F(TeskListBoxTest, ClearingDeselectsAndForgetsAll)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f"}, "<SelectMultiple/>");
    list.SelectItem(2);
    list.SelectItem(3);
    list.TopOrder = 2;
    TakeHeard();
    list.ClearItems();
    EXPECT_EQ((Strings{"9:2", "9:3"}), TakeHeard());
    EXPECT_EQ(0u, list.GetItemCount());
    EXPECT_EQ(0u, list.TopOrder);
    EXPECT_EQ(0u, list.SelectedItems.Count());
    EXPECT_EQ(1u, list.AddItem("g", nullptr, 0));
}

TEST_F(TeskListBoxTest, TheScrollBarShowsWhenRowsNoLongerFit)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d"}, "<Border>2</Border>");
    EXPECT_FALSE(list.ScrollBar->Visible);
    list.AddItem("e", nullptr, 0);
    EXPECT_TRUE(list.ScrollBar->Visible);
    EXPECT_EQ(1u, list.ScrollBar->Range);
    EXPECT_EQ(1u, list.ScrollBar->GetValue());
    EXPECT_EQ(82, list.ScrollBar->X);
    EXPECT_EQ(0u, list.TopOrder);
    list.RemoveItem(1);
    EXPECT_TRUE(list.ScrollBar->Visible);
    list.RecalculateSize(true);
    EXPECT_FALSE(list.ScrollBar->Visible);
}

TEST_F(TeskListBoxTest, TheTopOfTheListIsTheHighEndOfTheBar)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(2u, list.ScrollBar->GetValue());
    list.ScrollBar->LowerValue(1);
    EXPECT_EQ(1u, list.TopOrder);
    list.ScrollBar->SetValue(0);
    EXPECT_EQ(2u, list.TopOrder);
    list.AddItem("g", nullptr, 0);
    EXPECT_EQ(2u, list.TopOrder);
    EXPECT_EQ(3u, list.ScrollBar->Range);
    EXPECT_EQ(1u, list.ScrollBar->GetValue());
}

TEST_F(TeskListBoxTest, AListThatGrowsPastItsRowsGoesBackToTheTop)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e"});
    list.ScrollBar->SetValue(0);
    EXPECT_EQ(1u, list.TopOrder);
    list.Height = 50;
    list.RecalculateSize(true);
    EXPECT_EQ(0u, list.TopOrder);
    EXPECT_FALSE(list.ScrollBar->Visible);
}

TEST_F(TeskListBoxTest, AScrollBarThatIsDeletedIsDoneWithout)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e"});
    list.DeleteChild(list.ScrollBar);
    EXPECT_EQ(nullptr, list.ScrollBar);
    list.AddItem("f", nullptr, 0);
    list.RecalculateSize(true);
    list.OnMouseWheel(-120);
    PressOn(list, 1);
    EXPECT_EQ((Strings{"9:2"}), TakeHeard());
}

TEST_F(TeskListBoxTest, WithoutMarkupEverythingWorksOnNothing)
{
    auto& list = dynamic_cast<TeskListBox&>(*g_UIManager.LoadElement(&Parent, "listbox", "Bare"));
    list.Height = 5;
    for (int count = 0; count < 10; ++count)
        list.AddItem(nullptr, nullptr, 0);
    list.RecalculateSize(true);
    list.SelectItem(3);
    list.SortType = SortText;
    list.ApplySort();
    list.RemoveItem(1);
    list.OnMouseWheel(-40);
    list.Render();
    EXPECT_EQ(9u, list.GetItemCount());
    _Point2i point = {0, 4};
    EXPECT_EQ(6u, list.GetItemFromPoint(point));
}

TEST_F(TeskListBoxTest, ThirtyThousandRowsComeAndGoInTime)
{
    constexpr u32 Count = 30000;
    constexpr double Patience = 20; // seconds, under whatever checks; it takes a fraction of one
    g_UIManager.LoadElement(g_UIManager.Screen, "listbox", "L");
    auto& list = As<TeskListBox>("L");
    const auto start = std::chrono::steady_clock::now();
    for (u32 row = 0; row < Count; ++row)
        list.AddItem(std::to_string(row * 7919 % Count).c_str(), "", 0);
    EXPECT_EQ(Count, list.GetItemCount());
    for (u32 id = 1; id <= Count; id += 2)
        list.RemoveItem(id);
    for (u32 row = 0; row < Count / 2; ++row)
        EXPECT_EQ(2 * row + 1, list.AddItem("again", "", 0));
    list.ClearItems();
    EXPECT_EQ(0u, list.GetItemCount());
    EXPECT_GT(Patience, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
}
