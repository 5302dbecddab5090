// What interfaces do that mean harm, or mean none and do it: the host answers, and the others go on.

#include "teskara/core/CUIManager.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

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

} // namespace
