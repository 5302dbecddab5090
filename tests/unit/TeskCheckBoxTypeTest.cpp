#include "teskara/controls/TeskCommandCheckBox.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskCheckBox& MakeCheckBox(const char* kind = "checkbox")
{
    return dynamic_cast<TeskCheckBox&>(MakeElement(kind, kind));
}

constexpr const char* Members[] = {"Text", "Down", "Checked", "Font", "Texture", "TexturePressed", "TextureHover",
    "TextureChecked", "TextureCheckedPressed", "TextureCheckedHover"};
constexpr const char* Methods[] = {"SetText", "SetChecked", "UnsetChecked", "ToggleChecked"};

} // namespace

TEST(TeskCheckBoxTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        for (const char* kind : {"checkbox", "commandcheckbox"}) {
            TeskCheckBox& box = MakeCheckBox(kind);
            const ScriptObject object(box);
            EXPECT_EQ("bool false", object.Get("Down"));
            EXPECT_EQ("bool false", object.Get("Checked"));
            box.Pressed = true;
            EXPECT_EQ("bool true", object.Get("Down"));
            EXPECT_EQ("bool false", object.Get("Checked"));
            box.Checked = true;
            EXPECT_EQ("bool true", object.Get("Checked"));

            EXPECT_EQ("failed", object.Get("Text"));
            EXPECT_EQ("failed", object.Get("Font"));
            box.Text.PreParse("On");
            box.Font.reset(TeskFont::New(&box, "Sans", 9, false, false));
            EXPECT_EQ("string On", object.Get("Text"));
            EXPECT_EQ(box.Font.get(), object.Follow("Font").Value().Object);

            std::unique_ptr<TeskTexture>* const textures[] = {&box.Texture, &box.TexturePressed, &box.TextureHover,
                &box.TextureChecked, &box.TextureCheckedPressed, &box.TextureCheckedHover};
            for (std::size_t index = 0; index < std::size(textures); ++index) {
                const char* member = Members[4 + index];
                EXPECT_EQ("failed", object.Get(member));
                textures[index]->reset(TeskTexture::New("a"));
                EXPECT_EQ(textures[index]->get(), object.Follow(member).Value().Object);
                EXPECT_STREQ("tesktexture", object.Follow(member).Type().GetName());
            }
        }
    });
}

TEST(TeskCheckBoxTypeDeathTest, ATextIsSetAndTakenAway)
{
    WithToolkit([](ScriptHost&) {
        TeskCheckBox& box = MakeCheckBox();
        const ScriptObject object(box);
        EXPECT_TRUE(object.Do("SetText", {"On"}));
        EXPECT_STREQ("On", box.Text.Text.get());
        EXPECT_TRUE(object.Do("SetText"));
        EXPECT_EQ("failed", object.Get("Text"));
    });
}

TEST(TeskCheckBoxTypeDeathTest, ItIsCheckedWithoutEventAndCommand)
{
    WithToolkit([](ScriptHost& host) {
        TeskCheckBox& box = MakeCheckBox("commandcheckbox");
        dynamic_cast<TeskCommandCheckBox&>(box).Command = "go";
        bool ran = false;
        host.TestHost::Commands["go"] = [&] { ran = true; };
        host.Scripts["click"] = [&](TeskElement&) { ran = true; };
        box.Events.OnLeftClick.reset(TeskEmbeddedScript::New(&box, "click", nullptr));
        const ScriptObject object(box);
        struct Step {
            const char* Method;
            bool Checked;
        };
        for (const Step& step : {Step{"SetChecked", true}, Step{"SetChecked", true}, Step{"UnsetChecked", false},
                 Step{"UnsetChecked", false}, Step{"ToggleChecked", true}, Step{"ToggleChecked", false}}) {
            EXPECT_TRUE(object.Do(step.Method));
            EXPECT_EQ(step.Checked, box.Checked) << step.Method;
        }
        EXPECT_FALSE(ran);
    });
}

TEST(TeskCheckBoxTypeDeathTest, WithoutACheckBoxNothingIsAnswered)
{
    WithToolkit([](ScriptHost& host) {
        MvTypeDefinition& type = host.Type("teskcheckbox");
        for (TeskElement* element : {static_cast<TeskElement*>(nullptr), &MakeElement("button", "B")}) {
            const ScriptObject object(type, element);
            for (const char* member : Members)
                EXPECT_EQ("failed", object.Get(member)) << member;
            for (const char* method : Methods)
                EXPECT_FALSE(object.Do(method, {"1"})) << method;
        }
    });
}

TEST(TeskCheckBoxTypeDeathTest, ItHasWhatEveryElementHas)
{
    WithToolkit([](ScriptHost& host) {
        EXPECT_EQ(&host.Type("teskelement"), host.Type("teskcheckbox").GetBase());
        char text[8];
        MvValue value;
        value.Object = &MakeCheckBox();
        EXPECT_TRUE(host.Type("teskcheckbox").ToText(value, text, sizeof(text)));
        EXPECT_STREQ("checkbo", text);
    });
}
