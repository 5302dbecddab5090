#include "teskara/windows/TeskContextMenu.h"

#include "teskara/element/TeskScreen.h"
#include "tests/unit/MenuTest.h"

namespace {

class TeskContextMenuTest : public MenuTest
{
protected:
    // Opens a menu at 100, 50 and draws it once.
    void Open(TestMenu& menu)
    {
        EXPECT_TRUE(menu.Create(100, 50));
        Frame();
    }

    static std::string Drawn(const std::string& text, int x, int y)
    {
        return "DrawText \"" + text + "\" (" + std::to_string(x) + "," + std::to_string(y) + "," + std::to_string(x)
            + ",600) ffffffff format=288 font 1\n";
    }

    // What a frame draws behind the panel of the menu, which is clear.
    std::string DrawnRows()
    {
        const std::string all = Frame();
        const std::string clear = " 00000000\n";
        const std::size_t last = all.rfind(clear);
        return last == all.npos ? all : all.substr(last + clear.size());
    }
};

} // namespace

TEST_F(TeskContextMenuTest, NoMarkupMakesAMenu)
{
    Load("<contextmenu name='M'/>");
    EXPECT_EQ(nullptr, g_UIManager.FindElement("M"));
    EXPECT_EQ((std::vector<std::string>{"PrintLine \"CreateUIElement failed on 'M' under 'screen'\""}), Host.Calls);
}

TEST_F(TeskContextMenuTest, AMenuWithoutAHandlerIsAnEmptyPanel)
{
    auto* menu = dynamic_cast<TeskContextMenu*>(g_UIManager.LoadElement(g_UIManager.Screen, "contextmenu", "M"));
    ASSERT_NE(nullptr, menu);
    Frame();
    EXPECT_EQ(80u, menu->Width);
    EXPECT_EQ(0u, menu->Height);
    g_UIManager.SetFocusElement(menu);
    ClickAt(0, 0);
    ClickAt(300, 300);
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(menu, g_UIManager.FindElement("M"));
    EXPECT_TRUE(menu->IsTypeOf("ContextMenu"));
    EXPECT_TRUE(menu->IsTypeOf("frame"));
    EXPECT_FALSE(menu->IsTypeOf("window"));
    TeskElement* frame = g_UIManager.LoadElement(g_UIManager.Screen, "frame", "F");
    EXPECT_EQ(frame->GetMvType(), menu->GetMvType());
}

TEST_F(TeskContextMenuTest, TheMenuIsNamedAfterTheNextIDInHexadecimal)
{
    g_UIManager.NextElementID = 0xABC;
    TestMenu menu;
    Open(menu);
    EXPECT_EQ("context menu 0xabc", menu.Menu->Name);
    EXPECT_EQ("Context Menu 0xABC", menu.Menu->FullName);
    EXPECT_EQ(0xABCu, menu.Menu->ID);
    EXPECT_EQ(g_UIManager.Screen, menu.Menu->Parent);
}

TEST_F(TeskContextMenuTest, TheLookComesFromTheTemplateOfTheKind)
{
    SetLook("<X>5</X><BackgroundColor>ff000001</BackgroundColor><BorderColor>ff000002</BorderColor><Border>1</Border>"
            "<HighlightColor>ff000003</HighlightColor><Texture Filename='#a'/><ItemTexture Filename='#b'/>"
            "<ItemCheckTexture Filename='#c'/><HighlightItemTexture Filename='#d'/><SeparatorTexture Filename='#e'/>"
            "<SubmenuTexture Filename='#f'/><HighlightSubmenuTexture Filename='#g'/><Font><Size>9</Size></Font>");
    TestMenu menu;
    ASSERT_TRUE(menu.Create(100, 50));
    const TeskContextMenu& element = *menu.Menu;
    EXPECT_EQ(0xff000001u, element.BackgroundColor);
    EXPECT_EQ(0xff000002u, element.BorderColor);
    EXPECT_EQ(0xff000003u, element.HighlightColor);
    EXPECT_EQ(1u, element.Border);
    EXPECT_EQ(9, element.Font->Size);
    EXPECT_EQ(100, element.X);
    EXPECT_EQ(50, element.Y);
    EXPECT_EQ("#a", element.Texture->Filename);
    EXPECT_EQ("#b", element.ItemTexture->Filename);
    EXPECT_EQ("#c", element.ItemCheckTexture->Filename);
    EXPECT_EQ("#d", element.HighlightItemTexture->Filename);
    EXPECT_EQ("#e", element.SeparatorTexture->Filename);
    EXPECT_EQ("#f", element.SubmenuTexture->Filename);
    EXPECT_EQ("#g", element.HighlightSubmenuTexture->Filename);
}

TEST_F(TeskContextMenuTest, ATemplateOfTheHandlersOwnComesFirst)
{
    TestMenu menu;
    menu.Template = g_UIManager.AddTemplate("Mine", "<Template><Border>9</Border></Template>");
    Open(menu);
    EXPECT_EQ(9u, menu.Menu->Border);
    EXPECT_EQ(12, menu.Menu->Font->Size);
    EXPECT_EQ(0u, menu.Menu->HighlightColor);
    EXPECT_EQ(nullptr, menu.Menu->ItemTexture);
}

TEST_F(TeskContextMenuTest, APositionOfTheTemplateDoesNotHoldTheMenu)
{
    SetLook("<X>50%</X><Y>r10</Y>");
    TestMenu menu;
    Open(menu);
    menu.Menu->RecalculateSize(true);
    EXPECT_EQ(100, menu.Menu->X);
    EXPECT_EQ(50, menu.Menu->Y);
}

TEST_F(TeskContextMenuTest, AMenuWithoutAnyTemplateOpensWithoutALook)
{
    g_UIManager.ClearTemplates();
    TestMenu menu([](TestMenu& self) {
        self.AddItem("A long text without a font", 1);
        self.AddItem("B", 2);
    });
    Open(menu);
    ASSERT_NE(nullptr, menu.Menu);
    EXPECT_EQ(nullptr, menu.Menu->Font);
    EXPECT_EQ(80u, menu.Menu->Width);
    EXPECT_EQ(28u, menu.Menu->Height);
    EXPECT_EQ("", menu.Log.size() == 1 ? "" : "created once");
    ClickRow(menu, 1);
    EXPECT_EQ((Log{"create 0", "click 2", "destroyed"}), menu.Log);
}

TEST_F(TeskContextMenuTest, TheWidthFollowsTheLongestTextOneFrameLate)
{
    TestMenu menu([](TestMenu& self) {
        self.AddItem("Short", 1);
        self.AddItem("Fifteen letters", 2); // 90 wide
    });
    ASSERT_TRUE(menu.Create(100, 50));
    EXPECT_EQ(0u, menu.Menu->Width);
    Frame();
    EXPECT_EQ(110u, menu.Menu->Width);
    EXPECT_EQ(34u, menu.Menu->Height) << "two rows of 14 and two borders of 3";
    menu.AddItem("Seventeen letters", 3); // 102 wide
    Frame();
    EXPECT_EQ(122u, menu.Menu->Width);
    EXPECT_EQ(48u, menu.Menu->Height);
}

TEST_F(TeskContextMenuTest, AMenuIsAtLeastEightyWide)
{
    TestMenu menu([](TestMenu& self) { self.AddItem("Ten letter", 1); }); // 60 wide
    Open(menu);
    EXPECT_EQ(80u, menu.Menu->Width);
    menu.AddItem("Eleven letr", 2); // 66 wide
    Frame();
    EXPECT_EQ(86u, menu.Menu->Width);
}

TEST_F(TeskContextMenuTest, RowsStandBelowEachOtherInsideTheBorder)
{
    TestMenu menu([](TestMenu& self) {
        self.AddItem("One", 1);
        self.AddSeparator();
        self.AddSubMenu("Two", nullptr, 2);
    });
    Open(menu);
    EXPECT_EQ(Drawn("One", 103, 53) + Drawn("Two", 103, 81), DrawnRows());
    const TeskContextMenuNode* separator = menu.Menu->Nodes->Next;
    EXPECT_EQ(103, separator->Rect.left);
    EXPECT_EQ(67, separator->Rect.top);
    EXPECT_EQ(177, separator->Rect.right);
    EXPECT_EQ(81, separator->Rect.bottom);
}

TEST_F(TeskContextMenuTest, AHighlightWithoutATextureIsAPlainColour)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border>"
            "<HighlightColor>ff0000ff</HighlightColor>");
    TestMenu menu([](TestMenu& self) {
        self.AddItem("One", 1);
        self.AddSubMenu("Two", nullptr, 2);
    });
    Open(menu);
    PointAt(menu, 0);
    EXPECT_EQ("DrawRect (103,53,177,67) ff0000ff\n" + Drawn("One", 103, 53) + Drawn("Two", 103, 67), DrawnRows());
    PointAt(menu, 1);
    EXPECT_EQ(Drawn("One", 103, 53) + "DrawRect (103,67,177,81) ff0000ff\n" + Drawn("Two", 103, 67), DrawnRows());
}

TEST_F(TeskContextMenuTest, EachKindOfRowHasItsTextures)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border><ItemTexture Filename='#b'/>"
            "<HighlightItemTexture Filename='#d'/><SeparatorTexture Filename='#e'/><SubmenuTexture Filename='#f'/>"
            "<HighlightSubmenuTexture Filename='#g'/>");
    TestMenu menu([](TestMenu& self) {
        self.AddItem("One", 1);
        self.AddSeparator();
        self.AddSubMenu("Two", nullptr, 2);
    });
    Open(menu);
    const auto drawn = [](u32 texture, int top) {
        return "DrawTexturedRect texture " + std::to_string(texture) + " to=(103," + std::to_string(top) + ",177,"
            + std::to_string(top + 14) + ") from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n";
    };
    EXPECT_EQ(drawn(1, 53) + Drawn("One", 103, 53) + drawn(2, 67) + drawn(3, 81) + Drawn("Two", 103, 81), DrawnRows());
    PointAt(menu, 0);
    EXPECT_EQ(drawn(4, 53) + Drawn("One", 103, 53) + drawn(2, 67) + drawn(3, 81) + Drawn("Two", 103, 81), DrawnRows());
    PointAt(menu, 2);
    EXPECT_EQ(drawn(1, 53) + Drawn("One", 103, 53) + drawn(2, 67) + drawn(5, 81) + Drawn("Two", 103, 81), DrawnRows());
}

TEST_F(TeskContextMenuTest, ATextKeepsClearOfTheBorderOfItsTexture)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border>"
            "<SubmenuTexture Filename='#f'><Border>4</Border></SubmenuTexture>");
    TestMenu menu([](TestMenu& self) { self.AddSubMenu("Two", nullptr, 2); });
    Open(menu);
    const std::string rows = DrawnRows();
    EXPECT_EQ(0u, rows.find("DrawTexturedRects 9\n")) << rows;
    EXPECT_NE(std::string::npos, rows.find(Drawn("Two", 107, 57))) << rows;
}

TEST_F(TeskContextMenuTest, ACheckMarkIsASquareAtTheRightEnd)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border><HighlightColor>ff0000ff"
            "</HighlightColor><ItemTexture Filename='#b'/><ItemCheckTexture Filename='#c'/>");
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    menu.SetItemCheck(1, true);
    const std::string mark =
        "DrawTexturedRect texture 2 to=(163,53,177,67) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n";
    const std::string rows = DrawnRows();
    EXPECT_NE(std::string::npos, rows.find(mark + Drawn("One", 103, 53))) << rows;
    PointAt(menu, 0);
    EXPECT_EQ("DrawRect (103,53,177,67) ff0000ff\n" + mark + Drawn("One", 103, 53), DrawnRows());
    menu.SetItemCheck(1, false);
    EXPECT_EQ(std::string::npos, DrawnRows().find("texture 2"));
}

TEST_F(TeskContextMenuTest, ACheckMarkStandsInsideTheBorderAndItsOwnMovesTheText)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border>"
            "<ItemTexture Filename='#b'><Border>2</Border></ItemTexture>"
            "<ItemCheckTexture Filename='#c'><Border>1</Border></ItemCheckTexture>");
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    EXPECT_NE(std::string::npos, DrawnRows().find(Drawn("One", 105, 55)));
    menu.SetItemCheck(1, true);
    const std::string rows = DrawnRows();
    EXPECT_NE(std::string::npos, rows.find("to=(165,55,166,56)")) << "the first corner of the mark\n" << rows;
    EXPECT_NE(std::string::npos, rows.find("to=(174,64,175,65)")) << "the last one\n" << rows;
    EXPECT_NE(std::string::npos, rows.find(Drawn("One", 104, 54))) << rows;
}

TEST_F(TeskContextMenuTest, AnItemThatIsOnlyItsTextShowsNoCheckMark)
{
    SetLook("<Font><Size>12</Size><Color>ffffffff</Color></Font><Border>3</Border><ItemCheckTexture Filename='#c'/>");
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    menu.SetItemCheck(1, true);
    EXPECT_EQ(Drawn("One", 103, 53), DrawnRows());
}

TEST_F(TeskContextMenuTest, RowsAreHitOneBorderLowerThanTheyAreDrawn)
{
    TestMenu menu([](TestMenu& self) {
        self.AddItem("One", 1);
        self.AddItem("Two", 2);
    });
    Open(menu);
    const auto highlighted = [&](i32 y) {
        _Point2i point = {110, y};
        g_UIManager.OnMouseMove(point);
        return menu.Menu->Highlighted ? menu.Menu->Highlighted->ID : 0;
    };
    EXPECT_EQ(0u, highlighted(50));
    EXPECT_EQ(0u, highlighted(55));
    EXPECT_EQ(1u, highlighted(56));
    EXPECT_EQ(1u, highlighted(69));
    EXPECT_EQ(2u, highlighted(70));
    EXPECT_EQ(2u, highlighted(83));
    EXPECT_EQ(0u, highlighted(84)) << "the last row of pixels is below all rows";
}

TEST_F(TeskContextMenuTest, AMoveMakesRoomForRowsThatWereAddedSinceTheLastFrame)
{
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    EXPECT_EQ(20u, menu.Menu->Height) << "a row of 14 and two borders of 3";
    menu.AddItem("Two", 2);
    _Point2i point = {110, 60};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    EXPECT_EQ(34u, menu.Menu->Height);
    point = {110, 80};
    EXPECT_TRUE(g_UIManager.OnMouseMove(point));
    ASSERT_NE(nullptr, menu.Menu->Highlighted);
    EXPECT_EQ(2u, menu.Menu->Highlighted->ID);
}

TEST_F(TeskContextMenuTest, TheMouseIsOfInterestOnlyOverTheMenu)
{
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    _Point2i inside = {110, 60};
    EXPECT_FALSE(menu.Menu->OnMouseMove(inside));
    EXPECT_FALSE(menu.Menu->OnLMouseDown(inside));
    EXPECT_FALSE(menu.Menu->OnLMouseUp(inside));
    EXPECT_TRUE(g_UIManager.OnMouseMove(inside));
    EXPECT_TRUE(menu.Menu->OnLMouseDown(inside));

    _Point2i outside = {400, 400};
    EXPECT_FALSE(g_UIManager.OnMouseMove(outside));
    EXPECT_NE(nullptr, menu.Menu->Highlighted) << "the row stays marked";
    EXPECT_FALSE(menu.Menu->OnLMouseUp(inside));
    EXPECT_EQ((Log{"create 0"}), menu.Log);
}

TEST_F(TeskContextMenuTest, AClickOnASeparatorOrBetweenRowsKeepsTheMenuOpen)
{
    TestMenu menu([](TestMenu& self) {
        self.AddSeparator();
        self.AddSubMenu("Nowhere", nullptr, 0);
    });
    Open(menu);
    ClickRow(menu, 0);
    ClickRow(menu, 1);
    ClickAt(110, 51);
    EXPECT_NE(nullptr, menu.Menu);
    EXPECT_EQ((Log{"create 0"}), menu.Log);
}

TEST_F(TeskContextMenuTest, KeysDoNothing)
{
    TestMenu menu([](TestMenu& self) { self.AddItem("One", 1); });
    Open(menu);
    for (const u32 key : {13u, 27u, 38u, 40u})
        EXPECT_FALSE(g_UIManager.OnKeyDown(key));
    EXPECT_NE(nullptr, menu.Menu);
}

TEST_F(TeskContextMenuTest, ManyRowsAreAddedAndFoundQuickly)
{
    TestMenu menu([](TestMenu& self) {
        for (int row = 0; row < 20000; ++row)
            self.AddItem("", 0);
    });
    Open(menu);
    EXPECT_EQ(20000u, menu.Menu->NodeCount);
    EXPECT_EQ(280006u, menu.Menu->Height);
    PointAt(menu, 30);
    ASSERT_NE(nullptr, menu.Menu->Highlighted);
    EXPECT_EQ(30u, menu.Menu->Highlighted->ID);
}

TEST_F(TeskContextMenuTest, ARowThatEndsLeavesItsMenu)
{
    TestMenu menu([](TestMenu& self) {
        for (const char* text : {"One", "Two", "Three"})
            self.AddItem(text, 0);
    });
    Open(menu);
    PointAt(menu, 1);
    delete menu.Menu->Highlighted;
    EXPECT_EQ(nullptr, menu.Menu->Highlighted);
    EXPECT_EQ(2u, menu.Menu->NodeCount);
    EXPECT_EQ(2u, menu.Menu->Nodes->Next->ID);
    delete menu.Menu->Nodes->Next;
    EXPECT_EQ(3u, menu.AddItem("Four", 0));
    EXPECT_EQ(3u, menu.Menu->Nodes->Next->ID);
    EXPECT_EQ(menu.Menu->Nodes, menu.Menu->Nodes->Next->Previous);
    delete menu.Menu->Nodes;
    EXPECT_EQ(3u, menu.Menu->Nodes->ID);
    EXPECT_EQ(1u, menu.Menu->NodeCount);
}
