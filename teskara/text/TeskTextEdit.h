#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/element/TeskFixedFont.h"
#include "teskara/text/EditSelection.h"
#include "teskara/text/EditView.h"
#include "teskara/text/KeyRepeat.h"
#include "teskara/text/LineStore.h"

#include <memory>

class TeskScrollBar;

// A field for a text of many lines in a font of fixed width. Lines are not wrapped; the view scrolls sideways. It works
// on bytes, as a text entry does.
//
// Caret and scroll bar are tied to each other: the bar tells how many lines the caret's line is from the end, and moving
// the bar moves the caret, which takes the view along. What tells the bar may run scripts.
class TESKARA_EXPORT TeskTextEdit : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;
    ~TeskTextEdit() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    bool OnKeyUp(unsigned int key) override;
    bool OnKeyDown(unsigned int key) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    void OnKeyboardExit(TeskElement* next) override;
    MvTypeDefinition* GetMvType() override;

    // --- Text. A null text is empty.

    // Replaces all lines; the caret goes to the first one.
    virtual void SetText(const char* text);

    // Adds lines that end in LF or CR LF. What follows the last line end is a line too, even if it is empty.
    virtual void AddText(const char* text);
    virtual void AddLine(const char* text);

    // Does nothing; for a derived kind.
    virtual void InsertText(TextEditPos& position, const char* text);

    // Behind a line, or in front of all if it is null. Null: there is no memory, or a script has removed it again.
    virtual CTextEditLine* InsertLineAfter(CTextEditLine* line, const char* text);

    // The only line is emptied instead. Positions on the line go to the one before if upward, else to the next.
    virtual void RemoveLine(CTextEditLine* line, bool upward);

    // --- What keys do. None of them deletes what is selected.

    virtual void InsertCharacter(char character);
    virtual void HandleBackspace();
    virtual void HandleDelete();
    virtual void HandleEnter();
    virtual void HandleUp(u64 lines);
    virtual void HandleDown(u64 lines);
    virtual void HandleLeft();
    virtual void HandleRight();
    virtual void HandlePageUp();
    virtual void HandlePageDown();
    virtual void HandleHome();
    virtual void HandleEnd();
    virtual void HandleCtrlHome();
    virtual void HandleCtrlEnd();

    // Does nothing; for a derived kind.
    virtual void PasteClipboard();

    // Without a selection the clipboard is emptied, and stays open.
    virtual void CopySelection();

    // The position under a point of the screen, counted from the start of the line, whatever is scrolled out of sight.
    // Without lines it is none.
    virtual void GetPositionFromPoint(_Point2i& point, TextEditPos& position);

protected:
    // Leaves no line at all.
    virtual void Clear();

public:
    // Selects everything and puts the caret at its end.
    void SelectAll();

    LineStore Lines; // of a field from markup there is at least one
    std::unique_ptr<TeskFixedFont> Font;
    u32 SelectionColor = 0;
    u32 CaretOuterColor = 0;
    u32 CaretInnerColor = 0;
    std::unique_ptr<TeskTexture> CaretTexture; // kept, never drawn
    std::unique_ptr<TeskTexture> CaretOverwriteTexture; // the same
    bool InsertMode = true; // only the colours of the caret follow it
    EditSelection Selection = EditSelection(Lines);
    EditView View = EditView(Lines);
    KeyRepeat Repeat;
    TeskScrollBar* ScrollBar = nullptr; // a child; its high end is the first line
    bool Selecting = false; // with the mouse

private:
    // Pixels between the border and the text.
    static constexpr u32 TextMargin = 3;

    // Where a frame draws; pixels of the screen.
    struct TextArea {
        i32 Left;
        i32 Top;
        i32 Right;
        i32 Bottom;
        u32 RowHeight;
        u32 Pitch;
        u32 SpaceWidth;
    };

    bool ActOnKey(u32 key);
    bool TypeKey(u32 key);
    bool TellCaretLine();
    bool TellLines();
    void BeginMove();
    void UpdateSelection();
    CTextEditLine* LineUnder(const _Point2i& point) const;

    TextArea MeasureText();
    void DrawLines();
    void DrawLine(const CTextEditLine& line, const TextArea& area, i32 y);
    void DrawEmptyLine(const CTextEditLine& line, const TextArea& area, i32 y);
    void DrawSelection(const CTextEditLine& line, const TextArea& area, i32 y);
    void DrawCaret(i32 left, u64 width, const TextArea& area, i32 y);
    bool HasCaret(const CTextEditLine& line) const;
    i32 PlaceOf(const CTextEditLine& line, u64 column, const TextArea& area) const;
};
