// A text that is missing is measured, drawn, compared and kept like an empty one, or the operation does nothing.

#include "host/probe/TreeChecker.h"
#include "teskara/collections/TeskComboBox.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskHudElement.h"
#include "teskara/controls/TeskText.h"
#include "teskara/controls/TeskTooltip.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskScriptInputBox.h"
#include "teskara/windows/TeskScriptMessageBox.h"
#include "tests/unit/MenuTest.h"

#include <memory>
#include <string>

namespace {

constexpr const char* Nothing = nullptr;

class MissingTextsTest : public ToolkitTest
{
protected:
    ~MissingTextsTest() override { EXPECT_EQ(std::nullopt, FindTreeFault()); }

    // Made from the markup that its kind cannot do without, and large enough to be drawn.
    template <class Kind> Kind& Make(const char* word, const std::string& inside = {})
    {
        g_UIManager.Reset();
        const std::string kind = word;
        Load("<" + kind + " name='Q'><Width>100</Width><Height>50</Height><Font/>" + inside + "</" + kind + ">");
        return As<Kind>("Q");
    }
};

} // namespace

TEST_F(MissingTextsTest, ElementsAreNeitherNamedNorDrawnByThem)
{
    auto& text = Make<TeskText>("text", "<Text>words</Text>");
    const std::unique_ptr<TeskFont> font(TeskFont::New(&text, Nothing, 12, false, false));
    EXPECT_EQ("", font->Name);
    EXPECT_EQ(0u, font->GetTextWidth(Nothing));
    EXPECT_EQ(0u, font->GetTextWidth(Nothing, 5));
    EXPECT_EQ(0u, font->GetCharByOffset(Nothing, 5));
    font->SetName(Nothing);
    EXPECT_EQ("", font->Name);
    for (auto draw : {&TeskFont::Draw, &TeskFont::DrawCenter, &TeskFont::DrawRight})
        EXPECT_EQ(0u, (font.get()->*draw)(Nothing, 0, 0, 10));
    EXPECT_EQ(0u, text.DrawTextA(font.get(), Nothing, 0, 0));
    EXPECT_EQ(0u, text.DrawTextClipped(font.get(), Nothing, 0, 0));
    EXPECT_EQ(0u, text.DrawTextClipped(font.get(), Nothing, 0, 0, 9));
    EXPECT_EQ(0u, text.DrawTextCenter(font.get(), Nothing, 0, 0));
    EXPECT_EQ(0u, text.DrawTextCenter(font.get(), Nothing, 0, 0, 9));
    EXPECT_EQ(0u, text.DrawTextRight(font.get(), Nothing, 0, 0));
    EXPECT_EQ(0u, text.DrawTextRight(font.get(), Nothing, 0, 0, 9));
    EXPECT_EQ(0u, text.DrawColoredText(font.get(), Nothing, 0, 0));
    EXPECT_EQ(0u, text.DrawColoredTextClipped(font.get(), Nothing, 0, 0, 9));
    EXPECT_EQ(0u, TeskElement::ColorStrlen(Nothing));
    char plain[] = "before";
    TeskElement::StripColor(Nothing, plain);
    EXPECT_STREQ("", plain);
    EXPECT_EQ(nullptr, text.FindChild(Nothing));
    EXPECT_EQ(nullptr, text.FindUsableChild(Nothing, Nothing));
    EXPECT_FALSE(text.IsTypeOf(Nothing));
}

TEST_F(MissingTextsTest, FilesAndLooksAreNotFoundByThem)
{
    const TeskElement& element = Make<TeskElement>("frame");
    const std::unique_ptr<TeskTexture> texture(TeskTexture::New(Nothing));
    EXPECT_EQ("", texture->Filename);
    texture->Set(Nothing, 0);
    EXPECT_EQ("", texture->Filename);
    g_UIManager.SetElementMetadata(element.ID, Nothing, Nothing);
    g_UIManager.SetElementMetadata(element.ID, "a", Nothing);
    EXPECT_STREQ("", g_UIManager.GetElementMetadata(element.ID, "a"));
    EXPECT_FALSE(g_UIManager.LoadInterfaceXML(g_UIManager.Screen, Nothing, Nothing, Nothing, true, nullptr));
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(g_UIManager.Screen, "frame", Nothing));
}

TEST_F(MissingTextsTest, ControlsAreGivenNone)
{
    Make<TeskText>("text", "<Text>words</Text>").SetText(Nothing);
    Frame();
    Make<TeskHudElement>("hudelement", "<Text>words</Text>").SetText(Nothing);
    EXPECT_EQ("", Frame());

    auto& tooltip = Make<TeskTooltip>("tooltip");
    tooltip.ShowOnly(Nothing);
    tooltip.AddLine(Nothing);
    tooltip.Print(Nothing);
    tooltip.Show(true);
    EXPECT_EQ(std::string::npos, Frame().find("DrawText"));
}

TEST_F(MissingTextsTest, FieldsAreEmptiedByThem)
{
    auto& entry = Make<TeskTextEntry>("textentry", "<MaxLength>9</MaxLength>");
    entry.SetText("words");
    entry.SetText(Nothing);
    EXPECT_EQ(0u, entry.Text.TextLength);

    auto& edit = Make<TeskTextEdit>("textedit", "<VerticalScrollBar/>");
    edit.SetText("words\nmore");
    edit.SetText(Nothing);
    edit.AddText(Nothing);
    edit.AddLine(Nothing);
    edit.InsertText(edit.View.Caret, Nothing);
    edit.InsertLineAfter(nullptr, Nothing);
    EXPECT_STREQ("", edit.Lines.First()->Text);
    Frame();

    auto& console = Make<TeskConsole>("console", "<ScrollBar/>");
    console.Print(Nothing);
    console.SplitFixed(Nothing, 5);
    EXPECT_EQ(nullptr, console.Lines.At(0));
    Frame();
}

TEST_F(MissingTextsTest, CollectionsCompareThemAsEmptyOnes)
{
    auto& list = Make<TeskListBox>("listbox", "<ScrollBar/>");
    const u32 first = list.AddItem(Nothing, Nothing, 0);
    list.AddItem("b", "2", 0);
    list.SetItemText(2, Nothing);
    list.FindItemByText(Nothing, 0);
    list.FindItemByValue(Nothing, 0);
    list.FindOrderedByText(Nothing);
    list.FindOrderedByValue(Nothing);
    list.ApplySort();
    EXPECT_EQ(1u, first);
    EXPECT_EQ(2u, list.GetItemCount());
    Frame();

    auto& tree = Make<TeskTree>("tree", "<ScrollBar/><ItemHeight>10</ItemHeight>");
    TeskTreeNode* node = tree.Root->AddChild(Nothing, 0);
    node->InsertSiblingBefore(Nothing, 0);
    node->InsertSiblingAfter(Nothing, 0);
    node->SetText(Nothing);
    EXPECT_FALSE(node->UnsetMetadata("nobody"));
    node->SetMetadata(Nothing, Nothing);
    node->SetMetadata("a", Nothing);
    EXPECT_TRUE(node->UnsetMetadata("nobody"));
    node->UnsetMetadata(Nothing);
    node->GetMetadata(Nothing);
    EXPECT_EQ(nullptr, tree.FindNodeByQuery(Nothing));
    Frame();

    auto& tabs = Make<TeskTabControl>("tabcontrol");
    tabs.AddTab(Nothing, nullptr, Nothing, Nothing);
    tabs.AddTab("a", nullptr, Nothing, Nothing);
    tabs.GetTabFromName(Nothing);
    Frame();
}

TEST_F(MissingTextsTest, MapsHaveNoBlipsOfTheirName)
{
    auto& map = Make<TeskMap>("map", "<MapSizeX>9</MapSizeX><MapSizeY>9</MapSizeY>");
    EXPECT_EQ(0u, map.AddBlip(Nothing, {0, 0, 0}, 5, Nothing, Nothing, Nothing));
    const u32 id = map.AddBlip("a", {0, 0, 0}, 5, Nothing, Nothing, Nothing);
    EXPECT_NE(0u, id);
    map.UpdateBlipLabel(id, "label");
    map.UpdateBlipLabel(id, Nothing);
    map.UpdateBlipLabel(0, Nothing);
    EXPECT_EQ(nullptr, map.FindBlip(Nothing));
    EXPECT_EQ(nullptr, map.NewBlip(Nothing, Nothing, Nothing));
    Frame();
}

TEST_F(MissingTextsTest, WindowsMenusAndBoxesShowNone)
{
    auto& window = Make<TeskWindow>(
        "window", "<Client><Width>9</Width></Client><TitleBar><Children><text name='Title'/></Children></TitleBar>");
    window.SetTitle("title");
    window.SetTitle(Nothing);
    Frame();

    TestMenu submenu;
    TestMenu menu([&submenu](TestMenu& self) {
        self.AddItem(Nothing, 1);
        self.AddSubMenu(Nothing, &submenu, 2);
        self.AddSubMenu(Nothing, nullptr, 3);
    });
    EXPECT_TRUE(menu.Create(10, 10));
    Frame();

    auto* message =
        dynamic_cast<TeskScriptMessageBox*>(g_UIManager.LoadElement(g_UIManager.Screen, "scriptmessagebox", "M"));
    auto* input = dynamic_cast<TeskScriptInputBox*>(g_UIManager.LoadElement(g_UIManager.Screen, "scriptinputbox", "I"));
    ASSERT_TRUE(message && input);
    message->Create(Nothing, Nothing, MessageBoxYesNo, nullptr);
    input->Create(Nothing, Nothing, Nothing, nullptr);
    Frame();
    menu.DestroyMenu(true);
}

TEST_F(MissingTextsTest, TypesKnowNoNameOfTheirs)
{
    MvTypeDefinition type("type");
    MvValue value;
    _MvTypeVar result;
    EXPECT_EQ(DispatchUnknown, type.DispatchMember(value, Nothing, 0, nullptr, result));
    EXPECT_EQ(DispatchUnknown, type.DispatchMethod(value, Nothing, 0, nullptr));
    type.FromText(value, Nothing);
    char* arguments[] = {nullptr, nullptr};
    type.FromArguments(value, 2, arguments);
    type.FromArguments(value, -3, nullptr);
    EXPECT_EQ(DispatchUnknown, type.DispatchMember(value, "nobody", 2, arguments, result));
}
