// Script files that ask the user.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskTextEntry.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr char MessageBoxName[] = "demo.lua MessageBox";
constexpr char InputBoxName[] = "demo.lua InputBox";

void RunFile(HostedInterface& ui, const std::string& text)
{
    EXPECT_EQ(0, ui.Host().ExecuteCommand(("run \"" + ui.Write("demo.lua", text) + '"').c_str()));
}

void Press(HostedInterface& ui, const std::string& button, const char* box)
{
    TeskElement& element = ui.Element((button + '@' + box).c_str());
    _Point2i point = {0, 0};
    element.OnLMouseDown(point);
    element.OnLMouseUp(point);
}

TEST(HostedDialogsDeathTest, AScriptWaitsForTheButtonThatIsPressed)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "Given = ask('Delete?', 'yesno') .. '!'");
        for (int frame = 0; frame < 3; ++frame)
            ui.Frame();
        EXPECT_EQ("NULL", ui.Expand("${Given}"));
        Press(ui, "Yes", MessageBoxName);
        EXPECT_EQ(nullptr, g_UIManager.FindElement(MessageBoxName));
        ui.Frame();
        EXPECT_EQ("Yes!", ui.Expand("${Given}"));
        EXPECT_EQ("", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

TEST(HostedDialogsDeathTest, EachKindOfQuestionHasItsAnswers)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui,
            "All = ask('1') .. ask('2', 'ok') .. ask('3', 'okcancel') .. ask('4', 'okcancel') .. ask('5', 'yesno')\n"
            "Last = UserInput()");
        for (const char* button : {"OK", "OK", "OK", "Cancel", "No"}) {
            Press(ui, button, MessageBoxName);
            ui.Frame();
        }
        EXPECT_EQ("OKOKOKCancelNo No", ui.Expand("${All} ${Last}"));
    });
}

TEST(HostedDialogsDeathTest, AScriptWaitsForWhatIsTyped)
{
    WithInterface([](HostedInterface& ui) {
        g_UIManager.AddTemplate("textentry", "<Template><MaxLength>64</MaxLength></Template>");
        RunFile(ui, "First = input('Name?', 'me') Second = input('Again?') Third = input('-template')");
        auto& entry = dynamic_cast<TeskTextEntry&>(ui.Element("Entry@demo.lua InputBox"));
        EXPECT_EQ(&entry, g_UIManager.GetFocusElement());
        EXPECT_STREQ("me", entry.Text.From(0));
        Press(ui, "OK", InputBoxName);
        ui.Frame();
        EXPECT_EQ("me", ui.Expand("${First}"));
        dynamic_cast<TeskTextEntry&>(ui.Element("Entry@demo.lua InputBox")).SetText("other");
        EXPECT_TRUE(g_UIManager.OnKeyDown(13));
        ui.Frame();
        EXPECT_EQ("other", ui.Expand("${Second}"));
        Press(ui, "Cancel", InputBoxName);
        ui.Frame();
        EXPECT_EQ("NULL", ui.Expand("${Third}"));
        EXPECT_EQ("", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

TEST(HostedDialogsDeathTest, ADialogThatIsTakenAwayGivesNil)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "Kind = type(ask('Delete?'))");
        g_UIManager.Reset();
        ui.Frame();
        EXPECT_EQ("nil", ui.Expand("${Kind}"));
    });
}

TEST(HostedDialogsDeathTest, ADialogThatCannotBeMadeGivesNilAtOnce)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<frame name=\"demo.lua MessageBox\"/>");
        RunFile(ui, "Old = ask('a') Kind = type(ask('b'))");
        EXPECT_EQ("nil", ui.Expand("${Kind}"));
        EXPECT_NE(std::string::npos, ui.Lines().find("MessageBox failed"));
    });
}

TEST(HostedDialogsDeathTest, OnlyOneDialogOfAScriptIsOpen)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "command('MessageBox', '-yesno', 'a') ask('b')");
        EXPECT_EQ("demo.lua: 1: a dialog of this script is open already\n", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
        Press(ui, "No", MessageBoxName); // which now answers nobody
        ui.Frame();
    });
}

TEST(HostedDialogsDeathTest, WhatACommandOpensIsWaitedForByAnswer)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "command('MessageBox -okcancel Really?') Given = answer()");
        Press(ui, "Cancel", MessageBoxName);
        ui.Frame();
        EXPECT_EQ("Cancel", ui.Expand("${Given}"));
    });
}

TEST(HostedDialogsDeathTest, AScriptMayEndWhileItsDialogIsOpen)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "ask('Delete?', 'yesno')");
        ui.Scripts().Tasks.EndAll();
        ui.Frame();
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
        Press(ui, "Yes", MessageBoxName);
        EXPECT_EQ(nullptr, g_UIManager.FindElement(MessageBoxName));

        RunFile(ui, "command('InputBox Name?')"); // and is over
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
        Press(ui, "OK", InputBoxName);
        EXPECT_EQ(nullptr, g_UIManager.FindElement(InputBoxName));
    });
}

TEST(HostedDialogsDeathTest, OnlyTheFileItselfCanAsk)
{
    WithInterface([](HostedInterface& ui) {
        const std::string why = " can only be called by a script that was started by the command run\n";
        ui.Run("ask('Delete?')");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: ask" + why, ui.Lines());
        ui.Run("input('Name?')");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: input" + why, ui.Lines());
        RunFile(ui, "ask()");
        EXPECT_NE(std::string::npos, ui.Lines().find("string expected"));
        RunFile(ui, "ask('Delete?', 'perhaps')");
        EXPECT_NE(std::string::npos, ui.Lines().find("invalid option 'perhaps'"));
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

TEST(HostedDialogsDeathTest, AnEventShowsABoxThatNobodyWaitsFor)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("command('MessageBox', 'Hello')");
        Press(ui, "OK", "MessageBox");
        ui.Run("command('InputBox', 'Name?')");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: You don't look like a script, or talk like a script...dont try "
                  "to be one :)\n",
            ui.Lines());
    });
}

} // namespace
