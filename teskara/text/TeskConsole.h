#pragma once

#include "teskara/core/BoundedText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFixedFont.h"
#include "teskara/element/TeskTexture.h"
#include "teskara/text/LineRing.h"
#include "teskara/text/TextGrid.h"

#include <memory>

class TeskScrollBar;

// A pane of text in a fixed-pitch font that keeps the last lines printed. It shows the newest ones, or, while its scroll
// bar is not at the bottom, those that stood there when it was moved. The mouse selects a block, which is copied to the
// clipboard when the button is released.
//
// Text is broken into lines as it is printed, and stays as it was broken. It may hold colour codes; see ColorCodes.h.
class TESKARA_EXPORT TeskConsole : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void SizeRecalculated(bool changed) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // Scrolling by a pane, towards older lines and back, with Control held at once to the newest ones; and by a line.
    virtual void HandlePageUp();
    virtual void HandlePageDown();
    virtual void HandleUp();
    virtual void HandleDown();

    // Adds lines of text. A pane that is narrower than a character, or has no font, takes none.
    void Print(const char* text);

    // The same for a formatted text of at most 4095 bytes.
    void Printf(const char* format, ...) TESKARA_PRINTF_LIKE(2, 3);

    // Adds the lines of a text that are so many bytes wide. A line that reaches 2047 bytes is the last one.
    void SplitFixed(const char* text, unsigned long long width);

    // Forgets the lines. The view stays where it is.
    void Clear();

    // Brings the size between 8 and 96.
    void SetFontSize(u32 size);

    // Moves a point of the screen to the corner of a character.
    void SnapToGrid(_Point2i& point);

    // Copies the block under Selection, without its colour codes, and leaves Selection counted from the first character.
    // Afterwards the console may be gone.
    void CopySelection();

    std::unique_ptr<TeskFixedFont> Font;
    u32 Border = 0;
    u32 BorderColor = 0;
    u32 ScrollbackColor = 0; // of the older lines
    u32 BackgroundColor = 0; // of the newest lines
    u32 SelectionColor = 0;
    std::unique_ptr<TeskTexture> Texture; // behind older lines, without a ScrollbackTexture
    std::unique_ptr<TeskTexture> ScrollbackTexture;
    u32 BackBufferSize = 500; // as markup gives it; the size of Lines
    LineRing Lines{BackBufferSize};
    TeskScrollBar* ScrollBar = nullptr; // a child; its value is the number of lines that the view lies behind
    i64 ScrollLine = LineRing::NoSlot; // what the last row shows; the newest line if negative
    i32 VisibleLines = 15;
    bool Selecting = false; // the left button is down
    tagRECT Selection; // on the screen

protected:
    // Stores a line, without a line feed.
    virtual void AddLineInternal(const char* text);

private:
    bool IsLive() const { return ScrollLine < 0; }
    i64 LastLine() const { return IsLive() ? Lines.Newest() : ScrollLine; }
    u32 ScrollBarWidth() const;
    u32 Pitch() const;
    TextGrid Grid();
    i32 LinesOfPitch(u32 pitch) const;
    void PlaceScrollBar();
    void DrawBackground();
    void DrawLines();
    void ExtendSelection(_Point2i point);
};
