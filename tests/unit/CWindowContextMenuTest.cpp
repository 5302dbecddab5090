#include "teskara/windows/CWindowContextMenu.h"

#include "teskara/element/TeskElementFactory.h"
#include "teskara/windows/TeskContextMenu.h"
#include "teskara/windows/TeskContextMenuItem.h"
#include "teskara/windows/TeskContextMenuSeparator.h"
#include "tests/unit/WindowTest.h"

namespace {

class CWindowContextMenuTest : public WindowTest
{
protected:
    CWindowContextMenuTest() { g_UIManager.AddTemplate("contextmenu", "<Template/>"); }

    static void ClickRightAt(i32 x, i32 y)
    {
        MoveTo(x, y);
        g_UIManager.OnRMouseDown();
        g_UIManager.OnRMouseUp();
        g_UIManager.LastRightClickElementID = 0;
    }

    // Texts and ids of the rows, one after another.
    static std::string RowsOf(const TeskWindow& window)
    {
        std::string rows;
        const TeskContextMenu* menu = window.ContextMenu.Menu;
        for (const TeskContextMenuNode* node = menu ? menu->Nodes : nullptr; node; node = node->Next) {
            if (const auto* item = dynamic_cast<const TeskContextMenuItem*>(node))
                rows += item->Text + "=" + std::to_string(item->ID) + " ";
            else if (dynamic_cast<const TeskContextMenuSeparator*>(node))
                rows += "-- ";
        }
        return rows;
    }
};

} // namespace

TEST_F(CWindowContextMenuTest, ItsRowsTellWhatTheyWouldDo)
{
    TeskWindow& window = LoadWindow();
    EXPECT_TRUE(window.ContextMenu.Create(10, 10));
    EXPECT_EQ("Lock=1 Reset Position=2 -- Close=3 ", RowsOf(window));
    window.ContextMenu.DestroyMenu(false);
    window.Locked = true;
    EXPECT_TRUE(window.ContextMenu.Create(10, 10));
    EXPECT_EQ("Unlock=1 Reset Position=2 -- Close=3 ", RowsOf(window));
}

TEST_F(CWindowContextMenuTest, ItOpensByTheRightButtonOnATitleBarThatShowsSomething)
{
    const TeskWindow& window = LoadWindow();
    ClickRightAt(110, 112);
    ASSERT_NE(nullptr, window.ContextMenu.Menu);
    EXPECT_EQ(110, window.ContextMenu.Menu->X);
    EXPECT_EQ(112, window.ContextMenu.Menu->Y);
}

TEST_F(CWindowContextMenuTest, ItOpensByTheRightButtonOnATitleBarThatShowsNothing)
{
    UseTemplate(TitleBarMarkup("") + ClientMarkup());
    const TeskWindow& window = LoadWindow("<BackgroundColor>ff202020</BackgroundColor>");
    ClickRightAt(110, 200);
    EXPECT_EQ(nullptr, window.ContextMenu.Menu);
    ClickRightAt(110, 112);
    ASSERT_NE(nullptr, window.ContextMenu.Menu);
    EXPECT_EQ(110, window.ContextMenu.Menu->X);
    EXPECT_EQ(112, window.ContextMenu.Menu->Y);
}

TEST_F(CWindowContextMenuTest, ItLocksAndUnlocksTheWindow)
{
    TeskWindow& window = LoadWindow();
    window.ContextMenu.OnClick(1);
    EXPECT_TRUE(window.Locked);
    window.ContextMenu.OnClick(1);
    EXPECT_FALSE(window.Locked);
}

TEST_F(CWindowContextMenuTest, ItPutsTheWindowBack)
{
    TeskWindow& window = LoadWindow();
    window.X = 1;
    window.Width = 2;
    window.ContextMenu.OnClick(2);
    EXPECT_EQ("100,100 200x150", PlaceOf(window));
}

TEST_F(CWindowContextMenuTest, ItClosesTheWindow)
{
    TeskWindow& window = LoadWindow();
    for (const unsigned id : {0u, 4u, 4294967295u}) {
        window.ContextMenu.OnClick(id);
        EXPECT_TRUE(window.Visible);
    }
    window.ContextMenu.OnClick(3);
    EXPECT_FALSE(window.Visible);
}

TEST_F(CWindowContextMenuTest, AWindowThatGoesTakesItsMenuWithIt)
{
    const std::size_t elements = g_UIManager.ElementsByID.size();
    TeskWindow& window = LoadWindow();
    ClickRightAt(110, 112);
    ASSERT_NE(nullptr, window.ContextMenu.Menu);
    g_UIManager.Screen->DeleteChild(&window);
    EXPECT_EQ(elements, g_UIManager.ElementsByID.size());
}

TEST_F(CWindowContextMenuTest, AMenuThatGoesTakesNothingFromTheWindow)
{
    TeskWindow& window = LoadWindow();
    ClickRightAt(110, 112);
    g_UIManager.Screen->DeleteChild(window.ContextMenu.Menu);
    EXPECT_EQ(nullptr, window.ContextMenu.Menu);
    ClickRightAt(111, 112);
    EXPECT_NE(nullptr, window.ContextMenu.Menu);
    g_UIManager.Reset();
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
}

TEST_F(CWindowContextMenuTest, TheWindowMayDieOfWhatIsPicked)
{
    class Killer : public TeskElement
    {
    public:
        using TeskElement::TeskElement;
        void SizeRecalculated(bool) override
        {
            if (TeskElement* window = g_UIManager.FindElement("W"))
                g_UIManager.Screen->DeleteChild(window);
        }
    };

    const TeskFactory<Killer> factory("killer");
    TeskWindow& window = LoadWindow();
    ASSERT_TRUE(window.ContextMenu.Create(10, 10));
    Frame();
    factory.New<Killer>("killer", &window, "K");
    TeskContextMenuNode* reset = window.ContextMenu.Menu->Nodes->Next;
    reset->OnClick();
    EXPECT_EQ(1u, g_UIManager.ElementsByID.size());
}
