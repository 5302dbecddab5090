#include "teskara/collections/TeskComboBox.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

TEST(TeskComboBoxTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        auto& combo = dynamic_cast<TeskComboBox&>(MakeElement("combobox", "Combo"));
        const ScriptObject object(combo);
        for (const char* member : {"Font", "Texture", "ButtonTexture"})
            EXPECT_EQ("failed", object.Get(member)) << member;
        combo.Font.reset(TeskFont::New(&combo, "Sans", 9, false, false));
        combo.Texture.reset(TeskTexture::New("a"));
        combo.ButtonTexture.reset(TeskTexture::New("b"));
        combo.Border = 3;
        combo.Down = true;
        combo.Selection = 7;
        EXPECT_EQ("int 3", object.Get("Border"));
        EXPECT_EQ("bool true", object.Get("Down"));
        EXPECT_EQ("int 7", object.Get("Selection"));
        EXPECT_EQ(combo.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ(combo.Texture.get(), object.Follow("Texture").Value().Object);
        EXPECT_EQ(combo.ButtonTexture.get(), object.Follow("ButtonTexture").Value().Object);
    });
}

TEST(TeskComboBoxTypeDeathTest, TheSelectionIsSetWithoutTheList)
{
    WithToolkit([](ScriptHost&) {
        auto& combo = dynamic_cast<TeskComboBox&>(MakeElement("combobox", "Combo"));
        const ScriptObject object(combo);
        EXPECT_TRUE(object.Do("SetSelection", {"5"}));
        EXPECT_EQ(5u, combo.Selection);
        EXPECT_FALSE(object.Do("SetSelection"));
    });
}

TEST(TeskComboBoxTypeDeathTest, TheNamesOfAListAreKnownAndNeverAnswered)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeElement("combobox", "Combo"));
        EXPECT_EQ("failed", object.Get("Items"));
        EXPECT_FALSE(object.Do("AddItem", {"row"}));
        EXPECT_EQ("string combo", object.Get("Name"));
    });
}
