#include "teskara/text/TeskTextEntry.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskTextEntry& MakeEntry()
{
    return dynamic_cast<TeskTextEntry&>(MakeElement("textentry", "E"));
}

} // namespace

TEST(TeskTextEntryTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEntry& entry = MakeEntry();
        const ScriptObject object(entry);
        EXPECT_STREQ("tesktextentry", object.Type().GetName());
        EXPECT_EQ("failed", object.Get("Text"));
        EXPECT_EQ("failed", object.Get("Font"));
        EXPECT_EQ("failed", object.Get("Texture"));
        EXPECT_EQ("failed", object.Get("TextureFocused"));
        EXPECT_EQ("failed", object.Get("TextureCaret"));
        EXPECT_EQ("failed", object.Get("TextureCaretOverwrite"));
        EXPECT_EQ("uint 0", object.Get("MaxLength"));

        entry.ReserveText(10);
        entry.SetText("words");
        entry.Font.reset(TeskFont::New(&entry, "Face", 12, false, false));
        entry.BackgroundColor = 0xff000001;
        entry.BorderColor = 2;
        entry.Border = 3;
        entry.Texture.reset(TeskTexture::New("a"));
        entry.TextureFocused.reset(TeskTexture::New("b"));
        entry.TextureCaret.reset(TeskTexture::New("c"));
        entry.TextureCaretOverwrite.reset(TeskTexture::New("d"));
        EXPECT_EQ("string words", object.Get("Text"));
        EXPECT_EQ("string Face", object.Get("Font")); // no font for a script
        EXPECT_EQ("int -16777215", object.Get("BackgroundColor"));
        EXPECT_EQ("int 2", object.Get("BorderColor"));
        EXPECT_EQ("int 3", object.Get("Border"));
        EXPECT_EQ(entry.Texture.get(), object.Follow("Texture").Value().Object);
        EXPECT_EQ(entry.TextureFocused.get(), object.Follow("TextureFocused").Value().Object);
        EXPECT_EQ(entry.TextureCaret.get(), object.Follow("TextureCaret").Value().Object);
        EXPECT_EQ(entry.TextureCaretOverwrite.get(), object.Follow("TextureCaretOverwrite").Value().Object);
        EXPECT_EQ("uint 10", object.Get("MaxLength"));
    });
}

TEST(TeskTextEntryTypeDeathTest, TheTextIsTheArgumentOrEmpty)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEntry& entry = MakeEntry();
        entry.ReserveText(5);
        const ScriptObject object(entry);
        EXPECT_TRUE(object.Do("SetText", {"words", "ignored"}));
        EXPECT_EQ("string word", object.Get("Text"));
        EXPECT_TRUE(object.Do("SetText"));
        EXPECT_EQ("string ", object.Get("Text"));
    });
}

TEST(TeskTextEntryTypeDeathTest, ColoursAndTheLengthAreSet)
{
    WithToolkit([](ScriptHost&) {
        TeskTextEntry& entry = MakeEntry();
        entry.ReserveText(5);
        const ScriptObject object(entry);
        EXPECT_TRUE(object.Do("SetBackgroundColor", {"ff102030"}));
        EXPECT_TRUE(object.Do("SetBorderColor", {"ff405060"}));
        EXPECT_TRUE(object.Do("SetBorderColor", {"no colour"}));
        EXPECT_EQ(0xff102030u, entry.BackgroundColor);
        EXPECT_EQ(0xff405060u, entry.BorderColor);
        for (const char* method : {"SetBackgroundColor", "SetBorderColor", "SetMaxLength"})
            EXPECT_FALSE(object.Do(method)) << method;
        for (const char* length : {"100", "0", "3"}) {
            EXPECT_TRUE(object.Do("SetMaxLength", {length}));
            EXPECT_EQ(std::string("uint ") + length, object.Get("MaxLength"));
            EXPECT_TRUE(object.Do("SetText", {"0123456789"}));
        }
        EXPECT_EQ("string 01", object.Get("Text"));
        EXPECT_TRUE(object.Do("SetMaxLength", {"-1"}));
        EXPECT_EQ("uint 4294967295", object.Get("MaxLength"));
    });
}
