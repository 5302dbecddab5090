#include "teskara/collections/TeskTabControl.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/ScriptValues.h"

#include <gtest/gtest.h>

namespace {

TeskTabControl& MakeControl(std::initializer_list<const char*> names = {})
{
    auto& control = dynamic_cast<TeskTabControl&>(MakeElement("tabcontrol", "Tabs"));
    for (const char* name : names)
        control.AddTab(name, nullptr, name, nullptr);
    return control;
}

void Delete(TeskElement& element)
{
    element.Parent->DeleteChild(&element);
}

} // namespace

TEST(TeskTabControlTypeDeathTest, MembersTellTheFields)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a", "b"});
        const ScriptObject object(control);
        for (const char* member : {"Font", "TabTexture", "TabSelectedTexture", "SelectedTab"})
            EXPECT_EQ("failed", object.Get(member)) << member;
        control.Font.reset(TeskFont::New(&control, "Sans", 9, false, false));
        control.TabTexture.reset(TeskTexture::New("t"));
        control.TabSelectedTexture.reset(TeskTexture::New("s"));
        control.SelectTab(2);
        EXPECT_EQ(control.Font.get(), object.Follow("Font").Value().Object);
        EXPECT_EQ(control.TabTexture.get(), object.Follow("TabTexture").Value().Object);
        EXPECT_EQ(control.TabSelectedTexture.get(), object.Follow("TabSelectedTexture").Value().Object);
        EXPECT_EQ("int 2", object.Follow("SelectedTab").Get("ID"));
        EXPECT_EQ("int 2", object.Get("Tabs"));
    });
}

TEST(TeskTabControlTypeDeathTest, ANumberIsAPlaceAndAllElseIsAName)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a", "b", "1", "1x"});
        const ScriptObject object(control);
        control.MoveTab(control.RetrieveTab(1), 1);
        EXPECT_EQ("string b", object.Follow("Tab", {"1"}).Get("Name"));
        EXPECT_EQ("string a", object.Follow("Tab", {"2.9"}).Get("Name"));
        EXPECT_EQ("string a", object.Follow("Tab", {"A"}).Get("Name"));
        EXPECT_EQ("string 1x", object.Follow("Tab", {"1X"}).Get("Name"));
        for (const char* which : {"", "0", "5", "-1", "99999999999", "c", "."})
            EXPECT_EQ("failed", object.Get("Tab", {which})) << which;
        EXPECT_EQ("failed", object.Get("Tab"));
    });
}

TEST(TeskTabControlTypeDeathTest, ATabIsAddedOnceForEachName)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl();
        const ScriptObject object(control);
        EXPECT_TRUE(object.Do("AddTab", {"One"}));
        EXPECT_TRUE(object.Do("AddTab", {"Two", "<frame/>"}));
        EXPECT_FALSE(object.Do("AddTab", {"one"}));
        EXPECT_FALSE(object.Do("AddTab"));
        EXPECT_EQ(2u, control.TabCount);
        EXPECT_EQ("two", control.RetrieveTab(2)->Frame->Name);
        EXPECT_EQ(nullptr, control.RetrieveTab(2)->Frame->FirstChild);
    });
}

TEST(TeskTabControlTypeDeathTest, AControlIsNoFrame)
{
    WithToolkit([](ScriptHost&) {
        const ScriptObject object(MakeControl());
        EXPECT_EQ("failed", object.Get("BackgroundColor"));
        EXPECT_FALSE(object.Do("SetBorder", {"1"}));
        EXPECT_EQ("string tabs", object.Get("Name"));
        EXPECT_EQ("unknown", object.Get("TabHeight"));
    });
}

TEST(TeskTabTypeDeathTest, ATabTellsItsFields)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a", "b"});
        const ScriptObject tab = ScriptObject(control).Follow("Tab", {"b"});
        EXPECT_EQ("string b", tab.Get("Name"));
        EXPECT_EQ("int 2", tab.Get("ID"));
        EXPECT_EQ("int 1", tab.Get("Order"));
        char text[2];
        EXPECT_TRUE(tab.Type().ToText(tab.Value(), text, sizeof(text)));
        EXPECT_STREQ("b", text);
        EXPECT_FALSE(tab.Type().ToText(tab.Value(), nullptr, 0));
    });
}

TEST(TeskTabTypeDeathTest, MethodsChangeTheTab)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a", "b", "c"});
        const ScriptObject tab = ScriptObject(control).Follow("Tab", {"b"});
        EXPECT_TRUE(tab.Do("Select"));
        EXPECT_EQ(2u, control.SelectedTab);
        EXPECT_TRUE(tab.Do("Move", {"1"}));
        EXPECT_EQ("int 0", tab.Get("Order"));
        EXPECT_TRUE(tab.Do("Move", {"9"}));
        EXPECT_EQ("int 2", tab.Get("Order"));
        EXPECT_TRUE(tab.Do("Move", {"2"}));
        EXPECT_TRUE(tab.Do("Move", {"0"}));
        EXPECT_EQ("int 2", tab.Get("Order"));
        EXPECT_FALSE(tab.Do("Move"));
        EXPECT_TRUE(tab.Do("Rename", {"d"}));
        EXPECT_EQ("string d", tab.Get("Name"));
        EXPECT_FALSE(tab.Do("Rename"));
        EXPECT_TRUE(tab.Do("Rename", {""}));
        EXPECT_EQ("string ", tab.Get("Name"));
        EXPECT_TRUE(tab.Do("Remove"));
        EXPECT_EQ(2u, control.TabCount);
    });
}

TEST(TeskTabTypeDeathTest, WhatATabDoesNotKnowItsFrameAnswers)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a"});
        TeskFrame& frame = *control.RetrieveTab(1)->Frame;
        frame.Border = 7;
        const ScriptObject tab = ScriptObject(control).Follow("Tab", {"a"});
        EXPECT_EQ("int 7", tab.Get("Border"));
        EXPECT_EQ(&control, tab.Follow("Parent").Value().Object);
        EXPECT_TRUE(tab.Do("SetBorder", {"8"}));
        EXPECT_EQ(8u, frame.Border);
        EXPECT_TRUE(tab.Do("Hide"));
        EXPECT_EQ("unknown", tab.Get("Nothing"));
        _MvTypeVar result;
        EXPECT_EQ(DispatchUnknown, tab.Type().GetIndex(tab.Value(), 0, nullptr, result));
    });
}

TEST(TeskTabTypeDeathTest, WithoutItsFrameATabAnswersForItself)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a"});
        const ScriptObject tab = ScriptObject(control).Follow("Tab", {"a"});
        Delete(*control.RetrieveTab(1)->Frame);
        EXPECT_EQ("string a", tab.Get("Name"));
        EXPECT_EQ("failed", tab.Get("Border"));
        EXPECT_FALSE(tab.Do("SetBorder", {"8"}));
        EXPECT_TRUE(tab.Do("Select"));
    });
}

TEST(TeskTabTypeDeathTest, ATabThatHasEndedAnswersNothing)
{
    const auto expectNothing = [](const ScriptObject& tab) {
        for (const char* member : {"Name", "ID", "Order", "Border", "Width"})
            EXPECT_EQ("failed", tab.Get(member)) << member;
        for (const char* method : {"Select", "Remove", "Move", "Rename", "SetBorder", "Hide"})
            EXPECT_FALSE(tab.Do(method, {"1"})) << method;
        char text[9];
        EXPECT_FALSE(tab.Type().ToText(tab.Value(), text, sizeof(text)));
        _MvTypeVar result;
        EXPECT_EQ(DispatchUnknown, tab.Type().GetIndex(tab.Value(), 0, nullptr, result));
    };
    WithToolkit([&](ScriptHost&) {
        TeskTabControl& control = MakeControl({"a", "b"});
        const ScriptObject object(control);
        const ScriptObject first = object.Follow("Tab", {"a"});
        const ScriptObject second = object.Follow("Tab", {"b"});
        EXPECT_TRUE(first.Do("Remove"));
        expectNothing(first);
        Delete(control);
        expectNothing(second);
        expectNothing(ScriptObject(first.Type(), nullptr));
    });
}

TEST(TeskTabTypeDeathTest, ALaterTabAtTheSameAddressIsAnotherOne)
{
    WithToolkit([](ScriptHost&) {
        TeskTabControl& control = MakeControl();
        const ScriptObject object(control);
        std::vector<ScriptObject> ended;
        for (int turn = 0; turn < 100; ++turn) {
            EXPECT_TRUE(object.Do("AddTab", {"a"}));
            const ScriptObject tab = object.Follow("Tab", {"a"});
            for (const ScriptObject& earlier : ended)
                EXPECT_EQ("failed", earlier.Get("Name"));
            ended.push_back(tab);
            EXPECT_TRUE(tab.Do("Remove"));
        }
    });
}
