#include "tests/unit/ListTest.h"

// What scripts and parents do to a list in the middle of its events.
class TeskListBoxReentrancyTest : public ListTest
{
protected:
    TeskListBox& MakeActing(const std::string& markup = {})
    {
        return MakeListOf({"a", "b", "c", "d"}, "<OnSelect>on</OnSelect><OnDeSelect>off</OnDeSelect>" + markup);
    }

    // The list ends in its script, and its parent must hear nothing of it afterwards.
    void EndIn(const char* script, const std::function<void(TeskListBox& list)>& cause)
    {
        TeskListBox& list = MakeActing();
        list.SelectItem(1);
        Host.Scripts[script] = [this](TeskElement& self) { Parent.DeleteChild(&self); };
        TakeHeard();
        cause(list);
        EXPECT_TRUE(IsGone());
        EXPECT_TRUE(TakeHeard().empty());
        Host.Scripts.clear();
    }
};

TEST_F(TeskListBoxReentrancyTest, AListThatEndsInItsScriptTellsNothingMore)
{
    EndIn("on", [](TeskListBox& list) { list.ItemToggleSelect(2); });
    EndIn("off", [](TeskListBox& list) { list.SelectItem(2); });
    EndIn("off", [](TeskListBox& list) { list.DeselectItem(1); });
    EndIn("off", [](TeskListBox& list) { list.ClearSelection(); });
    EndIn("off", [](TeskListBox& list) { list.ClearItems(); });
    EndIn("off", [](TeskListBox& list) { list.RemoveItem(1); });
    EndIn("off", [](TeskListBox& list) { PressOn(list, 1); });
    EndIn("off", [](TeskListBox& list) { PressOn(list, 0); });
}

TEST_F(TeskListBoxReentrancyTest, AListThatItsParentEndsRunsNoFurtherScript)
{
    const std::function<void(TeskListBox & list)> causes[] = {
        [](TeskListBox& list) { list.SelectItem(2); },
        [](TeskListBox& list) { list.RemoveItem(1); },
        [](TeskListBox& list) { list.ClearItems(); },
        [](TeskListBox& list) { PressOn(list, 2); },
        [](TeskListBox& list) {
            _Point2i point = PointOn(list, 0);
            list.OnLMouseDoubleClick(point);
        },
    };
    Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "the list was gone"; };
    for (const auto& cause : causes) {
        TeskListBox& list =
            MakeListOf({"a", "b", "c"}, "<OnSelect>on</OnSelect><OnDoubleLeftClick>on</OnDoubleLeftClick>");
        list.SelectedItems.Insert(1);
        Parent.Act = [this](TeskElement& source) { Parent.DeleteChild(&source); };
        cause(list);
        Parent.Act = nullptr;
        EXPECT_TRUE(IsGone());
    }
}

TEST_F(TeskListBoxReentrancyTest, ADropMayEndTheList)
{
    TeskListBox& list = MakeListOf({"a", "b"}, "<Sort>User</Sort>");
    PressOn(list, 0);
    DragTo(list, 1);
    Parent.Act = [this](TeskElement& source) { Parent.DeleteChild(&source); };
    EXPECT_TRUE(Release(list));
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskListBoxReentrancyTest, ARowThatIsRemovedByItsOwnEventIsRemovedOnce)
{
    TeskListBox& list = MakeActing();
    list.SelectItem(2);
    Host.Scripts["off"] = [](TeskElement& self) {
        auto& acting = dynamic_cast<TeskListBox&>(self);
        acting.RemoveItem(2);
        EXPECT_EQ(2u, acting.AddItem("new", nullptr, 0));
    };
    list.RemoveItem(2);
    EXPECT_EQ((Strings{"a", "c", "d", "new"}), Texts(list));
}

TEST_F(TeskListBoxReentrancyTest, ARowThatIsSelectedAgainByItsOwnEventDoesNotStaySelected)
{
    TeskListBox& list = MakeActing();
    list.SelectItem(2);
    Host.Scripts["off"] = [](TeskElement& self) { dynamic_cast<TeskListBox&>(self).SelectItem(2); };
    list.RemoveItem(2);
    EXPECT_EQ(0u, list.SelectedItems.Count());
    EXPECT_EQ((Strings{"a", "c", "d"}), Texts(list));
}

TEST_F(TeskListBoxReentrancyTest, ARowThatGoesAsTheOldOneIsDeselectedIsNotSelected)
{
    TeskListBox& list = MakeActing();
    list.SelectItem(1);
    Host.Scripts["off"] = [](TeskElement& self) { dynamic_cast<TeskListBox&>(self).RemoveItem(2); };
    TakeHeard();
    PressOn(list, 1);
    EXPECT_EQ((Strings{"9:1"}), TakeHeard());
    EXPECT_EQ(0u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxReentrancyTest, ClearingASelectionThatChangesEndsEmpty)
{
    TeskListBox& list = MakeActing("<SelectMultiple/>");
    for (const u32 id : {1u, 2u, 4u})
        list.SelectItem(id);
    TakeHeard();
    Host.Scripts["off"] = [](TeskElement& self) {
        auto& acting = dynamic_cast<TeskListBox&>(self);
        acting.DeselectItem(2);
        acting.SelectedItems.Insert(3);
    };
    list.ClearSelection();
    EXPECT_EQ((Strings{"9:2", "9:1", "9:3", "9:4"}), TakeHeard());
    EXPECT_EQ(0u, list.SelectedItems.Count());
}

TEST_F(TeskListBoxReentrancyTest, EventsThatSelectOneAnotherComeToAnEnd)
{
    TeskListBox& list = MakeActing();
    Host.Scripts["on"] = [](TeskElement& self) {
        auto& acting = dynamic_cast<TeskListBox&>(self);
        acting.SelectItem(acting.SelectedItems.Contains(1) ? 2 : 1);
    };
    list.SelectItem(1);
    EXPECT_LE(list.SelectedItems.Count(), 1u);
}

TEST_F(TeskListBoxReentrancyTest, TheScriptOfTheScrollBarMayEndTheList)
{
    g_UIManager.AddTemplate("bar",
        "<Template><Slider><Width>16</Width><Height>100%</Height><OnChange>change</OnChange></Slider></Template>");
    const std::function<void(TeskListBox & list)> causes[] = {
        [](TeskListBox& list) { list.AddItem("f", nullptr, 0); },
        [](TeskListBox& list) { list.OnMouseWheel(-40); },
        [](TeskListBox& list) {
            list.Height = 20;
            list.RecalculateSize(true);
        },
    };
    for (const auto& cause : causes) {
        TeskListBox& list = MakeListOf({"a", "b", "c", "d", "e"}, "<OnMouseWheel>on</OnMouseWheel>");
        Host.Scripts["on"] = [](TeskElement&) { ADD_FAILURE() << "the list was gone"; };
        Host.Scripts["change"] = [&](TeskElement&) { Parent.DeleteChild(&list); };
        cause(list);
        Host.Scripts.clear();
        EXPECT_TRUE(IsGone());
    }
}

TEST_F(TeskListBoxReentrancyTest, AListMayEndAmongTheRowsOfItsMarkup)
{
    Host.Scripts["on"] = [this](TeskElement& self) { Parent.DeleteChild(&self); };
    XMLNode* node = g_UIManager.AddTemplate("list",
        "<Template><ScrollBar>bar</ScrollBar><OnSelect>on</OnSelect><Items><item Default='1'>a</item><item>b</item>"
        "</Items></Template>");
    EXPECT_EQ(nullptr, g_UIManager.LoadElement(&Parent, "listbox", "L", node, nullptr));
    EXPECT_TRUE(IsGone());
}
