#include "teskara/controls/TeskSlider.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/TabTest.h"

// What scripts do to a tab control in the middle of its work.
class TeskTabControlReentrancyTest : public TabTest
{
protected:
    static TeskTabControl& As(TeskElement& self) { return dynamic_cast<TeskTabControl&>(self); }

    static void AddSlider(TeskTabControl& control, const char* name)
    {
        AddFilled(control, name,
            "<slider name='S'><Width>100</Width><Height>10</Height><Range>100</Range><OnChange>change</OnChange>"
            "</slider>");
    }

    static TeskSlider& SliderOf(TeskTabControl& control, u32 id)
    {
        return dynamic_cast<TeskSlider&>(*control.RetrieveTab(id)->Frame->FirstChild);
    }

    // The next layout changes the value of each slider.
    static void PrepareChanges(TeskTabControl& control)
    {
        for (u32 id = 1; id <= control.Tabs.size(); ++id) {
            auto* slider = dynamic_cast<TeskSlider*>(control.RetrieveTab(id)->Frame->FirstChild);
            if (!slider)
                continue;
            slider->Value = 50;
            slider->Range = 40;
        }
    }

    // The control ends in a script that the cause runs, and nothing of it runs afterwards.
    void EndIn(const char* script, const std::function<void(TeskTabControl& control)>& cause)
    {
        TeskTabControl& control =
            MakeControlOf({"a", "b"}, "<Draggable/><OnSelect>on</OnSelect><OnLeftDown>late</OnLeftDown>");
        AddFilled(control, "c", "<frame name='F'><OnUnload>off</OnUnload></frame>");
        AddSlider(control, "d");
        PrepareChanges(control);
        Host.Scripts["late"] = [](TeskElement&) { ADD_FAILURE() << "the control was gone"; };
        Host.Scripts[script] = [this, &control](TeskElement&) { Parent.DeleteChild(&control); };
        cause(control);
        EXPECT_TRUE(IsGone()) << script;
        Host.Scripts.clear();
    }
};

TEST_F(TeskTabControlReentrancyTest, AControlMayEndInEachOfItsScripts)
{
    EndIn("on", [](TeskTabControl& control) { control.SelectTab(1); });
    EndIn("on", [](TeskTabControl& control) { PressAt(control, 20); });
    EndIn("off", [](TeskTabControl& control) { control.RemoveTab(3); });
    EndIn("change", [](TeskTabControl& control) { control.RecalculateSize(true); });
    EndIn("change", [](TeskTabControl& control) { EXPECT_EQ(0u, AddTo(control, "e")); });
    EndIn("load", [](TeskTabControl& control) {
        EXPECT_EQ(0u, AddFilled(control, "e", "<frame name='F'><OnLoad>load</OnLoad></frame><frame name='G'/>"));
    });
}

TEST_F(TeskTabControlReentrancyTest, AControlMayEndAmongTheTabsOfItsMarkup)
{
    Host.Scripts["load"] = [this](TeskElement& self) { Parent.DeleteChild(self.Parent->Parent); };
    XMLNode* node = g_UIManager.AddTemplate("tabs",
        "<Template><Tabs><Tab Name='a'><frame name='F'><OnLoad>load</OnLoad></frame></Tab><Tab Name='b'/></Tabs>"
        "</Template>");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "tabcontrol", "T", node, nullptr));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskTabControlReentrancyTest, AControlMayEndInAButtonOfItsMarkup)
{
    Host.Scripts["load"] = [this](TeskElement& self) { Parent.DeleteChild(self.Parent); };
    for (const char* button : {"LeftButton", "RightButton"}) {
        const std::string word = button;
        XMLNode* node = g_UIManager.AddTemplate(
            "tabs", ("<Template><" + word + "><OnLoad>load</OnLoad></" + word + "></Template>").c_str());
        EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "tabcontrol", "T", node, nullptr));
        EXPECT_TRUE(IsGone());
    }
}

TEST_F(TeskTabControlReentrancyTest, AControlMayEndAsItReadsTheTexturesOfItsButtons)
{
    struct Ending : TeskTabControl {
        using TeskTabControl::TeskTabControl;

        TeskTexture* TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override
        {
            TeskTexture* texture = TeskTabControl::TextureFromXML(node, tag, templateNode);
            if (std::string_view(tag) == "LeftPressedTexture")
                Parent->DeleteChild(this);
            return texture;
        }
    };
    const TeskFactory<Ending> factory("ending");
    XMLNode* node = g_UIManager.AddTemplate("tabs", "<Template><LeftPressedTexture Filename='#l'/></Template>");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "ending", "T", node, nullptr));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskTabControlReentrancyTest, ATabMayBeRemovedWhileItIsFilled)
{
    TeskTabControl& control = MakeControlOf({"a"});
    int later = 0;
    Host.Scripts["load"] = [](TeskElement& self) { As(*self.Parent->Parent).RemoveTab(2); };
    Host.Scripts["later"] = [&](TeskElement&) { ++later; };
    EXPECT_EQ(0u,
        AddFilled(control, "b",
            "<frame name='F'><OnLoad>load</OnLoad></frame><frame name='G'><OnLoad>later</OnLoad></frame>"));
    EXPECT_EQ(0, later);
    EXPECT_EQ("a", Names(control));
    EXPECT_EQ(1u, control.TabCount);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskTabControlReentrancyTest, WhatATabIsFilledFromMayBeRemovedMeanwhile)
{
    TeskTabControl& control = MakeControl();
    Host.Scripts["load"] = [](TeskElement&) { g_UIManager.ClearTemplates(); };
    AddFilled(control, "a", "<frame name='F'><OnLoad>load</OnLoad></frame><frame name='G'/>");
    EXPECT_EQ("g", control.RetrieveTab(1)->Frame->LastChild->Name);
}

TEST_F(TeskTabControlReentrancyTest, AnotherTabMayTakeTheIdOfOneThatIsFilled)
{
    TeskTabControl& control = MakeControlOf({"a"});
    u32 second = 0;
    Host.Scripts["load"] = [&](TeskElement& self) {
        TeskTabControl& filling = As(*self.Parent->Parent);
        filling.RemoveTab(2);
        second = AddTo(filling, "b");
    };
    EXPECT_EQ(0u, AddFilled(control, "b", "<frame name='F'><OnLoad>load</OnLoad></frame><frame name='G'/>"));
    EXPECT_EQ(2u, second);
    EXPECT_EQ("a b", Names(control));
    EXPECT_EQ(nullptr, control.RetrieveTab(2)->Frame->FirstChild);
}

TEST_F(TeskTabControlReentrancyTest, AFrameMayBeDeletedWhileItIsFilled)
{
    TeskTabControl& control = MakeControlOf({"a"});
    Host.Scripts["load"] = [](TeskElement& self) {
        TeskElement* frame = self.Parent;
        frame->Parent->DeleteChild(frame);
    };
    EXPECT_EQ(2u, AddFilled(control, "b", "<frame name='F'><OnLoad>load</OnLoad></frame><frame name='G'/>"));
    EXPECT_EQ("a b", Names(control));
    EXPECT_EQ(nullptr, control.RetrieveTab(2)->Frame);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskTabControlReentrancyTest, ANameMayBeAddedAgainAsItsTabGoes)
{
    TeskTabControl& control = MakeControlOf({"a"});
    AddFilled(control, "b", "<frame name='F'><OnUnload>off</OnUnload></frame>");
    AddTo(control, "c");
    u32 again = 0;
    Host.Scripts["off"] = [&](TeskElement& self) {
        TeskTabControl& losing = As(*self.Parent->Parent);
        EXPECT_EQ(nullptr, losing.GetTabFromName("b"));
        EXPECT_EQ(3u, losing.TabCount) << "it still counts";
        again = AddTo(losing, "b");
    };
    control.RemoveTab(2);
    EXPECT_EQ(2u, again);
    EXPECT_EQ("a c b", Names(control));
    EXPECT_EQ(3u, control.TabCount);
}

TEST_F(TeskTabControlReentrancyTest, ATabThatIsRemovedTwiceIsRemovedOnce)
{
    TeskTabControl& control = MakeControlOf({"a"});
    AddFilled(control, "b", "<frame name='F'><OnUnload>off</OnUnload></frame>");
    Host.Scripts["off"] = [](TeskElement& self) { As(*self.Parent->Parent).RemoveTab(2); };
    control.RemoveTab(2);
    EXPECT_EQ("a", Names(control));
    EXPECT_EQ(1u, control.TabCount);
}

TEST_F(TeskTabControlReentrancyTest, AllTabsMayGoAsOneIsSelected)
{
    TeskTabControl& control = MakeControlOf({"a", "b", "c"}, "<Draggable/><OnSelect>on</OnSelect>");
    Host.Scripts["on"] = [](TeskElement& self) {
        for (u32 id = 1; id <= 3; ++id)
            As(self).RemoveTab(id);
    };
    EXPECT_TRUE(PressAt(control, 40));
    EXPECT_EQ(0u, control.SelectedTab);
    EXPECT_EQ(0u, control.DragTab);
    EXPECT_EQ(0u, control.TabCount);
    EXPECT_TRUE(DragTo(control, 20));
    EXPECT_EQ("", Draw(control));
}

TEST_F(TeskTabControlReentrancyTest, SelectionsThatSelectOneAnotherComeToAnEnd)
{
    TeskTabControl& control = MakeControlOf({"a", "b"}, "<OnSelect>on</OnSelect>");
    Host.Scripts["on"] = [](TeskElement& self) { As(self).SelectTab(3 - As(self).SelectedTab); };
    control.SelectTab(1);
    const u32 shown = control.SelectedTab;
    EXPECT_TRUE(control.RetrieveTab(shown)->Frame->Visible);
    EXPECT_FALSE(control.RetrieveTab(3 - shown)->Frame->Visible);
}

TEST_F(TeskTabControlReentrancyTest, TabsMayGoAsTheFramesGetTheirSize)
{
    TeskTabControl& control = MakeControl();
    for (const char* name : {"a", "b", "c"})
        AddSlider(control, name);
    Host.Scripts["change"] = [&](TeskElement&) {
        control.RemoveTab(1);
        control.RemoveTab(2);
    };
    PrepareChanges(control);
    control.RecalculateSize(true);
    EXPECT_EQ("c", Names(control));
    EXPECT_EQ(40u, SliderOf(control, 3).Value);
}

TEST_F(TeskTabControlReentrancyTest, TabsMayComeAsTheFramesGetTheirSize)
{
    TeskTabControl& control = MakeControl();
    AddSlider(control, "a");
    Host.Scripts["change"] = [&](TeskElement&) { EXPECT_EQ(2u, AddTo(control, "b")); };
    PrepareChanges(control);
    control.RecalculateSize(true);
    EXPECT_EQ("a b", Names(control));
}

TEST_F(TeskTabControlReentrancyTest, ButtonsThatAreDeletedAreForgotten)
{
    TeskTabControl& control = MakeControlOf({"a tab of ten", "a tab of 12"});
    control.DeleteChild(control.LeftButton);
    control.DeleteChild(control.RightButton);
    EXPECT_EQ(nullptr, control.LeftButton);
    EXPECT_EQ(nullptr, control.RightButton);
    Draw(control);
    control.RecalculateSize(true);
    EXPECT_TRUE(PressAt(control, 183));
    EXPECT_EQ(2u, control.SelectedTab);
    control.SelectTab(1);
    EXPECT_TRUE(PressAt(control, 184));
    EXPECT_EQ(1u, control.SelectedTab);
}

TEST_F(TeskTabControlReentrancyTest, AControlMayEndInItsFrame)
{
    TeskTabControl& control = MakeControl();
    AddFilled(control, "a", "<frame name='F'><OnRender>render</OnRender></frame>");
    Host.Scripts["render"] = [&](TeskElement&) { Parent.DeleteChild(&control); };
    control.Render();
    EXPECT_TRUE(IsGone());
}
