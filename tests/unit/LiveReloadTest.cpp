#include "host/live/LiveReload.h"

#include "teskara/collections/CTeskTab.h"
#include "teskara/collections/ListBoxItem.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/collections/TeskTreeNode.h"
#include "teskara/controls/TeskCheckBox.h"
#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/windows/TeskWindow.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A file that is shown and watched.
class LiveFile
{
public:
    LiveFile(HostedInterface& ui, const std::string& elements)
        : m_Interface(ui), m_Live(ui.Session(), host::LiveReload::Watching::On)
    {
        ui.Session().Open({m_Interface.Write("live.xml", Document(elements))}, "");
        Frames();
    }

    // Saves the file, and waits until that shows.
    void Save(const std::string& elements) { SaveAll(Document(elements)); }

    void SaveAll(const std::string& document)
    {
        m_Interface.Write("live.xml", document);
        Frames();
    }

    void Frames()
    {
        for (int frame = 0; frame < 4; ++frame) {
            m_Live.Advance();
            m_Interface.Frame();
        }
    }

private:
    static std::string Document(const std::string& elements) { return "<Tesk>\n" + elements + "</Tesk>\n"; }

    HostedInterface& m_Interface;
    host::LiveReload m_Live;
};

constexpr const char* Plain = "<frame name='A'><X>10</X><Width>50</Width></frame>\n";

TEST(LiveReloadDeathTest, ASavedFileShowsAnew)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, Plain);
        EXPECT_EQ(10, ui.Element("A").X);
        file.Save("<frame name='A'><X>200</X><Width>50</Width></frame>\n");
        EXPECT_EQ(200, ui.Element("A").X);
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(LiveReloadDeathTest, WhatIsNoLongerInTheFileGoes)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, Plain + std::string("<frame name='B'/><Template name='C'/>"));
        file.Save("<frame name='D'/><frame name='A'/>");
        EXPECT_EQ(nullptr, g_UIManager.FindElement("B"));
        EXPECT_NE(nullptr, g_UIManager.FindElement("A"));
        EXPECT_NE(nullptr, g_UIManager.FindElement("D"));
    });
}

TEST(LiveReloadDeathTest, AFileThatIsNoMarkupLeavesTheLastGoodOneAndSaysWhere)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, Plain);
        const u32 id = ui.Element("A").ID;
        file.Save("<frame name='A'>\n  <X>7</Y>\n</frame>");
        EXPECT_EQ(id, ui.Element("A").ID);
        EXPECT_EQ("live.xml:3:10: Closing element Y, expected X\n", ui.Lines());
        EXPECT_TRUE(ui.Element("Live Notice").Visible);

        file.Save("<frame name='A'><X>7</X></frame>");
        EXPECT_EQ(7, ui.Element("A").X);
        EXPECT_FALSE(ui.Element("Live Notice").Visible);
    });
}

TEST(LiveReloadDeathTest, WhatGoesWrongInTheNewFileStandsOnTheScreen)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, Plain);
        file.Save("<frame name='A'><OnLoad>error('no luck')</OnLoad></frame>");
        EXPECT_NE(std::string::npos, ui.Lines().find("no luck"));
        EXPECT_TRUE(ui.Element("Live Notice").Visible);
    });
}

TEST(LiveReloadDeathTest, WindowsStayWhereTheUserPutThem)
{
    const std::string window = "<window name='W'><X>10</X><Y>10</Y><Width>200</Width><Height>100</Height></window>\n";
    WithInterface([&](HostedInterface& ui) {
        LiveFile file(ui, window + "<window name='V'><Width>60</Width><Height>60</Height></window>");
        auto& moved = dynamic_cast<TeskWindow&>(ui.Element("W"));
        moved.X = 33;
        moved.Width += 40;
        const u32 width = moved.Width;
        dynamic_cast<TeskWindow&>(ui.Element("V")).Minimize(true);

        file.Save(window + "<window name='V'><X>5</X><Width>60</Width><Height>60</Height></window>");
        EXPECT_EQ(33, ui.Element("W").X);
        EXPECT_EQ(10 - 5, ui.Element("W").Y); // the window's border stands outside
        EXPECT_EQ(width, ui.Element("W").Width);
        EXPECT_TRUE(dynamic_cast<TeskWindow&>(ui.Element("V")).Minimized);
    });
}

TEST(LiveReloadDeathTest, WhatAFileMovesMovesUnlessTheUserDid)
{
    WithInterface([&](HostedInterface& ui) {
        LiveFile file(ui, "<window name='W'><X>10</X><Width>100</Width><Height>100</Height></window>");
        file.Save("<window name='W'><X>70</X><Width>150</Width><Height>100</Height></window>");
        EXPECT_EQ(70 - 5, ui.Element("W").X);
    });
}

TEST(LiveReloadDeathTest, TypedTextAndTheKeyboardStay)
{
    const std::string fields = "<textentry name='E'><Width>100</Width><Height>20</Height></textentry>"
                               "<textedit name='T'><Width>200</Width><Height>100</Height></textedit>";
    WithInterface([&](HostedInterface& ui) {
        LiveFile file(ui, fields);
        dynamic_cast<TeskTextEntry&>(ui.Element("E")).SetText("typed");
        dynamic_cast<TeskTextEntry&>(ui.Element("E")).Text.CaretPos = 2;
        auto& edit = dynamic_cast<TeskTextEdit&>(ui.Element("T"));
        edit.SetText("one\ntwo\nthree");
        edit.View.MoveDown(1);
        edit.View.MoveRight();
        g_UIManager.SetFocusElement(&edit);

        file.Save(fields + "\n");
        const auto& entry = dynamic_cast<TeskTextEntry&>(ui.Element("E"));
        EXPECT_STREQ("typed", entry.Text.From(0));
        EXPECT_EQ(2u, entry.Text.Caret());
        const auto& fresh = dynamic_cast<TeskTextEdit&>(ui.Element("T"));
        EXPECT_EQ(3u, fresh.Lines.Count());
        EXPECT_EQ(1u, fresh.View.Caret.Line->GetNumber());
        EXPECT_EQ(1u, fresh.View.HeldColumn());
        EXPECT_TRUE(fresh.IsFocus());
    });
}

TEST(LiveReloadDeathTest, ChoicesAndScrollingStay)
{
    std::string items;
    for (int row = 1; row <= 40; ++row)
        items += "<item>row " + std::to_string(row) + "</item>";
    const std::string controls = "<listbox name='L'><Width>200</Width><Height>90</Height><Items>" + items
        + "</Items></listbox><checkbox name='C'/><frame name='F'/>";
    WithInterface([&](HostedInterface& ui) {
        LiveFile file(ui, controls);
        auto& list = dynamic_cast<TeskListBox&>(ui.Element("L"));
        list.SelectItem(7);
        list.AddItem("added", "v", 0);
        list.OnMouseWheel(-400);
        dynamic_cast<TeskCheckBox&>(ui.Element("C")).Checked = true;
        ui.Element("F").Show(false);
        ui.Frame();
        const u32 top = list.TopOrder;
        EXPECT_GT(top, 0u);

        file.Save(controls + "\n");
        auto& fresh = dynamic_cast<TeskListBox&>(ui.Element("L"));
        EXPECT_EQ(41u, fresh.GetItemCount());
        EXPECT_STREQ("added", fresh.RetrieveOrdered(40)->GetText());
        EXPECT_STREQ("v", fresh.RetrieveOrdered(40)->GetValue());
        ASSERT_EQ(1u, fresh.SelectedItems.Count());
        EXPECT_EQ(6u, fresh.OrderOf(*fresh.RetrieveItem(fresh.SelectedItems.FirstAfter(0))));
        EXPECT_EQ(top, fresh.TopOrder);
        EXPECT_TRUE(dynamic_cast<TeskCheckBox&>(ui.Element("C")).Checked);
        EXPECT_FALSE(ui.Element("F").Visible);
    });
}

TEST(LiveReloadDeathTest, TheChosenTabStays)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, "<tabcontrol name='T'><Tabs><Tab Name='One'/><Tab Name='Two'/></Tabs></tabcontrol>");
        auto& tabs = dynamic_cast<TeskTabControl&>(ui.Element("T"));
        tabs.SelectTab(tabs.GetTabFromName("Two")->ID);
        file.Save(
            "<tabcontrol name='T'><Tabs><Tab Name='Zero'/><Tab Name='One'/><Tab Name='Two'/></Tabs></tabcontrol>");
        const auto& fresh = dynamic_cast<TeskTabControl&>(ui.Element("T"));
        EXPECT_EQ(3u, fresh.SelectedTab);
        EXPECT_TRUE(fresh.RetrieveTab(3)->Frame->Visible);
    });
}

TEST(LiveReloadDeathTest, WhatIsExpandedAndSelectedInATreeStays)
{
    const std::string tree = "<tree name='T' Template='tree'><Width>200</Width><Height>100</Height><OnLoad>"
                             "local a = this.Root.AddChild('A') a.AddChild('A1').AddChild('deep') a.AddChild('A2') "
                             "this.Root.AddChild('B').AddChild('B1') a:Collapse()</OnLoad></tree>";
    WithInterface([&](HostedInterface& ui) {
        LiveFile file(ui, tree);
        const auto root = [&ui] { return dynamic_cast<TeskTree&>(ui.Element("T")).Root; };
        root()->FirstChild->Expand();
        root()->LastChild->Collapse();
        root()->FirstChild->LastChild->Select();
        file.Save(tree + "\n");
        EXPECT_TRUE(root()->FirstChild->IsExpanded());
        EXPECT_TRUE(root()->FirstChild->FirstChild->IsExpanded());
        EXPECT_FALSE(root()->LastChild->IsExpanded());
        EXPECT_TRUE(root()->FirstChild->LastChild->IsSelected());
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(LiveReloadDeathTest, WindowsKeepTheirOrder)
{
    WithInterface([](HostedInterface& ui) {
        const std::string windows = "<window name='A'/><window name='B'/>";
        LiveFile file(ui, windows);
        ui.Element("A").MoveZTop(false);
        file.Save(windows + "\n");
        EXPECT_STREQ("a", g_UIManager.Screen->LastChild->Name.c_str());
    });
}

TEST(LiveReloadDeathTest, TheCommandWearsAnotherSkin)
{
    WithInterface([](HostedInterface& ui) {
        LiveFile file(ui, "<text name='T'/>");
        const auto color = [&ui] { return ui.Expand("${UIElement[T].Font.Color}"); };
        const std::string dark = color();
        ui.Host().ExecuteCommand("skin paper");
        EXPECT_EQ(dark, color());
        file.Frames();
        EXPECT_NE(dark, color());
        ui.Host().ExecuteCommand("skin");
        EXPECT_EQ("paper\n", ui.Lines());
        ui.Host().ExecuteCommand("skin slate");
        file.Frames();
        EXPECT_EQ(dark, color());
    });
}

} // namespace
