#include "teskara/controls/TeskSlider.h"

#include "tests/unit/PressTest.h"

#include <climits>

namespace {

class TeskSliderTest : public PressTest
{
protected:
    // A slider under the listener, with a range of 100 and a travel of 100 pixels.
    TeskSlider& MakeSlider(const std::string& markup = {})
    {
        return MakeSized("<Width>105</Width><Height>20</Height>" + markup);
    }

    TeskSlider& MakeVerticalSlider() { return MakeSized("<Width>20</Width><Height>105</Height><Vertical/>"); }

    TeskSlider& MakeSized(const std::string& markup)
    {
        return Make<TeskSlider>("slider", "<Range>100</Range>" + markup + "<OnChange>change</OnChange>");
    }

    static bool PressAt(TeskSlider& slider, i32 x, i32 y)
    {
        _Point2i point = {x, y};
        return slider.OnLMouseDown(point);
    }

    static bool MoveTo(TeskSlider& slider, i32 x, i32 y)
    {
        _Point2i point = {x, y};
        return slider.OnMouseMove(point);
    }

    static std::string Image(const char* rect, u32 texture)
    {
        return "DrawTexturedRect texture " + std::to_string(texture) + " to=(" + rect
            + ") from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n";
    }
};

using Heard = std::vector<std::string>;

} // namespace

TEST_F(TeskSliderTest, MarkupGivesItsFields)
{
    const auto& slider = Make<TeskSlider>("slider",
        "<Vertical/><Range>7</Range><Border>2</Border><Texture Filename='#track'/><HandleTexture Filename='#handle'/>"
        "<OnChange>change</OnChange>");
    EXPECT_TRUE(slider.Vertical);
    EXPECT_EQ(7u, slider.Range);
    EXPECT_EQ(2u, slider.Border);
    EXPECT_EQ("#track", slider.Texture->Filename);
    EXPECT_EQ("#handle", slider.HandleTexture->Filename);
    EXPECT_TRUE(slider.OnChange);
    EXPECT_EQ(0u, slider.Value);
    EXPECT_FALSE(slider.Dragging);
}

TEST_F(TeskSliderTest, WithoutMarkupEveryFieldHasItsDefault)
{
    const auto& slider = Make<TeskSlider>("slider");
    EXPECT_FALSE(slider.Vertical);
    EXPECT_EQ(0u, slider.Range);
    EXPECT_EQ(0u, slider.Border);
    EXPECT_FALSE(slider.Texture);
    EXPECT_FALSE(slider.HandleTexture);
    EXPECT_FALSE(slider.OnChange);
}

TEST_F(TeskSliderTest, MadeWithoutMarkupItIs16HighAndReachesTo100)
{
    auto& slider = dynamic_cast<TeskSlider&>(*g_UIManager.LoadElement(g_UIManager.Screen, "slider", "S"));
    EXPECT_EQ(16u, slider.Height);
    EXPECT_EQ(100u, slider.Range);
    EXPECT_EQ(0u, slider.Position);
    slider.Vertical = true;
    EXPECT_EQ("", Frame());
}

TEST_F(TeskSliderTest, MadeFromARecordItTakesItsValues)
{
    g_UIManager.AddTemplate("slider", "<Template><Texture Filename='#a'/><HandleTexture Filename='#b'/></Template>");
    g_UIManager.AddTemplate("other", "<Template><Texture Filename='#c'/></Template>");
    auto& slider = dynamic_cast<TeskSlider&>(*g_UIManager.LoadElement(g_UIManager.Screen, "slider", "S"));
    _CreateSlider record;
    record.X = 3;
    record.Width = 50;
    record.Border = 2;
    record.Range = 9;
    record.Vertical = true;
    slider.Create(record, nullptr);
    EXPECT_EQ(3, slider.X);
    EXPECT_EQ(50u, slider.Width);
    EXPECT_EQ(2u, slider.Border);
    EXPECT_EQ(9u, slider.Range);
    EXPECT_TRUE(slider.Vertical);
    EXPECT_FALSE(slider.Texture);

    record.TexturesFromTemplate = true;
    slider.Create(record, nullptr);
    EXPECT_EQ("#a", slider.Texture->Filename);
    EXPECT_EQ("#b", slider.HandleTexture->Filename);
    slider.Create(record, g_UIManager.FindTemplate("other"));
    EXPECT_EQ("#c", slider.Texture->Filename);
    EXPECT_FALSE(slider.HandleTexture);
}

TEST_F(TeskSliderTest, ValuesFallBackToTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate(
        "slider", "<Template><Range>7</Range><Border>2</Border><Texture Filename='#kind'/></Template>");
    const auto& slider = Make<TeskSlider>("slider", "<Border>1</Border>");
    EXPECT_EQ(7u, slider.Range);
    EXPECT_EQ(1u, slider.Border);
    EXPECT_EQ("#kind", slider.Texture->Filename);
}

TEST_F(TeskSliderTest, IsASliderAndAnElement)
{
    TeskSlider& slider = MakeSlider();
    EXPECT_TRUE(slider.IsTypeOf("Slider"));
    EXPECT_TRUE(slider.IsTypeOf("teskelement"));
    EXPECT_FALSE(slider.IsTypeOf("scrollbar"));
    EXPECT_FALSE(slider.IsTypeOf(nullptr));
}

TEST_F(TeskSliderTest, ItsColorMaskCoversThatOfEachTexture)
{
    const auto& slider =
        Make<TeskSlider>("slider", "<Texture Filename='#a'/><HandleTexture Filename='#b'/>", "ColorMask='ff112233'");
    EXPECT_EQ(0xff112233u, slider.Texture->ColorMask);
    EXPECT_EQ(0xff112233u, slider.HandleTexture->ColorMask);
}

TEST_F(TeskSliderTest, AValueMovesTheHandle)
{
    TeskSlider& slider = MakeSlider();
    slider.SetValue(40);
    EXPECT_EQ(40u, slider.Value);
    EXPECT_EQ(40u, slider.Position);
    slider.Width = 55;
    slider.SetValue(41);
    EXPECT_EQ(20u, slider.Position);
}

TEST_F(TeskSliderTest, AVerticalOneHasItsRangeAtTheTop)
{
    TeskSlider& slider = MakeVerticalSlider();
    EXPECT_EQ(100u, slider.Position);
    slider.SetValue(30);
    EXPECT_EQ(70u, slider.Position);
    slider.SetValue(100);
    EXPECT_EQ(0u, slider.Position);
}

TEST_F(TeskSliderTest, AValueBeyondTheRangeIsTheRangeAndIsToldOnce)
{
    int runs = 0;
    Host.Scripts["change"] = [&](TeskElement&) { ++runs; };
    TeskSlider& slider = MakeSlider();
    slider.SetValue(150);
    EXPECT_EQ(100u, slider.Value);
    slider.SetValue(200);
    EXPECT_EQ((Heard{"4:100"}), Parent.Heard);
    EXPECT_EQ(1, runs);
}

TEST_F(TeskSliderTest, TheParentHearsOfAChangeBeforeTheScriptRuns)
{
    Host.Scripts["change"] = [&](TeskElement&) { Parent.Heard.push_back("script"); };
    TeskSlider& slider = MakeSlider();
    slider.SetValue(5);
    slider.SetValue(5);
    slider.SetValue(0);
    EXPECT_EQ((Heard{"4:5", "script", "4:0", "script"}), Parent.Heard);
}

TEST_F(TeskSliderTest, DeletedByItsParentItRunsNoScript)
{
    bool ran = false;
    Host.Scripts["change"] = [&](TeskElement&) { ran = true; };
    Parent.Act = [&](TeskElement& source) { Parent.DeleteChild(&source); };
    MakeSlider().SetValue(5);
    EXPECT_TRUE(IsGone());
    EXPECT_FALSE(ran);
}

TEST_F(TeskSliderTest, WithoutARangeItHoldsZeroAtTheStart)
{
    TeskSlider& slider = MakeSlider();
    slider.Range = 0;
    slider.SetValue(7);
    EXPECT_EQ(0u, slider.Value);
    EXPECT_EQ(0u, slider.Position);
    slider.SetPosition(50);
    EXPECT_EQ(0u, slider.Value);
    slider.Vertical = true;
    slider.SetValue(0);
    EXPECT_EQ(0u, slider.Position);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskSliderTest, TooSmallForItsHandleItTakesValuesAndTellsNobody)
{
    TeskSlider& slider = MakeSlider();
    slider.Width = 4;
    slider.Position = 3;
    slider.SetValue(50);
    EXPECT_EQ(50u, slider.Value);
    EXPECT_EQ(0u, slider.Position);
    slider.Position = 3;
    slider.SetPosition(1);
    EXPECT_EQ(50u, slider.Value);
    EXPECT_EQ(0u, slider.Position);
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskSliderTest, AsSmallAsItsHandleItTellsOfValuesAndHasNoPositions)
{
    TeskSlider& slider = MakeSlider();
    slider.Width = 5;
    slider.SetValue(50);
    EXPECT_EQ((Heard{"4:50"}), Parent.Heard);
    slider.SetPosition(1);
    EXPECT_EQ(50u, slider.Value);
}

TEST_F(TeskSliderTest, APositionGivesTheValue)
{
    TeskSlider& slider = MakeSlider();
    slider.Range = 10;
    slider.SetPosition(39);
    EXPECT_EQ(3u, slider.Value);
    EXPECT_EQ(30u, slider.Position);
    slider.SetPosition(4000000000);
    EXPECT_EQ(10u, slider.Value);

    TeskSlider& vertical = MakeVerticalSlider();
    vertical.SetPosition(10);
    EXPECT_EQ(90u, vertical.Value);
}

TEST_F(TeskSliderTest, TheHandleJumpsToAPressAndFollowsTheMouse)
{
    TeskSlider& slider = MakeSlider("<Border>1</Border>");
    slider.AbsoluteX = 200;
    slider.AbsoluteY = 300;
    EXPECT_TRUE(PressAt(slider, 203 + 49, 0)); // half the handle is 2, the border 1
    EXPECT_TRUE(slider.Dragging);
    EXPECT_EQ(49u, slider.Position);
    EXPECT_TRUE(MoveTo(slider, 203 + 98, 900));
    EXPECT_EQ(100u, slider.Value);
    EXPECT_TRUE(MoveTo(slider, 0, 0));
    EXPECT_EQ(0u, slider.Value);
    EXPECT_TRUE(Release(slider));
    EXPECT_FALSE(slider.Dragging);
    EXPECT_TRUE(MoveTo(slider, 260, 0));
    EXPECT_EQ(0u, slider.Value);
}

TEST_F(TeskSliderTest, AVerticalOneIsDraggedUpAndDown)
{
    TeskSlider& slider = MakeVerticalSlider();
    slider.AbsoluteY = 300;
    EXPECT_TRUE(PressAt(slider, 0, 302 + 30));
    EXPECT_EQ(70u, slider.Value);
    EXPECT_TRUE(MoveTo(slider, 0, 299));
    EXPECT_EQ(100u, slider.Value);
}

TEST_F(TeskSliderTest, PointersFarAwayAreTheEndsOfTheTrack)
{
    TeskSlider& slider = MakeSlider();
    for (const i32 place : {INT_MIN, -1000, 0, 1000, INT_MAX}) {
        slider.AbsoluteX = place;
        PressAt(slider, INT_MAX, 0);
        EXPECT_EQ(place == INT_MAX ? 0u : 100u, slider.Value) << place;
        MoveTo(slider, INT_MIN, 0);
        EXPECT_EQ(0u, slider.Value) << place;
    }
}

TEST_F(TeskSliderTest, ItsMouseScriptsRun)
{
    std::string ran;
    for (const char* event : {"down", "move", "click"})
        Host.Scripts[event] = [&ran, event](TeskElement&) { ran += std::string(event) + ' '; };
    TeskSlider& slider =
        MakeSlider("<OnLeftDown>down</OnLeftDown><OnMouseMove>move</OnMouseMove><OnLeftClick>click</OnLeftClick>");
    Press(slider);
    MoveTo(slider, 50, 0);
    Release(slider);
    MoveTo(slider, 60, 0);
    EXPECT_EQ("down move click move ", ran);
}

TEST_F(TeskSliderTest, DeletedByItsChangeItTookTheMouseAllTheSame)
{
    bool ran = false;
    Host.Scripts["change"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    Host.Scripts["later"] = [&](TeskElement&) { ran = true; };
    EXPECT_TRUE(PressAt(MakeSlider("<OnLeftDown>later</OnLeftDown>"), 50, 0));
    EXPECT_TRUE(IsGone());

    TeskSlider& slider = MakeSlider("<OnMouseMove>later</OnMouseMove>");
    slider.Dragging = true;
    EXPECT_TRUE(MoveTo(slider, 50, 0));
    EXPECT_TRUE(IsGone());
    EXPECT_FALSE(ran);
}

TEST_F(TeskSliderTest, DeletedByItsOwnMouseScriptItTookTheMouseAllTheSame)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    EXPECT_TRUE(Press(MakeSlider("<OnLeftDown>die</OnLeftDown>")));
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(MoveTo(MakeSlider("<OnMouseMove>die</OnMouseMove>"), 1, 1));
    EXPECT_TRUE(IsGone());
    EXPECT_TRUE(Release(MakeSlider("<OnLeftClick>die</OnLeftClick>")));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskSliderTest, ANewSizeRefitsTheHandle)
{
    Load("<frame name='F'><Width>205</Width><Height>50</Height><Children><slider name='S'><Width>100%</Width>"
         "<Height>20</Height><Range>100</Range><Border>1</Border></slider></Children></frame>");
    auto& slider = As<TeskSlider>("S@F");
    EXPECT_EQ(5u, slider.HandleWidth);
    EXPECT_EQ(203u, slider.HandleHeight); // until it is drawn
    slider.SetValue(100);
    EXPECT_EQ(198u, slider.Position);
    Element("F").Width = 107;
    Element("F").RecalculateChildrenSize();
    EXPECT_EQ(100u, slider.Position);
    EXPECT_EQ(105u, slider.HandleHeight);
    Frame();
    EXPECT_EQ(18u, slider.HandleHeight);
    EXPECT_EQ(5u, slider.HandleWidth);
}

TEST_F(TeskSliderTest, ANewSizeCutsTheValueToTheRangeAndMayEndIt)
{
    TeskSlider& slider = MakeSlider();
    slider.SetValue(80);
    Parent.Heard.clear();
    slider.Range = 60;
    slider.RecalculateSize(true);
    EXPECT_EQ((Heard{"4:60"}), Parent.Heard);

    Host.Scripts["change"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    slider.Range = 50;
    slider.RecalculateSize(true);
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskSliderTest, AChangeInTheMiddleOfALayoutMayDeleteSiblings)
{
    Load("<frame name='F'><Width>105</Width><Height>50</Height><Children><slider name='S'><Width>100%</Width>"
         "<Range>100</Range><OnChange>change</OnChange></slider><frame name='Next'><Width>50%</Width></frame>"
         "<frame name='Last'><Width>50%</Width></frame></Children></frame>");
    Host.Scripts["change"] = [](TeskElement& self) { self.Parent->DeleteChild(g_UIManager.FindElement("Next@F")); };
    auto& slider = As<TeskSlider>("S@F");
    slider.Value = 50;
    slider.Range = 40;
    Element("F").Width = 60;
    Element("F").RecalculateChildrenSize();
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Next@F"));
    EXPECT_EQ(30u, Element("Last@F").Width);
    EXPECT_EQ(40u, slider.Value);
}

TEST_F(TeskSliderTest, ItIsDrawnAsTrackAndHandle)
{
    auto& slider =
        Place<TeskSlider>("slider", "<Range>95</Range><Texture Filename='#track'/><HandleTexture Filename='#handle'/>");
    slider.SetValue(40);
    EXPECT_EQ(Image("10,50,110,70", 1) + Image("50,50,55,70", 2), Frame());
    slider.Vertical = true;
    slider.RecalculateSize(true);
    slider.SetValue(0);
    EXPECT_EQ(Image("10,50,110,70", 1) + Image("10,65,110,70", 2), Frame());
}

TEST_F(TeskSliderTest, TheHandleLiesWithinTheBorder)
{
    auto& slider =
        Place<TeskSlider>("slider", "<Range>91</Range><Border>2</Border><HandleTexture Filename='#handle'/>");
    slider.SetValue(9);
    EXPECT_EQ(Image("21,52,26,68", 1), Frame());
    slider.Vertical = true;
    slider.RecalculateSize(true);
    slider.SetValue(91);
    EXPECT_EQ(Image("12,52,108,57", 1), Frame());
}

TEST_F(TeskSliderTest, WithABorderTheTrackIsDrawnInNinePieces)
{
    Place<TeskSlider>("slider", "<Border>4</Border><Texture Filename='#track'><Border>8</Border></Texture>");
    EXPECT_EQ(0u, Frame().find("DrawTexturedRects 9\n- texture 1 to=(10,50,14,54) from=(0,0,8,8)"));
}

TEST_F(TeskSliderTest, WithoutTexturesOnlyChildrenAreDrawn)
{
    Load("<slider name='S'><Width>100</Width><Height>20</Height><Children><frame name='F'><Width>5</Width>"
         "<Height>5</Height><BackgroundColor>ff000001</BackgroundColor></frame></Children></slider>");
    EXPECT_EQ("DrawRect (0,0,5,5) ff000001\n", Frame());
}

TEST_F(TeskSliderTest, ABorderWiderThanTheSliderIsSurvived)
{
    auto& slider = Place<TeskSlider>("slider", "<Range>10</Range><Border>-1</Border><HandleTexture Filename='#h'/>");
    slider.SetValue(5);
    slider.SetPosition(7);
    EXPECT_TRUE(PressAt(slider, 60, 60));
    Frame();
    slider.Border = 0x80000000u;
    slider.SetValue(6);
    EXPECT_TRUE(PressAt(slider, 60, 60));
    Frame();
    EXPECT_LE(slider.Value, 10u);
}

TEST_F(TeskSliderTest, AChangeThatChangesTheValueEndsSometime)
{
    TeskSlider& slider = MakeSlider();
    const auto changeAgain = [&](TeskElement&) { slider.SetValue(slider.Value == 1 ? 2 : 1); };
    Host.Scripts["change"] = changeAgain;
    slider.SetValue(50);
    EXPECT_LE(slider.Value, 2u);

    Host.Scripts.clear();
    Parent.Act = changeAgain;
    slider.SetValue(50);
    EXPECT_LE(slider.Value, 2u);
}
