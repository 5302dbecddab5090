// Script files that run beside the interface.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Writes and runs a script. The result is the command's.
int RunFile(HostedInterface& ui, const std::string& text, const std::string& name = "demo.lua")
{
    return ui.Host().ExecuteCommand(("run \"" + ui.Write(name, text) + '"').c_str());
}

TEST(HostedTasksDeathTest, AFileRunsToItsFirstWaitAtOnceAndThenFromFrameToFrame)
{
    WithInterface([](HostedInterface& ui) {
        EXPECT_EQ(0, RunFile(ui, "Step = 1\nwait(0.1)\nStep = 2\nwait(0)\nStep = 3"));
        EXPECT_EQ("1", ui.Expand("${Step}"));
        ui.Frame(90);
        EXPECT_EQ("1", ui.Expand("${Step}"));
        ui.Frame(10);
        EXPECT_EQ("2", ui.Expand("${Step}"));
        ui.Frame();
        EXPECT_EQ("3", ui.Expand("${Step}"));
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTasksDeathTest, WaitingGoesThroughLoopsFunctionsAndProtectedCalls)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui,
            "local function pause() wait(0.01) end\nfor i = 1, 3 do Step = i pause() end\n"
            "print(pcall(function() wait(0.01) error('why', 0) end))\ncoroutine.yield()\nStep = 'end'");
        for (int frame = 0; frame < 6; ++frame)
            ui.Frame();
        EXPECT_EQ("end", ui.Expand("${Step}"));
        EXPECT_EQ("demo.lua: FALSE why\n", ui.Lines());
    });
}

TEST(HostedTasksDeathTest, AFailureEndsTheFileWithOneLine)
{
    WithInterface([](HostedInterface& ui) {
        EXPECT_EQ(0, RunFile(ui, "\n\nwait(0.01)\nerror('why')"));
        ui.Frame();
        EXPECT_EQ("demo.lua: 4: why\n", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());

        EXPECT_EQ(0, RunFile(ui, "local x = nothing.x"));
        EXPECT_EQ("demo.lua: 1: attempt to index a nil value (global 'nothing')\n", ui.Lines());
        EXPECT_EQ(-1, RunFile(ui, "if then"));
        EXPECT_EQ("demo.lua: 1: unexpected symbol near 'then'\n", ui.Lines());
        EXPECT_EQ(0, RunFile(ui, "wait(0.01) while true do end"));
        ui.Frame();
        EXPECT_EQ("demo.lua: 1: stopped, since it ran too many instructions\n", ui.Lines());
        EXPECT_EQ(0, RunFile(ui, "print('hello')"));
        EXPECT_EQ("demo.lua: hello\n", ui.Lines());
    });
}

TEST(HostedTasksDeathTest, EachTimeThatItGoesOnItHasTheWholeOfItsLimits)
{
    WithInterface([](HostedInterface& ui) {
        RunFile(ui, "for i = 1, 20 do local n = 0 for j = 1, 500000 do n = n + j end wait(0) end Done = true");
        for (int frame = 0; frame < 25; ++frame)
            ui.Frame();
        EXPECT_EQ("TRUE", ui.Expand("${Done}"));
    });
}

TEST(HostedTasksDeathTest, OnlyFilesThatAreScriptsAreRun)
{
    WithInterface([](HostedInterface& ui) {
        EXPECT_EQ(-1, RunFile(ui, "x = 1", "demo.txt"));
        EXPECT_EQ(-1, ui.Host().ExecuteCommand("run nosuch.lua"));
        const std::string lines = ui.Lines();
        EXPECT_NE(std::string::npos, lines.find("Could not run script '")) << lines;
        EXPECT_NE(std::string::npos, lines.find("command run nosuch.lua: Could not run script 'nosuch.lua'\n"))
            << lines;
        EXPECT_EQ(0, ui.Host().ExecuteCommand("run"));
        EXPECT_EQ("command run: Syntax: run <file>\n", ui.Lines());
        EXPECT_EQ(-1, RunFile(ui, "\x1bLua"));
        EXPECT_NE(std::string::npos, ui.Lines().find("attempt to load a binary chunk"));
    });
}

TEST(HostedTasksDeathTest, OnlyTheFileItselfCanWait)
{
    WithInterface([](HostedInterface& ui) {
        const std::string why = " can only be called by a script that was started by the command run\n";
        ui.Run("wait(1)");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: wait" + why, ui.Lines());
        ui.Run("answer()");
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: answer" + why, ui.Lines());
        RunFile(ui, "coroutine.wrap(function() wait(1) end)()");
        EXPECT_EQ("demo.lua: 1: wait" + why, ui.Lines());
        ui.Load("<frame name=\"Main\"><OnLeftClick>wait(1)</OnLeftClick></frame>");
        RunFile(ui, "UIElement('Main'):LeftClick()");
        EXPECT_EQ("test.xml: frame \"Main\" OnLeftClick: 1: wait" + why, ui.Lines());
        RunFile(ui, "wait('x')");
        EXPECT_NE(std::string::npos, ui.Lines().find("number expected"));
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

TEST(HostedTasksDeathTest, TheToolkitSeesTheScriptThatRuns)
{
    WithInterface([](HostedInterface& ui) {
        std::string seen;
        ui.Scripts().Commands.Add("see", [&](int, char**) {
            const HostScript* script = ui.Host().GetCurrentScript();
            seen += script ? std::string(script->GetName()) + (script->IsInsideAtom() ? " atom" : "") + ';' : "none;";
            return 0;
        });
        ui.Load("<frame name=\"Main\"><OnLeftClick>command('see')</OnLeftClick></frame>");
        ui.Host().ExecuteCommand("see");
        RunFile(ui, "command('see') UIElement('Main'):LeftClick() wait(0) command('see')");
        ui.Host().ExecuteCommand("see");
        ui.Frame();
        EXPECT_EQ("none;demo.lua;demo.lua atom;none;demo.lua;", seen);
    });
}

TEST(HostedTasksDeathTest, AScriptWaitsForTheAnswerToItsDialog)
{
    WithInterface([](HostedInterface& ui) {
        HostScript* script = nullptr;
        ui.Load("<frame name=\"Box\"/>");
        ui.Scripts().Commands.Add("ask", [&](int, char**) {
            script = ui.Host().GetCurrentScript();
            script->MessageBoxID = ui.Element("Box").ID;
            script->SetUserInput(nullptr);
            return 0;
        });
        RunFile(ui, "command('ask') Given = answer() Same = UserInput() wait(0) Again = answer()");
        ui.Frame();
        EXPECT_EQ("NULL", ui.Expand("${Given}"));
        ASSERT_NE(nullptr, script);
        script->SetUserInput("Yes");
        ui.Frame();
        EXPECT_EQ("NULL", ui.Expand("${Given}")) << "the dialog is still there";
        g_UIManager.Screen->DeleteChild(&ui.Element("Box"));
        ui.Frame();
        ui.Frame();
        EXPECT_EQ("Yes Yes Yes", ui.Expand("${Given} ${Same} ${Again}"));

        RunFile(ui, "Result = tostring(answer())");
        EXPECT_EQ("nil", ui.Expand("${Result}")) << "nothing was asked";
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTasksDeathTest, ScriptsMayStartScriptsButNotWithoutEnd)
{
    WithInterface([](HostedInterface& ui) {
        const std::string other = ui.Write("other.lua", "Other = (Other or 0) + 1 wait(1000)");
        RunFile(ui, "for i = 1, 100 do command('run', '" + other + "') end wait(1000)");
        EXPECT_EQ("64", ui.Expand("${= Other + 1}"));
        EXPECT_NE(std::string::npos, ui.Lines().find("too many scripts are running"));
        const std::string self = ui.Write("self.lua", "");
        ui.Write("self.lua", "command('run', '" + self + "')");
        ui.Host().ExecuteCommand(("run " + self).c_str());
        EXPECT_EQ("ok", ui.Run("Result = 'ok'"));
    });
}

} // namespace
