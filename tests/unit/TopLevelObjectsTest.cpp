#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

TEST(TopLevelObjectsDeathTest, UIElementSurvivesBadIndexes)
{
    WithToolkit([](ScriptHost& host) {
        const TopLevelObjectHandler handler = host.Objects.at("UIElement");
        _MvTypeVar result;
        char* argv[] = {nullptr};
        EXPECT_FALSE(handler(0, nullptr, result));
        EXPECT_FALSE(handler(-1, argv, result));
        EXPECT_FALSE(handler(1, nullptr, result));
        EXPECT_FALSE(handler(1, argv, result));
        EXPECT_FALSE(host.Ask("UIElement", {""}, result));
        EXPECT_EQ(nullptr, result.Type);
    });
}

TEST(TopLevelObjectsDeathTest, UIElementGivesTheElementAndItsType)
{
    WithToolkit([](ScriptHost& host) {
        _MvTypeVar result;
        ASSERT_TRUE(host.Ask("UIElement", {"sCREEN"}, result));
        EXPECT_EQ(g_UIManager.Screen, result.Value.Object);
        EXPECT_EQ(&host.Type("teskelement"), result.Type);

        _MvTypeVar byID;
        ASSERT_TRUE(host.Ask("UIElement", {"1", "ignored"}, byID));
        EXPECT_EQ(g_UIManager.Screen, byID.Value.Object);
    });
}

TEST(TopLevelObjectsDeathTest, QuestionsForWhatIsNotThereLeaveTheIndexesAlone)
{
    WithToolkit([](ScriptHost& host) {
        const std::size_t names = g_UIManager.ElementsByName.size();
        const std::size_t ids = g_UIManager.ElementsByID.size();
        _MvTypeVar result;
        for (const char* index : {"500", "-7", "12.5", "nobody", "", "-", "."})
            EXPECT_FALSE(host.Ask("UIElement", {index}, result)) << index;
        EXPECT_EQ(names, g_UIManager.ElementsByName.size());
        EXPECT_EQ(ids, g_UIManager.ElementsByID.size());
    });
}

TEST(TopLevelObjectsDeathTest, UserInputIsTheAnswerOfTheRunningScript)
{
    WithToolkit([](ScriptHost& host) {
        TestScript script;
        _MvTypeVar result;
        EXPECT_FALSE(host.Ask("UserInput", {}, result));
        host.Script = &script;
        EXPECT_FALSE(host.Ask("UserInput", {}, result));
        EXPECT_EQ(nullptr, result.Type);

        script.UserInput = "yes";
        ASSERT_TRUE(host.Ask("UserInput", {}, result));
        EXPECT_STREQ("yes", result.Value.Text);
        EXPECT_EQ(host.HostTypes.at("string").get(), result.Type);

        script.UserInput = "";
        ASSERT_TRUE(host.Ask("UserInput", {}, result));
        EXPECT_STREQ("", result.Value.Text);

        script.Throws = true;
        EXPECT_FALSE(host.Ask("UserInput", {}, result));
        host.Script = nullptr;
    });
}

TEST(TopLevelObjectsDeathTest, AnAnswerHasNoValueAtAHostWithoutStrings)
{
    WithHost([](ScriptHost& host) {
        host.HasTypes = false;
        g_UIManager.Initialize();
        TestScript script;
        script.UserInput = "yes";
        host.Script = &script;
        _MvTypeVar result;
        EXPECT_FALSE(host.Ask("UserInput", {}, result));
        host.Script = nullptr;
    });
}

TEST(TopLevelObjectsDeathTest, TeskaraIsTheNumberOneOfItsType)
{
    WithToolkit([](ScriptHost& host) {
        _MvTypeVar result;
        ASSERT_TRUE(host.Ask("Teskara", {}, result));
        EXPECT_EQ(1, result.Value.Integer);
        EXPECT_EQ(&host.Type("teskara"), result.Type);
    });
}
