#include "tests/unit/reentrancy/Places.h"

#include "teskara/collections/TeskTabControl.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/markup/XMLNode.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TeskTextEntry.h"
#include "teskara/text/TextKeys.h"
#include "teskara/windows/TeskMap.h"
#include "tests/unit/reentrancy/ForeignElements.h"
#include "tests/unit/reentrancy/Kinds.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

constexpr u64 EveryKind = 0;

// --- Ways. Each begins on a scene that was drawn once, the mouse far away and no key down.

void Load()
{
    LoadScene();
}

void Frame()
{
    g_UIManager.Render();
}

void FrameUnderTheMouse()
{
    g_UIManager.MousePosition = {15, 15};
    g_UIManager.Render();
}

void DeleteSelf()
{
    Delete(SelfName);
}

void DeleteGrandparent()
{
    Delete("Grand");
}

void DeleteOwnChild()
{
    DeletePart("Child");
}

void ResetAll()
{
    g_UIManager.Reset();
}

void UnloadFile()
{
    g_UIManager.UnloadInterfaceXML(SceneFile);
}

void ReplaceByLoad()
{
    g_UIManager.LoadInterfaceXML(SceneFile, "Grand", "Grand", true, nullptr);
}

void Enter()
{
    MoveTo(15, 15);
}

void LeaveForNothing()
{
    Aim();
    MoveTo(500, 500);
}

void LeaveForSibling()
{
    Aim();
    MoveTo(85, 15);
}

void HideUnderTheMouse()
{
    Aim();
    g_UIManager.ShowElement(SelfName, false);
    g_UIManager.Render();
}

void DragMouse()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(20, 20);
    g_UIManager.OnLMouseUp();
}

void TurnWheel()
{
    Aim();
    g_UIManager.OnMouseWheel(120);
}

void ClickLeft()
{
    Aim();
    PressLeft();
}

void ClickRight()
{
    Aim();
    PressRight();
}

void ReleaseElsewhere()
{
    Aim();
    g_UIManager.OnLMouseDown();
    MoveTo(500, 500);
    g_UIManager.OnLMouseUp();
}

void DoubleClickLeft()
{
    ClickLeft();
    PressLeft();
}

void DoubleClickRight()
{
    ClickRight();
    PressRight();
}

void FocusAnother()
{
    FocusSelf();
    FocusYounger();
}

void FocusNobody()
{
    FocusSelf();
    g_UIManager.SetFocusElement(nullptr);
}

void HideFocus()
{
    FocusSelf();
    g_UIManager.ShowElement("Grand", false);
}

void AskForHiddenFocus()
{
    FocusSelf();
    if (Self())
        Self()->Visible = false;
    g_UIManager.GetFocusElement();
}

void PressNothingWithFocus()
{
    FocusSelf();
    MoveTo(500, 500);
    PressLeft();
}

void GiveFocus()
{
    FocusSelf();
}

void PressKey()
{
    FocusSelf();
    g_UIManager.OnKeyDown('A');
}

void PressEnter()
{
    FocusSelf();
    g_UIManager.OnKeyDown(KeyEnter);
}

void EnterLine()
{
    FocusSelf();
    if (auto* entry = dynamic_cast<TeskTextEntry*>(Self()))
        entry->Text.Fill("words", 5);
    g_UIManager.OnKeyDown(KeyEnter);
}

void EnterLineWithoutScript()
{
    if (auto* entry = dynamic_cast<TeskCommandEntry*>(Self()))
        entry->OnCommandScript.reset();
    EnterLine();
}

void CompleteLine()
{
    FocusSelf();
    if (auto* entry = dynamic_cast<TeskCommandEntry*>(Self())) {
        entry->Text.Fill("words", 5);
        entry->Text.MoveToEnd();
    }
    g_UIManager.OnKeyDown(KeyTab);
}

void Hold(KeyRepeat& repeat, u32 key)
{
    repeat.HeldKey = key;
    repeat.NextRepeatTick = 0;
}

// As if the key had been held for a while.
void RepeatKey()
{
    FocusSelf();
    if (auto* entry = dynamic_cast<TeskTextEntry*>(Self()))
        Hold(entry->Repeat, 'A');
    if (auto* edit = dynamic_cast<TeskTextEdit*>(Self()))
        Hold(edit->Repeat, KeyDown);
    g_UIManager.Render();
}

void Paste()
{
    FocusSelf();
    g_UIManager.ShiftDown = true;
    g_UIManager.OnKeyDown(KeyInsert);
    g_UIManager.ShiftDown = false;
}

void DeleteText()
{
    FocusSelf();
    if (auto* entry = dynamic_cast<TeskTextEntry*>(Self()))
        entry->Text.Fill("words", 5);
    g_UIManager.OnKeyDown(KeyDelete);
}

template <u32 Key> void PressInLines()
{
    FocusSelf();
    if (dynamic_cast<TeskTextEdit*>(Self()))
        g_UIManager.OnKeyDown(Key);
}

// By the rows of the frame before.
void PageDown()
{
    g_UIManager.Render();
    PressInLines<KeyPageDown>();
}

// The range of the bar falls below its value then.
void JoinToTheFirst()
{
    FocusSelf();
    if (auto* edit = dynamic_cast<TeskTextEdit*>(Self())) {
        edit->View.Caret.Line = edit->Lines.First() ? edit->Lines.First()->Next : nullptr;
        g_UIManager.OnKeyDown(KeyBackspace);
    }
}

void GoToTheEnd()
{
    FocusSelf();
    g_UIManager.CtrlDown = true;
    g_UIManager.OnKeyDown(KeyEnd);
    g_UIManager.CtrlDown = false;
}

void CallSetText()
{
    Tell(Self(), "SetText", {"words"});
}

void ReleaseKey()
{
    PressKey();
    g_UIManager.OnKeyUp('A');
}

void ChangeFont()
{
    TellPart(Self(), "Font", "SetHeight", {"20"});
}

// --- The same through script types: what a script does runs other scripts.

void CallDestroy()
{
    Tell(Self(), "Destroy");
}

void CallLeftClick()
{
    Tell(Self(), "LeftClick");
}

void CallRightClick()
{
    Tell(Self(), "RightClick");
}

void CallSetFocus()
{
    Tell(Self(), "SetFocus");
}

void CallAddChild()
{
    Tell(Self(), "AddChild", {"frame", "New", "<frame><OnLoad>OnLoad</OnLoad></frame>"});
}

void CallSetHeightOfParent()
{
    Tell(g_UIManager.FindElement("Parent@Grand"), "SetHeight", {"300"});
}

void CallSetWidth()
{
    Tell(Self(), "SetWidth", {"77"});
}

// What a window lays out anew has a size that it is not to have.
void CallReset()
{
    if (TeskElement* client = g_UIManager.FindElement("Client@Self@Parent@Grand"))
        client->Width = 7;
    Tell(Self(), "Reset");
}

void DragTheLeftEdge()
{
    MoveTo(8, 30);
    g_UIManager.OnLMouseDown();
    MoveTo(4, 30);
    g_UIManager.OnLMouseUp();
}

void PressTheTitleBar()
{
    if (TeskElement* titleBar = g_UIManager.FindElement("TitleBar@Self@Parent@Grand"))
        titleBar->Show(true);
    Aim();
    PressLeft();
}

void CallSetWrap()
{
    Tell(Self(), "SetWrap", {"1 + 1"});
}

void CallCopyTexture()
{
    TellPart(Self(), "Texture", "Copy", {"UIElement[Self@Parent@Grand].Texture"});
}

void CallSetValue()
{
    Tell(Self(), "SetValue", {"50"});
}

void CallSetRangeBelowTheValue()
{
    CallSetValue();
    Tell(Self(), "SetRange", {"20"});
}

// Where scroll bars have a button.
void PressToTheRight()
{
    MoveTo(50, 15);
    PressLeft();
}

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

void CallAddText()
{
    Tell(Self(), "AddText", {"more\nlines"});
}

void CallAddLine()
{
    Tell(Self(), "AddLine", {"more"});
}

TeskTabControl* TabControl()
{
    return dynamic_cast<TeskTabControl*>(Self());
}

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

void PressOnStrip(i32 x)
{
    if (!TabControl())
        return;
    MoveTo(x, 15);
    g_UIManager.OnLMouseDown();
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

// As if the mouse had not been moved for a while.
void RestMouse()
{
    Aim();
    g_UIManager.LastInputTick -= 5000;
    g_UIManager.Render();
}

// --- Trees

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

// clang-format off
constexpr Place Places[] = {
    // what an element says and does as it comes
    {"LoadElementPosition",  "load",                  EveryKind,     Load},
    {"OnLoad",               "load",                  EveryKind,     Load},
    {"OnLoad of a part",     "load",                  LoadsParts,    Load},
    {"OnUnload of a part",   "load",                  LoadsParts,    Load},
    {"OnSelect",             "load",                  RunsOnSelect,  Load, HasNodes},
    {"OnChange",             "load",                  ScriptsScroll, Load},
    {"PrintLine",            "load",                  EveryKind,     Load},
    {"PrintLine of a script", "load",                 EveryKind,     Load},

    // and as it goes
    {"OnUnload",             "delete self",           EveryKind,     DeleteSelf},
    {"OnUnload",             "delete grandparent",    EveryKind,     DeleteGrandparent},
    {"OnUnload",             "reset",                 EveryKind,     ResetAll},
    {"OnUnload",             "unload",                EveryKind,     UnloadFile},
    {"OnUnload",             "replace",               EveryKind,     ReplaceByLoad},
    {"OnUnload of a part",   "delete self",           UnloadsParts,  DeleteSelf},
    {"SaveElementPosition",  "delete self",           EveryKind,     DeleteSelf},
    {"SaveElementPosition",  "delete grandparent",    EveryKind,     DeleteGrandparent},
    {"OnChange",             "delete self",           EditsLines,    DeleteSelf},
    {"OnUnload of a part",   "remove a tab",          HasTabs,       RemoveTab},
    {"OnUnload",             "end of the kind",       EveryKind,     EndForeignKinds},
    {"notification 51",      "delete self",           EveryKind,     DeleteSelf},
    {"notification 51",      "delete child",          Sends(51),     DeleteOwnChild},

    // a frame
    {"OnRender",             "frame",                 EveryKind,     Frame},
    {"OnRender of the child", "frame",                EveryKind,     Frame},
    {"OnRender of a part",   "frame",                 HasTabs,       Frame},
    {"virtual Render of the child",  "frame",                 EveryKind,     Frame},
    {"DataParse",            "frame",                 ExpandsText,   Frame},
    {"RetrieveProcessedText", "frame",                EvaluatesText, Frame},
    {"Calculate",            "frame",                 Calculates,    Frame},
    {TooltipPlace,           "rest",                  EveryKind,     RestMouse},
    {"DataParse",            "rest",                  EveryKind,     RestMouse},

    // the mouse
    {"OnMouseEnter",         "move",                  EveryKind,     Enter},
    {"OnMouseEnter",         "frame",                 EveryKind,     FrameUnderTheMouse},
    {"OnMouseExit",          "to nothing",            EveryKind,     LeaveForNothing},
    {"OnMouseExit",          "to a sibling",          EveryKind,     LeaveForSibling},
    {"OnMouseExit",          "hidden",                EveryKind,     HideUnderTheMouse},
    {"OnMouseMove",          "move",                  FollowsMouse,  Enter},
    {"OnMouseMove",          "drag",                  FollowsHeldMouse, DragMouse},
    {"OnMouseWheel",         "wheel",                 EveryKind,     TurnWheel},
    {"OnLeftDown",           "click",                 EveryKind,     ClickLeft},
    {"OnLeftClick",          "click",                 EveryKind,     ClickLeft},
    {"OnLeftClick",          "release elsewhere",     EveryKind,     ReleaseElsewhere},
    {"OnRightDown",          "click",                 EveryKind,     ClickRight},
    {"OnRightClick",         "click",                 EveryKind,     ClickRight, HasNodes},
    {"OnLeftClick",          "right click",           HasNodes,      ClickRight},
    {"OnDoubleLeftClick",    "double click",          EveryKind,     DoubleClickLeft},
    {"OnDoubleRightClick",   "double click",          EveryKind,     DoubleClickRight},
    {"refused double click", "double click",          Refuses,     DoubleClickLeft},
    {"ExecuteCommand",       "click",                 RunsCommand,   ClickLeft},
    {"SetOutputConsole",     "click",                 RunsCommand,   ClickLeft},
    {"OnChange",             "press",                 RunsOnChange | HasHandle, ClickLeft},
    {"OnChange",             "drag",                  RunsOnChange | HasHandle, DragMouse},
    {"OnChange",             "press to the right",    RunsOnChange,  PressToTheRight},
    {"DataParse",            "press",                 ExpandsText | HasHandle, ClickLeft},
    {"OnSelect",             "press",                 PressSelects,  PressAnotherRow},
    {"OnDeSelect",           "press",                 PressSelects,  PressAnotherRow},
    {"OnChange",             "wheel",                 ScriptsScroll, TurnWheelDown},
    {"OnChange",             "press",                 EditsLines,    PressAnotherLine},
    {"OnChange",             "wheel",                 HasLines,      TurnWheel},
    {"PrintLine",            "drag",                  HasLines,      DragAcross},
    {"OnSelect",             "pick",                  DropsList,     OpenAndPickRow},
    {"OnSelect",             "press a tab",           HasTabs,       PressAnotherTab},
    {"OnMouseMove",          "drag a tab",            HasTabs,       DragTab},

    {"virtual SizeRecalculated of the child", "drag an edge", HasTitleBar,   DragTheLeftEdge},
    {"OnKeyboardEnter of a part", "click",            HasTitleBar,   ClickLeft},
    {"OnKeyboardEnter of a part", "click the title bar", HasTitleBar, PressTheTitleBar},

    // the keyboard
    {"OnKeyboardEnter",      "focus",                 EveryKind,     GiveFocus},
    {"OnKeyboardExit",       "focus another",         EveryKind,     FocusAnother},
    {"OnKeyboardExit",       "focus nobody",          EveryKind,     FocusNobody},
    {"OnKeyboardExit",       "hide",                  EveryKind,     HideFocus},
    {"OnKeyboardExit",       "ask while hidden",      EveryKind,     AskForHiddenFocus},
    {"OnKeyboardExit",       "press nothing",         EveryKind,     PressNothingWithFocus},
    {"OnKeyDown",            "key",                   EveryKind,     PressKey},
    {"OnKeyUp",              "key",                   EveryKind,     ReleaseKey},
    {"OnKeyboardEnter",      "click",                 FocusedByPress, ClickLeft},
    {"OnKeyDown",            "repeat",                EditsText,     RepeatKey},
    {"OnChange",             "key",                   TakesKeys,     PressKey},
    {"OnChange",             "repeat",                EditsText,     RepeatKey},
    {"OnChange",             "delete text",           EditsText,     DeleteText},
    {"OnChange",             "paste",                 TakesKeys,     Paste},
    {"OnCommand",            "enter",                 EntersLines,   EnterLine},
    {"OnCommand",            "paste",                 EntersLines,   Paste},
    {"ExecuteCommand",       "enter",                 EntersLines,   EnterLineWithoutScript},
    {"SetOutputConsole",     "enter",                 EntersLines,   EnterLine},
    {"CompleteCommandLine",  "tab",                   EntersLines,   CompleteLine},
    {"OnChange",             "SetText",               EditsText,     CallSetText},
    {"OnChange",             "down",                  EditsLines,    PressInLines<KeyDown>},
    {"OnChange",             "page down",             EditsLines,    PageDown},
    {"OnChange",             "end",                   EditsLines,    GoToTheEnd},
    {"OnChange",             "enter",                 EditsLines,    PressInLines<KeyEnter>},
    {"OnChange",             "backspace",             EditsLines,    JoinToTheFirst},
    {"OnChange",             "AddText",               EditsLines,    CallAddText},
    {"OnChange",             "AddLine",               EditsLines,    CallAddLine},
    {"refused key",          "key",                   Refuses,     PressKey},

    // what scripts call
    {"OnUnload",             "Destroy",               EveryKind,     CallDestroy},
    {"OnLeftDown",           "LeftClick",             EveryKind,     CallLeftClick},
    {"OnLeftClick",          "LeftClick",             EveryKind,     CallLeftClick},
    {"OnRightClick",         "RightClick",            EveryKind,     CallRightClick, HasNodes},
    {"OnKeyboardEnter",      "SetFocus",              EveryKind,     CallSetFocus},
    {"OnLoad",               "AddChild",              EveryKind,     CallAddChild},
    {"virtual SizeRecalculated of the child", "SetHeight",    EveryKind,     CallSetHeightOfParent},
    {"virtual SizeRecalculated of the child", "SetWidth",     EveryKind,     CallSetWidth},
    {"virtual SizeRecalculated of the child", "Reset",        HasTitleBar,   CallReset},
    {"Calculate",            "SetWrap",               ExpandsText | SetsText, CallSetWrap},
    {"OnChange",             "SetValue",              RunsOnChange,  CallSetValue},
    {"OnChange",             "SetRange",              RunsOnChange,  CallSetRangeBelowTheValue},
    {"OnSelect",             "SelectItem",            HasRows,       CallSelectItem},
    {"OnDeSelect",           "RemoveItem",            HasRows,       CallRemoveItem},
    {"OnDeSelect",           "ClearItems",            HasRows,       CallClearItems},
    {"OnChange",             "AddItem",               HasRows,       CallAddItem},
    {"OnSelect",             "SelectTab",             HasTabs,       SelectTab},
    {"OnLoad of a part",     "AddTab",                HasTabs,       AddTab},
    {"virtual SizeRecalculated of the child", "AddTab",       HasTabs,       AddTab},
    {"ExecuteAtomForText",   "Sort",                  HasRows,       CallSort},
    {"ParseTypedValue",      "Copy",                  HasTexture,    CallCopyTexture},

    // trees
    {"OnSelect",             "Select",                HasNodes,      CallSelectRoot},
    {"OnDeSelect",           "Select",                HasNodes,      CallSelectRoot},
    {"OnDeSelect",           "Remove",                HasNodes,      CallRemoveSelection},
    {"OnDeSelect",           "RemoveChildren",        HasNodes,      CallRemoveAllNodes},
    {"OnDeSelect",           "delete self",           HasNodes,      DeleteSelf},
    {"OnDeSelect",           "delete grandparent",    HasNodes,      DeleteGrandparent},
    {"OnDeSelect",           "reset",                 HasNodes,      ResetAll},
    {"OnChange",             "frame with new nodes",  HasNodes,      AddNodesAndDraw},
    {"CreateQuery",          "GetNode",               HasNodes,      CallGetNode},
    {"EvaluateQuery",        "GetNode",               HasNodes,      CallGetNode},

    // maps
    {"OnRender of a blip",   "frame",                 HasBlips,      Frame},
    {"OnSetTooltip",         "move",                  HoversBlips,   EnterBlip},
    {"OnSetTooltip",         "frame",                 HoversBlips,   FrameUnderBlip},
    {"OnMouseEnter of a blip", "move",                HasBlips,      EnterBlip},
    {"OnMouseExit of a blip", "to nothing",           HasBlips,      LeaveBlip},
    {"OnLoad of a blip",     "AddBlip",               HasBlips,      CallAddBlip},
    {"OnLoad of a blip",     "replace",               HasBlips,      ReplaceBlip},
    {"OnUnload of a blip",   "replace",               HasBlips,      ReplaceBlip},
    {"OnUnload of a blip",   "Remove",                HasBlips,      CallRemove},
    {"OnUnload of a blip",   "clear",                 HasBlips,      ClearBlips},
    {"OnUnload of a blip",   "delete hovered",        HasBlips,      DeleteHoveredBlip},
    {"OnUnload of a blip",   "delete self",           HasBlips,      DeleteSelf},

    // what the parent hears
    {"notification 1",       "click",                 Sends(1),      ClickLeft},
    {"notification 4",       "press",                 Sends(4) | HasHandle, ClickLeft},
    {"notification 4",       "press to the right",    Sends(4),      PressToTheRight},
    {"notification 4",       "SetValue",              Sends(4),      CallSetValue},
    {"notification 3",       "key",                   Sends(3),      PressKey},
    {"notification 3",       "repeat",                Sends(3),      RepeatKey},
    {"notification 3",       "delete text",           Sends(3),      DeleteText},
    {"notification 3",       "paste",                 Sends(3),      Paste},
    {"notification 5",       "enter",                 Sends(5),      PressEnter},
    {"notification 6",       "click",                 Sends(6),      ClickLeft},
    {"notification 7",       "click",                 Sends(7),      ClickRight},
    {"notification 8",       "click",                 Sends(8),      ClickRight},
    {"notification 9",       "press",                 Sends(9) | HasRows, PressAnotherRow},
    {"notification 9",       "pick",                  Sends(9),      OpenAndPickRow},
    {"notification 12",      "double click",          Sends(12),     DoubleClickOnRow},
    {"notification 13",      "drag",                  Sends(13),     DragRow},
    {"notification 6",       "scroll",                HasTabs,       ScrollTabs},
    {"notification 51",      "remove a tab",          HasTabs,       RemoveTab},
    {"notification 10",      "double click",          Sends(10),     DoubleClickLeft},
    {"notification 11",      "double click",          Sends(11),     DoubleClickRight},
    {"notification 14",      "move",                  Sends(14),     Enter},
    {"notification 15",      "wheel",                 Sends(15),     TurnWheel},
    {"notification 50",      "change the font",       HasFont | Sends(51), ChangeFont},
};
// clang-format on

} // namespace

std::span<const Place> AllPlaces()
{
    return Places;
}
