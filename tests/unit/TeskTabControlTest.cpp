#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/TabTest.h"

using TeskTabControlTest = TabTest;

TEST_F(TeskTabControlTest, IdsAreUsedAgainLowestFirstAndPlacesAreNot)
{
    TeskTabControl& control = MakeControl();
    EXPECT_EQ(1u, AddTo(control, "a"));
    EXPECT_EQ(2u, AddTo(control, "b"));
    EXPECT_EQ(3u, AddTo(control, "c"));
    control.RemoveTab(1);
    control.RemoveTab(2);
    EXPECT_EQ("c", Names(control));
    EXPECT_EQ(1u, AddTo(control, "d"));
    EXPECT_EQ(2u, AddTo(control, "e"));
    EXPECT_EQ(4u, AddTo(control, "f"));
    EXPECT_EQ("c d e f", Names(control));
    EXPECT_EQ(4u, control.TabCount);
}

TEST_F(TeskTabControlTest, ANameThatIsThereIsRefusedInAnyCase)
{
    TeskTabControl& control = MakeControlOf({"One"});
    EXPECT_EQ(0u, AddTo(control, "ONE"));
    EXPECT_EQ(2u, control.AddTab(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(0u, AddTo(control, ""));
    EXPECT_EQ(2u, control.TabCount);
    EXPECT_EQ("", control.RetrieveTab(2)->Name);
}

TEST_F(TeskTabControlTest, ATabIsAsWideAsItsNameAndItsBorders)
{
    TeskTabControl& control = MakeControlOf({"abc"}, "<TabBorder>3</TabBorder>");
    EXPECT_EQ(18u + 12u + 6u + 4u, control.RetrieveTab(1)->Width);
    control.RetrieveTab(1)->Rename("abcdef");
    EXPECT_EQ(40u, control.RetrieveTab(1)->Width);
    control.Font.reset();
    AddTo(control, "b");
    EXPECT_EQ(22u, control.RetrieveTab(2)->Width);
}

TEST_F(TeskTabControlTest, ATabHasAFrameUnderTheStrip)
{
    TeskTabControl& control =
        MakeControl("<FrameTexture Filename='#f' ColorKey='5'/><FrameBackgroundColor>ff000001</FrameBackgroundColor>"
                    "<FrameBorder>2</FrameBorder><FrameBorderColor>ff000003</FrameBorderColor>");
    control.AddTab("One", nullptr, "Content", "words");
    const TeskFrame& frame = *control.RetrieveTab(1)->Frame;
    EXPECT_EQ(&control, frame.Parent);
    EXPECT_EQ("frame", frame.Type);
    EXPECT_EQ("content", frame.Name);
    EXPECT_FALSE(frame.Visible);
    EXPECT_EQ(0, frame.X);
    EXPECT_EQ(16, frame.Y);
    EXPECT_EQ(200u, frame.Width);
    EXPECT_EQ(84u, frame.Height);
    EXPECT_EQ(0xff000001u, frame.BackgroundColor);
    EXPECT_EQ(2u, frame.Border);
    EXPECT_EQ(0xff000003u, frame.BorderColor);
    ASSERT_NE(nullptr, frame.Texture);
    EXPECT_NE(control.FrameTexture, frame.Texture);
    EXPECT_EQ("#f", frame.Texture->Filename);
    EXPECT_EQ(control.LastChild, &frame);
}

TEST_F(TeskTabControlTest, ATabIsFilledWithElements)
{
    TeskTabControl& control = MakeControl();
    EXPECT_EQ(1u,
        AddFilled(control, "One",
            "<text name='Words'><Width>50%</Width></text><!-- none --><unknown name='X'/><frame name='F'/>"));
    const TeskFrame& frame = *control.RetrieveTab(1)->Frame;
    EXPECT_EQ("words", frame.FirstChild->Name);
    EXPECT_EQ(100u, frame.FirstChild->Width);
    EXPECT_EQ("f", frame.LastChild->Name);
    EXPECT_EQ("PrintLine \"No UI element factory for type unknown\"\n"
              "PrintLine \"Failed to create unknown child X for one\"\n",
        Host.TakeCalls());
}

TEST_F(TeskTabControlTest, FramesFollowTheControlAndOtherChildrenDoNot)
{
    Parent.Width = 400;
    auto& control = Make<TeskTabControl>("tabcontrol",
        "<Width>50%</Width><TabHeight>16</TabHeight><Children><frame name='F'><Width>50%</Width></frame></Children>");
    AddFilled(control, "One", "<frame name='In'><Width>50%</Width></frame>");
    Parent.Width = 600;
    Parent.RecalculateChildrenSize();
    EXPECT_EQ(300u, control.Width);
    EXPECT_EQ(300u, control.RetrieveTab(1)->Frame->Width);
    EXPECT_EQ(150u, control.RetrieveTab(1)->Frame->FirstChild->Width);
    EXPECT_EQ(284, control.RightButton->X);
    EXPECT_EQ(0u, control.FindChild("F")->Width) << "as it was loaded";
}

TEST_F(TeskTabControlTest, RemovingATabDeletesItsFrame)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"});
    control.SelectTab(2);
    control.DragTab = 2;
    control.FirstTab = 2;
    control.RemoveTab(2);
    EXPECT_EQ("a c", Names(control));
    EXPECT_EQ(nullptr, control.FindChild("b"));
    EXPECT_EQ(nullptr, control.RetrieveTab(2));
    EXPECT_EQ(2u, control.TabCount);
    EXPECT_EQ(0u, control.SelectedTab);
    EXPECT_EQ(0u, control.DragTab);
    EXPECT_EQ(2u, control.FirstTab);
    for (const u32 id : {0u, 2u, 4u, ~0u})
        control.RemoveTab(id);
    EXPECT_EQ(2u, control.TabCount);
}

TEST_F(TeskTabControlTest, AMoveEndsAtTheLastPlaceThatIsTaken)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"});
    control.MoveTab(control.RetrieveTab(1), ~0u);
    EXPECT_EQ("b c a", Names(control));
    control.MoveTab(control.RetrieveTab(1), 1);
    EXPECT_EQ("b a c", Names(control));
}

TEST_F(TeskTabControlTest, OnlyATabOfTheControlIsMoved)
{
    TeskTabControl& control = MakeControlOf({"a", "b"});
    const TeskTabControl& other = MakeControlOf({"c", "d"});
    control.MoveTab(nullptr, 1);
    control.MoveTab(other.RetrieveTab(1), 1);
    EXPECT_EQ("a b", Names(control));
    EXPECT_EQ("c d", Names(other));
}

TEST_F(TeskTabControlTest, TheLowestIdOfANameIsFound)
{
    const TeskTabControl& control = MakeControlOf({"a", "b", "c"});
    control.RetrieveTab(3)->Rename("A");
    control.RetrieveTab(2)->Rename(nullptr);
    EXPECT_EQ(1u, control.GetTabFromName("A")->ID);
    EXPECT_EQ(2u, control.GetTabFromName("")->ID);
    EXPECT_EQ(2u, control.GetTabFromName(nullptr)->ID);
    EXPECT_EQ(nullptr, control.GetTabFromName("b"));
}

TEST_F(TeskTabControlTest, SelectingShowsOneFrameAndTellsTheId)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<OnSelect>on</OnSelect>");
    int told = 0;
    Host.Scripts["on"] = [&](TeskElement&) { ++told; };
    control.SelectTab(1);
    control.SelectTab(2);
    control.SelectTab(2);
    EXPECT_EQ(2, told);
    EXPECT_EQ((std::vector<std::string>{"2"}), Host.ScriptArguments);
    EXPECT_FALSE(control.RetrieveTab(1)->Frame->Visible);
    EXPECT_TRUE(control.RetrieveTab(2)->Frame->Visible);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskTabControlTest, AnIdThatNoTabHasClearsTheSelection)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<OnSelect>on</OnSelect>");
    control.RemoveTab(1);
    for (const u32 id : {0u, 1u, 3u, ~0u}) {
        control.SelectTab(2);
        Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "nothing was selected"; };
        control.SelectTab(id);
        Host.Scripts.clear();
        EXPECT_EQ(0u, control.SelectedTab);
        EXPECT_FALSE(control.RetrieveTab(2)->Frame->Visible);
    }
    control.SelectTab(2);
    control.ClearSelection();
    EXPECT_EQ(0u, control.SelectedTab);
}

TEST_F(TeskTabControlTest, WithoutMarkupThereAreTabsAllTheSame)
{
    auto& control = dynamic_cast<TeskTabControl&>(*g_UIManager.LoadElement(g_UIManager.Screen, "tabcontrol", "bare"));
    EXPECT_EQ("", Draw(control));
    EXPECT_EQ(1u, AddTo(control, "a"));
    EXPECT_EQ(2u, AddTo(control, "b"));
    control.Width = 50;
    control.Height = 50;
    control.SizeRecalculated(true);
    _Point2i point = {17, 0};
    EXPECT_EQ(2u, control.GetTabFromPoint(point));
    EXPECT_TRUE(PressAt(control, 1, 0));
    EXPECT_EQ(1u, control.SelectedTab);
    control.Render();
    control.RemoveTab(1);
    control.Render();
    EXPECT_EQ(2u, control.SelectedTab);
    g_UIManager.Screen->DeleteChild(&control);
}

TEST_F(TeskTabControlTest, ReadAgainItKeepsItsTabs)
{
    TeskTabControl& control = MakeControl("<OnSelect>on</OnSelect><Tabs><Tab Name='a'/></Tabs>");
    XMLNode* node = g_UIManager.AddTemplate("again",
        "<Template><OnSelect>off</OnSelect><LeftButton/><RightButton/><Tabs><Tab Name='a'/><Tab Name='b'/></Tabs>"
        "</Template>");
    EXPECT_FALSE(control.FromXML(node, nullptr)) << "there are buttons of these names";
    EXPECT_EQ("a", Names(control));
    XMLNode* withoutButtons =
        g_UIManager.AddTemplate("again", "<Template><Tabs><Tab Name='a'/><Tab Name='b'/></Tabs></Template>");
    EXPECT_TRUE(control.FromXML(withoutButtons, nullptr));
    EXPECT_EQ("a b", Names(control));
}

TEST_F(TeskTabControlTest, ButtonsWithoutMarkupHideUntilThereIsSomethingToScrollTo)
{
    TeskTabControl& control = MakeControl("<LeftTexture Filename='#l'/><RightHoverTexture Filename='#r'/>");
    EXPECT_FALSE(control.LeftButton->Visible);
    EXPECT_FALSE(control.RightButton->Visible);
    EXPECT_EQ("#l", control.LeftButton->Texture->Filename);
    EXPECT_EQ("#r", control.RightButton->TextureHover->Filename);
    EXPECT_EQ(16u, control.LeftButton->Width);
    EXPECT_EQ(16u, control.RightButton->Height);
}

TEST_F(TeskTabControlTest, AButtonOfAnotherClassIsNoButton)
{
    TeskElementFactory* buttons = g_UIManager.FindFactory("button");
    buttons->Unregister();
    {
        TeskFactory<TeskFrame> frames("button");
        XMLNode* node = g_UIManager.AddTemplate("t", "<Template><LeftButton/></Template>");
        EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "tabcontrol", "T", node, nullptr));
        EXPECT_TRUE(IsGone());
    }
    buttons->Register("button", TeskaraVersion);
}

TEST_F(TeskTabControlTest, ATabForWhichThereIsNoMemoryIsNotThere)
{
    TeskTabControl& control = MakeControlOf({"a"});
    u32 id = 0;
    for (std::size_t allowed = 0; id == 0; ++allowed) {
        Allocations::FailAfter(allowed, Allocations::Failing::FromThenOn);
        id = control.AddTab("a tab with a name that is too long for a string of its own", nullptr, "f", nullptr);
        Allocations::Allow();
        if (id != 0)
            break;
        EXPECT_EQ("a", Names(control));
        EXPECT_EQ(1u, control.TabCount);
        EXPECT_EQ(nullptr, control.FindChild("f"));
        ASSERT_LT(allowed, 100u);
    }
    EXPECT_EQ(2u, id);
    EXPECT_EQ(2u, control.TabCount);
}

TEST_F(TeskTabControlTest, AControlThatIsGoingTakesNoTab)
{
    TeskTabControl& control = MakeControlOf({"a"}, "<OnUnload>off</OnUnload>");
    Host.Scripts["off"] = [](TeskElement& self) {
        auto& going = dynamic_cast<TeskTabControl&>(self);
        EXPECT_EQ(0u, AddTo(going, "b"));
        EXPECT_EQ("a", Names(going));
        EXPECT_EQ(1u, going.TabCount);
    };
    Parent.DeleteChild(&control);
    EXPECT_TRUE(IsGone());
}
