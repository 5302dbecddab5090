#include "teskara/controls/TeskHudElement.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>

namespace {

class TeskHudElementTest : public ToolkitTest
{
protected:
    // A HUD element at 100, 200 in a white font of size 9.
    TeskHudElement& MakeHud(const std::string& markup)
    {
        Load("<hudelement name='H'><X>100</X><Y>200</Y><Font><Size>9</Size><Color>ffffffff</Color></Font>" + markup
            + "</hudelement>");
        Host.TakeCalls();
        return Hud();
    }

    TeskHudElement& Hud() { return As<TeskHudElement>("H"); }

    // What a frame draws of that text.
    static std::string Drawn(const std::string& text)
    {
        return "DrawText \"" + text + "\" (100,200,100,600) ffffffff format=288 font 1\n";
    }

    // The values of the text are "1", "2" and so on.
    void CountValues()
    {
        Host.Expand = [this](const std::string&) { return std::to_string(++Values); };
    }

    int Values = 0;
};

} // namespace

TEST_F(TeskHudElementTest, MarkupWithoutValuesGivesEveryDefault)
{
    Host.Recorded = RecordSequences;
    Load("<hudelement name='H'/>");
    EXPECT_EQ("", Host.TakeCalls());
    const TeskHudElement& hud = Hud();
    EXPECT_EQ(nullptr, hud.Text.Text);
    EXPECT_EQ("", *hud.Group);
    EXPECT_EQ(0u, hud.UpdateInterval);
    EXPECT_EQ(12, hud.Font->Size);
    EXPECT_EQ(0xffffffffu, hud.Font->Color);
    EXPECT_EQ(12u, hud.Height);
    EXPECT_EQ(20u, hud.Width);
    EXPECT_EQ(nullptr, hud.CurrentText);
    EXPECT_EQ(0u, hud.FramesSinceUpdate);
    EXPECT_FALSE(hud.Dragging);
}

TEST_F(TeskHudElementTest, MarkupGivesEveryValue)
{
    const TeskHudElement& hud = MakeHud("<Text>${Time} it is</Text><Group>Clocks</Group>"
                                        "<UpdateInterval>60</UpdateInterval><Width>70</Width><Height>80</Height>");
    EXPECT_STREQ("${Time} it is", hud.Text.Text.get());
    EXPECT_EQ("Clocks", *hud.Group);
    EXPECT_EQ(60u, hud.UpdateInterval);
    EXPECT_EQ(9, hud.Font->Size);
    EXPECT_EQ(70u, hud.Width);
    EXPECT_EQ(80u, hud.Height);
}

TEST_F(TeskHudElementTest, WhatTheNodeLacksComesFromTheTemplateOfItsKind)
{
    g_UIManager.AddTemplate("hudelement",
        "<Template><Text>of all</Text><Group>All</Group><UpdateInterval>7</UpdateInterval><Font><Size>30</Size></Font>"
        "</Template>");
    g_UIManager.AddTemplate("other", "<Template><Group>Others</Group></Template>");
    Load("<hudelement name='H'><Group>Mine</Group></hudelement><hudelement name='O' Template='other'/>");
    EXPECT_STREQ("of all", Hud().Text.Text.get());
    EXPECT_EQ("Mine", *Hud().Group);
    EXPECT_EQ(7u, Hud().UpdateInterval);
    EXPECT_EQ(30u, Hud().Height);
    EXPECT_EQ("Others", *As<TeskHudElement>("O").Group);
    EXPECT_EQ(0u, As<TeskHudElement>("O").UpdateInterval);
}

TEST_F(TeskHudElementTest, ReadingItTwiceGivesBackWhatItHad)
{
    TeskHudElement& hud = MakeHud("<Text>one</Text>");
    Host.Recorded = RecordSequences;
    EXPECT_TRUE(hud.FromXML(nullptr, nullptr));
    EXPECT_EQ("FreeSequence 1\n", Host.TakeCalls());
    EXPECT_EQ(nullptr, hud.Text.Text);
    EXPECT_EQ(12u, hud.Height);
}

TEST_F(TeskHudElementTest, KnowsTheWordsOfItsKind)
{
    TeskHudElement& hud = MakeHud("");
    EXPECT_TRUE(hud.IsTypeOf("HudElement"));
    EXPECT_TRUE(hud.IsTypeOf("teskelement"));
    EXPECT_FALSE(hud.IsTypeOf("text"));
    EXPECT_FALSE(hud.IsTypeOf(nullptr));
}

TEST_F(TeskHudElementTest, TheValueOfItsTextIsDrawnUnclippedBelowItsChildren)
{
    MakeHud("<Text>${x}</Text><Children><frame name='C'><Width>5</Width><Height>5</Height></frame></Children>");
    Host.Expand = [](const std::string& text) { return text + " is a text longer than its element"; };
    EXPECT_EQ(Drawn("${x} is a text longer than its element") + "DrawRect (100,200,105,205) 00000000\n", Frame());
}

TEST_F(TeskHudElementTest, WithoutATextOnlyItsChildrenAreDrawn)
{
    MakeHud("<Children><frame name='C'/></Children>");
    EXPECT_EQ("DrawRect (100,200,100,200) 00000000\n", Frame());
}

TEST_F(TeskHudElementTest, ATextThatTheHostCannotParseDrawsNothing)
{
    Host.RefusesSequences = true;
    const TeskHudElement& hud = MakeHud("<Text>one</Text>");
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, hud.CurrentText);
}

TEST_F(TeskHudElementTest, AnIntervalOfNoneOrOneEvaluatesInEveryFrame)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text>");
    CountValues();
    EXPECT_EQ(Drawn("1"), Frame());
    EXPECT_EQ(Drawn("2"), Frame());
    hud.UpdateInterval = 1;
    EXPECT_EQ(Drawn("3"), Frame());
    EXPECT_EQ(Drawn("4"), Frame());
}

TEST_F(TeskHudElementTest, AnIntervalOfSixtyDrawsEachValueInSixtyFrames)
{
    const TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>60</UpdateInterval>");
    CountValues();
    for (int value = 1; value <= 3; ++value) {
        for (u32 frame = 0; frame < 60; ++frame) {
            EXPECT_EQ(Drawn(std::to_string(value)), Frame());
            EXPECT_EQ(frame, hud.FramesSinceUpdate);
        }
    }
    EXPECT_EQ(3, Values);
}

TEST_F(TeskHudElementTest, TheLongestIntervalCountsUpToIt)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>4294967295</UpdateInterval>");
    EXPECT_EQ(0xffffffffu, hud.UpdateInterval);
    CountValues();
    Frame();
    hud.FramesSinceUpdate = 0xfffffffdu;
    EXPECT_EQ(Drawn("1"), Frame());
    EXPECT_EQ(Drawn("2"), Frame());
    EXPECT_EQ(0u, hud.FramesSinceUpdate);
}

TEST_F(TeskHudElementTest, AHiddenElementIsNotEvaluatedAndCountsNoFrames)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>2</UpdateInterval>");
    CountValues();
    Frame();
    hud.Show(false);
    EXPECT_EQ("", Frame());
    EXPECT_EQ("", Frame());
    hud.Show(true);
    EXPECT_EQ(Drawn("1"), Frame());
    EXPECT_EQ(Drawn("2"), Frame());
}

TEST_F(TeskHudElementTest, AValueThatIsEmptyOrNullIsNotDrawnButKept)
{
    const TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>2</UpdateInterval>");
    for (const char* value : {"", "NULL", "null", "Null"}) {
        Host.Expand = [&](const std::string&) { return value; };
        EXPECT_EQ("", Frame()) << value;
        ASSERT_TRUE(hud.CurrentText);
        EXPECT_EQ(value, *hud.CurrentText);
        Host.Expand = [](const std::string&) { return "not asked for in this frame"; };
        EXPECT_EQ("", Frame()) << value;
    }
    Host.Expand = [](const std::string&) { return "NULLS"; };
    EXPECT_EQ(Drawn("NULLS"), Frame());
}

TEST_F(TeskHudElementTest, WithoutAValueItIsEvaluatedAgainInTheNextFrame)
{
    const TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>60</UpdateInterval>");
    Host.RefusesValues = true;
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, hud.CurrentText);
    Host.RefusesValues = false;
    EXPECT_EQ(Drawn("${x}"), Frame());
}

TEST_F(TeskHudElementTest, AValueIsCutToItsBufferOf8192Bytes)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text>");
    Host.Recorded = RecordSequences;
    for (const std::size_t length : {8190u, 8191u, 8192u, 100000u}) {
        Host.Expand = [&](const std::string&) { return std::string(length, 'a'); };
        hud.UpdateText();
        EXPECT_EQ(std::string(std::min<std::size_t>(length, 8191), 'a'), *hud.CurrentText);
        EXPECT_EQ("RetrieveProcessedText 1 size=8192\n", Host.TakeCalls());
    }
}

TEST_F(TeskHudElementTest, UpdateTextStartsTheIntervalAnew)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>3</UpdateInterval>");
    CountValues();
    Frame();
    Frame();
    hud.UpdateText();
    EXPECT_EQ("2", *hud.CurrentText);
    EXPECT_EQ(0u, hud.FramesSinceUpdate);
    EXPECT_EQ(Drawn("2"), Frame());
    EXPECT_EQ(Drawn("2"), Frame());
    EXPECT_EQ(Drawn("3"), Frame());
}

TEST_F(TeskHudElementTest, SetTextReplacesTheTextAndEvaluatesItAtOnce)
{
    TeskHudElement& hud = MakeHud("<Text>${x}</Text><UpdateInterval>60</UpdateInterval>");
    Frame();
    Host.Recorded |= RecordSequences;
    hud.SetText("${y}");
    EXPECT_EQ(
        "FreeSequence 1\nPreParseSequence \"${y}\" keep=0 -> 2\nRetrieveProcessedText 2 size=8192\n", Host.TakeCalls());
    EXPECT_EQ(Drawn("${y}"), Frame());
}

TEST_F(TeskHudElementTest, SetTextTakesAPartOfThePresentText)
{
    TeskHudElement& hud = MakeHud("<Text>one two</Text>");
    hud.SetText(hud.Text.Text.get() + 4);
    EXPECT_STREQ("two", hud.Text.Text.get());
    EXPECT_EQ("two", *hud.CurrentText);
}

TEST_F(TeskHudElementTest, SetTextToNothingLeavesNothing)
{
    TeskHudElement& hud = MakeHud("");
    for (const char* nothing : {"", static_cast<const char*>(nullptr)}) {
        hud.SetText("one");
        Host.Recorded = RecordSequences;
        Host.TakeCalls();
        hud.SetText(nothing);
        EXPECT_EQ("FreeSequence " + std::to_string(++Values) + "\n", Host.TakeCalls());
        EXPECT_EQ(0u, hud.Text.Sequence);
        EXPECT_EQ(nullptr, hud.Text.Text);
        EXPECT_EQ(nullptr, hud.CurrentText);
    }
}

TEST_F(TeskHudElementTest, ATextThatSetsAnotherGivesWay)
{
    MakeHud("<Text>${x}</Text><UpdateInterval>60</UpdateInterval>");
    Host.Expand = [this](const std::string& text) {
        if (text == "${x}")
            Hud().SetText("other");
        return text;
    };
    EXPECT_EQ(Drawn("other"), Frame());
    EXPECT_EQ(Drawn("other"), Frame());
}

TEST_F(TeskHudElementTest, ATextThatTakesItselfAwayHasNoValue)
{
    const TeskHudElement& hud = MakeHud("<Text>${x}</Text>");
    Host.Expand = [this](const std::string& text) {
        Hud().SetText(nullptr);
        return text;
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, hud.CurrentText);
    EXPECT_EQ(0u, hud.Text.Sequence);
}

TEST_F(TeskHudElementTest, ATextThatUpdatesItselfOnceKeepsTheValueOfThatUpdate)
{
    MakeHud("<Text>${x}</Text>");
    Host.Expand = [this](const std::string&) {
        const int value = ++Values;
        if (value == 1)
            Hud().UpdateText();
        return std::to_string(value);
    };
    EXPECT_EQ(Drawn("2"), Frame());
}

TEST_F(TeskHudElementTest, TextsThatSetThemselvesWithoutEndAreStopped)
{
    const TeskHudElement& hud = MakeHud("<Text>${x}</Text>");
    Host.Expand = [this](const std::string& text) {
        ++Values;
        Hud().SetText("${y}");
        return text;
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(16, Values);
    EXPECT_EQ(nullptr, hud.CurrentText);
    Host.Expand = nullptr;
    EXPECT_EQ(Drawn("${y}"), Frame());
}

TEST_F(TeskHudElementTest, ATextMayDeleteItsElementInAFrame)
{
    MakeHud("<Text>${x}</Text><Children><frame name='C'/></Children>");
    Host.Expand = [this](const std::string&) {
        g_UIManager.Screen->DeleteChild(&Hud());
        return "one";
    };
    EXPECT_EQ("", Frame());
    EXPECT_EQ(nullptr, g_UIManager.FindElement("H"));
}

TEST_F(TeskHudElementTest, ATextMayDeleteItsElementWhenItIsSet)
{
    TeskHudElement& hud = MakeHud("");
    Host.Expand = [](const std::string& text) {
        g_UIManager.Reset();
        return text;
    };
    hud.SetText("${x}");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("H"));
}

TEST_F(TeskHudElementTest, ATextMayTakeTheFontAway)
{
    MakeHud("<Text>${x}</Text>");
    Host.Expand = [this](const std::string& text) {
        Hud().Font.reset();
        return text;
    };
    EXPECT_EQ("", Frame());
}

TEST_F(TeskHudElementTest, WithoutMarkupItHasNoFontAndDrawsNothing)
{
    auto& hud = dynamic_cast<TeskHudElement&>(*g_UIManager.LoadElement(g_UIManager.Screen, "hudelement", "H"));
    hud.SetText("one");
    EXPECT_EQ("one", *hud.CurrentText);
    EXPECT_EQ(nullptr, hud.Group);
    EXPECT_EQ("", Frame());
}
