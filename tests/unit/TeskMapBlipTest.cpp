#include "tests/unit/MapTest.h"

#include <gtest/gtest.h>

class TeskMapBlipTest : public MapTest
{
protected:
    // What the host is given of the label's text in a frame.
    std::string LabelDrawn()
    {
        std::string drawn;
        Frame();
        g_UIManager.Render();
        for (const std::string& call : Host.Calls) {
            if (call.starts_with("DrawText"))
                drawn += call;
        }
        Host.TakeCalls();
        return drawn;
    }

    TeskTooltip& Tooltip() { return As<TeskTooltip>("Tooltip@M"); }
};

TEST_F(TeskMapBlipTest, MarkupGivesTheFontAndTheScript)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    Host.Recorded = RecordScripts;
    LoadMap();
    Add("A");
    EXPECT_EQ(8, Blip("A").Font->Size);
    EXPECT_NE(nullptr, Blip("A").OnSetTooltip);
    EXPECT_NE(std::string::npos, Host.TakeCalls().find("atom auto(uint TooltipID)"));
}

TEST_F(TeskMapBlipTest, IsAFrameByItsWord)
{
    LoadMap();
    Add("A");
    EXPECT_TRUE(Blip("A").IsTypeOf("MapBlip"));
    EXPECT_TRUE(Blip("A").IsTypeOf("frame"));
    EXPECT_FALSE(Blip("A").IsTypeOf("map"));
}

TEST_F(TeskMapBlipTest, TheLabelStandsTwoPixelsToTheRight)
{
    LoadMap("<ShowLabels/>");
    Add("A", 0, 0, 0, 12, "Town");
    EXPECT_EQ("DrawText \"Town\" (108,46,108,600) ffffffff format=288 font 1", LabelDrawn());
    Map().UpdateBlipSize(Blip("A").ID, 8);
    EXPECT_EQ("DrawText \"Town\" (106,46,106,600) ffffffff format=288 font 1", LabelDrawn());
    Map().UpdateBlipSize(Blip("A").ID, 4);
    EXPECT_EQ("DrawText \"Town\" (104,48,104,600) ffffffff format=288 font 1", LabelDrawn());
}

TEST_F(TeskMapBlipTest, AClippedLabelEndsAtTheRightEdgeOfTheMap)
{
    LoadMap("<ShowLabels/>");
    Map().ClipLabels = true;
    Add("A", 0, 0, 0, 12, "Town");
    EXPECT_NE(std::string::npos, LabelDrawn().find("(108,46,200,"));
    Map().UpdateBlip(Blip("A").ID, {20, 0, 0});
    EXPECT_EQ("", LabelDrawn());
}

TEST_F(TeskMapBlipTest, NoLabelIsDrawnWithoutATextOrAFontOrThePermission)
{
    LoadMap("<ShowLabels/>");
    Add("A");
    EXPECT_EQ("", LabelDrawn());
    Map().UpdateBlipLabel(Blip("A").ID, "Town");
    EXPECT_NE("", LabelDrawn());
    Map().ShowLabels = false;
    EXPECT_EQ("", LabelDrawn());
    Map().ShowLabels = true;
    Blip("A").Font.reset();
    EXPECT_EQ("", LabelDrawn());
}

// The right edge of the blip is that of before its children were drawn; its top is not.
TEST_F(TeskMapBlipTest, TheLabelStandsWhereTheBlipWas)
{
    UseDot("<Children><frame name='in'><OnRender>move</OnRender></frame></Children>");
    LoadMap("<ShowLabels/>");
    Add("A", 0, 0, 0, 12, "Town");
    Host.Scripts["move"] = [](TeskElement& child) {
        child.Parent->AbsoluteX += 50;
        child.Parent->AbsoluteY += 30;
        child.Parent->Parent->AbsoluteX += 70;
    };
    EXPECT_NE(std::string::npos, LabelDrawn().find("(108,76,"));
    Map().ClipLabels = true;
    EXPECT_NE(std::string::npos, LabelDrawn().find("(108,76,200,"));
}

TEST_F(TeskMapBlipTest, ABlipBesideAMapIsAFrame)
{
    Load("<mapblip name='A'><X>5</X><Width>10</Width><Height>10</Height><BackgroundColor>ff000000</BackgroundColor>"
         "<Font/><OnSetTooltip>tip</OnSetTooltip></mapblip><mapview name='V'><Width>50</Width><Height>50</Height>"
         "<ShowLabels/><Children><mapblip name='B'><Font/></mapblip></Children></mapview>");
    for (const char* name : {"A", "B@V"}) {
        auto& blip = As<TeskMapBlip>(name);
        blip.Label = std::make_unique<utf8string>("label");
        EXPECT_EQ(nullptr, blip.Map());
        _Point2i point = {6, 6};
        blip.OnMouseEnter(point);
        blip.OnMouseExit(nullptr);
    }
    EXPECT_EQ(std::string::npos, Frame().find("DrawText"));
    MoveTo(6, 6);
    MoveTo(500, 500);
    g_UIManager.Screen->DeleteChild(&Element("A"));
}

TEST_F(TeskMapBlipTest, TheTooltipIsFilledAndShownBelowTheBlip)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    LoadMap({}, "<tooltip name='Tooltip'/>");
    Host.Scripts["tip"] = [this](TeskElement& self) {
        EXPECT_EQ(&Blip("A"), &self);
        Tooltip().Print("words");
    };
    Add("A");
    Frame();
    Tooltip().Print("old");
    MoveTo(100, 50);
    EXPECT_EQ((Strings{std::to_string(Tooltip().ID)}), Host.ScriptArguments);
    EXPECT_EQ(1u, Tooltip().LineCount);
    EXPECT_EQ(Blip("A").ID, Map().HoverBlip);
    EXPECT_EQ("104,58", PlaceOf(Tooltip()));
    MoveTo(10, 10);
    EXPECT_EQ(0u, Map().HoverBlip);
    EXPECT_EQ("hidden", PlaceOf(Tooltip()));
}

TEST_F(TeskMapBlipTest, WithoutAScriptTheTooltipStaysHidden)
{
    LoadMap({}, "<tooltip name='Tooltip'/>");
    Add("A");
    Frame();
    MoveTo(100, 50);
    EXPECT_EQ(Blip("A").ID, Map().HoverBlip);
    EXPECT_FALSE(Tooltip().Visible);
    EXPECT_FALSE(Blip("A").SetTooltip(&Tooltip()));
    EXPECT_FALSE(Blip("A").SetTooltip(nullptr));
}

TEST_F(TeskMapBlipTest, OnlyATooltipServesAsTooltip)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    LoadMap({}, "<frame name='Tooltip'/><frame name='F'><Children><tooltip name='Tooltip'/></Children></frame>");
    EXPECT_EQ(&Element("Tooltip@F@M"), Map().Tooltip);
    Add("A");
    Frame();
    MoveTo(100, 50);
    EXPECT_TRUE(Element("Tooltip@F@M").Visible);
}

TEST_F(TeskMapBlipTest, ATooltipThatIsGoneIsForgotten)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    LoadMap({}, "<tooltip name='Tooltip'/>");
    Add("A");
    Frame();
    Map().DeleteChild(&Tooltip());
    EXPECT_EQ(nullptr, Map().Tooltip);
    MoveTo(100, 50);
    EXPECT_EQ(Blip("A").ID, Map().HoverBlip);
    MoveTo(10, 10);
    EXPECT_EQ(0u, Map().HoverBlip);
}

// A window does not pass on what it hears of its children.
TEST_F(TeskMapBlipTest, ATooltipThatEndsUnheardIsNotUsed)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    g_UIManager.AddTemplate("window", "<Template><Client><Width>9</Width></Client></Template>");
    LoadMap({}, "<window name='W'><Children><tooltip name='Tooltip'/></Children></window>");
    Add("A");
    Frame();
    TeskTooltip* tooltip = Map().Tooltip;
    ASSERT_NE(nullptr, tooltip);
    tooltip->Parent->DeleteChild(tooltip);
    MoveTo(100, 50);
    MoveTo(10, 10);
    EXPECT_EQ(0u, Map().HoverBlip);
}

TEST_F(TeskMapBlipTest, TheHoveredBlipTakesTheTooltipAlong)
{
    UseDot("<OnSetTooltip>tip</OnSetTooltip>");
    LoadMap({}, "<tooltip name='Tooltip'/>");
    Add("A");
    Add("B", 19);
    Frame();
    MoveTo(100, 50);
    Map().RemoveBlip(Blip("B").ID);
    EXPECT_TRUE(Tooltip().Visible);
    Map().RemoveBlip(Blip("A").ID);
    EXPECT_EQ(0u, Map().HoverBlip);
    EXPECT_FALSE(Tooltip().Visible);
}

TEST_F(TeskMapBlipTest, TheMouseIsToldToTheElementToo)
{
    UseDot("<OnMouseEnter>enter</OnMouseEnter><OnMouseExit>exit</OnMouseExit>");
    LoadMap();
    Add("A");
    Frame();
    Strings heard;
    Host.Scripts["enter"] = [&](TeskElement&) { heard.push_back("enter " + std::to_string(Map().HoverBlip != 0)); };
    Host.Scripts["exit"] = [&](TeskElement&) { heard.push_back("exit " + std::to_string(Map().HoverBlip != 0)); };
    MoveTo(100, 50);
    MoveTo(10, 10);
    EXPECT_EQ((Strings{"enter 1", "exit 0"}), heard);
}
