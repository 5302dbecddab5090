#include "teskara/controls/TeskTooltip.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskTooltip& MakeTooltip()
{
    return dynamic_cast<TeskTooltip&>(MakeElement("tooltip", "T"));
}

} // namespace

TEST(TeskTooltipTypeDeathTest, MembersTellTheFontAndTheNumberOfLines)
{
    WithToolkit([](ScriptHost&) {
        TeskTooltip& tooltip = MakeTooltip();
        const ScriptObject object(tooltip);
        EXPECT_STREQ("tesktooltip", object.Type().GetName());
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_EQ("uint 0", object.Get("Lines"));
        EXPECT_EQ("failed", object.Get("Line", {"1"}));

        tooltip.Font.reset(TeskFont::New(&tooltip, "Face", 12, false, false));
        tooltip.Border = 3;
        tooltip.Print("a\nb");
        EXPECT_EQ(tooltip.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ("uint 2", object.Get("Lines"));
        EXPECT_EQ("int 3", object.Get("Border")); // a name of the base
        EXPECT_EQ("unknown", object.Get("LineCount"));
    });
}

TEST(TeskTooltipTypeDeathTest, LinesCountFromOneAndAreToldUnevaluated)
{
    WithToolkit([](ScriptHost& host) {
        TeskTooltip& tooltip = MakeTooltip();
        const ScriptObject object(tooltip);
        tooltip.Print("one\n${two}\n");
        host.Expand = [](const std::string&) { return "evaluated"; };
        EXPECT_EQ("string one", object.Get("Line", {"1"}));
        EXPECT_EQ("string ${two}", object.Get("Line", {"2"}));
        EXPECT_EQ("string ", object.Get("Line", {"3"}));
        for (const char* number : {"0", "4", "10", "11", "-1", "-2147483648", "2147483647", "", "word"})
            EXPECT_EQ("failed", object.Get("Line", {number})) << number;
        EXPECT_EQ("failed", object.Get("Line"));
    });
}

TEST(TeskTooltipTypeDeathTest, SetLineChangesALineThatThereIs)
{
    WithToolkit([](ScriptHost&) {
        TeskTooltip& tooltip = MakeTooltip();
        const ScriptObject object(tooltip);
        tooltip.Print("one\ntwo");
        EXPECT_TRUE(object.Do("SetLine", {"2", "${new}\nline", "ignored"}));
        EXPECT_EQ("string ${new}\nline", object.Get("Line", {"2"}));
        EXPECT_TRUE(tooltip.Lines.Get(1)->HasData);
        for (const char* number : {"0", "3", "11", "-1", "-2147483648"})
            EXPECT_FALSE(object.Do("SetLine", {number, "x"})) << number;
        EXPECT_FALSE(object.Do("SetLine", {"1"}));
        EXPECT_FALSE(object.Do("SetLine"));
        EXPECT_EQ("string one", object.Get("Line", {"1"}));
        EXPECT_EQ("uint 2", object.Get("Lines"));
    });
}

TEST(TeskTooltipTypeDeathTest, PrintNeedsATextAndResetTakesAllAway)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeTooltip());
        EXPECT_FALSE(object.Do("Print"));
        EXPECT_EQ("uint 0", object.Get("Lines"));
        EXPECT_TRUE(object.Do("Print", {"a\nb"}));
        EXPECT_TRUE(object.Do("Print", {""}));
        EXPECT_EQ("uint 3", object.Get("Lines"));
        EXPECT_TRUE(object.Do("Reset"));
        EXPECT_EQ("uint 0", object.Get("Lines"));
        EXPECT_EQ("failed", object.Get("Line", {"1"}));
        EXPECT_TRUE(object.Do("Print", {"c"}));
        EXPECT_EQ("string c", object.Get("Line", {"1"}));
    });
}

TEST(TeskTooltipTypeDeathTest, AFreePlaceAmongTheLinesHasNone)
{
    WithToolkit([](ScriptHost&) {
        TeskTooltip& tooltip = MakeTooltip();
        const ScriptObject object(tooltip);
        tooltip.Print("one\ntwo\nthree");
        delete tooltip.Lines.Get(1);
        tooltip.Lines.Set(1, nullptr);
        EXPECT_EQ("failed", object.Get("Line", {"2"}));
        EXPECT_FALSE(object.Do("SetLine", {"2", "x"}));
        EXPECT_EQ("string three", object.Get("Line", {"3"}));
    });
}

TEST(TeskTooltipTypeDeathTest, AnotherKindOfElementHasNoneOfItsValues)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject tooltip(MakeTooltip());
        const ScriptObject frame(tooltip.Type(), &MakeElement("frame", "F"));
        EXPECT_EQ("failed", frame.Get("Lines"));
        EXPECT_FALSE(frame.Do("Print", {"a"}));
        const ScriptObject nothing(tooltip.Type(), nullptr);
        EXPECT_EQ("failed", nothing.Get("Line", {"1"}));
        EXPECT_FALSE(nothing.Do("Reset"));
    });
}
