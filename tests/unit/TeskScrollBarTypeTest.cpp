#include "teskara/controls/TeskScrollBar.h"

#include "teskara/controls/TeskSlider.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskScrollBar& MakeBar()
{
    auto& bar = dynamic_cast<TeskScrollBar&>(MakeElement("scrollbar", "B"));
    _CreateScrollBar record;
    record.Range = 20;
    record.Vertical = true;
    bar.Create(record, nullptr);
    bar.Slider->Height = 105;
    return bar;
}

} // namespace

TEST(TeskScrollBarTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskScrollBar& bar = MakeBar();
        const ScriptObject object(bar);
        EXPECT_STREQ("teskscrollbar", object.Type().GetName());
        EXPECT_EQ("int 0", object.Get("Value"));
        EXPECT_EQ("int 20", object.Get("Range"));
        EXPECT_EQ("bool true", object.Get("Vertical"));
        bar.SetValue(7);
        EXPECT_EQ("int 7", object.Get("Value"));
    });
}

TEST(TeskScrollBarTypeDeathTest, MethodsAreItsOperations)
{
    WithToolkit([](ScriptHost&) {
        TeskScrollBar& bar = MakeBar();
        const ScriptObject object(bar);
        EXPECT_TRUE(object.Do("SetValue", {"7"}));
        EXPECT_EQ(7u, bar.GetValue());
        EXPECT_TRUE(object.Do("RaiseValue", {"5"}));
        EXPECT_EQ(12u, bar.GetValue());
        EXPECT_TRUE(object.Do("LowerValue", {"3"}));
        EXPECT_EQ(9u, bar.GetValue());
        EXPECT_TRUE(object.Do("LowerValue", {"10"}));
        EXPECT_EQ(0u, bar.GetValue());
        EXPECT_TRUE(object.Do("SetValue", {"99"}));
        EXPECT_TRUE(object.Do("SetRange", {"15"}));
        EXPECT_EQ(15u, bar.GetValue());
        EXPECT_EQ(15u, bar.Range);
        EXPECT_EQ(15u, bar.Slider->Range);
        for (const char* method : {"SetValue", "RaiseValue", "LowerValue", "SetRange"})
            EXPECT_FALSE(object.Do(method));
    });
}

TEST(TeskScrollBarTypeDeathTest, ANegativeNumberIsALargeOne)
{
    WithToolkit([](ScriptHost&) {
        TeskScrollBar& bar = MakeBar();
        const ScriptObject object(bar);
        EXPECT_TRUE(object.Do("SetValue", {"-1"}));
        EXPECT_EQ(20u, bar.GetValue());
        EXPECT_TRUE(object.Do("SetRange", {"-1"}));
        EXPECT_EQ(0xffffffff, bar.Range);
        EXPECT_TRUE(object.Do("LowerValue", {"-1"}));
        EXPECT_EQ(0u, bar.GetValue());
    });
}

TEST(TeskScrollBarTypeDeathTest, WithoutASliderTheValueIsZero)
{
    WithToolkit([](ScriptHost&) {
        TeskScrollBar& bar = MakeBar();
        bar.DeleteChild(bar.Slider);
        const ScriptObject object(bar);
        EXPECT_EQ("int 0", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetValue", {"7"}));
        EXPECT_TRUE(object.Do("SetRange", {"7"}));
        EXPECT_EQ("int 0", object.Get("Value"));
        EXPECT_EQ("int 20", object.Get("Range"));
    });
}

TEST(TeskScrollBarTypeDeathTest, AChangeOfTheRangeMayEndTheBar)
{
    WithToolkit([](ScriptHost& host) {
        TeskScrollBar& bar = MakeBar();
        bar.SetValue(20);
        bar.Slider->OnChange.reset(TeskEmbeddedScript::New(bar.Slider, "die", ""));
        host.Scripts["die"] = [](TeskElement& slider) { slider.Parent->Parent->DeleteChild(slider.Parent); };
        EXPECT_TRUE(ScriptObject(bar).Do("SetRange", {"5"}));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
    });
}
