#include "teskara/controls/TeskGaugeFiller.h"
#include "teskara/controls/TeskVariableGauge.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskGauge& MakeGauge(const char* kind = "gauge")
{
    return dynamic_cast<TeskGauge&>(MakeElement(kind, kind));
}

} // namespace

TEST(TeskGaugeTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        for (const char* kind : {"gauge", "variablegauge"}) {
            TeskGauge& gauge = MakeGauge(kind);
            const ScriptObject object(gauge);
            EXPECT_STREQ("teskgauge", object.Type().GetName());
            EXPECT_EQ("bool false", object.Get("Vertical"));
            EXPECT_EQ("float 1", object.Get("Range"));
            EXPECT_EQ("float 0", object.Get("Value"));
            gauge.Vertical = true;
            gauge.Range = 2.5f;
            gauge.Value = 0.5f;
            EXPECT_EQ("bool true", object.Get("Vertical"));
            EXPECT_EQ("float 2.5", object.Get("Range"));
            EXPECT_EQ("float 0.5", object.Get("Value"));
        }
    });
}

TEST(TeskGaugeTypeDeathTest, ItsBorderHasNoValueAndHidesThatOfTheFrame)
{
    WithToolkit([](ScriptHost&) {
        TeskGauge& gauge = MakeGauge();
        gauge.Border = 3;
        gauge.BackgroundColor = 7;
        EXPECT_EQ("failed", ScriptObject(gauge).Get("Border"));
        EXPECT_EQ("int 7", ScriptObject(gauge).Get("BackgroundColor"));
    });
}

TEST(TeskGaugeTypeDeathTest, AValueIsSetWithinTheRange)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeGauge());
        EXPECT_TRUE(object.Do("SetValue", {"0.75"}));
        EXPECT_EQ("float 0.75", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetValue", {"3"}));
        EXPECT_EQ("float 1", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetValue", {"words"}));
        EXPECT_EQ("float 0", object.Get("Value"));
        EXPECT_FALSE(object.Do("SetValue"));
    });
}

TEST(TeskGaugeTypeDeathTest, ARangeIsSetForTheFillerTooAndTheValueKeptWithin)
{
    WithToolkit([](ScriptHost&) {
        TeskGauge& gauge = MakeGauge();
        gauge.Filler = TeskElementFactory::New<TeskGaugeFiller>("gaugefiller", &gauge, "filler");
        const ScriptObject object(gauge);
        EXPECT_TRUE(object.Do("SetRange", {"100"}));
        gauge.SetValue(60);
        EXPECT_TRUE(object.Do("SetRange", {"50.5"}));
        EXPECT_EQ("float 50.5", object.Get("Range"));
        EXPECT_EQ("float 50.5", object.Get("Value"));
        EXPECT_EQ(50.5f, gauge.Filler->Range);
        EXPECT_EQ(50.5f, gauge.Filler->Value);
        EXPECT_FALSE(object.Do("SetRange"));
        EXPECT_EQ(50.5f, gauge.Range);
    });
}
