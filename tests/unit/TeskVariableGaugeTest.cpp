#include "teskara/controls/TeskVariableGauge.h"

#include "tests/unit/PressTest.h"

namespace {

class TeskVariableGaugeTest : public PressTest
{
protected:
    TeskVariableGauge& PlaceGauge(const std::string& markup)
    {
        return Place<TeskVariableGauge>("variablegauge", "<Range>100</Range>" + markup);
    }

    void Answer(const std::string& text)
    {
        Host.Expand = [text](const std::string&) { return text; };
    }
};

} // namespace

TEST_F(TeskVariableGaugeTest, MarkupGivesItsFields)
{
    const auto& gauge =
        Make<TeskVariableGauge>("variablegauge", "<Range>7</Range><Data>${x}</Data><Offset>1.5</Offset>");
    EXPECT_NE(0u, gauge.Data.Sequence);
    EXPECT_EQ(1.5f, gauge.Offset);
    EXPECT_EQ(7.0f, gauge.Range);

    const auto& plain = Make<TeskVariableGauge>("variablegauge");
    EXPECT_EQ(0u, plain.Data.Sequence);
    EXPECT_EQ(0.0f, plain.Offset);
}

TEST_F(TeskVariableGaugeTest, ItHasATemplateOfItsOwnBeforeThatOfAGauge)
{
    g_UIManager.AddTemplate("gauge", "<Template><Range>9</Range><Offset>9</Offset></Template>");
    EXPECT_EQ(9.0f, Make<TeskVariableGauge>("variablegauge").Range);
    EXPECT_EQ(0.0f, Make<TeskVariableGauge>("variablegauge").Offset);
    g_UIManager.AddTemplate("variablegauge", "<Template><Range>4</Range><Offset>5</Offset></Template>");
    const auto& gauge = Make<TeskVariableGauge>("variablegauge");
    EXPECT_EQ(4.0f, gauge.Range);
    EXPECT_EQ(5.0f, gauge.Offset);
}

TEST_F(TeskVariableGaugeTest, IsAlsoAGauge)
{
    auto& gauge = Make<TeskVariableGauge>("variablegauge");
    for (const char* word : {"VariableGauge", "gauge", "frame", "teskelement"})
        EXPECT_TRUE(gauge.IsTypeOf(word));
    EXPECT_FALSE(gauge.IsTypeOf("variableslider"));
}

TEST_F(TeskVariableGaugeTest, ItFollowsTheNumberInItsDataFromFrameToFrame)
{
    TeskVariableGauge& gauge = PlaceGauge("<Data>${x}</Data><Offset>10</Offset>");
    struct Case {
        const char* Text;
        float Value;
    };
    for (const auto& [text, value] : {Case{"35", 25}, {"60.5 of 100", 50.5f}, {"4", 0}, {"110", 100}, {"900", 100},
             {"words", 0}, {"", 0}, {"90", 80}, {"nan", 0}, {"inf", 100}, {"-inf", 0}}) {
        Answer(text);
        Frame();
        EXPECT_EQ(value, gauge.Value) << text;
    }
}

TEST_F(TeskVariableGaugeTest, DataWithoutAValueLeavesTheGauge)
{
    TeskVariableGauge& gauge = PlaceGauge("<Data>${x}</Data>");
    gauge.SetValue(40);
    Host.RefusesValues = true;
    Frame();
    EXPECT_EQ(40.0f, gauge.Value);
    Host.RefusesValues = false;
    gauge.Data.Clear();
    Frame();
    EXPECT_EQ(40.0f, gauge.Value);
}

TEST_F(TeskVariableGaugeTest, AValueOfAScriptLastsUntilTheNextFrame)
{
    TeskVariableGauge& gauge = PlaceGauge("<Data>${x}</Data>");
    Answer("20");
    gauge.SetValue(40);
    EXPECT_EQ(40.0f, gauge.Value);
    Frame();
    EXPECT_EQ(20.0f, gauge.Value);
}

TEST_F(TeskVariableGaugeTest, DataThatDeletesItsGaugeEndsTheDrawing)
{
    PlaceGauge("<Data>${x}</Data>");
    Host.Expand = [](const std::string&) {
        g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("C"));
        return "5";
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}
