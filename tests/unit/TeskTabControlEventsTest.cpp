#include "tests/unit/TabTest.h"

#include <limits>

class TeskTabControlEventsTest : public TabTest
{
protected:
    static u32 TabAt(TeskTabControl& control, i32 x, i32 y = 5)
    {
        _Point2i point = {x, y};
        return control.GetTabFromPoint(point);
    }

    static u32 OrderAt(TeskTabControl& control, i32 x, i32 y = 5)
    {
        _Point2i point = {x, y};
        return control.GetOrderFromPoint(point);
    }

    static void PressButton(TeskTabControl& control, TeskButton* button)
    {
        control.OnNotify(button, NotifyLeftPressed, 0);
    }
};

TEST_F(TeskTabControlEventsTest, ATabIsFoundByThePointOnIt)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "a long name of a tab"});
    EXPECT_EQ(0u, TabAt(control, 15));
    EXPECT_EQ(1u, TabAt(control, 16));
    EXPECT_EQ(1u, TabAt(control, 37));
    EXPECT_EQ(2u, TabAt(control, 38));
    EXPECT_EQ(3u, TabAt(control, 183));
    EXPECT_EQ(0u, TabAt(control, 184));
    EXPECT_EQ(0u, TabAt(control, -1));
    EXPECT_EQ(1u, TabAt(control, 16, 16));
    EXPECT_EQ(0u, TabAt(control, 16, 17));
    EXPECT_EQ(0u, TabAt(control, 16, -1));
}

TEST_F(TeskTabControlEventsTest, APlaceIsFoundBesideTheControlToo)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "a long name of a tab"});
    control.FirstTab = 1;
    EXPECT_EQ(1u, OrderAt(control, -1));
    EXPECT_EQ(0u, OrderAt(control, 0)) << "before the first tab";
    EXPECT_EQ(1u, OrderAt(control, 16));
    EXPECT_EQ(2u, OrderAt(control, 38));
    EXPECT_EQ(2u, OrderAt(control, 173)) << "behind the right button";
    EXPECT_EQ(0u, OrderAt(control, 174));
    EXPECT_EQ(0u, OrderAt(control, -1, 17));
    EXPECT_EQ(0u, OrderAt(control, 16, -1));
}

TEST_F(TeskTabControlEventsTest, PointsAtTheEndsOfTheRangeHitNothing)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    constexpr i32 least = std::numeric_limits<i32>::min();
    constexpr i32 most = std::numeric_limits<i32>::max();
    for (const i32 x : {least, most}) {
        for (const i32 y : {least, 5, most}) {
            EXPECT_EQ(0u, TabAt(control, x, y));
            EXPECT_EQ(0u, OrderAt(control, x, y));
        }
    }
}

TEST_F(TeskTabControlEventsTest, APressSelectsAndIsTaken)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    EXPECT_TRUE(PressAt(control, 40));
    EXPECT_EQ(2u, control.SelectedTab);
    EXPECT_EQ(0u, control.DragTab);
    EXPECT_TRUE(PressAt(control, 100));
    EXPECT_EQ(2u, control.SelectedTab);
}

TEST_F(TeskTabControlEventsTest, ADragMovesTheTabUntilTheRelease)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"}, "<Draggable/>");
    PressAt(control, 20);
    EXPECT_EQ(1u, control.DragTab);
    EXPECT_TRUE(DragTo(control, 70));
    EXPECT_EQ("b c a", Names(control));
    DragTo(control, 40);
    EXPECT_EQ("b a c", Names(control));
    EXPECT_TRUE(Release(control));
    EXPECT_EQ(0u, control.DragTab);
    DragTo(control, 20);
    EXPECT_EQ("b a c", Names(control));
}

TEST_F(TeskTabControlEventsTest, ADragBeyondTheLastTabGoesToTheFront)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"}, "<Draggable/>");
    PressAt(control, 40);
    DragTo(control, 120);
    EXPECT_EQ("b a c", Names(control));
}

TEST_F(TeskTabControlEventsTest, ADragLeftOfAStripThatShowsNothingLeavesFreePlaces)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"}, "<Draggable/>");
    PressAt(control, 20);
    control.FirstTab = 5;
    DragTo(control, -1);
    EXPECT_EQ("b c - - - a", Names(control));
    EXPECT_EQ(1u, TabAt(control, 20));
    EXPECT_EQ(4u, AddTo(control, "d"));
    EXPECT_EQ("b c d - - a", Names(control));
    control.FirstTab = 10;
    DragTo(control, -1);
    EXPECT_EQ("b c d - - a", Names(control));
}

TEST_F(TeskTabControlEventsTest, ADragOfATabThatIsGoneMovesNothing)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<Draggable/>");
    control.DragTab = 7;
    EXPECT_TRUE(DragTo(control, 40));
    EXPECT_EQ("a b", Names(control));
}

TEST_F(TeskTabControlEventsTest, ButtonsScrollWithinTheTabs)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    PressButton(control, control.LeftButton);
    EXPECT_EQ(0u, control.FirstTab);
    PressButton(control, control.RightButton);
    EXPECT_EQ(1u, control.FirstTab);
    PressButton(control, control.RightButton);
    EXPECT_EQ(1u, control.FirstTab);
    PressButton(control, control.LeftButton);
    EXPECT_EQ(0u, control.FirstTab);
    EXPECT_EQ((std::vector<std::string>{"6:0", "6:0", "6:0", "6:0"}), Parent.Heard);
}

TEST_F(TeskTabControlEventsTest, OtherNewsGoOnAndDoNothing)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    control.OnNotify(control.RightButton, NotifyLeftReleased, 3);
    control.OnNotify(control.RetrieveTab(1)->Frame, NotifyLeftPressed, 4);
    control.OnNotify(nullptr, NotifyFontChanged, 5);
    control.OnNotify(nullptr, NotifyLeftPressed, 6);
    EXPECT_EQ(0u, control.FirstTab);
    EXPECT_EQ((std::vector<std::string>{"1:3", "6:4", "50:5", "6:6"}), Parent.Heard);
}

TEST_F(TeskTabControlEventsTest, WithoutAParentNewsEndHere)
{
    TeskTabControl control("", nullptr, "T");
    control.OnNotify(nullptr, NotifyFontChanged, 5);
    EXPECT_TRUE(PressAt(control, 0));
}
