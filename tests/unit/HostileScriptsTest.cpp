// What interfaces do that mean harm, or mean none and do it: the host answers, and the others go on.

#include "teskara/core/CUIManager.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

std::string Repeat(const std::string& text, int count)
{
    std::string repeated;
    for (int index = 0; index < count; ++index)
        repeated += text;
    return repeated;
}

TEST(HostileScriptsDeathTest, AFolderIsNoScriptAndNoInterface)
{
    WithInterface([](HostedInterface& ui) {
        const std::string folder = std::filesystem::path(ui.Write("x", "")).parent_path() / "folder.lua";
        std::filesystem::create_directory(folder);
        ui.Run("Result = command('run', '" + folder + "')");
        EXPECT_EQ("-1", ui.Expand("${Result}"));
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: Could not run script '" + folder + "'\n", ui.Lines());
        EXPECT_FALSE(g_UIManager.LoadInterfaceXML(folder.c_str(), true, nullptr));
        EXPECT_FALSE(g_UIManager.LoadInterfaceXML("/dev/zero", true, nullptr));
    });
}

TEST(HostileScriptsDeathTest, ACommandLineFullOfOpenSequencesIsSplitAtOnce)
{
    WithInterface([](HostedInterface& ui) {
        const std::string line = "nosuch " + Repeat("${=", 200000);
        const auto start = Clock::now();
        EXPECT_EQ(-1, ui.Host().ExecuteCommand(line.c_str()));
        EXPECT_GT(std::chrono::seconds(2), Clock::now() - start);
    });
}

TEST(HostileScriptsDeathTest, ATextThatIsFarTooLongIsTakenAsItIs)
{
    WithInterface([](HostedInterface& ui) {
        const std::string fitting = Repeat("${X}", 16384);
        EXPECT_EQ(Repeat("NULL", 16384), ui.Scripts().Sequences.Expand(fitting));
        EXPECT_EQ(fitting + ' ', ui.Scripts().Sequences.Expand(fitting + ' '));
    });
}

TEST(HostileScriptsDeathTest, ManySequencesThatNeverEndDoNotHoldUpEachFrame)
{
    WithInterface([](HostedInterface& ui) {
        std::string markup;
        for (int index = 0; index < 300; ++index)
            markup += "<text name=\"T" + std::to_string(index) + "\"><Width>9</Width><Height>9</Height><Text>"
                + std::to_string(index) + "${= (function() while true do end end)()}</Text></text>";
        ui.Load(markup);
        ui.Frame();
        const std::string lines = ui.Lines();
        EXPECT_EQ(300, std::count(lines.begin(), lines.end(), '\n'));

        const auto start = Clock::now();
        for (int frame = 0; frame < 3; ++frame)
            ui.Frame();
        EXPECT_GT(std::chrono::milliseconds(500), Clock::now() - start);
        EXPECT_EQ("", ui.Lines());
        EXPECT_EQ("3", ui.Expand("${= 1 + 2}"));
    });
}

TEST(HostileScriptsDeathTest, ManyScriptsThatNeverEndDoNotHoldUpEachFrame)
{
    WithInterface([](HostedInterface& ui) {
        std::string markup;
        for (int index = 0; index < 100; ++index)
            markup += "<frame name=\"F" + std::to_string(index) + "\"><OnRender>while true do end</OnRender></frame>";
        ui.Load(markup + "<frame name=\"Good\"><OnRender>Good = (Good or 0) + 1</OnRender></frame>");
        ui.Frame();
        const auto start = Clock::now();
        for (int frame = 0; frame < 3; ++frame)
            ui.Frame();
        EXPECT_GT(std::chrono::milliseconds(500), Clock::now() - start);
        EXPECT_EQ("4", ui.Expand("${Good}"));
    });
}

TEST(HostileScriptsDeathTest, WhatRestsRunsAgainLater)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<frame name=\"F\"><OnRender>Runs = (Runs or 0) + 1 while not Free do end</OnRender></frame>");
        for (int frame = 0; frame < 20; ++frame)
            ui.Frame();
        EXPECT_EQ("2", ui.Expand("${Runs}"));
        ui.Run("Free = true");
        for (int frame = 0; frame < 60; ++frame)
            ui.Frame();
        EXPECT_EQ("TRUE", ui.Expand("${= Runs > 20}"));
    });
}

TEST(HostileScriptsDeathTest, VariablesThatKeepTooMuchAreClearedAndAllGoOn)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<frame name=\"Hoarder\"><OnRender>Kept = Kept or {}\nfor i = 1, 10 do "
                "Kept[#Kept + 1] = ('x'):rep(1000000) end</OnRender></frame>");
        ui.Run("Other = 5");
        for (int frame = 0; frame < 7; ++frame)
            ui.Frame();
        EXPECT_EQ("test.xml: frame \"Hoarder\" OnRender: scripts keep too much memory: their variables are cleared\n",
            ui.Lines());
        EXPECT_EQ("NULL", ui.Expand("${Other}"));
        ui.Run("Other = ('y'):rep(1000000) Other = #Other");
        EXPECT_EQ("1000000", ui.Expand("${Other}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostileScriptsDeathTest, FilesThatKeepTooMuchAreEnded)
{
    WithInterface([](HostedInterface& ui) {
        const std::string file = ui.Write("hoard.lua",
            "local kept = {}\nwhile true do for i = 1, 10 do "
            "kept[#kept + 1] = ('x'):rep(1000000) end wait(0) end");
        EXPECT_EQ(0, ui.Host().ExecuteCommand(("run \"" + file + '"').c_str()));
        for (int frame = 0; frame < 10; ++frame)
            ui.Frame();
        EXPECT_EQ("hoard.lua: scripts keep too much memory: their variables are cleared\n"
                  "hoard.lua: ended, since scripts keep too much memory\n",
            ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
        EXPECT_EQ("1000000", ui.Expand("${= #('y'):rep(1000000)}"));
    });
}

} // namespace
