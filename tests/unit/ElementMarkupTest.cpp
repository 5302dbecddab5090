#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskEmbeddedScript.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

namespace {

class ElementMarkupTest : public ToolkitTest
{
protected:
    TeskElement& MakeElement(const std::string& markup)
    {
        Load("<frame name='E'>" + markup + "</frame>");
        return Element("E");
    }
};

} // namespace

TEST_F(ElementMarkupTest, WithoutNodeAndTemplateEveryDefaultStays)
{
    TeskElement element("", nullptr, "E");
    EXPECT_TRUE(element.FromXML(nullptr, nullptr));
    EXPECT_EQ(0, element.X);
    EXPECT_EQ(0u, element.Width);
    EXPECT_EQ(PositionAbsolute, element.PositionX.Type);
    EXPECT_EQ(1.0f, element.Alpha);
    EXPECT_EQ(1.0f, element.FadeAlpha);
    EXPECT_EQ(0u, element.FadeDelay);
    EXPECT_EQ(0, element.Strata);
    EXPECT_TRUE(element.Visible);
    EXPECT_FALSE(element.StorePosition);
    EXPECT_FALSE(element.Events.OnLoad);
    EXPECT_FALSE(element.AutoTooltip);
}

TEST_F(ElementMarkupTest, EveryValueIsRead)
{
    const TeskElement& element = MakeElement("<X>1</X><Y>-2</Y><Width>30</Width><Height>40</Height><Alpha>0.5</Alpha>"
                                             "<FadeAlpha>0.25</FadeAlpha><FadeDelay>100</FadeDelay>"
                                             "<FadeDuration>200</FadeDuration><StorePosition>1</StorePosition>"
                                             "<Strata>5</Strata><Visible>0</Visible><AutoTooltip>Hint</AutoTooltip>");
    EXPECT_EQ(1, element.X);
    EXPECT_EQ(-2, element.Y);
    EXPECT_EQ(30u, element.Width);
    EXPECT_EQ(40u, element.Height);
    EXPECT_EQ(0.5f, element.Alpha);
    EXPECT_EQ(0.25f, element.FadeAlpha);
    EXPECT_EQ(100u, element.FadeDelay);
    EXPECT_EQ(200u, element.FadeDuration);
    EXPECT_TRUE(element.StorePosition);
    EXPECT_EQ(5, element.Strata);
    EXPECT_FALSE(element.Visible);
    ASSERT_TRUE(element.AutoTooltip);
    EXPECT_EQ("Hint", *element.AutoTooltip);
}

TEST_F(ElementMarkupTest, FadeAlphaIsAlphaUnlessItIsGiven)
{
    EXPECT_EQ(0.5f, MakeElement("<Alpha>0.5</Alpha>").FadeAlpha);
}

TEST_F(ElementMarkupTest, AlwaysOnTopWinsOverStrata)
{
    EXPECT_EQ(127, MakeElement("<AlwaysOnTop>1</AlwaysOnTop><Strata>5</Strata>").Strata);
    g_UIManager.Reset();
    EXPECT_EQ(5, MakeElement("<AlwaysOnTop>0</AlwaysOnTop><Strata>5</Strata>").Strata);
    g_UIManager.Reset();
    EXPECT_EQ(-56, MakeElement("<Strata>200</Strata>").Strata);
}

TEST_F(ElementMarkupTest, AnEmptyTooltipIsNone)
{
    EXPECT_FALSE(MakeElement("<AutoTooltip></AutoTooltip>").AutoTooltip);
}

TEST_F(ElementMarkupTest, ATemplateFillsWhatTheNodeLeavesOut)
{
    g_UIManager.AddTemplate("frame", "<Template><X>7</X><Y>50%</Y><Alpha>0.5</Alpha><Visible>0</Visible></Template>");
    const TeskElement& element = MakeElement("<Y>3</Y><X/><Visible/>");
    EXPECT_EQ(7, element.X);
    EXPECT_EQ(3, element.Y);
    EXPECT_EQ(PositionAbsolute, element.PositionY.Type);
    EXPECT_EQ(0.5f, element.Alpha);
    EXPECT_TRUE(element.Visible);
}

TEST_F(ElementMarkupTest, TheStartIsKeptBeforeTheStoredPositionComes)
{
    Host.RestorePosition = [](TeskElement& element) { element.X = 99; };
    const TeskElement& element = MakeElement("<X>r5</X><Width>0.5</Width><StorePosition>1</StorePosition>");
    EXPECT_EQ(5, element.StartX);
    EXPECT_EQ(PositionFarEdge, element.StartPositionX.Type);
    EXPECT_EQ(PositionShare, element.StartPositionWidth.Type);
    EXPECT_EQ(0.5f, element.StartPositionWidth.Share());
}

TEST_F(ElementMarkupTest, AllFourValuesAreKeptWithTheirKinds)
{
    const TeskElement& element = MakeElement("<X>-1</X><Y>r2</Y><Height>r3</Height><Width>4</Width>");
    EXPECT_EQ(-1, element.StartX);
    EXPECT_EQ(2, element.StartY);
    EXPECT_EQ(3u, element.StartHeight);
    EXPECT_EQ(4u, element.StartWidth);
    EXPECT_EQ(PositionAbsolute, element.StartPositionX.Type);
    EXPECT_EQ(PositionFarEdge, element.StartPositionY.Type);
    EXPECT_EQ(PositionFarEdge, element.StartPositionHeight.Type);
    EXPECT_EQ(3u, element.StartPositionHeight.Factor);
    EXPECT_EQ(PositionAbsolute, element.StartPositionWidth.Type);
}

TEST_F(ElementMarkupTest, AStoredPositionIsOnlyAskedForWhereItIsWanted)
{
    Host.RestorePosition = [](TeskElement& element) { element.X = 99; };
    EXPECT_EQ(1, MakeElement("<X>1</X>").X);
    g_UIManager.Reset();
    EXPECT_EQ(99, MakeElement("<X>1</X><StorePosition/>").X);
}

TEST_F(ElementMarkupTest, TheHostMayDeleteTheElementWhosePositionItRestores)
{
    Host.RestorePosition = [](TeskElement& element) { element.Parent->DeleteChild(&element); };
    Load("<frame name='E'><StorePosition>1</StorePosition></frame>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("E"));
}

TEST_F(ElementMarkupTest, EachEventIsCompiledInOrderWithItsArguments)
{
    struct Row {
        const char* Tag;
        const char* Arguments;
    };
    constexpr Row rows[] = {
        {"OnLoad", ""},
        {"OnUnload", ""},
        {"OnLeftClick", "int X, int Y"},
        {"OnRightClick", "int X, int Y"},
        {"OnLeftDown", "int X, int Y"},
        {"OnRightDown", "int X, int Y"},
        {"OnDoubleLeftClick", "int X, int Y"},
        {"OnDoubleRightClick", "int X, int Y"},
        {"OnMouseEnter", "int X, int Y"},
        {"OnMouseExit", ""},
        {"OnMouseMove", "int X, int Y"},
        {"OnMouseWheel", "int Offset"},
        {"OnKeyboardEnter", ""},
        {"OnKeyboardExit", ""},
        {"OnKeyUp", "string Key"},
        {"OnKeyDown", "string Key"},
        {"OnRender", ""},
    };
    Host.Recorded = RecordScripts;
    std::string markup;
    std::string expected;
    for (const Row& row : rows) {
        const std::string tag = row.Tag;
        markup = "<" + tag + ">do " + tag + "</" + tag + ">" + markup;
        expected += "CompileAtom \"atom auto(" + std::string(row.Arguments) + ")\n{\ndo " + tag + "\n}\n\"\n";
    }
    MakeElement(markup);
    EXPECT_EQ(expected, Host.TakeCalls());
}

TEST_F(ElementMarkupTest, AnEventOfTheTemplateServesAnElementWithoutOne)
{
    Host.Recorded = RecordScripts;
    g_UIManager.AddTemplate("frame", "<Template><OnLoad>outer</OnLoad><OnUnload>outer</OnUnload></Template>");
    MakeElement("<OnUnload/>");
    EXPECT_EQ("CompileAtom \"atom auto()\n{\nouter\n}\n\"\n", Host.TakeCalls());
    EXPECT_FALSE(Element("E").Events.OnUnload);
}

TEST_F(ElementMarkupTest, AScriptThatDoesNotCompileIsReportedByItsTag)
{
    Host.RefusesScripts = true;
    MakeElement("<OnLoad>x</OnLoad><OnMouseMove>y</OnMouseMove>");
    EXPECT_EQ("PrintLine \"OnLoad embedded script failed to load\"\n"
              "PrintLine \"OnMouseMove embedded script failed to load\"\n",
        Host.TakeCalls());
}

TEST_F(ElementMarkupTest, ANewElementIsSortedIntoItsStrata)
{
    Load("<frame name='A'><Strata>1</Strata></frame><frame name='B'/><frame name='C'/>");
    EXPECT_EQ(&Element("B"), g_UIManager.Screen->FirstChild);
    EXPECT_EQ(&Element("A"), g_UIManager.Screen->LastChild);
}
