#include "tests/unit/reentrancy/Places.h"

#include "tests/unit/reentrancy/ForeignElements.h"
#include "tests/unit/reentrancy/Kinds.h"
#include "tests/unit/reentrancy/Scene.h"
#include "tests/unit/reentrancy/Ways.h"

namespace {

using namespace Ways;

constexpr u64 EveryKind = 0;

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
    {"OnChange",             "down",                  EditsLines,    GoDown},
    {"OnChange",             "page down",             EditsLines,    PageDown},
    {"OnChange",             "end",                   EditsLines,    GoToTheEnd},
    {"OnChange",             "enter",                 EditsLines,    BreakLine},
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
