#include "teskara/controls/TeskVariableSlider.h"

#include "teskara/core/Limits.h"
#include "tests/unit/PressTest.h"

namespace {

class TeskVariableSliderTest : public PressTest
{
protected:
    // A slider with a range of 100 over a variable from 0 to 1.
    TeskVariableSlider& PlaceSlider(const std::string& markup = {})
    {
        auto& slider = Place<TeskVariableSlider>(
            "variableslider", "<Range>100</Range><Data>Volume</Data>" + markup + "<VariableRange>1</VariableRange>");
        slider.Width = 105;
        Host.Recorded = RecordSequences;
        return slider;
    }

    static void Draw() { g_UIManager.Render(); }

    void Answer(const std::string& text)
    {
        Host.Expand = [text](const std::string&) { return text; };
    }

    // What was written since the last question: the numbers.
    std::string Written()
    {
        constexpr std::string_view begin = "DataParse \"${Volume:Set[";
        std::string numbers;
        for (const std::string& call : Host.Calls) {
            if (call.starts_with(begin))
                numbers += call.substr(begin.size(), call.find(']') - begin.size()) + " ";
        }
        Host.Calls.clear();
        return numbers;
    }
};

} // namespace

TEST_F(TeskVariableSliderTest, MarkupGivesItsFields)
{
    Host.Recorded = RecordSequences;
    const auto& slider = Make<TeskVariableSlider>(
        "variableslider", "<Data>Volume</Data><Offset>1.5</Offset><VariableRange>2</VariableRange><Range>7</Range>");
    EXPECT_EQ("Volume", slider.VariableName);
    EXPECT_EQ("PreParseSequence \"${Volume}\" keep=1 -> 1\n", Host.TakeCalls());
    EXPECT_EQ(1u, slider.Data.Sequence);
    EXPECT_EQ(1.5f, slider.Offset);
    EXPECT_EQ(2.0f, slider.VariableRange);
    EXPECT_EQ(7u, slider.Range);
    EXPECT_FALSE(slider.Initialized);
}

TEST_F(TeskVariableSliderTest, WithoutMarkupEveryFieldHasItsDefault)
{
    Host.Recorded = RecordSequences;
    const auto& slider = Make<TeskVariableSlider>("variableslider");
    EXPECT_EQ("", slider.VariableName);
    EXPECT_EQ(0u, slider.Data.Sequence);
    EXPECT_EQ(0.0f, slider.Offset);
    EXPECT_EQ(0.0f, slider.VariableRange);
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskVariableSliderTest, ItHasATemplateOfItsOwnBeforeThatOfASlider)
{
    g_UIManager.AddTemplate("slider", "<Template><Range>9</Range><Data>Other</Data></Template>");
    EXPECT_EQ(9u, Make<TeskVariableSlider>("variableslider").Range);
    EXPECT_EQ("", Make<TeskVariableSlider>("variableslider").VariableName);
    g_UIManager.AddTemplate("variableslider", "<Template><Range>4</Range><Data>Volume</Data></Template>");
    const auto& slider = Make<TeskVariableSlider>("variableslider");
    EXPECT_EQ(4u, slider.Range);
    EXPECT_EQ("Volume", slider.VariableName);
}

TEST_F(TeskVariableSliderTest, IsAlsoASlider)
{
    auto& slider = Make<TeskVariableSlider>("variableslider");
    for (const char* word : {"VariableSlider", "slider", "teskelement"})
        EXPECT_TRUE(slider.IsTypeOf(word));
    EXPECT_FALSE(slider.IsTypeOf("variablegauge"));
}

TEST_F(TeskVariableSliderTest, TheHandleFollowsTheVariable)
{
    TeskVariableSlider& slider = PlaceSlider("<Offset>0.5</Offset>");
    struct Case {
        const char* Text;
        u32 Value;
    };
    for (const auto& [text, value] : {Case{"0.75", 25}, {"1.5", 100}, {"0.5", 0}, {"0.1", 0}, {"-7", 0}, {"9", 100},
             {"1", 50}, {"words", 0}, {"nan", 0}, {"1.25 loud", 75}}) {
        Answer(text);
        Draw();
        EXPECT_EQ(value, slider.Value) << text;
    }
}

TEST_F(TeskVariableSliderTest, ItWritesNothingBeforeItHasReadTheVariable)
{
    TeskVariableSlider& slider = PlaceSlider();
    slider.SetValue(30);
    EXPECT_EQ("", Written());
    Host.RefusesValues = true;
    Draw();
    EXPECT_FALSE(slider.Initialized);
    slider.SetValue(40);
    EXPECT_EQ("", Written());

    Host.RefusesValues = false;
    Answer("0.5");
    Draw();
    EXPECT_TRUE(slider.Initialized);
    EXPECT_EQ("0.500000 ", Written());
    slider.SetValue(40);
    EXPECT_EQ("0.400000 ", Written());
}

TEST_F(TeskVariableSliderTest, EachFrameWritesWhatTheSliderCanHold)
{
    PlaceSlider();
    Answer("0.507");
    Draw();
    EXPECT_EQ("0.500000 ", Written());
    Draw();
    EXPECT_EQ("0.500000 ", Written());
}

TEST_F(TeskVariableSliderTest, WhatIsWrittenCountsFromTheOffset)
{
    TeskVariableSlider& slider = PlaceSlider("<Offset>-3</Offset>");
    slider.VariableRange = 8;
    slider.Initialized = true;
    for (const u32 value : {0u, 25u, 100u, 200u})
        slider.SetValue(value);
    EXPECT_EQ("-3.000000 -1.000000 5.000000 5.000000 ", Written());
}

TEST_F(TeskVariableSliderTest, WhileItIsDraggedItOnlyWrites)
{
    TeskVariableSlider& slider = PlaceSlider();
    Answer("0.25");
    Draw();
    Written();
    _Point2i point = {10 + 2 + 60, 60};
    EXPECT_TRUE(slider.OnLMouseDown(point));
    EXPECT_EQ("0.600000 ", Written());
    Draw();
    EXPECT_EQ("", Written());
    EXPECT_EQ(60u, slider.Value);
    slider.OnLMouseUp(point);
    Draw();
    EXPECT_EQ(25u, slider.Value);
}

TEST_F(TeskVariableSliderTest, WithoutARangeOfTheVariableItStandsAtZero)
{
    TeskVariableSlider& slider = PlaceSlider("<Offset>2</Offset>");
    slider.VariableRange = 0;
    Answer("7");
    Draw();
    EXPECT_EQ(0u, slider.Value);
    EXPECT_EQ("2.000000 ", Written());
}

TEST_F(TeskVariableSliderTest, WithoutARangeOfItsOwnItWritesTheOffset)
{
    TeskVariableSlider& slider = PlaceSlider("<Offset>2</Offset>");
    slider.Range = 0;
    Answer("7");
    Draw();
    EXPECT_EQ(0u, slider.Value);
    EXPECT_EQ("2.000000 ", Written());
}

TEST_F(TeskVariableSliderTest, WhatIsNoNumberIsNotWritten)
{
    TeskVariableSlider& slider = PlaceSlider();
    slider.Initialized = true;
    for (const char* range : {"inf", "-inf", "nan"}) {
        slider.VariableRange = ReadFloat(range);
        slider.SetValue(10);
        EXPECT_EQ("", Written()) << range;
    }
    slider.VariableRange = 3e38f;
    slider.SetValue(100);
    EXPECT_EQ("300000000549775575777803994281145270272.000000 ", Written());
}

TEST_F(TeskVariableSliderTest, WithoutAVariableItIsASlider)
{
    TeskVariableSlider& slider = PlaceSlider();
    slider.VariableName.clear();
    slider.Data.Clear();
    slider.Initialized = true;
    slider.SetValue(10);
    Draw();
    EXPECT_EQ(10u, slider.Value);
    EXPECT_EQ("", Written());
}

TEST_F(TeskVariableSliderTest, ALongNameIsCutToTheBuffer)
{
    for (const std::size_t length : {2043u, 2044u, 2045u, 2046u, 5000u}) {
        const std::string name(length, 'v');
        Host.Recorded = RecordSequences;
        Host.TakeCalls();
        auto& slider = Make<TeskVariableSlider>("variableslider", "<Range>5</Range><Data>" + name + "</Data>");
        EXPECT_EQ(name, slider.VariableName);
        const std::string reading = ("${" + name + "}").substr(0, 2047);
        EXPECT_NE(std::string::npos, Host.TakeCalls().find('"' + reading + '"')) << length;

        std::string written;
        Host.Expand = [&](const std::string& text) { return written = text; };
        slider.Initialized = true;
        slider.SetValue(3);
        EXPECT_EQ(("${" + name + ":Set[0.000000]}").substr(0, 2047), written) << length;
    }
}

TEST_F(TeskVariableSliderTest, ReadingMayDeleteIt)
{
    PlaceSlider();
    Host.Recorded = RecordDrawing;
    Host.Expand = [](const std::string&) {
        g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("C"));
        return "1";
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}

TEST_F(TeskVariableSliderTest, WritingMayDeleteIt)
{
    PlaceSlider("<HandleTexture Filename='#handle'/>");
    Host.Recorded = RecordDrawing;
    Host.Expand = [](const std::string& text) {
        if (text.find("Set") != text.npos)
            g_UIManager.Screen->DeleteChild(g_UIManager.FindElement("C"));
        return "1";
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}

TEST_F(TeskVariableSliderTest, AChangeThatDeletesItWritesNothing)
{
    TeskVariableSlider& slider = PlaceSlider("<OnChange>die</OnChange>");
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    slider.Initialized = true;
    slider.SetValue(10);
    EXPECT_EQ("", Written());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("C"));
}

TEST_F(TeskVariableSliderTest, AWritingThatSetsTheSliderAgainEndsSometime)
{
    TeskVariableSlider& slider = PlaceSlider();
    int writings = 0;
    Host.Expand = [&](const std::string&) {
        ++writings;
        slider.SetValue(slider.Value == 1 ? 2 : 1);
        return "1";
    };
    slider.Initialized = true;
    slider.SetValue(50);
    EXPECT_EQ(static_cast<int>(Limits::NestedTextUpdates), writings);
    EXPECT_LE(slider.Value, 2u);
}
