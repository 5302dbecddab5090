#include "teskara/controls/TeskGaugeFiller.h"

#include "teskara/controls/TeskGauge.h"
#include "tests/unit/PressTest.h"

namespace {

class TeskGaugeFillerTest : public PressTest
{
protected:
    // A gauge with a range of 100 at 10, 50, and a filler 100 by 20 of an image that is 50 wide.
    TeskGauge& PlaceGauge(const std::string& gauge = {}, const std::string& filler = {})
    {
        return Place<TeskGauge>("gauge",
            "<Range>100</Range>" + gauge
                + "<Filler><Width>100%</Width><Height>100%</Height><Texture Filename='#bar'><left>2</left><top>3</top>"
                  "<right>52</right><bottom>13</bottom></Texture>"
                + filler + "</Filler>");
    }

    // What a frame draws of the filler: where to, and how far right in the image.
    std::string Bar()
    {
        std::string calls = Frame();
        std::string bar;
        for (std::size_t at = calls.find(" to="); at != calls.npos; at = calls.find(" to=", at + 1)) {
            const std::string to = calls.substr(at + 4, calls.find(')', at) - at - 3);
            const std::size_t from = calls.find("from=(2,3,", at) + 10;
            bar += to + ":" + calls.substr(from, calls.find(',', from) - from) + " ";
        }
        return bar;
    }

    std::string BarAt(TeskGauge& gauge, float value)
    {
        gauge.SetValue(value);
        return Bar();
    }
};

} // namespace

TEST_F(TeskGaugeFillerTest, WithoutMarkupEveryFieldHasItsDefault)
{
    const TeskGaugeFiller& filler = *Make<TeskGauge>("gauge", "<Range>3</Range><Filler/>").Filler;
    EXPECT_FALSE(filler.Texture);
    EXPECT_EQ(3.0f, filler.Range);
    EXPECT_EQ(0.0f, filler.Value);
    EXPECT_FALSE(filler.Vertical);
    EXPECT_EQ(1u, filler.Repeat);
}

TEST_F(TeskGaugeFillerTest, NoRepeatIsOne)
{
    for (const char* repeat : {"<Repeat>0</Repeat>", "<Repeat/>", "<Repeat>word</Repeat>", "<Repeat>1</Repeat>"})
        EXPECT_EQ(1u, Make<TeskGauge>("gauge", std::string("<Filler>") + repeat + "</Filler>").Filler->Repeat);
    EXPECT_EQ(4294967295u, Make<TeskGauge>("gauge", "<Filler><Repeat>-1</Repeat></Filler>").Filler->Repeat);
}

TEST_F(TeskGaugeFillerTest, PixelsCountFromInsideOfTheBorder)
{
    const TeskGaugeFiller& filler = *Make<TeskGauge>(
        "gauge", "<Border>4</Border><Filler><X>1</X><Y>2</Y><Width>7</Width><Height>8</Height></Filler>")
                                         .Filler;
    EXPECT_EQ(5, filler.X);
    EXPECT_EQ(6, filler.Y);
    EXPECT_EQ(7u, filler.Width);
    EXPECT_EQ(8u, filler.Height);
}

TEST_F(TeskGaugeFillerTest, SharesAreOfWhatTheBorderLeaves)
{
    const TeskGaugeFiller& filler = *Make<TeskGauge>("gauge",
        "<Width>101</Width><Height>50</Height><Border>4</Border>"
        "<Filler><X>50%</X><Y>0.25</Y><Width>50%</Width><Height>1.0</Height></Filler>")
                                         .Filler;
    EXPECT_EQ(48 + 4, filler.X); // of 97
    EXPECT_EQ(11 + 4, filler.Y); // of 46
    EXPECT_EQ(46u, filler.Width); // of 93
    EXPECT_EQ(42u, filler.Height);
}

TEST_F(TeskGaugeFillerTest, FarEdgesDoNotCount)
{
    const TeskGaugeFiller& filler = *Make<TeskGauge>("gauge",
        "<Width>100</Width><Height>50</Height><Border>4</Border>"
        "<Filler><X>r10</X><Y>r10</Y><Width>r20</Width><Height>r20</Height></Filler>")
                                         .Filler;
    EXPECT_EQ(10, filler.X);
    EXPECT_EQ(10, filler.Y);
    EXPECT_EQ(20u, filler.Width);
    EXPECT_EQ(20u, filler.Height);
}

TEST_F(TeskGaugeFillerTest, ABorderWiderThanTheGaugeIsSurvived)
{
    const TeskGaugeFiller& filler = *Make<TeskGauge>("gauge",
        "<Width>2</Width><Height>2</Height><Border>-1</Border>"
        "<Filler><X>100%</X><Y>100%</Y><Width>100%</Width><Height>100%</Height></Filler>")
                                         .Filler;
    EXPECT_EQ(2, filler.X); // 3 - 1
    EXPECT_EQ(4u, filler.Width);
}

TEST_F(TeskGaugeFillerTest, ItFollowsAGaugeThatFollowsItsParent)
{
    Load("<frame name='F'><Width>200</Width><Height>100</Height><Children><gauge name='G'><Width>50%</Width>"
         "<Height>20</Height><Border>5</Border><Filler><Width>50%</Width><Height>100%</Height></Filler></gauge>"
         "</Children></frame>");
    auto& filler = As<TeskGaugeFiller>("Filler@G@F");
    EXPECT_EQ(45u, filler.Width);
    auto* child = g_UIManager.LoadElement(&filler, "frame", "Child");
    child->PositionWidth.Type = PositionShare;
    child->PositionWidth.SetShare(1);
    Element("F").Width = 400;
    Element("F").RecalculateChildrenSize();
    EXPECT_EQ(95u, filler.Width);
    EXPECT_EQ(95u, child->Width);
}

TEST_F(TeskGaugeFillerTest, ItsLengthIsTheShareOfTheValue)
{
    TeskGauge& gauge = PlaceGauge();
    EXPECT_EQ("(10,50,110,70):52 ", BarAt(gauge, 100));
    EXPECT_EQ("(10,50,60,70):27 ", BarAt(gauge, 50));
    EXPECT_EQ("(10,50,43,70):18 ", BarAt(gauge, 33.3f)); // 16.65 of 50
    EXPECT_EQ("(10,50,11,70):2 ", BarAt(gauge, 1));
}

TEST_F(TeskGaugeFillerTest, AVerticalOneRisesFromTheBottomAndCutsTheImageAtTheRight)
{
    TeskGauge& gauge = PlaceGauge("<Vertical/>");
    EXPECT_EQ("(10,50,110,70):52 ", BarAt(gauge, 100));
    EXPECT_EQ("(10,60,110,70):27 ", BarAt(gauge, 50));
}

TEST_F(TeskGaugeFillerTest, BelowAThousandthNothingIsDrawn)
{
    TeskGauge& gauge = PlaceGauge();
    EXPECT_EQ("", BarAt(gauge, 0));
    EXPECT_EQ("", BarAt(gauge, 0.0999f));
    EXPECT_EQ("(10,50,10,70):2 ", BarAt(gauge, 0.1f));
}

TEST_F(TeskGaugeFillerTest, WithoutARangeItIsFull)
{
    TeskGauge& gauge = PlaceGauge("<Range>0</Range>");
    gauge.Filler->Range = gauge.Range = 0;
    EXPECT_EQ("(10,50,110,70):52 ", BarAt(gauge, 50));
}

TEST_F(TeskGaugeFillerTest, StepsAreFilledOneByOneAndTheLastIsDrawnTwice)
{
    TeskGauge& gauge = PlaceGauge("", "<Repeat>4</Repeat>");
    EXPECT_EQ("(10,50,35,70):52 (35,50,47,70):27 (35,50,47,70):27 ", BarAt(gauge, 37.5f));
    EXPECT_EQ(
        "(10,50,35,70):52 (35,50,60,70):52 (60,50,85,70):52 (85,50,110,70):52 (85,50,110,70):52 ", BarAt(gauge, 100));
}

TEST_F(TeskGaugeFillerTest, VerticalStepsRiseFromTheBottom)
{
    TeskGauge& gauge = PlaceGauge("<Vertical/>", "<Repeat>2</Repeat>");
    EXPECT_EQ("(10,60,110,70):52 (10,55,110,60):27 (10,55,110,60):27 ", BarAt(gauge, 75));
}

TEST_F(TeskGaugeFillerTest, MoreStepsThanPixelsDrawNothing)
{
    for (const char* repeat : {"101", "-1", "4294967295"}) {
        TeskGauge& gauge = PlaceGauge("", std::string("<Repeat>") + repeat + "</Repeat>");
        EXPECT_EQ("", BarAt(gauge, 100)) << repeat;
        g_UIManager.Screen->DeleteChild(&gauge);
    }
}

TEST_F(TeskGaugeFillerTest, EachFrameLoadsTheImageAndGivesItBack)
{
    TeskGauge& gauge = PlaceGauge();
    gauge.SetValue(100);
    Host.Recorded = RecordResources;
    EXPECT_EQ("LoadTextureResource \"#bar\" 00000000 -> 1\nLoadTextureResource \"#bar\" 00000000 -> 2\n"
              "ReleaseTextureResource 2\n",
        Frame());
    EXPECT_EQ("LoadTextureResource \"#bar\" 00000000 -> 3\nReleaseTextureResource 3\n", Frame());
    gauge.SetValue(0);
    EXPECT_EQ("", Frame());
    gauge.DeleteChild(gauge.Filler);
    EXPECT_EQ("ReleaseTextureResource 1\n", Host.TakeCalls());
}

TEST_F(TeskGaugeFillerTest, TheTextureItselfStaysAsItIs)
{
    TeskGauge& gauge = PlaceGauge("", "<Repeat>3</Repeat>");
    BarAt(gauge, 40);
    EXPECT_EQ(2, gauge.Filler->Texture->Left);
    EXPECT_EQ(52, gauge.Filler->Texture->Right);
}

TEST_F(TeskGaugeFillerTest, AnImageWithoutARectangleIsNotDrawn)
{
    Place<TeskGauge>("gauge", "<Filler><Width>100%</Width><Height>100%</Height><Texture Filename='#bar'/></Filler>");
    EXPECT_EQ("DrawRect (10,50,110,70) 00000000\n", Frame());
    EXPECT_EQ("DrawRect (10,50,110,70) 00000000\n", Frame());
}

TEST_F(TeskGaugeFillerTest, AnImageThatCannotBeLoadedIsNotDrawn)
{
    TeskGauge& gauge = PlaceGauge();
    Host.RefusesImages = true;
    EXPECT_EQ("", BarAt(gauge, 100));
    Host.RefusesImages = false;
    EXPECT_EQ("(10,50,110,70):52 ", Bar());
}

TEST_F(TeskGaugeFillerTest, ChildrenAreDrawnInAnyCase)
{
    TeskGauge& gauge = PlaceGauge();
    auto* child = dynamic_cast<TeskFrame*>(g_UIManager.LoadElement(gauge.Filler, "frame", "F"));
    child->BackgroundColor = 0xff000001;
    child->Width = child->Height = 5;
    const std::string drawn = "DrawRect (10,50,110,70) 00000000\nDrawRect (10,50,15,55) ff000001\n";
    EXPECT_EQ(drawn, Frame());
    gauge.Filler->Texture.reset();
    EXPECT_EQ(drawn, Frame());
}

TEST_F(TeskGaugeFillerTest, OneMadeByItsKindFromMarkupIsRefused)
{
    Load("<gauge name='G'><Children><gaugefiller name='F'/></Children></gauge><gaugefiller name='Alone'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("F@G"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Alone"));
    EXPECT_EQ("PrintLine \"CreateUIElement failed on 'F' under 'g'\"\n"
              "PrintLine \"Failed to create gaugefiller child F for g\"\n"
              "PrintLine \"CreateUIElement failed on 'Alone' under 'screen'\"\n",
        Host.TakeCalls());
}

TEST_F(TeskGaugeFillerTest, OneOutsideOfAGaugeIsEmpty)
{
    auto& filler = dynamic_cast<TeskGaugeFiller&>(*g_UIManager.LoadElement(g_UIManager.Screen, "gaugefiller", "F"));
    filler.PositionWidth.Type = PositionShare;
    filler.PositionWidth.SetShare(1);
    filler.RecalculateSize(true);
    EXPECT_EQ(nullptr, filler.Gauge());
    EXPECT_EQ(0u, filler.Width);
    EXPECT_EQ("", Frame());
    filler.Texture.reset(TeskTexture::New("#bar"));
    filler.Texture->Flags = TextureHasRect;
    EXPECT_EQ("", Frame());
}

TEST_F(TeskGaugeFillerTest, OneMadeWithoutMarkupInAGaugeKnowsItAndHearsNothing)
{
    TeskGauge& gauge = Place<TeskGauge>("gauge", "<Range>10</Range><Vertical/>");
    gauge.SetValue(4);
    auto& filler = dynamic_cast<TeskGaugeFiller&>(*g_UIManager.LoadElement(&gauge, "gaugefiller", "F"));
    EXPECT_EQ(&gauge, filler.Gauge());
    EXPECT_EQ(10.0f, filler.Range);
    EXPECT_EQ(4.0f, filler.Value);
    EXPECT_TRUE(filler.Vertical);
    gauge.SetValue(5);
    EXPECT_EQ(4.0f, filler.Value);
}

TEST_F(TeskGaugeFillerTest, ItsScriptMayDeleteTheGauge)
{
    TeskGauge& gauge = PlaceGauge("", "<OnUnload>die</OnUnload>");
    Host.Scripts["die"] = [](TeskElement& filler) {
        g_UIManager.Screen->DeleteChild(filler.Parent);
        filler.RecalculateSize(true);
        dynamic_cast<TeskGaugeFiller&>(filler).SetValue(3);
    };
    gauge.DeleteChild(gauge.Filler);
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
    EXPECT_EQ(nullptr, g_UIManager.FindElement("Filler@C"));
}
