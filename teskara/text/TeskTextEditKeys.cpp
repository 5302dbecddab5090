// What the keyboard does to a text edit.

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/text/TabWalk.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/text/TextKeys.h"
#include "teskara/text/TypedText.h"

#include <string>

namespace {

// A key that does something else than to give a character.
struct KeyAction {
    u32 Key;
    void (*Act)(TeskTextEdit& edit);
};

void PasteOrFlipMode(TeskTextEdit& edit)
{
    if (g_UIManager.ShiftDown)
        edit.PasteClipboard();
    else
        edit.InsertMode = !edit.InsertMode;
}

void GoToStart(TeskTextEdit& edit)
{
    if (g_UIManager.CtrlDown)
        edit.HandleCtrlHome();
    else
        edit.HandleHome();
}

void GoToEnd(TeskTextEdit& edit)
{
    if (g_UIManager.CtrlDown)
        edit.HandleCtrlEnd();
    else
        edit.HandleEnd();
}

constexpr KeyAction KeyActions[] = {
    {KeyBackspace, [](TeskTextEdit& edit) { edit.HandleBackspace(); }},
    {KeyEnter, [](TeskTextEdit& edit) { edit.HandleEnter(); }},
    {KeySeparator, [](TeskTextEdit& edit) { edit.HandleEnter(); }},
    {KeyEscape, [](TeskTextEdit&) {}},
    {KeyPageUp, [](TeskTextEdit& edit) { edit.HandlePageUp(); }},
    {KeyPageDown, [](TeskTextEdit& edit) { edit.HandlePageDown(); }},
    {KeyEnd, GoToEnd},
    {KeyHome, GoToStart},
    {KeyLeft, [](TeskTextEdit& edit) { edit.HandleLeft(); }},
    {KeyRight, [](TeskTextEdit& edit) { edit.HandleRight(); }},
    {KeyUp, [](TeskTextEdit& edit) { edit.HandleUp(1); }},
    {KeyDown, [](TeskTextEdit& edit) { edit.HandleDown(1); }},
    {KeyInsert, PasteOrFlipMode},
    {KeyDelete, [](TeskTextEdit& edit) { edit.HandleDelete(); }},
};

// With Control.
constexpr KeyAction ControlActions[] = {
    {KeyA, [](TeskTextEdit& edit) { edit.SelectAll(); }},
    {KeyC, [](TeskTextEdit& edit) { edit.CopySelection(); }},
    {KeyV, [](TeskTextEdit& edit) { edit.PasteClipboard(); }},
};

template <std::size_t Count> bool ActOn(const KeyAction (&actions)[Count], u32 key, TeskTextEdit& edit)
{
    for (const KeyAction& action : actions) {
        if (action.Key == key) {
            action.Act(edit);
            return true;
        }
    }
    return false;
}

} // namespace

bool TeskTextEdit::OnKeyDown(unsigned int key)
{
    if (key == KeyTab) {
        WalkToTextField(*this);
        return true;
    }

    const ElementWatch self(*this);
    if (!ActOnKey(key))
        return false;
    if (!self.Exists())
        return true;

    Repeat.Hold(key);
    TeskElement::OnKeyDown(key);
    return true;
}

// False: the key does nothing here.
bool TeskTextEdit::ActOnKey(u32 key)
{
    return ActOn(KeyActions, key, *this) || (g_UIManager.CtrlDown && ActOn(ControlActions, key, *this))
        || key >= CharacterKeys || TypeKey(key);
}

// False: the key gives no character.
bool TeskTextEdit::TypeKey(u32 key)
{
    const TypedText typed(key);
    const ElementWatch self(*this);
    for (const char byte : typed.Bytes()) {
        InsertCharacter(byte);
        if (!self.Exists())
            break;
    }
    return !typed.Bytes().empty();
}

bool TeskTextEdit::OnKeyUp(unsigned int key)
{
    Repeat.Release(key);
    TeskElement::OnKeyUp(key);
    return true;
}

void TeskTextEdit::OnKeyboardExit(TeskElement* next)
{
    Repeat.Stop();
    TeskElement::OnKeyboardExit(next);
}

// Shift begins a selection where the caret stands before the move.
void TeskTextEdit::BeginMove()
{
    if (g_UIManager.ShiftDown && !Selection.SelectionStart.Line)
        Selection.SelectionStart = View.Caret;
}

void TeskTextEdit::UpdateSelection()
{
    if (Selecting) {
        _Point2i point = g_UIManager.MousePosition;
        OnMouseMove(point);
    } else if (g_UIManager.ShiftDown) {
        BeginMove();
        Selection.SelectionEnd = View.Caret;
    } else {
        Selection.Clear();
    }
}

void TeskTextEdit::HandleLeft()
{
    BeginMove();
    if (View.MoveLeft())
        UpdateSelection();
}

void TeskTextEdit::HandleRight()
{
    BeginMove();
    if (View.MoveRight())
        UpdateSelection();
}

void TeskTextEdit::HandleHome()
{
    BeginMove();
    View.MoveToLineStart();
    UpdateSelection();
}

void TeskTextEdit::HandleEnd()
{
    BeginMove();
    View.MoveToLineEnd();
    UpdateSelection();
}

void TeskTextEdit::HandleUp(u64 lines)
{
    BeginMove();
    View.MoveUp(lines);
    if (TellCaretLine())
        UpdateSelection();
}

void TeskTextEdit::HandleDown(u64 lines)
{
    BeginMove();
    View.MoveDown(lines);
    if (TellCaretLine())
        UpdateSelection();
}

void TeskTextEdit::HandlePageUp()
{
    HandleUp(View.DrawnRows);
}

void TeskTextEdit::HandlePageDown()
{
    HandleDown(View.DrawnRows);
}

void TeskTextEdit::HandleCtrlHome()
{
    BeginMove();
    View.MoveToStart();
    if (TellCaretLine())
        UpdateSelection();
}

void TeskTextEdit::HandleCtrlEnd()
{
    BeginMove();
    View.MoveToEnd();
    if (TellCaretLine())
        UpdateSelection();
}

void TeskTextEdit::SelectAll()
{
    const ElementWatch self(*this);
    HandleCtrlEnd();
    if (!self.Exists())
        return;

    Selection.SelectionStart = TextEditPos{Lines.First(), 0};
    Selection.SelectionEnd = View.Caret;
}

// The caret goes on even where the line does not reach up to it.
void TeskTextEdit::InsertCharacter(char character)
{
    if (!View.Caret.Line)
        return;

    View.Caret.Line->Insert(View.Caret.Column, {&character, 1});
    ++View.Caret.Column;
}

void TeskTextEdit::HandleBackspace()
{
    CTextEditLine* line = View.Caret.Line;
    const ElementWatch self(*this);
    if (line && View.Caret.Column > 0) {
        --View.Caret.Column;
        line->Erase(View.Caret.Column);
    } else if (line && line->Previous) {
        const u64 joint = line->Previous->Length;
        if (line->Previous->Insert(joint, line->Bytes())) {
            View.Caret = TextEditPos{line->Previous, joint};
            RemoveLine(line, true);
        }
    }
    if (self.Exists())
        Selection.Clear();
}

void TeskTextEdit::HandleDelete()
{
    CTextEditLine* line = View.Caret.Line;
    const ElementWatch self(*this);
    if (line && line->Length == 0) {
        RemoveLine(line, false);
    } else if (line && View.Caret.Column < line->Length) {
        line->Erase(View.Caret.Column);
    } else if (line && line->Next && line->Insert(line->Length, line->Next->Bytes())) {
        RemoveLine(line->Next, false);
    }
    if (self.Exists())
        Selection.Clear();
}

void TeskTextEdit::HandleEnter()
try {
    CTextEditLine* line = View.Caret.Line;
    if (!line)
        return;

    LivePosition split(Lines);
    split = View.Caret;
    if (!InsertLineAfter(line, std::string(line->From(split.Column)).c_str()))
        return;

    if (split.Line == line)
        line->Cut(split.Column);
    View.Caret.Column = 0;
    HandleDown(1);
} catch (...) {
    return; // there is no memory for the new line
}

void TeskTextEdit::PasteClipboard() { }
