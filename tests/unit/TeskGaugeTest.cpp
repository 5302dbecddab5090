#include "teskara/controls/TeskGauge.h"

#include "teskara/controls/TeskGaugeFiller.h"
#include "teskara/core/Limits.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/PressTest.h"

#include <limits>

namespace {

class TeskGaugeTest : public PressTest
{
protected:
    TeskGauge& MakeGauge(const std::string& markup = {}, const char* attributes = "")
    {
        return Make<TeskGauge>("gauge", markup, attributes);
    }

    TeskGauge& PlaceGauge(const std::string& markup) { return Place<TeskGauge>("gauge", markup); }

    // The gauges "Outer" and, in its filler, "Inner".
    TeskGauge& NestGauges(const char* outerRange, const char* innerRange)
    {
        Load(std::string("<gauge name='Outer'><Width>100</Width><Height>20</Height><Range>") + outerRange
            + "</Range><Filler><Width>100%</Width><Height>100%</Height></Filler></gauge>");
        g_UIManager.LoadElement(&Element("Filler@Outer"), "gauge", "Inner",
            g_UIManager.AddTemplate("Inner markup",
                (std::string("<Template><Range>") + innerRange + "</Range><Filler/></Template>").c_str()),
            nullptr);
        return As<TeskGauge>("Inner@Filler@Outer");
    }
};

// A filler whose image has a part that is known before it is loaded.
constexpr char Filler[] = "<Filler><X>0</X><Width>100%</Width><Height>100%</Height>"
                          "<Texture Filename='#bar'><right>50</right><bottom>10</bottom></Texture></Filler>";

} // namespace

TEST_F(TeskGaugeTest, MarkupGivesItsFields)
{
    const TeskGauge& gauge = MakeGauge(
        "<Vertical/><Range>2.5</Range><Border>3</Border><TopTexture Filename='#top'/><Filler><Repeat>4</Repeat>"
        "<Texture Filename='#bar'/></Filler>");
    EXPECT_TRUE(gauge.Vertical);
    EXPECT_EQ(2.5f, gauge.Range);
    EXPECT_EQ(3u, gauge.Border);
    EXPECT_EQ("#top", gauge.TopTexture->Filename);
    EXPECT_EQ(0.0f, gauge.Value);
    EXPECT_FALSE(gauge.InFiller);
    ASSERT_NE(nullptr, gauge.Filler);
    EXPECT_EQ("filler", gauge.Filler->Name);
    EXPECT_EQ("gaugefiller", gauge.Filler->Type);
    EXPECT_EQ(&gauge, gauge.Filler->Parent);
    EXPECT_EQ(&gauge, gauge.Filler->Gauge());
    EXPECT_TRUE(gauge.Filler->Visible);
    EXPECT_TRUE(gauge.Filler->Vertical);
    EXPECT_EQ(2.5f, gauge.Filler->Range);
    EXPECT_EQ(4u, gauge.Filler->Repeat);
    EXPECT_EQ("#bar", gauge.Filler->Texture->Filename);
}

TEST_F(TeskGaugeTest, WithoutMarkupEveryFieldHasItsDefault)
{
    const TeskGauge& gauge = MakeGauge();
    EXPECT_FALSE(gauge.Vertical);
    EXPECT_EQ(0.0f, gauge.Range);
    EXPECT_FALSE(gauge.TopTexture);
    EXPECT_EQ(nullptr, gauge.Filler);
    EXPECT_EQ(0u, gauge.Height);
}

TEST_F(TeskGaugeTest, MadeWithoutMarkupItIs16HighAndReachesToOne)
{
    auto& gauge = dynamic_cast<TeskGauge&>(*g_UIManager.LoadElement(g_UIManager.Screen, "gauge", "G"));
    EXPECT_EQ(16u, gauge.Height);
    EXPECT_EQ(1.0f, gauge.Range);
    EXPECT_EQ(nullptr, gauge.Filler);
    gauge.SetValue(7);
    EXPECT_EQ(1.0f, gauge.Value);
}

TEST_F(TeskGaugeTest, ValuesFallBackToTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate("gauge",
        "<Template><Range>9</Range><Vertical/><TopTexture Filename='#top'/><Filler><Repeat>3</Repeat></Filler>"
        "</Template>");
    g_UIManager.AddTemplate("gaugefiller", "<Template><Repeat>7</Repeat><X>5</X></Template>");
    g_UIManager.AddTemplate("bar", "<Template><Repeat>8</Repeat></Template>");
    const TeskGauge& plain = MakeGauge("<Vertical>0</Vertical>");
    EXPECT_EQ(9.0f, plain.Range);
    EXPECT_FALSE(plain.Vertical);
    EXPECT_EQ("#top", plain.TopTexture->Filename);
    EXPECT_EQ(3u, plain.Filler->Repeat);
    EXPECT_EQ(5, plain.Filler->X);

    EXPECT_EQ(7u, MakeGauge("<Filler/>").Filler->Repeat);
    EXPECT_EQ(8u, MakeGauge("<Filler Template='bar'/>").Filler->Repeat);
}

TEST_F(TeskGaugeTest, IsAGaugeAndAFrame)
{
    TeskGauge& gauge = MakeGauge("<Filler/>");
    EXPECT_TRUE(gauge.IsTypeOf("Gauge"));
    EXPECT_TRUE(gauge.IsTypeOf("frame"));
    EXPECT_TRUE(gauge.IsTypeOf("teskelement"));
    EXPECT_FALSE(gauge.IsTypeOf("gaugefiller"));
    EXPECT_FALSE(gauge.IsTypeOf(nullptr));
    EXPECT_TRUE(gauge.Filler->IsTypeOf("GaugeFiller"));
    EXPECT_TRUE(gauge.Filler->IsTypeOf("teskelement"));
    EXPECT_FALSE(gauge.Filler->IsTypeOf("gauge"));
}

TEST_F(TeskGaugeTest, ColorMasksCoverThoseOfTheTextures)
{
    const TeskGauge& gauge = MakeGauge("<Texture Filename='#a'/><TopTexture Filename='#b'/>"
                                       "<Filler ColorMask='ff445566'><Texture Filename='#c'/></Filler>",
        "ColorMask='ff112233'");
    EXPECT_EQ(0xff112233u, gauge.Texture->ColorMask);
    EXPECT_EQ(0xff112233u, gauge.TopTexture->ColorMask);
    EXPECT_EQ(0xff445566u, gauge.Filler->Texture->ColorMask);
    EXPECT_EQ(u32{TextureHasColorMask}, gauge.Filler->Texture->Flags);
}

TEST_F(TeskGaugeTest, AValueIsKeptWithinTheRange)
{
    TeskGauge& gauge = MakeGauge("<Range>100</Range><Filler/>");
    struct Case {
        float Given;
        float Held;
    };
    for (const auto& [given, held] :
        {Case{-1, 0}, {0, 0}, {42.5f, 42.5f}, {100, 100}, {150, 100}, {std::numeric_limits<float>::quiet_NaN(), 0}}) {
        gauge.SetValue(given);
        EXPECT_EQ(held, gauge.Value);
        EXPECT_EQ(held, gauge.Filler->Value);
    }
}

TEST_F(TeskGaugeTest, WithoutARangeEveryValueIsZero)
{
    TeskGauge& gauge = MakeGauge("<Filler/>");
    gauge.SetValue(50);
    EXPECT_EQ(0.0f, gauge.Value);
}

TEST_F(TeskGaugeTest, AGaugeInAFillerStartsAnewAtItsRange)
{
    TeskGauge& inner = NestGauges("100", "10");
    EXPECT_TRUE(inner.InFiller);
    auto& outer = As<TeskGauge>("Outer");
    struct Case {
        float Given;
        float Inner;
    };
    for (const auto& [given, expected] : {Case{9, 9}, {10, 0}, {37, 7}, {100, 0}, {250, 0}}) {
        outer.SetValue(given);
        EXPECT_EQ(expected, inner.Value) << given;
        EXPECT_EQ(expected, inner.Filler->Value) << given;
    }
    EXPECT_EQ(100.0f, outer.Value);
}

TEST_F(TeskGaugeTest, AGaugeInAFillerWithoutARangeStaysAtZero)
{
    TeskGauge& inner = NestGauges("100", "0");
    As<TeskGauge>("Outer").SetValue(50);
    EXPECT_EQ(0.0f, inner.Value);
}

TEST_F(TeskGaugeTest, GaugesLieInFillersAsDeepAsTheTreeGoes)
{
    TeskGauge* innermost = &NestGauges("100", "7");
    XMLNode* markup = g_UIManager.FindTemplate("Inner markup");
    const auto nest = [&] {
        return dynamic_cast<TeskGauge*>(g_UIManager.LoadElement(innermost->Filler, "gauge", "G", markup, nullptr));
    };
    while (TeskGauge* inner = nest())
        innermost = inner;
    EXPECT_LT(Limits::ElementDepth - 3, innermost->Depth);
    As<TeskGauge>("Outer").SetValue(40);
    EXPECT_EQ(5.0f, innermost->Value);
    Frame();
}

TEST_F(TeskGaugeTest, OnlyGaugesInTheFillerHearOfTheValue)
{
    Load("<gauge name='G'><Range>10</Range><Filler/><Children><gauge name='Beside'><Range>10</Range></gauge></Children>"
         "</gauge>");
    auto& gauge = As<TeskGauge>("G");
    g_UIManager.LoadElement(gauge.Filler, "frame", "Frame");
    auto* variable = dynamic_cast<TeskGauge*>(g_UIManager.LoadElement(gauge.Filler, "variablegauge", "Variable"));
    variable->Range = 4;
    gauge.SetValue(5);
    EXPECT_EQ(1.0f, variable->Value);
    EXPECT_EQ(0.0f, As<TeskGauge>("Beside@G").Value);
    EXPECT_FALSE(As<TeskGauge>("Beside@G").InFiller);
}

TEST_F(TeskGaugeTest, AGaugeWhoseFillerWasDeletedGoesOn)
{
    TeskGauge& gauge = PlaceGauge(std::string("<Range>10</Range>") + Filler);
    gauge.DeleteChild(gauge.Filler);
    EXPECT_EQ(nullptr, gauge.Filler);
    gauge.SetValue(5);
    EXPECT_EQ(5.0f, gauge.Value);
    EXPECT_EQ("DrawRect (10,50,110,70) 00000000\n", Frame());
}

TEST_F(TeskGaugeTest, AFillerDeletedByAGaugeInItEndsTheValuesWay)
{
    class Killer : public TeskGauge
    {
    public:
        using TeskGauge::TeskGauge;
        void SetValue(float) override { Parent->Parent->DeleteChild(Parent); }
    };
    TeskFactory<Killer> factory("killer");
    TeskGauge& gauge = PlaceGauge(std::string("<Range>10</Range>") + Filler);
    g_UIManager.LoadElement(gauge.Filler, "gauge", "First");
    g_UIManager.LoadElement(gauge.Filler, "killer", "Killer");
    g_UIManager.LoadElement(gauge.Filler, "gauge", "Last");
    gauge.SetValue(5);
    EXPECT_EQ(nullptr, gauge.Filler);
    EXPECT_EQ(nullptr, gauge.FirstChild);
    EXPECT_EQ(5.0f, gauge.Value);
}

TEST_F(TeskGaugeTest, ItsTopTextureLiesOverChildren)
{
    Load("<gauge name='G'><Width>100</Width><Height>20</Height><BackgroundColor>ff000001</BackgroundColor>"
         "<TopTexture Filename='#top'/><Children><frame name='F'><Width>5</Width><Height>5</Height>"
         "<BackgroundColor>ff000002</BackgroundColor></frame></Children></gauge>");
    EXPECT_EQ("DrawRect (0,0,100,20) ff000001\nDrawRect (0,0,5,5) ff000002\n"
              "DrawTexturedRect texture 1 to=(0,0,100,20) from=(0,0,0,0) flags=2 alpha=255 orientation=0 "
              "mask=00000000\n",
        Frame());
}

TEST_F(TeskGaugeTest, WithABorderTheTopTextureIsDrawnInNinePieces)
{
    PlaceGauge("<Border>4</Border><TopTexture Filename='#top'><Border>8</Border></TopTexture>");
    const std::string calls = Frame();
    EXPECT_NE(std::string::npos, calls.find("DrawTexturedRects 9\n- texture 1 to=(10,50,14,54) from=(0,0,8,8)"));
}

TEST_F(TeskGaugeTest, AChildThatDeletesTheGaugeEndsTheDrawing)
{
    Load("<gauge name='G'><Width>100</Width><Height>20</Height><TopTexture Filename='#top'/><Children>"
         "<frame name='F'><OnRender>die</OnRender></frame></Children></gauge>");
    Host.Scripts["die"] = [](TeskElement&) { g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("G")); };
    EXPECT_EQ("DrawRect (0,0,100,20) 00000000\n", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("G"));
}

TEST_F(TeskGaugeTest, AGaugeThatDiesWhileItReadsItsFillerIsNotMade)
{
    Host.RestorePosition = [](TeskElement& element) {
        if (element.Name == "filler")
            element.Parent->Parent->DeleteChild(element.Parent);
    };
    Load("<gauge name='G'><Filler><StorePosition/></Filler></gauge>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("G"));
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(TeskGaugeTest, AFillerThatDiesWhileItIsReadLeavesTheGauge)
{
    Host.RestorePosition = [](TeskElement& element) { element.Parent->DeleteChild(&element); };
    const TeskGauge& gauge = MakeGauge("<Filler><StorePosition/></Filler>");
    EXPECT_EQ(nullptr, gauge.Filler);
    EXPECT_EQ(nullptr, gauge.FirstChild);
}
