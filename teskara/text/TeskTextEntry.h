#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/text/CaretText.h"
#include "teskara/text/KeyRepeat.h"

#include <memory>

// Plain values from which a text entry is made without markup. Numbers that are 0 fall back to a template.
struct _CreateTextEntry : _CreateElement {
    const char* Text = nullptr;
    _CreateFont Font; // not read: the font is the template's
    u32 BackgroundColor = 0;
    u32 SelectionColor = 0;
    u32 MaxLength = 0;
    u32 BorderColor = 0;
    u32 Border = 0;
    u32 CaretOuterColor = 0;
    u32 CaretInnerColor = 0;
    char PasswordCharacter = 0;
};

// A field for one line of text. It works on bytes: a character of several bytes is passed and deleted byte by byte.
class TESKARA_EXPORT TeskTextEntry : public TeskElement
{
public:
    using TeskElement::TeskElement;
    ~TeskTextEntry() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnKeyUp(unsigned int key) override;
    bool OnKeyDown(unsigned int key) override;
    void OnKeyboardExit(TeskElement* next) override;
    MvTypeDefinition* GetMvType() override;

    // Takes a text, which is cut to less than MaxLength bytes, and runs OnChange; the parent is not told. Null is the
    // empty text.
    virtual void SetText(const char* text);

    // In pixels, from 8 to 96. May run scripts.
    virtual void SetFontSize(u32 size);

    // --- What keys do. Each change is told to the parent, and then OnChange runs.

    virtual void InsertCharacter(char character);
    virtual void HandleBackspace();
    virtual void HandleDelete();
    virtual void HandleEnter();
    virtual void HandleEscape();

    // Takes the clipboard byte by byte as if it were typed; line ends are left out.
    virtual void PasteClipboard();

    // Fills an entry that was made without markup. A null template means the one named "textentry".
    void Create(const _CreateTextEntry& record, XMLNode* templateNode);

    // Draws the entry without its children, after the key repeat. May run scripts. False: the entry has died.
    bool RenderCustom();

    // The place in the text under a point, counted from the start of the text, whatever is scrolled out of sight.
    u64 GetPositionFromPoint(_Point2i& point);

    CaretText Text;
    std::unique_ptr<TeskFont> Font;
    u32 BackgroundColor = 0;
    u32 SelectionColor = 0; // nothing can be selected
    u32 MaxLength = 0; // scripts may set it; the room of the text stays as markup made it
    u32 BorderColor = 0;
    u32 Border = 0;
    u32 CaretOuterColor = 0;
    u32 CaretInnerColor = 0;
    std::unique_ptr<TeskTexture> Texture;
    std::unique_ptr<TeskTexture> TextureFocused;
    std::unique_ptr<TeskTexture> TextureCaret; // kept for scripts, never drawn
    std::unique_ptr<TeskTexture> TextureCaretOverwrite; // the same
    ScriptPointer OnChange;
    char PasswordCharacter = 0; // drawn for every byte, unless it is 0
    KeyRepeat Repeat;
    u64 FirstVisible = 0; // the byte at the left edge; may lie beyond the text until the next frame

    // Takes the length, within its bounds, and makes room for a text of it. Throws if there is no memory.
    void ReserveText(u32 maxLength);

protected:
    // Types the bytes of the clipboard. What is called for a byte that ends a line may be null.
    void PasteLines(void (TeskTextEntry::*endLine)());

    // What every key does that was acted on: it is held, or with Enter none is any more, and its script runs.
    void FinishKeyDown(u32 key);

private:
    bool ActOnKey(u32 key);
    bool TypeKey(u32 key);
    void ReportChange();

    void DrawBackground();
    void DrawLine();
    void DrawScrolled(const char* line);
    void ScrollToCaret(const char* line);
    u64 DrawBeforeCaret(std::string_view part, i32 x, i32 y);
    void DrawCaret(i32 left);
};
