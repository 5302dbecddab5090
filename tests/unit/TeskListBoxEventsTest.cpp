#include "tests/unit/ListTest.h"

#include <limits>

class TeskListBoxEventsTest : public ListTest
{
protected:
    TeskListBoxEventsTest()
    {
        Host.Scripts["on"] = [this](TeskElement&) { Parent.Heard.push_back("on " + Host.ScriptArguments.at(0)); };
        Host.Scripts["off"] = [this](TeskElement&) { Parent.Heard.push_back("off " + Host.ScriptArguments.at(0)); };
    }

    ~TeskListBoxEventsTest() override { g_UIManager.CtrlDown = false; }

    TeskListBox& MakeScripted(const std::string& markup = {})
    {
        return MakeListOf({"a", "b", "c"}, "<OnSelect>on</OnSelect><OnDeSelect>off</OnDeSelect>" + markup);
    }
};

TEST_F(TeskListBoxEventsTest, SelectingDeselectsTheOthersFirst)
{
    TeskListBox& list = MakeScripted();
    list.SelectItem(2);
    EXPECT_EQ((Strings{"on 2", "9:2"}), TakeHeard());
    list.SelectItem(3);
    EXPECT_EQ((Strings{"off 2", "9:2", "on 3", "9:3"}), TakeHeard());
    list.SelectItem(3);
    EXPECT_EQ((Strings{"off 3", "9:3", "on 3", "9:3"}), TakeHeard());
}

TEST_F(TeskListBoxEventsTest, ARepeatedSelectionOfSeveralRepeatsTheEvent)
{
    TeskListBox& list = MakeScripted("<SelectMultiple/>");
    list.SelectItem(2);
    list.SelectItem(3);
    list.SelectItem(2);
    EXPECT_EQ((Strings{"on 2", "9:2", "on 3", "9:3", "on 2", "9:2"}), TakeHeard());
    EXPECT_EQ(2u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxEventsTest, DeselectingTellsOnlyOfASelectedRow)
{
    TeskListBox& list = MakeScripted();
    list.DeselectItem(1);
    EXPECT_TRUE(TakeHeard().empty());
    list.SelectItem(1);
    TakeHeard();
    list.DeselectItem(1);
    EXPECT_EQ((Strings{"off 1", "9:1"}), TakeHeard());
}

TEST_F(TeskListBoxEventsTest, TogglingLeavesTheOthers)
{
    TeskListBox& list = MakeScripted();
    list.ItemToggleSelect(1);
    list.ItemToggleSelect(2);
    EXPECT_EQ((Strings{"on 1", "9:1", "on 2", "9:2"}), TakeHeard());
    EXPECT_EQ(2u, list.SelectedItems.Count());
    list.ItemToggleSelect(1);
    EXPECT_EQ((Strings{"off 1", "9:1"}), TakeHeard());
    EXPECT_TRUE(list.SelectedItems.Contains(2));
}

TEST_F(TeskListBoxEventsTest, ARemovedRowIsDeselectedFirst)
{
    TeskListBox& list = MakeScripted();
    list.SelectItem(2);
    TakeHeard();
    list.RemoveItem(2);
    EXPECT_EQ((Strings{"off 2", "9:2"}), TakeHeard());
    EXPECT_EQ((Strings{"a", "c"}), Texts(list));
}

TEST_F(TeskListBoxEventsTest, APressSelectsTheRowUnderIt)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"});
    EXPECT_TRUE(PressOn(list, 1));
    EXPECT_EQ((Strings{"9:2"}), TakeHeard());
    EXPECT_TRUE(PressOn(list, 0));
    EXPECT_EQ((Strings{"9:2", "9:1"}), TakeHeard());
    EXPECT_TRUE(PressOn(list, 3));
    EXPECT_TRUE(TakeHeard().empty());
}

TEST_F(TeskListBoxEventsTest, APressOnTheOneSelectedRowClearsIt)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"});
    PressOn(list, 1);
    PressOn(list, 1);
    EXPECT_EQ((Strings{"9:2", "9:2"}), TakeHeard());
    EXPECT_EQ(0u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxEventsTest, WithoutControlASelectedRowKeepsSeveralAndAnotherReplacesThem)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"}, "<SelectMultiple/>");
    list.SelectItem(1);
    list.SelectItem(2);
    TakeHeard();
    PressOn(list, 0);
    EXPECT_TRUE(TakeHeard().empty());
    EXPECT_EQ(2u, list.SelectedItems.Count());
    PressOn(list, 2);
    EXPECT_EQ((Strings{"9:1", "9:2", "9:3"}), TakeHeard());
    EXPECT_EQ(1u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxEventsTest, WithControlRowsAreSwitchedOneByOne)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"}, "<SelectMultiple/>");
    g_UIManager.CtrlDown = true;
    PressOn(list, 0);
    PressOn(list, 2);
    EXPECT_EQ(2u, list.SelectedItems.Count());
    PressOn(list, 0);
    EXPECT_EQ((Strings{"9:1", "9:3", "9:1"}), TakeHeard());
    EXPECT_TRUE(list.SelectedItems.Contains(3));
}

TEST_F(TeskListBoxEventsTest, ControlDoesNothingWhereOneRowIsSelected)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"});
    g_UIManager.CtrlDown = true;
    PressOn(list, 0);
    PressOn(list, 1);
    EXPECT_EQ((Strings{"9:1", "9:1", "9:2"}), TakeHeard());
    PressOn(list, 1);
    EXPECT_EQ(0u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxEventsTest, APressBesideTheListIsRefused)
{
    TeskListBox& list = MakeListOf({"a"});
    _Point2i point = {200, 5};
    EXPECT_FALSE(list.OnLMouseDown(point));
    EXPECT_TRUE(TakeHeard().empty());
}

TEST_F(TeskListBoxEventsTest, APressOnTheScrollBarIsTakenAndSelectsNothing)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e"});
    Parent.Render();
    _Point2i point = {90, 5};
    EXPECT_TRUE(list.OnLMouseDown(point));
    EXPECT_TRUE(TakeHeard().empty());
    list.ScrollBar->Show(false);
    EXPECT_TRUE(list.OnLMouseDown(point));
    EXPECT_EQ((Strings{"9:1"}), TakeHeard());
}

TEST_F(TeskListBoxEventsTest, PointsFallOnRowsByTheirHeight)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f"}, "<Border>3</Border>");
    list.ScrollBar->SetValue(1);
    ASSERT_EQ(1u, list.TopOrder);
    const auto rowAt = [&](i32 y) {
        _Point2i point = {5, y};
        return list.GetItemFromPoint(point);
    };
    EXPECT_EQ(0u, rowAt(-4));
    EXPECT_EQ(0u, rowAt(2));
    EXPECT_EQ(2u, rowAt(3));
    EXPECT_EQ(2u, rowAt(12));
    EXPECT_EQ(3u, rowAt(13));
    EXPECT_EQ(5u, rowAt(40));
    EXPECT_EQ(0u, rowAt(41));
    list.ClearItems();
    EXPECT_EQ(0u, rowAt(3));
}

TEST_F(TeskListBoxEventsTest, TheNearestPlaceInTheOrderIsThatOfTheRowsThatShow)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f"}, "<Border>3</Border>");
    list.ScrollBar->SetValue(1);
    const auto orderAt = [&](i32 y) {
        _Point2i point = {5, y};
        return list.GetOrderFromPoint(point);
    };
    EXPECT_EQ(1u, orderAt(-100));
    EXPECT_EQ(1u, orderAt(3));
    EXPECT_EQ(2u, orderAt(13));
    EXPECT_EQ(4u, orderAt(36));
    EXPECT_EQ(4u, orderAt(37));
    EXPECT_EQ(4u, orderAt(1000));
    list.TopOrder = 5;
    EXPECT_EQ(5u, orderAt(1000));
    list.ClearItems();
    EXPECT_EQ(0u, orderAt(20));
}

TEST_F(TeskListBoxEventsTest, ADraggedRowTakesThePlaceUnderTheMouse)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d"}, "<Sort>User</Sort>");
    PressOn(list, 0);
    EXPECT_TRUE(DragTo(list, 2));
    EXPECT_EQ((Strings{"b", "c", "a", "d"}), Texts(list));
    DragTo(list, 1);
    EXPECT_EQ((Strings{"b", "a", "c", "d"}), Texts(list));
    TakeHeard();
    EXPECT_TRUE(Release(list));
    EXPECT_EQ((Strings{"13:1"}), TakeHeard());
    EXPECT_EQ(0u, list.DragItem);
    DragTo(list, 3);
    EXPECT_EQ((Strings{"b", "a", "c", "d"}), Texts(list));
}

TEST_F(TeskListBoxEventsTest, ADragThatCrossedNoRowTellsNothing)
{
    TeskListBox& list = MakeListOf({"a", "b"}, "<Sort>User</Sort>");
    PressOn(list, 0);
    DragTo(list, 0);
    TakeHeard();
    Release(list);
    EXPECT_TRUE(TakeHeard().empty());
}

TEST_F(TeskListBoxEventsTest, OnlyListsThatTheUserSortsAreDragged)
{
    TeskListBox& list = MakeListOf({"a", "b"});
    PressOn(list, 0);
    DragTo(list, 1);
    EXPECT_EQ((Strings{"a", "b"}), Texts(list));
}

TEST_F(TeskListBoxEventsTest, RemovingTheDraggedRowStopsTheDrag)
{
    TeskListBox& list = MakeListOf({"a", "b", "c"}, "<Sort>User</Sort>");
    PressOn(list, 0);
    DragTo(list, 1);
    list.RemoveItem(1);
    EXPECT_EQ(0u, list.DragItem);
    EXPECT_EQ(1u, list.AddItem("d", nullptr, 0));
    DragTo(list, 0);
    EXPECT_EQ((Strings{"b", "c", "d"}), Texts(list));
    TakeHeard();
    Release(list);
    EXPECT_EQ((Strings{"13:0"}), TakeHeard());
}

TEST_F(TeskListBoxEventsTest, ADoubleClickTellsTheRow)
{
    TeskListBox& list = MakeListOf({"a", "b"});
    _Point2i point = PointOn(list, 1);
    EXPECT_TRUE(list.OnLMouseDoubleClick(point));
    point = PointOn(list, 3);
    EXPECT_TRUE(list.OnLMouseDoubleClick(point));
    EXPECT_EQ((Strings{"12:2", "12:0"}), TakeHeard());
}

TEST_F(TeskListBoxEventsTest, TheWheelMovesOneRowForEachFortyUnits)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e", "f", "g", "h", "i"});
    EXPECT_TRUE(list.OnMouseWheel(-120));
    EXPECT_EQ(3u, list.TopOrder);
    EXPECT_TRUE(list.OnMouseWheel(79));
    EXPECT_EQ(2u, list.TopOrder);
    EXPECT_TRUE(list.OnMouseWheel(39));
    EXPECT_TRUE(list.OnMouseWheel(0));
    EXPECT_EQ(2u, list.TopOrder);
    EXPECT_TRUE(list.OnMouseWheel(std::numeric_limits<int>::min()));
    EXPECT_EQ(5u, list.TopOrder);
}

TEST_F(TeskListBoxEventsTest, TheWheelMovesNothingWhereAllRowsShow)
{
    TeskListBox& list = MakeListOf({"a", "b", "c", "d"});
    EXPECT_TRUE(list.OnMouseWheel(-120));
    EXPECT_EQ(0u, list.TopOrder);
}

TEST_F(TeskListBoxEventsTest, NotificationsOfOthersEndAtTheList)
{
    TeskListBox& list = MakeListOf({"a"});
    list.OnNotify(&list, NotifyValueChanged, 0);
    list.OnNotify(nullptr, NotifyFontChanged, 0);
    list.OnNotify(list.ScrollBar, NotifyEnter, 0);
    EXPECT_TRUE(TakeHeard().empty());
    EXPECT_EQ(0u, list.TopOrder);
}
