#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"

#include <memory>
#include <string_view>

// How a text lies in its element; the last three are vertical.
enum eTextAlign : u32 {
    AlignLeft = 0,
    AlignCenter = 1,
    AlignRight = 2,
    AlignTop = 3,
    AlignVerticalCenter = 4,
    AlignBottom = 5,
};

// Plain values from which a text is made without markup.
struct _CreateText : _CreateElement {
    const char* Text = nullptr;
    _CreateFont Font;
    bool Wrap = false;
    eTextAlign Alignment = AlignLeft;
    eTextAlign VerticalAlignment = AlignTop;
};

// A text in a font, wrapped and aligned. A text with data sequences ("${") is evaluated in every frame; any other is
// broken into lines once, and again when the element's size is computed.
class TESKARA_EXPORT TeskText : public TeskElement
{
public:
    using TeskElement::TeskElement;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    void Render() override;
    MvTypeDefinition* GetMvType() override;

    // Fills a text that was made without markup and puts it on top. A null template means the one named "text".
    void Create(const _CreateText& record, XMLNode* templateNode);

    // Changes nothing if memory ran out.
    void SetText(const char* text);

    // Any number but that of centre and right draws to the left.
    void SetHorizontalAlignment(eTextAlign alignment);
    void SetVerticalAlignment(eTextAlign alignment);
    void SetWrap(bool wrap);

    // Draws the text without the children. May run scripts. False: the element has died.
    bool RenderCustom();

    // Draw a text. Without a SplitText it is broken into lines in place, and must then stand in a buffer of
    // TextSplit::BufferSize bytes.
    void RenderLeft(char* text);
    void RenderCenter(char* text);
    void RenderRight(char* text);

    // Breaks a text into lines as wide as the element, in a buffer of TextSplit::BufferSize bytes. Returns how many there
    // are, at least 1.
    u64 Split(char* text);

    // The same for any width and font. maxWidth, which may be null, takes the width reached, as told in TextSplit.
    static u64 Split(char* text, u64 width, TeskFont* font, u64* maxWidth);

    // The same by bytes. Without columns the result is 0, and the text stays as it is.
    static u64 SplitFixed(char* text, u64 columns, u64* maxColumns);

    utf8string Text; // with its data sequences
    std::unique_ptr<TeskFont> Font;
    bool Wrap = false;
    eTextAlign Alignment = AlignLeft;
    eTextAlign VerticalAlignment = AlignTop;
    std::unique_ptr<char[]> SplitText; // null for a text with data sequences
    u64 NumLines = 1;

private:
    using LineDraw = u64 (TeskElement::*)(TeskFont* font, const char* text, i32 x, i32 y);

    void TextChanged();
    void SplitStatic();
    void KeepSplit(std::string_view text);
    bool RenderDynamic();
    void RenderAligned(char* text);
    void RenderWith(LineDraw draw, char* text);
    i32 TopOf(u32 height) const;
    bool RenderWrapped(LineDraw draw, char* text);
    void RenderLines(LineDraw draw, const char* text, u32 count, i32 y);

    u32 m_SplitCapacity = 0;
};
