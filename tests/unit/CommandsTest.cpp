#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

// Null if there is no element of that name and class.
template <class Kind> Kind* Find(const std::string& name)
{
    return dynamic_cast<Kind*>(g_UIManager.FindElement(name.c_str()));
}

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
            EXPECT_EQ(0, host.Run("MessageBox", {"Hello"}));
            EXPECT_EQ(0, host.Run("InputBox", {"Hello"}));
            const auto* message = Find<TeskScriptMessageBox>(kept + " MessageBox");
            const auto* input = Find<TeskScriptInputBox>(kept + " InputBox");
            ASSERT_TRUE(message && input);
            EXPECT_EQ(kept, *message->Title);
            EXPECT_EQ(kept, *input->Title);
            EXPECT_EQ(message->ID, script.MessageBoxID);
            EXPECT_EQ(input->ID, script.InputBoxID);
            EXPECT_EQ(input->Entry, g_UIManager.GetFocusElement());
            g_UIManager.Reset();
        }
        script.Name = nullptr;
        EXPECT_EQ(0, host.Run("MessageBox", {"Hello"}));
        EXPECT_TRUE(Find<TeskScriptMessageBox>(" MessageBox"));
        EXPECT_EQ(Lines(), host.Lines);
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, OutsideAScriptThereIsOneBox)
{
    WithToolkit([](ScriptHost& host) {
        TestScript script;
        script.InsideAtom = true;
        for (HostScript* running : {static_cast<HostScript*>(nullptr), static_cast<HostScript*>(&script)}) {
            host.Script = running;
            EXPECT_EQ(0, host.Run("MessageBox", {"-yesno", "Hello", "ignored"}));
            const auto* box = Find<TeskMessageBox>("MessageBox");
            ASSERT_TRUE(box);
            EXPECT_EQ("Alert", *box->Title);
            EXPECT_EQ(MessageBoxYesNo, box->Type);
            EXPECT_EQ(0u, script.MessageBoxID);
            EXPECT_EQ(Lines(), host.Lines);

            EXPECT_EQ(0, host.Run("MessageBox", {"Again"}));
            EXPECT_EQ(
                Lines({"Child named 'MessageBox' already exists in parent element 'screen'", "MessageBox failed"}),
                host.Lines);
            host.Lines.clear();
            g_UIManager.Reset();
        }
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, ABoxClearsTheAnswerThatTheScriptHad)
{
    WithToolkit([](ScriptHost& host) {
        TestScript script;
        host.Script = &script;
        script.SetUserInput("old");
        host.Run("MessageBox", {"Hello"});
        EXPECT_EQ(nullptr, script.UserInput);
        script.SetUserInput("old");
        host.Run("InputBox", {"Hello"});
        EXPECT_EQ(nullptr, script.UserInput);
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, FlagsOfBoxesMayEndTheLineAnywhere)
{
    const std::vector<const char*> words = {"-skin", "Dark", "-template", "Look", "-okcancel", "Hello"};
    WithToolkit([&](ScriptHost& host) {
        TestScript script;
        host.Script = &script;
        TeskSkin* skin = g_UIManager.CurrentSkin;
        g_UIManager.NewSkin("Dark");
        for (const char* command : {"MessageBox", "InputBox"}) {
            for (std::size_t first = 0; first < words.size(); ++first) {
                for (std::size_t end = first; end <= words.size(); ++end) {
                    host.Lines.clear();
                    EXPECT_EQ(0,
                        host.Run(command,
                            {words.begin() + static_cast<long>(first), words.begin() + static_cast<long>(end)}));
                    EXPECT_EQ(host.Lines.empty(), g_UIManager.Screen->FirstChild != nullptr);
                    EXPECT_EQ(skin, g_UIManager.CurrentSkin);
                    for (const std::string& line : host.Lines)
                        EXPECT_TRUE(line.starts_with(std::string("Syntax: ") + command)) << line;
                    g_UIManager.Reset();
                }
            }
        }
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, TheTemplateOfABoxIsFoundUnderItsSkin)
{
    WithToolkit([](ScriptHost& host) {
        TeskSkin* dark = g_UIManager.NewSkin("Dark");
        ASSERT_TRUE(dark);
        dark->AddTemplate("messagebox", "darkbox");
        dark->AddTemplate("Look", "darklook");
        const auto add = [](const char* name, const char* color) {
            const std::string markup =
                std::string("<Template><BackgroundColor>") + color + "</BackgroundColor></Template>";
            g_UIManager.AddTemplate(name, markup.c_str());
        };
        add("messagebox", "1");
        add("darkbox", "2");
        add("Look", "3");
        add("darklook", "4");
        struct Row {
            std::vector<const char*> Words;
            u32 Color;
        };
        const Row rows[] = {
            {{"Hello"}, 1},
            {{"-skin", "Dark", "Hello"}, 2},
            {{"-skin", "nosuch", "Hello"}, 1},
            {{"-template", "Look", "Hello"}, 3},
            {{"-template", "nosuch", "Hello"}, 1},
            {{"-SKIN", "dark", "-Template", "look", "-OK", "Hello"}, 4},
        };
        for (const Row& row : rows) {
            host.Run("MessageBox", row.Words);
            const auto* box = Find<TeskMessageBox>("MessageBox");
            ASSERT_TRUE(box);
            EXPECT_EQ(row.Color, box->BackgroundColor);
            EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
            g_UIManager.Reset();
        }
    });
}

TEST(CommandsDeathTest, WhatAForeignKindMakesInPlaceOfABoxGoesAgain)
{
    WithToolkit([](ScriptHost& host) {
        const TeskFactory<TeskElement> foreign("messagebox");
        EXPECT_EQ(0, host.Run("MessageBox", {"Hello"}));
        EXPECT_EQ(Lines({"MessageBox failed"}), host.Lines);
        EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
    });
}

TEST(CommandsDeathTest, TenThousandArgumentsAreNoMatter)
{
    const std::vector<std::vector<const char*>> beginnings = {{}, {"-load"}, {"-reload", "-parent", "Screen"},
        {"-load", "-skin"}, {"-unload"}, {"-list"}, {"-kill"}, {"-skin"}, {"-skin", "a", "-template", "b", "-ok"}};
    WithToolkit([&](ScriptHost& host) {
        TestScript script;
        host.Script = &script;
        for (const char* command : {"UI", "UIElement", "MessageBox", "InputBox"}) {
            for (std::vector<const char*> words : beginnings) {
                words.resize(10000, "word");
                const int result = host.Run(command, words);
                EXPECT_TRUE(result == 0 || (result == -1 && std::string_view(command) == "UI"));
                g_UIManager.Reset();
            }
        }
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, ABoxMayEndByItsOwnText)
{
    WithToolkit([](ScriptHost& host) {
        TestScript script;
        host.Script = &script;
        host.Expand = [](const std::string& text) {
            g_UIManager.Reset();
            return text;
        };
        EXPECT_EQ(0, host.Run("MessageBox", {"${x}"}));
        EXPECT_EQ(0, host.Run("InputBox", {"${x}"}));
        EXPECT_EQ(0u, script.MessageBoxID);
        EXPECT_EQ(0u, script.InputBoxID);
        EXPECT_EQ(Lines(), host.Lines);
        host.Script = nullptr;
    });
}

TEST(CommandsDeathTest, AScriptMayEndByTheTextOfItsBox)
{
    WithToolkit([](ScriptHost& host) {
        auto script = std::make_unique<TestScript>();
        host.Script = script.get();
        host.Expand = [&](const std::string& text) {
            host.Script = nullptr;
            script.reset();
            return text;
        };
        EXPECT_EQ(0, host.Run("MessageBox", {"${x}"}));
        const auto* box = Find<TeskScriptMessageBox>("Worker MessageBox");
        ASSERT_TRUE(box);
        EXPECT_EQ("Worker", *box->Title);
        EXPECT_EQ(nullptr, box->pScript.Get());
    });
}

TEST(CommandsDeathTest, EveryPartOfEveryFormIsAnsweredByALine)
{
    const std::vector<std::vector<const char*>> forms = {
        {"-load", "-parent", "Nobody", "-skin", "Dark", "file.xml", "Old", "New", "more"},
        {"-load", "-parent", "Screen", "-skin", "Dark", "file.xml", "Old", "New", "more"},
        {"-reload", "-skin", "Dark", "file.xml", "Old", "New"},
        {"-reload", "-skin", "-skin", "-parent", "-skin"},
        {"-unload", "file.xml", "more"},
        {"-kill", "Nobody", "more"},
        {"-show", "Nobody"},
        {"-hide", "Nobody"},
        {"-toggle", "Nobody"},
    };
    WithToolkit([&](ScriptHost& host) {
        g_UIManager.NewSkin("Dark");
        for (const std::vector<const char*>& form : forms) {
            for (std::size_t end = 0; end <= form.size(); ++end) {
                for (const char* command : {"UI", "UIElement"}) {
                    host.Lines.clear();
                    host.Run(command, {form.begin(), form.begin() + static_cast<long>(end)});
                    EXPECT_FALSE(host.Lines.empty()) << command << " " << form.front() << " " << end;
                    EXPECT_EQ(nullptr, g_UIManager.CurrentSkin);
                }
            }
        }
    });
}
