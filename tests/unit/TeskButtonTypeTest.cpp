#include "teskara/controls/TeskCommandButton.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskButton& MakeButton(const char* kind = "button")
{
    return dynamic_cast<TeskButton&>(MakeElement(kind, kind));
}

constexpr const char* Members[] = {
    "Text", "Down", "Font", "BackgroundColor", "Texture", "TexturePressed", "TextureHover", "Border", "BorderColor"};
constexpr const char* Methods[] = {"SetText", "SetBackgroundColor", "SetBorderColor", "SetBorder", "SetTexture",
    "SetTexturePressed", "SetTextureHover"};

} // namespace

TEST(TeskButtonTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        for (const char* kind : {"button", "commandbutton"}) {
            TeskButton& button = MakeButton(kind);
            const ScriptObject object(button);
            EXPECT_EQ("bool false", object.Get("Down"));
            button.Pressed = true;
            button.BackgroundColor = 0x7f000001;
            button.Border = 3;
            button.BorderColor = 0xff00ff00;
            EXPECT_EQ("bool true", object.Get("Down"));
            EXPECT_EQ("int 2130706433", object.Get("BackgroundColor"));
            EXPECT_EQ("int 3", object.Get("Border"));
            EXPECT_EQ("int -16711936", object.Get("BorderColor"));

            for (const char* member : {"Text", "Font", "Texture", "TexturePressed", "TextureHover"})
                EXPECT_EQ("failed", object.Get(member)) << member;
            button.Text.PreParse("Go ${Where}");
            button.Font.reset(TeskFont::New(&button, "Sans", 9, false, false));
            button.Texture.reset(TeskTexture::New("a"));
            button.TexturePressed.reset(TeskTexture::New("b"));
            button.TextureHover.reset(TeskTexture::New("c"));
            EXPECT_EQ("string Go ${Where}", object.Get("Text"));
            EXPECT_EQ(button.Font.get(), object.Follow("Font").Value().Object);
            EXPECT_STREQ("teskfont", object.Follow("Font").Type().GetName());
            EXPECT_EQ(button.Texture.get(), object.Follow("Texture").Value().Object);
            EXPECT_EQ(button.TexturePressed.get(), object.Follow("TexturePressed").Value().Object);
            EXPECT_EQ(button.TextureHover.get(), object.Follow("TextureHover").Value().Object);
        }
    });
}

TEST(TeskButtonTypeDeathTest, MethodsSetTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskButton& button = MakeButton();
        const ScriptObject object(button);
        EXPECT_TRUE(object.Do("SetBackgroundColor", {"80112233"}));
        EXPECT_TRUE(object.Do("SetBorderColor", {"ff"}));
        EXPECT_TRUE(object.Do("SetBorder", {"3px"}));
        EXPECT_EQ(0x80112233u, button.BackgroundColor);
        EXPECT_EQ(0xffu, button.BorderColor);
        EXPECT_EQ(3u, button.Border);

        EXPECT_TRUE(object.Do("SetTexture", {"<Texture Filename='#a'/>"}));
        EXPECT_TRUE(object.Do("SetTexturePressed", {"<Texture Filename='#b'/>"}));
        EXPECT_TRUE(object.Do("SetTextureHover", {"<Texture Filename='#c'/>"}));
        EXPECT_EQ("#a", button.Texture->Filename);
        EXPECT_EQ("#b", button.TexturePressed->Filename);
        EXPECT_EQ("#c", button.TextureHover->Filename);
        EXPECT_FALSE(object.Do("SetTextureHover"));
        EXPECT_FALSE(button.TextureHover);
        EXPECT_TRUE(button.Texture);
    });
}

TEST(TeskButtonTypeDeathTest, ATextIsSetAndTakenAway)
{
    WithToolkit([](ScriptHost&) {
        TeskButton& button = MakeButton();
        const ScriptObject object(button);
        EXPECT_TRUE(object.Do("SetText", {"Go"}));
        EXPECT_STREQ("Go", button.Text.Text.get());
        EXPECT_NE(0u, button.Text.Sequence);
        EXPECT_TRUE(object.Do("SetText", {""}));
        EXPECT_EQ("string ", object.Get("Text"));
        EXPECT_TRUE(object.Do("SetText"));
        EXPECT_EQ(0u, button.Text.Sequence);
        EXPECT_EQ("failed", object.Get("Text"));
    });
}

TEST(TeskButtonTypeDeathTest, WithoutAnArgumentNothingIsSet)
{
    WithToolkit([](ScriptHost&) {
        TeskButton& button = MakeButton();
        for (const char* method : {"SetBackgroundColor", "SetBorderColor", "SetBorder"})
            EXPECT_FALSE(ScriptObject(button).Do(method)) << method;
    });
}

TEST(TeskButtonTypeDeathTest, WithoutAButtonNothingIsAnswered)
{
    WithToolkit([](ScriptHost& host) {
        MvTypeDefinition& type = host.Type("teskbutton");
        for (TeskElement* element : {static_cast<TeskElement*>(nullptr), &MakeElement("checkbox", "C")}) {
            const ScriptObject object(type, element);
            for (const char* member : Members)
                EXPECT_EQ("failed", object.Get(member)) << member;
            for (const char* method : Methods)
                EXPECT_FALSE(object.Do(method, {"1"})) << method;
        }
    });
}

TEST(TeskButtonTypeDeathTest, ItHasWhatEveryElementHas)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ(&host.Type("teskelement"), host.Type("teskbutton").GetBase());
        char text[8];
        MvValue value;
        value.Object = &MakeButton();
        EXPECT_TRUE(host.Type("teskbutton").ToText(value, text, sizeof(text)));
        EXPECT_STREQ("button", text);
    });
}
