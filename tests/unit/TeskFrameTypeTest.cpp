#include "teskara/controls/TeskFrame.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

TEST(TeskFrameTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        auto& frame = dynamic_cast<TeskFrame&>(MakeElement("frame", "F"));
        frame.BackgroundColor = 0x7f000001;
        frame.Border = 0xffffffff;
        frame.BorderColor = 0xff00ff00;
        const ScriptObject object(frame);
        EXPECT_EQ("int 2130706433", object.Get("BackgroundColor"));
        EXPECT_EQ("int -1", object.Get("Border"));
        EXPECT_EQ("int -16711936", object.Get("BorderColor"));
        EXPECT_EQ("failed", object.Get("Texture"));
        frame.Texture.reset(TeskTexture::New("a.png"));
        EXPECT_EQ(frame.Texture.get(), object.Follow("Texture").Value().Object);
        EXPECT_STREQ("tesktexture", object.Follow("Texture").Type().GetName());
    });
}

TEST(TeskFrameTypeDeathTest, MethodsSetTheFields)
{
    WithToolkit([](ScriptHost&) {
        auto& frame = dynamic_cast<TeskFrame&>(MakeElement("frame", "F"));
        const ScriptObject object(frame);
        EXPECT_TRUE(object.Do("SetBackgroundColor", {"80112233"}));
        EXPECT_TRUE(object.Do("SetBorder", {"3px"}));
        EXPECT_TRUE(object.Do("SetBorderColor", {"0xff"}));
        EXPECT_EQ(0x80112233u, frame.BackgroundColor);
        EXPECT_EQ(3u, frame.Border);
        EXPECT_EQ(0xffu, frame.BorderColor);
    });
}

TEST(TeskFrameTypeDeathTest, ATextThatIsNoColorLeavesTheColor)
{
    WithToolkit([](ScriptHost&) {
        auto& frame = dynamic_cast<TeskFrame&>(MakeElement("frame", "F"));
        frame.BackgroundColor = 5;
        EXPECT_TRUE(ScriptObject(frame).Do("SetBackgroundColor", {"none"}));
        EXPECT_EQ(5u, frame.BackgroundColor);
    });
}

TEST(TeskFrameTypeDeathTest, ATextureComesFromMarkupAndGoesWithoutOne)
{
    WithToolkit([](ScriptHost&) {
        auto& frame = dynamic_cast<TeskFrame&>(MakeElement("frame", "F"));
        const ScriptObject object(frame);
        EXPECT_TRUE(object.Do("SetTexture", {"<Texture Filename='#fill'/>"}));
        ASSERT_TRUE(frame.Texture);
        EXPECT_TRUE(object.Do("SetTexture", {"<Texture Filename='#other'/>", "no such skin"}));
        EXPECT_EQ("#other", frame.Texture->Filename);
        EXPECT_FALSE(object.Do("SetTexture", {"no markup"}));
        EXPECT_FALSE(frame.Texture);

        EXPECT_TRUE(object.Do("SetTexture", {"<Texture Filename='#fill'/>"}));
        EXPECT_FALSE(object.Do("SetTexture"));
        EXPECT_FALSE(frame.Texture);
    });
}

TEST(TeskFrameTypeDeathTest, WithoutAnElementOrAnArgumentNothingIsAnswered)
{
    WithToolkit([](ScriptHost& host) {
        const ScriptObject nobody(host.Type("teskframe"), nullptr);
        for (const char* member : {"BackgroundColor", "Border", "BorderColor", "Texture"})
            EXPECT_EQ("failed", nobody.Get(member)) << member;
        for (const char* method : {"SetBackgroundColor", "SetBorder", "SetBorderColor", "SetTexture"}) {
            EXPECT_FALSE(nobody.Do(method, {"1"})) << method;
            EXPECT_FALSE(ScriptObject(MakeElement("frame", method)).Do(method)) << method;
        }
    });
}

TEST(TeskFrameTypeDeathTest, AnElementOfAnotherClassHasNothingOfAFrame)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& text = MakeElement("text", "T");
        const ScriptObject object(host.Type("teskframe"), &text);
        EXPECT_EQ("failed", object.Get("Border"));
        EXPECT_FALSE(object.Do("SetBorder", {"1"}));
    });
}
