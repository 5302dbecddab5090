#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

} // namespace

TEST(CommandsDeathTest, CommandsSurviveBadArguments)
{
    WithToolkit([](ScriptHost& host) {
        char name[] = "UI";
        char flag[] = "-load";
        char* noTexts[] = {nullptr, nullptr, nullptr};
        char* noFile[] = {name, flag, nullptr};
        for (const auto& [command, handler] : host.Commands) {
            const int expected = command == "InputBox" ? 1 : 0;
            EXPECT_EQ(expected, handler(0, nullptr)) << command;
            EXPECT_EQ(expected, handler(-5, noTexts)) << command;
            EXPECT_EQ(expected, handler(3, nullptr)) << command;
            EXPECT_EQ(expected, handler(2, noTexts)) << command;
        }
        EXPECT_EQ(-1, host.Commands.at("UI")(3, noFile));
        EXPECT_EQ("Could not load interface file ''", host.Lines.back());
    });
}

TEST(CommandsDeathTest, MessagesNameTheCommandAsItWasCalled)
{
    WithToolkit([](ScriptHost& host) {
        char name[] = "ui%s";
        char* argv[] = {name};
        host.Lines.clear();
        EXPECT_EQ(0, host.Commands.at("UI")(1, argv));
        EXPECT_EQ(Lines({"Syntax: ui%s -reset|-[re]load [-parent <FQN>] [-skin <name>] <filename> [<element name> [new "
                         "name]]|-unload <filename>"}),
            host.Lines);
    });
}

TEST(CommandsDeathTest, AListGoesOnWhenPrintingDeletesElements)
{
    WithToolkit([](ScriptHost& host) {
        TeskElement* first = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "First");
        TeskElement* second = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Second");
        TeskElement* third = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "Third");
        ASSERT_TRUE(first && second && third);

        host.Lines.clear();
        host.OnPrintLine = [&] {
            if (host.Lines.size() == 1) {
                first->Parent->DeleteChild(first);
                second->Parent->DeleteChild(second);
            }
        };
        EXPECT_EQ(0, host.Run("UIElement", {"-list"}));
        EXPECT_EQ(Lines({"Top-Level UI Elements\n--------------------------", "frame 'third' - Shown"}), host.Lines);
    });
}

TEST(CommandsDeathTest, AListEndsWhenPrintingResetsTheScreen)
{
    WithToolkit([](ScriptHost& host) {
        ASSERT_TRUE(g_UIManager.LoadElement(g_UIManager.Screen, "frame", "First"));
        host.Lines.clear();
        host.OnPrintLine = [] { g_UIManager.Reset(); };
        EXPECT_EQ(0, host.Run("UIElement", {"-list"}));
        EXPECT_EQ(1u, host.Lines.size());
    });
}

TEST(CommandsDeathTest, TheBoxOfAScriptBearsItsName)
{
    WithToolkit([](ScriptHost& host) {
        TestScript script;
        host.Script = &script;
        const std::string longName(600, 'n');
        for (const std::string& name : {std::string("Worker"), longName}) {
            script.Name = name.c_str();
            const std::string kept = name.substr(0, 511);
            host.Lines.clear();
            EXPECT_EQ(0, host.Run("MessageBox", {"Hello"}));
            EXPECT_EQ(0, host.Run("InputBox", {"Hello"}));
            EXPECT_EQ(Lines({"CreateUIElement failed on '" + kept + " MessageBox' under 'screen'", "MessageBox failed",
                          "CreateUIElement failed on '" + kept + " InputBox' under 'screen'", "InputBox failed"}),
                host.Lines);
        }
        script.Name = nullptr;
        EXPECT_EQ(0, host.Run("MessageBox", {"Hello"}));
        host.Script = nullptr;
    });
}
