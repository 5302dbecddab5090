// Trees in the hands of Lua, and the queries that search them.

#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace {

constexpr const char* Ship =
    "<tree name='Ship'><Width>200</Width><Height>100</Height><ItemHeight>10</ItemHeight><ScrollBar/></tree>";

// Fills the tree: Hull below the root, Engine and Bridge below that.
constexpr const char* Fill = "local ship = UIElement('Ship') "
                             "local hull = ship.Root.AddChild('Hull') "
                             "local engine = hull.AddChild('Engine', 'ff00ff00') "
                             "engine:SetMetadata('Power', '9000') "
                             "hull.AddChild('Bridge') ";

// What a script's expression over the tree gives, as a text.
std::string Ask(HostedInterface& ui, const std::string& expression)
{
    return ui.Run("local ship = UIElement('Ship') Result = tostring(" + expression + ")");
}

// The text of the node that a query finds.
std::string Find(HostedInterface& ui, const std::string& query)
{
    return Ask(ui, "(ship.GetNode([==[" + query + "]==]) or {Text = 'none'}).Text");
}

void WithShip(const std::function<void(HostedInterface& ui)>& body)
{
    WithInterface([&](HostedInterface& ui) {
        ui.Load(Ship);
        ui.Run(Fill);
        EXPECT_EQ("", ui.Lines());
        body(ui);
    });
}

TEST(HostedTreeDeathTest, NodesAreObjects)
{
    WithShip([](HostedInterface& ui) {
        EXPECT_EQ("Engine", Ask(ui, "ship.Root.Children.Children.Text"));
        EXPECT_EQ("9000", Ask(ui, "ship.Root.Children.Children.GetMetadata('power')"));
        EXPECT_EQ("true", Ask(ui, "ship.Root.Children == ship.Root.Children.Children.Parent"));
        EXPECT_EQ("false", Ask(ui, "ship.Root.Children == ship.Root"));
        EXPECT_EQ("Hull", Ask(ui, "ship.GetNode(ship.Root.Children.Handle).Text"));
        EXPECT_EQ("true", Ask(ui, "ship.Root.Children:Select() and ship.Selection.IsSelected"));
        EXPECT_EQ("Engine", ui.Expand("${UIElement[Ship].Root.Children.Children.Text}"));
        EXPECT_EQ("Engine", ui.Expand("${UIElement[Ship].GetNode[text == \"Engine\"].Text}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, ANodeThatWasRemovedGivesNothing)
{
    WithShip([](HostedInterface& ui) {
        ui.Run("Held = UIElement('Ship').Root.Children");
        EXPECT_EQ("Hull", ui.Run("Result = tostring(Held.Text)"));
        ui.Run("Held:Remove()");
        EXPECT_EQ("nil", ui.Run("Result = tostring(Held.Text)"));
        EXPECT_EQ("false", ui.Run("Result = tostring(Held:Select())"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, AQueryReadsTheMembersOfEachNode)
{
    WithShip([](HostedInterface& ui) {
        EXPECT_EQ("Engine", Find(ui, "text == \"Engine\""));
        EXPECT_EQ("Engine", Find(ui, "Text == 'Engine'"));
        EXPECT_EQ("Engine", Find(ui, "TEXT == 'Engine' and EXPANDED"));
        EXPECT_EQ("Engine", Find(ui, "getmetadata('Power') == '9000'"));
        EXPECT_EQ("Engine", Find(ui, "tonumber(GetMetadata('power') or 0) > 8999"));
        EXPECT_EQ("Engine", Find(ui, "parent and parent.Text == 'Hull'"));
        EXPECT_EQ("Bridge", Find(ui, "previous ~= nil"));
        EXPECT_EQ("Bridge", Find(ui, "this.Text:sub(1, 1) == 'B'"));
        EXPECT_EQ("Hull", Find(ui, "children and children.Text == 'Engine'"));
        EXPECT_EQ("", Find(ui, "handle > 0")) << "the root is a node, too";
        EXPECT_EQ("none", Find(ui, "text == 'engine'"));
        EXPECT_EQ("none", Find(ui, "isselected"));
        EXPECT_EQ("none", Find(ui, "nosuchname"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, AQueryFindsGlobalNamesBehindTheMembers)
{
    WithShip([](HostedInterface& ui) {
        ui.Run("Wanted = 'Bridge' Text = 'not this' function matches(node) return node.Text == Wanted end");
        EXPECT_EQ("Bridge", Find(ui, "text == Wanted"));
        EXPECT_EQ("Bridge", Find(ui, "matches(this)"));
        EXPECT_EQ("Bridge", Find(ui, "Text == Wanted"));
        EXPECT_EQ("Engine", Find(ui, "string.find(text, 'gin')"));
        EXPECT_EQ("none", Find(ui, "text == wanted")) << "their case counts";
        EXPECT_EQ("Hull", Find(ui, "_G.Text == 'not this' and text ~= ''"));
        EXPECT_EQ("", Find(ui, "(function() Seen = (Seen or 0) + 1 return true end)()"));
        EXPECT_EQ("1", ui.Run("Result = Seen"));
        EXPECT_EQ("none", Find(ui, "(function() string = nil end)()"));
        EXPECT_NE(std::string::npos, ui.Lines().find("'string' belongs to the host"));
        EXPECT_EQ("false", Ask(ui, "ship.GetNode('getmetatable(_ENV)') ~= nil"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, AQueryThatIsNoExpressionIsToldOfOnce)
{
    WithShip([](HostedInterface& ui) {
        EXPECT_EQ("none", Find(ui, "text = 'Engine'"));
        EXPECT_TRUE(ui.Lines().ends_with("OnLoad: query: <eof> expected near '='\n"));
        EXPECT_EQ("none", Find(ui, "text.nosuch.name"));
        const std::string lines = ui.Lines();
        EXPECT_EQ(1, std::count(lines.begin(), lines.end(), '\n'));
        EXPECT_EQ("none", Find(ui, "error('no')"));
        EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: query: no\n", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, AQueryMayRemoveNodesAndTheTree)
{
    WithShip([](HostedInterface& ui) {
        ui.Run("function drop(node) if node.Text == 'Hull' then node:Remove() end end");
        EXPECT_EQ("none", Find(ui, "drop(this)"));
        EXPECT_EQ("nil", Ask(ui, "ship.Root.Children"));
        EXPECT_EQ("none", Find(ui, "UIElement('Ship'):Destroy()"));
        EXPECT_EQ(nullptr, g_UIManager.FindElement("Ship"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedTreeDeathTest, ASearchOfManyNodesStaysWithinTheLimits)
{
    WithShip([](HostedInterface& ui) {
        auto& tree = dynamic_cast<TeskTree&>(ui.Element("Ship"));
        for (int node = 0; node < 50000; ++node)
            tree.Root->AddChild("more", 0);
        tree.Root->AddChild("last", 0);
        const TeskTreeNode* found = tree.FindNodeByQuery("text == 'last' and parent.Handle > 0");
        ASSERT_NE(nullptr, found) << ui.Lines();
        EXPECT_EQ("last", found->Text);
        EXPECT_EQ("", ui.Lines());
    });
}

// One search is one call, however many nodes it asks.
TEST(HostedTreeDeathTest, ASearchThatDoesNotEndIsStopped)
{
    WithShip([](HostedInterface& ui) {
        auto& tree = dynamic_cast<TeskTree&>(ui.Element("Ship"));
        for (int node = 0; node < 100; ++node)
            tree.Root->AddChild("more", 0);

        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(nullptr, tree.FindNodeByQuery("(function() for i = 1, 1e6 do end end)()"));
        EXPECT_EQ("query: stopped, since it ran too many instructions\n", ui.Lines());
        EXPECT_EQ(nullptr, tree.FindNodeByQuery("(function() while true do end end)()"));
        EXPECT_EQ("query: stopped, since it ran too many instructions\n", ui.Lines());
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
        ASSERT_NE(nullptr, tree.FindNodeByQuery("text == 'Engine'")) << "the next one has its own limits";
        EXPECT_EQ("", ui.Lines());
    });
}

} // namespace
