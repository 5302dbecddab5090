// What docs/scripts.md shows works.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

// The blocks of the page in a language.
std::vector<std::string> Blocks(const std::string& language)
{
    std::ifstream page(TESKARA_SCRIPTS_PAGE);
    const std::string text(std::istreambuf_iterator<char>(page), {});
    const std::string opening = "```" + language + '\n';
    std::vector<std::string> blocks;
    for (std::size_t at = text.find(opening); at != text.npos; at = text.find(opening, at)) {
        at += opening.size();
        blocks.push_back(text.substr(at, text.find("```", at) - at));
    }
    return blocks;
}

TEST(HostedDocumentDeathTest, InterfacesLoadAndAnswerWithoutALine)
{
    const std::vector<std::string> blocks = Blocks("xml");
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
    const std::vector<std::string> blocks = Blocks("lua");
    ASSERT_EQ(2u, blocks.size());
    WithInterface([&](HostedInterface& ui) {
        ui.Host().ExecuteCommand(("run " + ui.Write("demo.lua", blocks[0])).c_str());
        for (int frame = 0; frame < 4; ++frame)
            ui.Frame(500);
        EXPECT_EQ("demo.lua: step 1\ndemo.lua: step 2\ndemo.lua: step 3\n", ui.Lines());
        EXPECT_EQ(0u, ui.Scripts().Tasks.Count());
    });
}

} // namespace
