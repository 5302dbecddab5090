#include "tests/unit/reentrancy/Ways.h"

#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TextKeys.h"
#include "tests/unit/reentrancy/Scene.h"

namespace {

void Hold(KeyRepeat& repeat, u32 key)
{
    repeat.HeldKey = key;
    repeat.NextRepeatTick = 0;
}

void PressInLines(u32 key)
{
    FocusSelf();
    if (dynamic_cast<TeskTextEdit*>(Self()))
        g_UIManager.OnKeyDown(key);
}

} // namespace

namespace Ways {

void GiveFocus()
{
    FocusSelf();
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

void PressKey()
{
    FocusSelf();
    g_UIManager.OnKeyDown('A');
}

void ReleaseKey()
{
    PressKey();
    g_UIManager.OnKeyUp('A');
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

// By the rows of the frame before.
void PageDown()
{
    g_UIManager.Render();
    PressInLines(KeyPageDown);
}

void GoDown()
{
    PressInLines(KeyDown);
}

void BreakLine()
{
    PressInLines(KeyEnter);
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

} // namespace Ways
