// What the pages in docs/ show works.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace {

std::string Read(const std::filesystem::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The blocks of a page in a language.
std::vector<std::string> Blocks(const std::string& page, const std::string& language)
{
    const std::string text = Read(std::filesystem::path(TESKARA_DOCS) / page);
    const std::string opening = "```" + language + '\n';
    std::vector<std::string> blocks;
    for (std::size_t at = text.find(opening); at != text.npos; at = text.find(opening, at)) {
        at += opening.size();
        blocks.push_back(text.substr(at, text.find("```", at) - at));
    }
    return blocks;
}

std::vector<std::filesystem::path> TutorialFiles()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(TESKARA_DOCS "/tutorial"))
        files.push_back(entry.path());
    return files;
}

std::string WithoutIndentation(const std::string& text)
{
    return std::regex_replace(text, std::regex("\n *"), "\n");
}

TEST(HostedDocumentDeathTest, InterfacesLoadAndAnswerWithoutALine)
{
    const std::vector<std::string> blocks = Blocks("scripts.md", "xml");
    ASSERT_EQ(4u, blocks.size());
    WithInterface([&](HostedInterface& ui) {
        for (const std::string& block : blocks) {
            ui.Load(block);
            ui.Frame();
            ui.Click(20, 10);
            g_UIManager.OnMouseWheel(120);
            ui.Frame();
            g_UIManager.Reset();
        }
        EXPECT_EQ("1", ui.Expand("${Clicks}"));
        EXPECT_EQ("219 of 2: 120, 99", ui.Expand("${Total} of ${Best.Count}: ${Best}"));
        EXPECT_EQ("50% at 20", ui.Expand("${= Volume * 100 }% at ${Mouse.X}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedDocumentDeathTest, ScriptFilesRun)
{
    const std::vector<std::string> blocks = Blocks("scripts.md", "lua");
    ASSERT_EQ(2u, blocks.size());
    WithInterface([&](HostedInterface& ui) {
        ui.Host().ExecuteCommand(("run " + ui.Write("demo.lua", blocks[0])).c_str());
        for (int frame = 0; frame < 4; ++frame)
            ui.Frame(500);
        EXPECT_EQ("demo.lua: step 1\ndemo.lua: step 2\ndemo.lua: step 3\n", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

TEST(HostedDocumentDeathTest, TheStagesOfTheTutorialLoadAndWork)
{
    const auto files = TutorialFiles();
    ASSERT_EQ(4u, files.size());
    for (const auto& file : files) {
        WithInterface([&](HostedInterface& ui) {
            ASSERT_TRUE(ui.Session().Open({file.string()}, ""));
            ui.Frame();
            if (g_UIManager.FindElement("Thing@Shopping")) {
                ui.Run("UIElement('Thing@Shopping'):SetText('Milk') UIElement('Add@Shopping'):LeftClick()");
                ui.Run("Result = UIElement('Things@Shopping').ItemByText('Milk').Text");
                EXPECT_EQ("Milk", ui.Expand("${Result}"));
            }
            ui.Frame();
            EXPECT_EQ("", ui.Lines()) << file;
        });
    }
}

TEST(HostedDocumentTest, WhatTheTutorialShowsStandsInItsFiles)
{
    std::string stages;
    for (const auto& file : TutorialFiles())
        stages += WithoutIndentation(Read(file));
    const std::vector<std::string> blocks = Blocks("tutorial.md", "xml");
    EXPECT_EQ(6u, blocks.size());
    for (const std::string& block : blocks) {
        EXPECT_NE(std::string::npos, stages.find(WithoutIndentation(block))) << block;
    }
}

} // namespace
