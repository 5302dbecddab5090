#pragma once

// What can be done with a scene so that the toolkit calls out. Each way begins on a scene that was drawn once, the mouse
// far away and no key down, and stands whatever becomes of the scene.
namespace Ways {

// --- How it comes, is drawn and goes; LifeWays.cpp.

void Load();
void Frame();
void DeleteSelf();
void DeleteGrandparent();
void DeleteOwnChild();
void ResetAll();
void UnloadFile();
void ReplaceByLoad();

// --- What the user does with the mouse; MouseWays.cpp.

void FrameUnderTheMouse();
void RestMouse();
void Enter();
void LeaveForNothing();
void LeaveForSibling();
void HideUnderTheMouse();
void DragMouse();
void TurnWheel();
void ClickLeft();
void ClickRight();
void ReleaseElsewhere();
void DoubleClickLeft();
void DoubleClickRight();
void PressToTheRight();
void DragTheLeftEdge();
void PressTheTitleBar();

// --- With the focus and keys; KeyWays.cpp.

void GiveFocus();
void FocusAnother();
void FocusNobody();
void HideFocus();
void AskForHiddenFocus();
void PressNothingWithFocus();
void PressKey();
void ReleaseKey();
void PressEnter();
void EnterLine();
void EnterLineWithoutScript();
void CompleteLine();
void RepeatKey();
void Paste();
void DeleteText();
void PageDown();
void GoDown();
void BreakLine();
void JoinToTheFirst();
void GoToTheEnd();

// --- What scripts call; CallWays.cpp.

void CallDestroy();
void CallLeftClick();
void CallRightClick();
void CallSetFocus();
void CallAddChild();
void CallSetHeightOfParent();
void CallSetWidth();
void CallReset();
void CallSetText();
void CallSetWrap();
void ChangeFont();
void CallCopyTexture();
void CallSetValue();
void CallSetRangeBelowTheValue();
void CallAddText();
void CallAddLine();

// --- To rows, tabs, nodes and blips; CollectionWays.cpp.

void PressAnotherRow();
void PressAnotherLine();
void DoubleClickOnRow();
void DragRow();
void DragAcross();
void TurnWheelDown();
void OpenAndPickRow();
void CallSelectItem();
void CallRemoveItem();
void CallClearItems();
void CallAddItem();
void CallSort();
void SelectTab();
void RemoveTab();
void AddTab();
void PressAnotherTab();
void DragTab();
void ScrollTabs();
void CallSelectRoot();
void CallRemoveSelection();
void CallRemoveAllNodes();
void AddNodesAndDraw();
void CallGetNode();
void EnterBlip();
void LeaveBlip();
void FrameUnderBlip();
void CallAddBlip();
void ReplaceBlip();
void CallRemove();
void ClearBlips();
void DeleteHoveredBlip();

} // namespace Ways
