#include "teskara/controls/TeskVariableSlider.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskSlider& MakeSlider(const char* kind = "slider")
{
    return dynamic_cast<TeskSlider&>(MakeElement(kind, kind));
}

} // namespace

TEST(TeskSliderTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        for (const char* kind : {"slider", "variableslider"}) {
            TeskSlider& slider = MakeSlider(kind);
            const ScriptObject object(slider);
            EXPECT_STREQ("teskslider", object.Type().GetName());
            EXPECT_EQ("int 100", object.Get("Range"));
            EXPECT_EQ("int 0", object.Get("Value"));
            EXPECT_EQ("bool false", object.Get("Vertical"));
            EXPECT_EQ("failed", object.Get("Border"));
            EXPECT_EQ("failed", object.Get("Texture"));
            EXPECT_EQ("failed", object.Get("HandleTexture"));
            slider.Border = 4;
            slider.Range = 4294967295u;
            slider.Value = 9;
            slider.Vertical = true;
            slider.Texture.reset(TeskTexture::New("a"));
            slider.HandleTexture.reset(TeskTexture::New("b"));
            EXPECT_EQ("failed", object.Get("Border"));
            EXPECT_EQ("int -1", object.Get("Range"));
            EXPECT_EQ("int 9", object.Get("Value"));
            EXPECT_EQ("bool true", object.Get("Vertical"));
            EXPECT_EQ(slider.Texture.get(), object.Follow("Texture").Value().Object);
            EXPECT_EQ(slider.HandleTexture.get(), object.Follow("HandleTexture").Value().Object);
        }
    });
}

TEST(TeskSliderTypeDeathTest, ValueAndRangeAreSet)
{
    WithToolkit([](ScriptHost&) {
        TeskSlider& slider = MakeSlider();
        const ScriptObject object(slider);
        EXPECT_TRUE(object.Do("SetValue", {"60"}));
        EXPECT_EQ("int 60", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetRange", {"50"}));
        EXPECT_EQ("int 50", object.Get("Range"));
        EXPECT_EQ("int 50", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetValue", {"-1"})); // the largest number there is
        EXPECT_EQ("int 50", object.Get("Value"));
        EXPECT_TRUE(object.Do("SetRange", {"0"}));
        EXPECT_EQ("int 0", object.Get("Value"));
        EXPECT_FALSE(object.Do("SetValue"));
        EXPECT_FALSE(object.Do("SetRange"));
    });
}
