#include "teskara/collections/TeskListBox.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskListBox& MakeList(std::initializer_list<const char*> texts = {})
{
    auto& list = dynamic_cast<TeskListBox&>(MakeElement("listbox", "List"));
    for (const char* text : texts)
        list.AddItem(text, text, 0);
    return list;
}

void Delete(TeskListBox& list)
{
    list.Parent->DeleteChild(&list);
}

} // namespace

TEST(TeskListBoxTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList();
        const ScriptObject object(list);
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_EQ("failed", object.Get("Texture"));
        list.Font.reset(TeskFont::New(&list, "Sans", 9, false, false));
        list.Texture.reset(TeskTexture::New("t"));
        list.TextColor = 1;
        list.BackgroundColor = 2;
        list.Border = 3;
        list.BorderColor = 4;
        list.SelectionColor = 5;
        list.SelectMultiple = true;
        EXPECT_EQ(list.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ(list.Texture.get(), object.Follow("Texture").Value().Object);
        EXPECT_EQ("int 1", object.Get("TextColor"));
        EXPECT_EQ("int 2", object.Get("BackgroundColor"));
        EXPECT_EQ("int 3", object.Get("Border"));
        EXPECT_EQ("int 4", object.Get("BorderColor"));
        EXPECT_EQ("int 4", object.Get("SelectionColor"));
        EXPECT_EQ("bool true", object.Get("SelectMultiple"));
        EXPECT_EQ("bool false", object.Get("AutoSort"));
    });
}

TEST(TeskListBoxTypeDeathTest, TheSortTypeIsAWord)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList();
        const ScriptObject object(list);
        EXPECT_EQ("string none", object.Get("SortType"));
        EXPECT_TRUE(object.Do("SetSortType", {"ValueReverse"}));
        EXPECT_EQ(SortValueReverse, list.SortType);
        EXPECT_EQ("string valuereverse", object.Get("SortType"));
        EXPECT_FALSE(object.Do("SetSortType", {"sideways"}));
        EXPECT_FALSE(object.Do("SetSortType"));
        EXPECT_EQ(SortValueReverse, list.SortType);
        list.SortType = 7;
        EXPECT_EQ("failed", object.Get("SortType"));
    });
}

TEST(TeskListBoxTypeDeathTest, RowsAreFoundByIdOrderTextAndValue)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList({"B", "a", "b"});
        const ScriptObject object(list);
        list.SortType = SortTextReverse;
        list.ApplySort();
        EXPECT_EQ("int 3", object.Get("Items"));
        EXPECT_EQ("int 1", object.Follow("Item", {"1"}).Get("ID"));
        EXPECT_EQ("int 3", object.Follow("OrderedItem", {"1"}).Get("ID"));
        EXPECT_EQ("int 3", object.Follow("ItemByText", {"B"}).Get("ID"));
        EXPECT_EQ("int 2", object.Follow("ItemByValue", {"A"}).Get("ID"));
        for (const char* member : {"Item", "OrderedItem"}) {
            for (const char* place : {"0", "4", "-1", "x"})
                EXPECT_EQ("failed", object.Get(member, {place})) << member << place;
        }
        for (const char* member : {"Item", "OrderedItem", "ItemByText", "ItemByValue"})
            EXPECT_EQ("failed", object.Get(member)) << member;
        EXPECT_EQ("failed", object.Get("ItemByText", {"c"}));
    });
}

TEST(TeskListBoxTypeDeathTest, TheSelectionIsCountedFromOne)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList({"a", "b", "c"});
        const ScriptObject object(list);
        EXPECT_EQ("failed", object.Get("SelectedItem"));
        list.SelectMultiple = true;
        EXPECT_TRUE(object.Do("SelectItem", {"3"}));
        EXPECT_TRUE(object.Do("SelectItem", {"2"}));
        EXPECT_EQ("int 2", object.Follow("SelectedItem").Get("ID"));
        EXPECT_EQ("int 3", object.Follow("SelectedItem", {"2"}).Get("ID"));
        EXPECT_EQ("failed", object.Get("SelectedItem", {"0"}));
        EXPECT_EQ("failed", object.Get("SelectedItem", {"3"}));
        EXPECT_STREQ("int64", object.Follow("SelectedItems").Type().GetName());
        EXPECT_EQ(2, object.Follow("SelectedItems").Value().Integer64);
        EXPECT_TRUE(object.Do("DeselectItem", {"3"}));
        EXPECT_TRUE(object.Do("ItemToggleSelect", {"1"}));
        EXPECT_EQ(2u, list.SelectedItems.Count());
        EXPECT_TRUE(object.Do("ClearSelection"));
        EXPECT_EQ(0u, list.SelectedItems.Count());
        for (const char* method : {"SelectItem", "DeselectItem", "ItemToggleSelect"})
            EXPECT_FALSE(object.Do(method)) << method;
    });
}

TEST(TeskListBoxTypeDeathTest, MethodsSetTheFields)
{
    WithToolkit([](ScriptHost& host) {
        TeskListBox& list = MakeList();
        const ScriptObject object(list);
        EXPECT_TRUE(object.Do("SetTextColor", {"1"}));
        EXPECT_TRUE(object.Do("SetBackgroundColor", {"2"}));
        EXPECT_TRUE(object.Do("SetBorderColor", {"3"}));
        EXPECT_TRUE(object.Do("SetSelectionColor", {"4"}));
        EXPECT_TRUE(object.Do("SetSelectionColor", {"white"}));
        EXPECT_EQ(1u, list.TextColor);
        EXPECT_EQ(2u, list.BackgroundColor);
        EXPECT_EQ(3u, list.BorderColor);
        EXPECT_EQ(4u, list.SelectionColor);

        host.OnCalculate = [](const std::string& text, double& result) {
            result = text == "yes" ? 1 : 0;
            return true;
        };
        EXPECT_TRUE(object.Do("SetAutoSort", {"yes"}));
        EXPECT_TRUE(list.SelectMultiple);
        EXPECT_FALSE(list.AutoSort);
        EXPECT_TRUE(object.Do("SetSelectMultiple", {"no"}));
        EXPECT_FALSE(list.SelectMultiple);
        EXPECT_FALSE(object.Do("SetSelectMultiple"));
    });
}

TEST(TeskListBoxTypeDeathTest, AnExpressionMayEndTheList)
{
    WithToolkit([](ScriptHost& host) {
        TeskListBox& list = MakeList();
        host.OnCalculate = [&](const std::string&, double&) {
            Delete(list);
            return true;
        };
        EXPECT_FALSE(ScriptObject(list).Do("SetSelectMultiple", {"1"}));
    });
}

TEST(TeskListBoxTypeDeathTest, MethodsChangeTheRows)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList();
        const ScriptObject object(list);
        list.TextColor = 0xff000007u;
        EXPECT_TRUE(object.Do("AddItem", {"one"}));
        EXPECT_TRUE(object.Do("AddItem", {"two", "2"}));
        EXPECT_TRUE(object.Do("AddItem", {"three", "3", "ff0000"}));
        EXPECT_TRUE(object.Do("AddItem", {"four", "4", "white"}));
        EXPECT_FALSE(object.Do("AddItem"));
        EXPECT_EQ("int -16777209", object.Follow("Item", {"2"}).Get("TextColor"));
        EXPECT_EQ("int 16711680", object.Follow("Item", {"3"}).Get("TextColor"));
        EXPECT_EQ("int 9", object.Follow("Item", {"4"}).Get("TextColor"));

        EXPECT_TRUE(object.Do("SetItemText", {"1", "uno"}));
        EXPECT_STREQ("uno", list.RetrieveItem(1)->GetText());
        EXPECT_TRUE(object.Do("SetItemText", {"1"}));
        EXPECT_EQ(nullptr, list.RetrieveItem(1)->GetText());
        EXPECT_TRUE(object.Do("SetItemColor", {"1", "5"}));
        EXPECT_TRUE(object.Do("SetItemColor", {"1", "white"}));
        EXPECT_TRUE(object.Do("SetItemColor", {"1"}));
        EXPECT_EQ(5u, list.RetrieveItem(1)->Color);
        EXPECT_FALSE(object.Do("SetItemColor"));
        EXPECT_FALSE(object.Do("SetItemText"));

        EXPECT_TRUE(object.Do("RemoveItem", {"1"}));
        EXPECT_TRUE(object.Do("RemoveItem", {"1"}));
        EXPECT_FALSE(object.Do("RemoveItem"));
        EXPECT_EQ(3u, list.GetItemCount());
        EXPECT_TRUE(object.Do("ClearItems"));
        EXPECT_EQ(0u, list.GetItemCount());
    });
}

TEST(TeskListBoxTypeDeathTest, SortingTakesTheNameOfAScript)
{
    WithToolkit([](ScriptHost& host) {
        TeskListBox& list = MakeList({"b", "c", "a"});
        const ScriptObject object(list);
        EXPECT_TRUE(object.Do("Sort"));
        EXPECT_EQ(1u, list.RetrieveOrdered(0)->ID);
        list.SortType = SortText;
        EXPECT_TRUE(object.Do("Sort"));
        EXPECT_EQ(3u, list.RetrieveOrdered(0)->ID);
        EXPECT_FALSE(object.Do("Sort", {"Nobody"}));
        host.NamedScripts["ByID"] = [](const std::vector<std::string>& ids) {
            return std::to_string(std::stoi(ids.at(1)) - std::stoi(ids.at(0)));
        };
        EXPECT_TRUE(object.Do("Sort", {"ByID"}));
        EXPECT_EQ(3u, list.RetrieveOrdered(0)->ID);
        EXPECT_EQ(2u, list.RetrieveOrdered(1)->ID);
        EXPECT_EQ(1u, list.RetrieveOrdered(2)->ID);
    });
}

TEST(TeskListBoxItemTypeDeathTest, MembersTellTheRow)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList();
        list.AddItem("one", "1", 0xff112233u);
        list.AddItem("two", nullptr, 0);
        const ScriptObject item = ScriptObject(list).Follow("Item", {"2"});
        EXPECT_STREQ("tesklistboxitem", item.Type().GetName());
        EXPECT_EQ("int 2", item.Get("ID"));
        EXPECT_EQ("int 1", item.Get("Order"));
        EXPECT_EQ("string two", item.Get("Text"));
        EXPECT_EQ("string ", item.Get("Value"));
        EXPECT_EQ("int -15654349", ScriptObject(list).Follow("Item", {"1"}).Get("TextColor"));
        char text[3];
        EXPECT_TRUE(item.Type().ToText(item.Value(), text, sizeof(text)));
        EXPECT_STREQ("tw", text);
        EXPECT_FALSE(item.Type().ToText(item.Value(), nullptr, 5));
    });
}

TEST(TeskListBoxItemTypeDeathTest, MethodsActOnTheRow)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList({"a", "b"});
        const ScriptObject item = ScriptObject(list).Follow("Item", {"2"});
        EXPECT_TRUE(item.Do("SetText", {"x"}));
        EXPECT_TRUE(item.Do("SetValue", {"y"}));
        EXPECT_FALSE(item.Do("SetValue"));
        EXPECT_TRUE(item.Do("SetTextColor", {"6"}));
        EXPECT_EQ("string x", item.Get("Text"));
        EXPECT_EQ("string y", item.Get("Value"));
        EXPECT_EQ("int 6", item.Get("TextColor"));
        EXPECT_TRUE(item.Do("SetText"));
        EXPECT_EQ("failed", item.Get("Text"));
        char text[8];
        EXPECT_FALSE(item.Type().ToText(item.Value(), text, sizeof(text)));

        EXPECT_TRUE(item.Do("Select"));
        EXPECT_TRUE(list.SelectedItems.Contains(2));
        EXPECT_TRUE(item.Do("Toggle"));
        EXPECT_FALSE(list.SelectedItems.Contains(2));
        EXPECT_TRUE(item.Do("Toggle"));
        EXPECT_TRUE(item.Do("Deselect"));
        EXPECT_EQ(0u, list.SelectedItems.Count());
        EXPECT_FALSE(item.Do("Remove"));
        EXPECT_EQ(1u, list.GetItemCount());
    });
}

TEST(TeskListBoxItemTypeDeathTest, OfARowThatHasEndedOnlyATextIsLeft)
{
    WithToolkit([](ScriptHost&) {
        TeskListBox& list = MakeList({"a", "b"});
        const ScriptObject object(list);
        const ScriptObject item = object.Follow("Item", {"2"});
        list.RemoveItem(2);
        for (int turn = 0; turn < 3; ++turn) {
            EXPECT_EQ("string Error", item.Get("Text")) << turn;
            for (const char* member : {"ID", "Value", "Order", "TextColor"})
                EXPECT_EQ("failed", item.Get(member)) << member;
            for (const char* method : {"SetText", "SetTextColor", "SetValue", "Select", "Deselect", "Toggle", "Remove"})
                EXPECT_FALSE(item.Do(method, {"1"})) << method;
            char text[8];
            EXPECT_FALSE(item.Type().ToText(item.Value(), text, sizeof(text)));

            list.AddItem("c", nullptr, 0); // most likely at the same address
            EXPECT_EQ("string c", object.Follow("Item", {"2"}).Get("Text"));
        }
        const ScriptObject last = object.Follow("Item", {"1"});
        Delete(list);
        EXPECT_EQ("string Error", last.Get("Text"));
        EXPECT_EQ("failed", last.Get("ID"));
    });
}

TEST(TeskListBoxItemTypeDeathTest, NothingIsNoRow)
{
    WithToolkit([](ScriptHost& host) {
        const ScriptObject nothing(host.Type("tesklistboxitem"), nullptr);
        EXPECT_EQ("failed", nothing.Get("Text"));
        EXPECT_FALSE(nothing.Do("Remove"));
    });
}
