#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>

namespace {

class RenderTest : public ToolkitTest
{
protected:
    // Three panels side by side, told apart by their colours, with the script in the second one.
    void LoadThree(const char* script)
    {
        Load(std::string("<frame name='A'><Width>1</Width><Height>1</Height><BackgroundColor>ff00000a</BackgroundColor>"
                         "</frame><frame name='B'><Width>1</Width><Height>1</Height>"
                         "<BackgroundColor>ff00000b</BackgroundColor><OnRender>")
            + script
            + "</OnRender></frame><frame name='C'><Width>1</Width><Height>1</Height>"
              "<BackgroundColor>ff00000c</BackgroundColor></frame>");
        Host.TakeCalls();
    }

    // Which panels the frame drew, in order.
    std::string Drawn()
    {
        std::string panels;
        g_UIManager.Render();
        for (const std::string& call : Host.Calls)
            panels += static_cast<char>(call.back() - 'a' + 'A');
        Host.Calls.clear();
        return panels;
    }
};

} // namespace

TEST_F(RenderTest, ChildrenAreDrawnFromTheFirstToTheLastAndBehindTheirParent)
{
    Load("<frame name='P'><X>10</X><Y>20</Y><Width>50</Width><Height>50</Height><Children><frame "
         "name='Q'><X>1</X><Y>2</Y>"
         "<Width>5</Width><Height>5</Height></frame></Children></frame>");
    EXPECT_EQ("DrawRect (10,20,60,70) 00000000\nDrawRect (11,22,16,27) 00000000\n", Frame());
    EXPECT_EQ(11, Element("Q@P").AbsoluteX);
    EXPECT_EQ(22, Element("Q@P").AbsoluteY);
}

TEST_F(RenderTest, WhatIsHiddenIsNotDrawnButKnowsItsPlace)
{
    Load("<frame name='P'><X>10</X><Visible>0</Visible><Children><frame name='Q'><X>1</X></frame></Children></frame>");
    EXPECT_EQ("", Frame());
    EXPECT_EQ(10, Element("P").AbsoluteX);
    EXPECT_EQ(11, Element("Q@P").AbsoluteX);
}

TEST_F(RenderTest, OpacityIsMultipliedDownTheTree)
{
    Load(
        "<frame name='P'><Width>5</Width><Height>5</Height><Alpha>0.5</Alpha><Children><frame name='Q'><Width>5</Width>"
        "<Height>5</Height><Alpha>0.5</Alpha><BackgroundColor>ff000000</BackgroundColor></frame></Children></frame>");
    EXPECT_EQ("DrawRect (0,0,5,5) 00000000\nDrawRect (0,0,5,5) 3f000000\n", Frame());
    g_UIManager.Screen->Alpha = 0.1f;
    EXPECT_EQ("DrawRect (0,0,5,5) 00000000\nDrawRect (0,0,5,5) 3f000000\n", Frame());
    g_UIManager.Screen->Alpha = 1.0f;
}

TEST_F(RenderTest, TheScriptOfAFrameRunsBeforeTheElementDraws)
{
    LoadThree("hide");
    Host.Scripts["hide"] = [](TeskElement& self) { self.X = 7; };
    Frame();
    EXPECT_EQ("DrawRect (0,0,1,1) ff00000a\nDrawRect (7,0,8,1) ff00000b\nDrawRect (0,0,1,1) ff00000c\n", Frame());
}

TEST_F(RenderTest, AChildThatItsScriptDeletesEndsTheWalkForThisFrame)
{
    LoadThree("die");
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    EXPECT_EQ("A", Drawn());
    EXPECT_EQ("AC", Drawn());
}

TEST_F(RenderTest, AScriptMayDeleteEverything)
{
    LoadThree("reset");
    Host.Scripts["reset"] = [](TeskElement&) { g_UIManager.Reset(); };
    EXPECT_EQ("A", Drawn());
    EXPECT_EQ("", Drawn());
}

TEST_F(RenderTest, AScriptMayDeleteTheParentFromBelow)
{
    Load("<frame name='P'><Children><frame name='Q'><OnRender>die</OnRender></frame></Children></frame>"
         "<frame name='R'/>");
    Host.Scripts["die"] = [](TeskElement& self) { g_UIManager.Screen->DeleteChild(self.Parent); };
    EXPECT_EQ("DrawRect (0,0,0,0) 00000000\n", Frame());
    EXPECT_EQ("DrawRect (0,0,0,0) 00000000\n", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("P"));
}

TEST_F(RenderTest, AChildThatMovesCarriesTheWalkWithIt)
{
    LoadThree("top");
    Host.Scripts["top"] = [](TeskElement& self) { self.MoveZTop(false); };
    EXPECT_EQ("AB", Drawn());
    EXPECT_EQ("ACB", Drawn());
}

TEST_F(RenderTest, ChildrenThatKeepMovingToTheBottomDoNotHoldUpTheFrame)
{
    for (const int count : {2, 3, 50}) {
        g_UIManager.Reset();
        std::string markup;
        for (int index = 0; index < count; ++index)
            markup += "<frame name='F" + std::to_string(index) + "'><OnRender>down</OnRender></frame>";
        Load(markup);
        Host.Scripts["down"] = [](TeskElement& self) { self.MoveZBottom(); };
        Host.TakeCalls();
        g_UIManager.Render();
        EXPECT_EQ(static_cast<std::size_t>(4 * count + 64), Host.Calls.size());
        Host.TakeCalls();
    }
}

TEST_F(RenderTest, ChildrenThatKeepMakingOthersDoNotHoldUpTheFrame)
{
    Load("<frame name='F'><OnRender>more</OnRender></frame>");
    g_UIManager.AddTemplate("frame", "<Template><OnRender>more</OnRender></Template>");
    int made = 0;
    Host.Scripts["more"] = [&](TeskElement& self) {
        XMLNode* node = g_UIManager.FindTemplate("frame");
        g_UIManager.LoadElement(self.Parent, "frame", ("G" + std::to_string(++made)).c_str(), node, nullptr);
    };
    Frame();
    EXPECT_EQ(4 + 64, made);
}

TEST_F(RenderTest, AWalkOverChildrenThatMoveHasSoManySteps)
{
    constexpr std::size_t limit = 2 * Limits::ChildWalkFactor + Limits::ChildWalkSteps;
    Load("<frame name='A'><OnRender>down</OnRender></frame><frame name='B'><OnRender>down</OnRender></frame>");
    for (const std::size_t wanted : {limit - 1, limit, limit + 1}) {
        std::size_t steps = 0;
        Host.Scripts["down"] = [&](TeskElement& self) {
            if (++steps < wanted)
                self.MoveZBottom();
        };
        g_UIManager.Render();
        EXPECT_EQ(std::min(wanted, limit), steps);
    }
}

TEST_F(RenderTest, ManyChildrenThatDoNothingAreAllDrawn)
{
    std::string markup;
    for (int index = 0; index < 500; ++index)
        markup += "<frame name='F" + std::to_string(index) + "'/>";
    Load(markup);
    g_UIManager.Render();
    EXPECT_EQ(500u, Host.Calls.size());
    Element("F499").MoveZBottom();
    Host.TakeCalls();
    g_UIManager.Render();
    EXPECT_EQ(500u, Host.Calls.size());
}

TEST_F(RenderTest, ATooltipTextWithoutATooltipShowsNothing)
{
    Load("<frame name='Auto Tooltip'><Visible>0</Visible></frame>"
         "<frame name='F'><Width>50</Width><Height>50</Height><AutoTooltip>Hint</AutoTooltip></frame>");
    Frame();
    _Point2i point = {5, 5};
    g_UIManager.OnMouseMove(point);
    System.Ticks += 5000;
    Frame();
    Frame();
    EXPECT_FALSE(Element("Auto Tooltip").Visible);
    EXPECT_EQ(0u, g_UIManager.TooltipElementID);
}
