#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

// A text with a font, and the font as scripts see it.
struct FontCase {
    TeskText& Text = dynamic_cast<TeskText&>(MakeElement("text", "T"));
    TeskFont& Font = *(Text.Font.reset(TeskFont::New(&Text, "Face", 12, false, false)), Text.Font);
    ScriptObject Object = ScriptObject(Text).Follow("Font");
};

} // namespace

TEST(TeskFontTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        test.Font.Color = 0xff00ff00;
        EXPECT_EQ("int 12", test.Object.Get("Height"));
        EXPECT_EQ("string Face", test.Object.Get("Name"));
        EXPECT_EQ("int -16711936", test.Object.Get("Color"));
        EXPECT_EQ("bool false", test.Object.Get("Bold"));
        EXPECT_EQ("uint 18", test.Object.Get("GetTextWidth", {"abc", "ignored"}));
        EXPECT_EQ("uint 0", test.Object.Get("GetTextWidth", {""}));
        EXPECT_EQ("failed", test.Object.Get("GetTextWidth"));
        EXPECT_EQ("unknown", test.Object.Get("Width"));
    });
}

TEST(TeskFontTypeDeathTest, AsTextAFontIsItsFacesName)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        char text[16] = "";
        EXPECT_TRUE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
        EXPECT_STREQ("Face", text);
        EXPECT_TRUE(test.Object.Type().ToText(test.Object.Value(), text, 2));
        EXPECT_STREQ("F", text);
        EXPECT_FALSE(test.Object.Type().ToText(test.Object.Value(), nullptr, 2));
    });
}

TEST(TeskFontTypeDeathTest, AHeightBeyond96IsQuietlyLeftOut)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        EXPECT_TRUE(test.Object.Do("SetHeight", {"96"}));
        EXPECT_EQ(96, test.Font.Size);
        for (const char* height : {"97", "-1", "256", "4294967295"}) {
            EXPECT_TRUE(test.Object.Do("SetHeight", {height}));
            EXPECT_EQ(96, test.Font.Size) << height;
        }
        EXPECT_TRUE(test.Object.Do("SetHeight", {"none"}));
        EXPECT_EQ(0, test.Font.Size);
        EXPECT_FALSE(test.Object.Do("SetHeight"));
    });
}

TEST(TeskFontTypeDeathTest, ANameThatDiffersInCaseAloneIsLeftOut)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        EXPECT_TRUE(test.Object.Do("SetName", {"FACE"}));
        EXPECT_EQ("Face", test.Font.Name);
        EXPECT_TRUE(test.Object.Do("SetName", {"Other"}));
        EXPECT_EQ("Other", test.Font.Name);
        EXPECT_FALSE(test.Object.Do("SetName"));
        EXPECT_EQ("Other", test.Font.Name);
    });
}

TEST(TeskFontTypeDeathTest, AColorThatCannotBeReadIsOpaqueWhite)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        EXPECT_TRUE(test.Object.Do("SetColor", {"80123456"}));
        EXPECT_EQ(0x80123456u, test.Font.Color);
        EXPECT_TRUE(test.Object.Do("SetColor", {"white"}));
        EXPECT_EQ("int -1", test.Object.Get("Color"));
        EXPECT_FALSE(test.Object.Do("SetColor"));
    });
}

TEST(TeskFontTypeDeathTest, BoldIsSwitched)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        EXPECT_TRUE(test.Object.Do("EnableBold"));
        EXPECT_TRUE(test.Font.Bold);
        EXPECT_TRUE(test.Object.Do("EnableBold"));
        EXPECT_TRUE(test.Font.Bold);
        EXPECT_TRUE(test.Object.Do("ToggleBold"));
        EXPECT_FALSE(test.Font.Bold);
        EXPECT_TRUE(test.Object.Do("ToggleBold"));
        EXPECT_TRUE(test.Font.Bold);
        EXPECT_TRUE(test.Object.Do("DisableBold"));
        EXPECT_FALSE(test.Font.Bold);
    });
}

TEST(TeskFontTypeDeathTest, AFontThatHasEndedAnswersNothing)
{
    WithToolkit([](ScriptHost&) {
        FontCase test;
        test.Text.Font.reset();
        EXPECT_EQ("failed", test.Object.Get("Height"));
        EXPECT_EQ("failed", test.Object.Get("Name"));
        EXPECT_FALSE(test.Object.Do("SetHeight", {"5"}));
        char text[16] = "";
        EXPECT_FALSE(test.Object.Type().ToText(test.Object.Value(), text, sizeof(text)));
    });
}

TEST(TeskFontTypeDeathTest, ATextureIsNoFont)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement& frame = MakeElement("frame", "F");
        EXPECT_TRUE(ScriptObject(frame).Do("SetTexture", {"<T Filename='#fill'/>"}));
        const ScriptObject texture = ScriptObject(frame).Follow("Texture");
        EXPECT_EQ("failed", ScriptObject(host.Type("teskfont"), texture.Value().Object).Get("Height"));
        EXPECT_EQ("failed", ScriptObject(host.Type("teskfont"), &frame).Get("Height"));
    });
}

TEST(TeskFontTypeDeathTest, TheNewsOfANewFaceMayEndTheFont)
{
    class Ender : public TeskText
    {
    public:
        using TeskText::TeskText;
        void OnNotify(TeskElement*, unsigned int code, unsigned long long) override
        {
            if (code == NotifyFontChanged)
                Parent->DeleteChild(this);
        }
    };

    WithToolkit([](ScriptHost&) {
        const TeskFactory<Ender> factory("ender");
        const auto change = [](const char* method, std::vector<const char*> arguments) {
            auto& text = dynamic_cast<TeskText&>(MakeElement("ender", "E"));
            text.Font.reset(TeskFont::New(&text, "Face", 12, false, false));
            EXPECT_TRUE(ScriptObject(text).Follow("Font").Do(method, std::move(arguments)));
            EXPECT_EQ(nullptr, g_UIManager.FindElement("E")) << method;
        };
        change("SetHeight", {"5"});
        change("SetName", {"Other"});
        change("EnableBold", {});
        change("ToggleBold", {});
    });
}
