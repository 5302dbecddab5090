#include "tests/unit/reentrancy/Ways.h"

#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "teskara/markup/XMLNode.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/windows/TeskMap.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

TeskTabControl* TabControl()
{
    return dynamic_cast<TeskTabControl*>(Self());
}

void PressOnStrip(i32 x)
{
    if (!TabControl())
        return;
    MoveTo(x, 15);
    g_UIManager.OnLMouseDown();
}

} // namespace

namespace Ways {

// --- Rows

void PressAnotherRow()
{
    MoveTo(15, 30);
    PressLeft();
}

void PressAnotherLine()
{
    if (dynamic_cast<TeskTextEdit*>(Self()))
        PressAnotherRow();
}

void DoubleClickOnRow()
{
    PressAnotherRow();
    PressLeft();
}

void DragRow()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(15, 45);
    g_UIManager.OnLMouseUp();
}

// From row to row and from column to column.
void DragAcross()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(35, 50);
    g_UIManager.OnLMouseUp();
}

void TurnWheelDown()
{
    Aim();
    g_UIManager.OnMouseWheel(-40);
}

void OpenAndPickRow()
{
    if (dynamic_cast<TeskTree*>(Self()))
        return; // a press selects its nodes anyway

    ClickLeft();
    g_UIManager.Render();
    MoveTo(15, 80);
    PressLeft();
}

void CallSelectItem()
{
    Tell(Self(), "SelectItem", {"2"});
}

void CallRemoveItem()
{
    Tell(Self(), "RemoveItem", {"1"});
}

void CallClearItems()
{
    Tell(Self(), "ClearItems");
}

void CallAddItem()
{
    Tell(Self(), "AddItem", {"more"});
}

void CallSort()
{
    Tell(Self(), "Sort", {"Compare"});
}

// --- Tabs

void SelectTab()
{
    if (TeskTabControl* control = TabControl())
        control->SelectTab(2);
}

void RemoveTab()
{
    if (TeskTabControl* control = TabControl())
        control->RemoveTab(1);
}

void AddTab()
{
    XMLNode* elements = g_UIManager.AddTemplate(
        "Elements", "<Template><frame name='In'><OnLoad>OnLoad of a part</OnLoad></frame><frame name='F'/></Template>");
    if (TeskTabControl* control = TabControl())
        control->AddTab("filled", elements->FirstChild, "filled", nullptr);
}

void PressAnotherTab()
{
    PressOnStrip(45);
    g_UIManager.OnLMouseUp();
}

void DragTab()
{
    PressOnStrip(25);
    if (TabControl())
        MoveTo(45, 15);
    g_UIManager.OnLMouseUp();
}

void ScrollTabs()
{
    PressOnStrip(55);
    g_UIManager.OnLMouseUp();
}

// --- Nodes

void CallSelectRoot()
{
    TellPart(Self(), "Root", "Select", {});
}

void CallRemoveSelection()
{
    TellPart(Self(), "Selection", "Remove", {});
}

void CallRemoveAllNodes()
{
    TellPart(Self(), "Root", "RemoveChildren", {});
}

void AddNodesAndDraw()
{
    for (int count = 0; count < 5; ++count)
        TellPart(Self(), "Root", "AddChild", {"new"});
    g_UIManager.Render();
}

void CallGetNode()
{
    if (auto* tree = dynamic_cast<TeskTree*>(Self()))
        tree->FindNodeByQuery("text");
}

// --- Blips

// Where maps have two blips.
void EnterBlip()
{
    MoveTo(40, 40);
}

void LeaveBlip()
{
    EnterBlip();
    MoveTo(500, 500);
}

void FrameUnderBlip()
{
    g_UIManager.MousePosition = {40, 40};
    g_UIManager.Render();
}

void CallAddBlip()
{
    Tell(Self(), "AddBlip", {"c", "10", "10", "0", "8", "A label", "Blip"});
}

void ReplaceBlip()
{
    Tell(Self(), "AddBlip", {"Town"});
}

void CallRemove()
{
    Tell(g_UIManager.FindElement("Town@Self@Parent@Grand"), "Remove");
}

void ClearBlips()
{
    if (auto* map = dynamic_cast<TeskMap*>(Self()))
        map->ClearBlips();
}

void DeleteHoveredBlip()
{
    EnterBlip();
    DeleteByID(g_UIManager.MouseOverElementID);
}

} // namespace Ways
