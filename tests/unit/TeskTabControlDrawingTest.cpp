#include "tests/unit/TabTest.h"

class TeskTabControlDrawingTest : public TabTest
{
protected:
    // Without where each comes from and how it is drawn.
    static std::string Brief(const std::string& calls)
    {
        std::string brief;
        std::size_t begin = 0;
        while (begin < calls.size()) {
            const std::size_t end = calls.find('\n', begin);
            brief += calls.substr(begin, std::min(end, calls.find(" from", begin)) - begin) + "\n";
            begin = end + 1;
        }
        return brief;
    }
};

TEST_F(TeskTabControlDrawingTest, WithoutTabsNothingIsDrawn)
{
    TeskTabControl& control = MakeControl("<Children><frame name='F'/></Children>");
    EXPECT_EQ("", Draw(control));
    EXPECT_EQ(0u, control.SelectedTab);
}

TEST_F(TeskTabControlDrawingTest, TheFirstOfTheStripIsSelectedSilently)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<OnSelect>on</OnSelect>");
    Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "nobody hears of it"; };
    control.MoveTab(control.RetrieveTab(2), 0);
    Draw(control);
    EXPECT_EQ(2u, control.SelectedTab);
    EXPECT_TRUE(control.RetrieveTab(2)->Frame->Visible);
    EXPECT_FALSE(control.RetrieveTab(1)->Frame->Visible);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskTabControlDrawingTest, TheStripLiesBetweenTheButtons)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<SelectedTextColor>ff000001</SelectedTextColor>");
    control.Font->Color = 0xff000002u;
    control.SelectTab(2);
    const std::string calls = Brief(Draw(control));
    EXPECT_EQ("DrawTexturedRect texture 1 to=(16,0,38,16)\n"
              "DrawText \"a\" (16,3,38,600) ff000002 format=33 font 1\n"
              "DrawTexturedRect texture 2 to=(38,0,60,16)\n"
              "DrawText \"b\" (38,3,60,600) ff000001 format=33 font 1\n"
              "DrawRect (0,16,200,100) 00000000\n",
        calls);
    EXPECT_EQ(0xff000002u, control.Font->Color);
    EXPECT_FALSE(control.LeftButton->Visible);
    EXPECT_FALSE(control.RightButton->Visible);
}

TEST_F(TeskTabControlDrawingTest, ButtonsShowWhereThereIsMore)
{
    TeskTabControl& control = MakeControlOf({"a tab of ten", "a tab of 12"});
    Draw(control);
    EXPECT_FALSE(control.LeftButton->Visible);
    EXPECT_TRUE(control.RightButton->Visible);
    control.FirstTab = 1;
    Draw(control);
    EXPECT_TRUE(control.LeftButton->Visible);
    EXPECT_FALSE(control.RightButton->Visible);
}

TEST_F(TeskTabControlDrawingTest, WithoutTexturesOnlyNamesShow)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<TabBorder>2</TabBorder>");
    control.TabTexture.reset();
    control.TabSelectedTexture.reset();
    EXPECT_EQ("DrawText \"a\" (16,3,42,600) 00000000 format=33 font 1\n"
              "DrawText \"b\" (42,3,68,600) 00000000 format=33 font 1\n"
              "DrawRect (0,16,200,100) 00000000\n",
        Draw(control));
    control.Font.reset();
    EXPECT_EQ("DrawRect (0,16,200,100) 00000000\n", Draw(control));
}

TEST_F(TeskTabControlDrawingTest, AControlWithoutRoomDrawsOneTabInsideOut)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    control.Width = 20;
    control.RecalculateSize(true);
    EXPECT_EQ("DrawTexturedRect texture 1 to=(16,0,4,16)\n"
              "DrawRect (4,0,20,16) 00000000\n"
              "DrawRect (0,16,20,100) 00000000\n",
        Brief(Draw(control)));
}

TEST_F(TeskTabControlDrawingTest, ATabWithoutItsFrameIsDrawnAndSelected)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    control.DeleteChild(control.RetrieveTab(1)->Frame);
    EXPECT_EQ(nullptr, control.RetrieveTab(1)->Frame);
    Draw(control);
    EXPECT_EQ(1u, control.SelectedTab);
    control.SelectTab(2);
    EXPECT_TRUE(control.RetrieveTab(2)->Frame->Visible);
    control.SelectTab(1);
    EXPECT_FALSE(control.RetrieveTab(2)->Frame->Visible);
    control.RecalculateSize(true);
    control.RemoveTab(1);
    EXPECT_EQ("b", Names(control));
}

TEST_F(TeskTabControlDrawingTest, AStripScrolledBeyondItsEndIsEmpty)
{
    TeskTabControl& control = MakeControlOf({"a"});
    for (const u32 first : {1u, 9u, 10u, ~0u}) {
        control.FirstTab = first;
        EXPECT_EQ("DrawRect (0,0,16,16) 00000000\nDrawRect (0,16,200,100) 00000000\n", Draw(control))
            << "the left button and the frame";
        _Point2i point = {20, 5};
        EXPECT_EQ(0u, control.GetTabFromPoint(point));
        EXPECT_EQ(0u, control.GetOrderFromPoint(point));
    }
}
