#include "teskara/windows/CContextMenuHandler.h"

#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskContextMenuItem.h"
#include "tests/unit/MenuTest.h"

#include <memory>
#include <stdexcept>

namespace {

// A menu with an item and a submenu, which has the same.
class CContextMenuHandlerTest : public MenuTest
{
protected:
    CContextMenuHandlerTest()
    {
        Top.Rows = [this](TestMenu& self) {
            self.AddItem("Item", 11);
            self.AddSubMenu("More", &Middle, 12);
            self.AddSubMenu("Other", &Other, 13);
        };
        Middle.Rows = [this](TestMenu& self) {
            self.AddItem("Item", 21);
            self.AddSubMenu("More", &Last, 22);
        };
        Last.Rows = [](TestMenu& self) { self.AddItem("Item", 31); };
        Other.Rows = [](TestMenu& self) { self.AddItem("Item", 41); };
    }

    // A submenu opens beside its row, where the wide menu above it does not reach.
    void Open(TestMenu& from, i32 row)
    {
        ClickRow(from, row);
        Frame();
    }

    void OpenAll()
    {
        ASSERT_TRUE(Top.Create(100, 50));
        Frame();
        Open(Top, 1);
        Open(Middle, 1);
        ASSERT_NE(nullptr, Last.Menu);
    }

    TestMenu Top;
    TestMenu Middle;
    TestMenu Last;
    TestMenu Other;
};

} // namespace

TEST_F(CContextMenuHandlerTest, AMenuOpensOnceWithTheKeyboard)
{
    EXPECT_TRUE(Top.Create(100, 50));
    TeskContextMenu* menu = Top.Menu;
    EXPECT_EQ(menu, g_UIManager.GetFocusElement());
    EXPECT_FALSE(Top.Create(1, 1));
    EXPECT_EQ(menu, Top.Menu);
    EXPECT_EQ(100, menu->X);
    EXPECT_EQ(3u, menu->NodeCount);
    EXPECT_EQ((Log{"create 0"}), Top.Log);
}

TEST_F(CContextMenuHandlerTest, EachTimeThatItOpensAMenuIsFilledAnew)
{
    EXPECT_TRUE(Top.Create(100, 50));
    Top.DestroyMenu(false);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_TRUE(Top.Create(100, 50));
    EXPECT_EQ(3u, Top.Menu->NodeCount);
    EXPECT_EQ((Log{"create 0", "destroyed", "create 0"}), Top.Log);
}

TEST_F(CContextMenuHandlerTest, AutomaticIdsCountFromZeroBesideGivenOnes)
{
    EXPECT_TRUE(Other.Create(0, 0));
    EXPECT_EQ(0u, Other.AddItem("One", 0));
    EXPECT_EQ(7u, Other.AddItem("Two", 7));
    EXPECT_EQ(1u, Other.AddItem("Three", 0));
    EXPECT_EQ(2u, Other.AddSeparator());
    EXPECT_EQ(3u, Other.AddSubMenu("Four", nullptr, 0));
    EXPECT_EQ(3u, Other.AddItem(nullptr, 3)) << "nobody looks whether an id is there already";
    EXPECT_EQ(4u, Other.AddItem("Five", 0));
}

TEST_F(CContextMenuHandlerTest, WithoutAMenuNothingIsAddedOrChecked)
{
    bool checked = true;
    EXPECT_EQ(0u, Top.AddItem("One", 7));
    EXPECT_EQ(0u, Top.AddSeparator());
    EXPECT_EQ(0u, Top.AddSubMenu("Two", &Middle, 8));
    EXPECT_FALSE(Top.GetItemCheck(7, checked));
    EXPECT_TRUE(checked);
    Top.SetItemCheck(7, true);
    Top.DestroyMenu(true);
    EXPECT_EQ(Log{}, Top.Log);
}

TEST_F(CContextMenuHandlerTest, ChecksAreThoseOfItems)
{
    EXPECT_TRUE(Other.Create(0, 0));
    Other.AddSeparator(); // 0
    Other.AddSubMenu("Sub", nullptr, 5);
    Other.AddItem("Behind the submenu", 5);
    Other.AddItem("Twin", 6);
    Other.AddItem("Twin", 6);
    bool checked = true;
    EXPECT_FALSE(Other.GetItemCheck(0, checked));
    EXPECT_FALSE(Other.GetItemCheck(5, checked)) << "the first row of that id is no item";
    EXPECT_FALSE(Other.GetItemCheck(99, checked));
    EXPECT_TRUE(checked);
    EXPECT_TRUE(Other.GetItemCheck(6, checked));
    EXPECT_FALSE(checked);
    Other.SetItemCheck(6, true);
    EXPECT_TRUE(Other.GetItemCheck(6, checked));
    EXPECT_TRUE(checked);
    EXPECT_TRUE(dynamic_cast<TeskContextMenuItem&>(*Other.Menu->Nodes->Next->Next->Next->Next->Next).Checked);
    Other.SetItemCheck(0, true);
    Other.SetItemCheck(5, true);
    EXPECT_TRUE(dynamic_cast<TeskContextMenuItem&>(*Other.Menu->Nodes->Next->Next->Next).Checked);
}

TEST_F(CContextMenuHandlerTest, AnItemThatIsPickedClosesTheMenu)
{
    Top.Create(100, 50);
    Frame();
    ClickRow(Top, 0);
    EXPECT_EQ((Log{"create 0", "click 11", "destroyed"}), Top.Log);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, ASubmenuOpensBesideItsRow)
{
    Top.Create(100, 50);
    Frame();
    ClickRow(Top, 1);
    ASSERT_NE(nullptr, Middle.Menu);
    EXPECT_EQ((Log{"create 12"}), Middle.Log);
    EXPECT_EQ(179, Middle.Menu->X) << "100 and 80, less a border of 3, and 2";
    EXPECT_EQ(65, Middle.Menu->Y) << "50, a border of 3 and a row of 14, less 2";
    EXPECT_EQ(&Top, Middle.Parent);
    EXPECT_EQ(&Middle, Top.Child);
    EXPECT_NE(nullptr, Top.Menu);
    EXPECT_EQ(Middle.Menu, g_UIManager.GetFocusElement());
}

TEST_F(CContextMenuHandlerTest, ASubmenuThatIsOpenStaysAsItIs)
{
    OpenAll();
    TeskContextMenu* open = Middle.Menu;
    Open(Top, 1);
    EXPECT_EQ(open, Middle.Menu);
    EXPECT_NE(nullptr, Top.Menu);
    EXPECT_NE(nullptr, Last.Menu);
}

TEST_F(CContextMenuHandlerTest, ASecondSubmenuClosesTheFirstAndItsParent)
{
    OpenAll();
    Open(Top, 2);
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_EQ(nullptr, Last.Menu);
    EXPECT_EQ(nullptr, Top.Menu);
    ASSERT_NE(nullptr, Other.Menu);
    EXPECT_EQ(&Top, Other.Parent);
    EXPECT_EQ(&Other, Top.Child);
    EXPECT_EQ((Log{"create 13"}), Other.Log);
    Top.DestroyMenu(false);
    EXPECT_EQ(nullptr, Other.Menu);
}

TEST_F(CContextMenuHandlerTest, AnItemOfASubmenuClosesAllMenus)
{
    OpenAll();
    ClickRow(Last, 0);
    EXPECT_EQ((Log{"create 22", "click 31", "destroyed"}), Last.Log);
    EXPECT_EQ((Log{"create 12", "destroyed"}), Middle.Log);
    EXPECT_EQ((Log{"create 0", "destroyed"}), Top.Log);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, AnItemClosesTheMenusAboveAlsoThroughOneThatIsClosed)
{
    OpenAll();
    Other.Rows = [this](TestMenu& self) { self.AddSubMenu("Last", &Last, 0); };
    Middle.AddSubMenu("Other", &Other, 0);
    Frame();
    Open(Middle, 2);
    EXPECT_EQ(nullptr, Middle.Menu);
    ASSERT_NE(nullptr, Top.Menu);
    ASSERT_NE(nullptr, Other.Menu);
    Open(Other, 0);
    ClickRow(Last, 0);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ(nullptr, Other.Menu);
}

TEST_F(CContextMenuHandlerTest, APressElsewhereClosesASubmenuWithItsOwnButNotItsParent)
{
    OpenAll();
    g_UIManager.SetFocusElement(Middle.Menu);
    ClickAt(700, 500);
    EXPECT_EQ(nullptr, Last.Menu);
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_NE(nullptr, Top.Menu);
    EXPECT_EQ(nullptr, Top.Child);
    g_UIManager.SetFocusElement(Top.Menu);
    ClickAt(701, 500);
    EXPECT_EQ(nullptr, Top.Menu);
}

TEST_F(CContextMenuHandlerTest, APressOnSomethingElseClosesTheMenuToo)
{
    Load("<button name='B'><X>600</X><Y>400</Y><Width>50</Width><Height>50</Height></button>");
    Top.Create(100, 50);
    Frame();
    ClickAt(610, 410);
    EXPECT_EQ(nullptr, Top.Menu);
}

TEST_F(CContextMenuHandlerTest, TheKeyboardMayMoveBetweenMenus)
{
    OpenAll();
    for (const TestMenu* menu : {&Top, &Last, &Middle}) {
        g_UIManager.SetFocusElement(menu->Menu);
        EXPECT_EQ(menu->Menu, g_UIManager.GetFocusElement());
    }
    PointAt(Top, 0);
    g_UIManager.OnLMouseDown();
    EXPECT_NE(nullptr, Middle.Menu);
    g_UIManager.SetFocusElement(nullptr);
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_EQ(nullptr, Last.Menu);
    EXPECT_NE(nullptr, Top.Menu);
}

TEST_F(CContextMenuHandlerTest, AHandlerThatEndsClosesItsMenuAndWhatWasOpenedFromIt)
{
    auto handler = std::make_unique<TestMenu>([this](TestMenu& self) { self.AddSubMenu("More", &Middle, 1); });
    handler->Create(100, 50);
    Frame();
    ClickRow(*handler, 0);
    ASSERT_NE(nullptr, Middle.Menu);
    handler.reset();
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_EQ(nullptr, Middle.Parent);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, AHandlerForgetsAParentThatHasEnded)
{
    auto handler = std::make_unique<TestMenu>([this](TestMenu& self) { self.AddSubMenu("More", &Middle, 1); });
    handler->Create(100, 50);
    Frame();
    ClickRow(*handler, 0);
    Middle.DestroyMenu(false);
    EXPECT_EQ(handler.get(), Middle.Parent);
    handler.reset();
    EXPECT_EQ(nullptr, Middle.Parent);
    Middle.Create(0, 0);
    Middle.DestroyMenu(true);
    EXPECT_EQ(nullptr, Middle.Menu);
}

TEST_F(CContextMenuHandlerTest, AParentForgetsASubmenuThatHasEnded)
{
    auto handler = std::make_unique<TestMenu>();
    Other.Rows = [&](TestMenu& self) { self.AddSubMenu("More", handler.get(), 1); };
    Other.Create(100, 50);
    Frame();
    ClickRow(Other, 0);
    EXPECT_EQ(handler.get(), Other.Child);
    handler.reset();
    EXPECT_EQ(nullptr, Other.Child);
    EXPECT_NE(nullptr, Other.Menu) << "its own menu stays";
    Other.DestroyMenu(true);
    EXPECT_EQ(nullptr, Other.Menu);
}

TEST_F(CContextMenuHandlerTest, MenusThatOpenEachOtherInACircleClose)
{
    Top.Rows = [this](TestMenu& self) { self.AddSubMenu("Down", &Middle, 0); };
    Middle.Rows = [this](TestMenu& self) {
        self.AddSubMenu("Up", &Top, 0);
        self.AddSubMenu("Self", &Middle, 0);
        self.AddItem("Item", 0);
    };
    Middle.Create(100, 50);
    Frame();
    Open(Middle, 0); // Top from Middle
    Open(Top, 0); // is open already
    Top.DestroyMenu(true);
    EXPECT_EQ(nullptr, Middle.Menu);

    Middle.Create(100, 50);
    Frame();
    Open(Middle, 0);
    Middle.Menu->Parent->DeleteChild(Middle.Menu);
    Open(Top, 0); // Middle from Top, which was opened from Middle
    ASSERT_NE(nullptr, Middle.Menu);
    Open(Middle, 1);
    ClickRow(Middle, 2);
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ(&Middle, Top.Parent);
    EXPECT_EQ(&Top, Middle.Parent) << "the circle stays";
    Middle.Create(100, 50);
    Top.DestroyMenu(true);
    EXPECT_EQ(nullptr, Middle.Menu);
}

TEST_F(CContextMenuHandlerTest, AMenuThatIsDeletedTellsItsHandler)
{
    OpenAll();
    g_UIManager.Reset();
    EXPECT_EQ((Log{"create 0", "destroyed"}), Top.Log);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ(nullptr, Middle.Menu);
    EXPECT_EQ(nullptr, Last.Menu);
    OpenAll();
}

TEST_F(CContextMenuHandlerTest, AHandlerHasNoMenuOnceItHasHeardOfItsEnd)
{
    const TeskContextMenu* menu = nullptr;
    Top.Destroyed = [&] { menu = Top.Menu; };
    Top.Create(100, 50);
    menu = Top.Menu;
    Top.DestroyMenu(false);
    EXPECT_EQ(nullptr, menu);
}

TEST_F(CContextMenuHandlerTest, AHandlerMayEndInAnyOfItsOperations)
{
    auto fills = std::make_unique<TestMenu>();
    fills->Rows = [&](TestMenu&) { fills.reset(); };
    fills->Create(0, 0);
    EXPECT_EQ(nullptr, fills);

    auto picks = std::make_unique<TestMenu>([](TestMenu& self) { self.AddItem("", 1); });
    picks->Pick = [&](unsigned int) { picks.reset(); };
    picks->Create(100, 50);
    Frame();
    ClickRow(*picks, 0);
    EXPECT_EQ(nullptr, picks);

    auto closes = std::make_unique<TestMenu>();
    closes->Destroyed = [&] { closes.reset(); };
    closes->Create(0, 0);
    closes->DestroyMenu(true);
    EXPECT_EQ(nullptr, closes);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, AHandlerMayEndWhenItsSubmenuCloses)
{
    auto handler = std::make_unique<TestMenu>([this](TestMenu& self) { self.AddSubMenu("More", &Last, 1); });
    Last.Destroyed = [&] { handler.reset(); };
    handler->Create(100, 50);
    Frame();
    ClickRow(*handler, 0);
    Frame();
    ClickRow(Last, 0);
    EXPECT_EQ(nullptr, handler);
    EXPECT_EQ(nullptr, Last.Menu);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, ASubmenuMayEndWhileItsParentClosesForIt)
{
    auto handler = std::make_unique<TestMenu>();
    Top.Rows = [&](TestMenu& self) {
        self.AddSubMenu("More", &Middle, 0);
        self.AddSubMenu("New", handler.get(), 0);
    };
    Middle.Destroyed = [&] { handler.reset(); };
    Top.Create(100, 50);
    Frame();
    Open(Top, 0);
    Open(Top, 1);
    EXPECT_EQ(nullptr, handler);
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ(nullptr, Top.Child);
}

TEST_F(CContextMenuHandlerTest, WhatAHandlerThrowsGoesNoFurther)
{
    const auto fail = [] { throw std::runtime_error("no"); };
    TestMenu menu([&](TestMenu& self) {
        self.AddItem("One", 1);
        fail();
    });
    menu.Pick = [&](unsigned int) { fail(); };
    menu.Destroyed = fail;
    EXPECT_TRUE(menu.Create(100, 50));
    EXPECT_EQ(1u, menu.Menu->NodeCount);
    Frame();
    ClickRow(menu, 0);
    EXPECT_NE(nullptr, menu.Menu) << "the click has failed";
    menu.DestroyMenu(false);
    EXPECT_EQ(nullptr, menu.Menu);
}

TEST_F(CContextMenuHandlerTest, AHandlerThatKeepsItsMenuHasNoneAllTheSame)
{
    struct Careless : TestMenu {
        void OnMenuDestroyed() override { }
    } menu;
    menu.Create(0, 0);
    menu.DestroyMenu(false);
    EXPECT_EQ(nullptr, menu.Menu);
}

TEST_F(CContextMenuHandlerTest, ScriptsOfTheLookMayDeleteTheMenu)
{
    Host.Scripts["delete"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    SetLook("<OnRender>delete</OnRender>");
    EXPECT_TRUE(Top.Create(100, 50));
    Frame();
    EXPECT_EQ(nullptr, Top.Menu);
    EXPECT_EQ((Log{"create 0", "destroyed"}), Top.Log);
}

TEST_F(CContextMenuHandlerTest, AHandlerMayEndWhileItsMenuGoes)
{
    auto handler = std::make_unique<TestMenu>();
    Host.Scripts["end"] = [&](TeskElement&) { handler.reset(); };
    SetLook("<OnUnload>end</OnUnload>");
    handler->Create(100, 50);
    handler->DestroyMenu(false);
    EXPECT_EQ(nullptr, handler);
    EXPECT_EQ(nullptr, g_UIManager.Screen->FirstChild);
}

TEST_F(CContextMenuHandlerTest, AMenuOpensNowhereWhileThereIsNoScreen)
{
    TeskScreen* screen = g_UIManager.Screen;
    g_UIManager.Screen = nullptr;
    EXPECT_FALSE(Top.Create(0, 0));
    EXPECT_EQ(nullptr, Top.Menu);
    g_UIManager.Screen = screen;
    EXPECT_TRUE(Top.Create(0, 0));
}

TEST_F(CContextMenuHandlerTest, AMenuWhoseKindIsGoneOutlivesItsHandler)
{
    TeskElementFactory* factory = g_UIManager.FindFactory("contextmenu");
    ASSERT_NE(nullptr, factory);
    auto handler = std::make_unique<TestMenu>();
    handler->Create(100, 50);
    TeskContextMenu* menu = handler->Menu;
    factory->Unregister();
    handler.reset();
    EXPECT_EQ(nullptr, menu->pHandler);
    factory->Register("contextmenu", TeskaraVersion);
    menu->Parent->DeleteChild(menu);
}
