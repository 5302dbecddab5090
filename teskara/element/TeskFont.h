#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/ScriptHold.h"

class TeskElement;
class XMLNode;

// Plain values from which a font is made without markup. A null Name, and a Size or Color of 0, fall back to a template.
struct _CreateFont {
    const char* Name = nullptr;
    u32 Size = 0;
    u32 Color = 0;
    bool Bold = false;
    bool Fixed = false;
};

// A typeface, a size and a colour for an element's texts. The face is the host's, made at the first use and given back
// by the end of this object. Owned by the element.
class TESKARA_EXPORT TeskFont
{
public:
    // Gives the face back to the host.
    virtual ~TeskFont();

    virtual void Delete();

    // Has the host make the face if it is not made. False: it cannot; the next call tries again.
    virtual bool Prepare();

    // The caller owns the results.
    static TeskFont* New(TeskElement* owner, const char* name, u8 size, bool fixed, bool bold);
    static TeskFont* New(TeskElement* owner, const TeskFont& source);
    static TeskFont* New(TeskElement* owner, const _CreateFont& record, XMLNode* templateNode);

    TeskFont(const TeskFont&) = delete;
    TeskFont& operator=(const TeskFont&) = delete;

    // Draws a line of text from, around or up to the edges of a box width pixels wide at x, y; 0 is no limit.
    // Returns the width drawn.
    u64 Draw(const char* text, i32 x, i32 y, u64 width);
    u64 DrawCenter(const char* text, i32 x, i32 y, u64 width);
    u64 DrawRight(const char* text, i32 x, i32 y, u64 width);

    // Width in pixels; 12 a byte if the face cannot be made. length: bytes of text to look at.
    u64 GetTextWidth(const char* text);
    u64 GetTextWidth(const char* text, u64 length);

    // Index of the character that lies offset pixels into the text.
    u32 GetCharByOffset(const char* text, u64 offset);

    bool IsFixedFont();

    // Gives the face back; the next use makes it again.
    void Release();

    // Each releases the face and tells the owner if the value is another one.
    void SetBold(bool bold);
    void SetHeight(u8 height);
    void SetName(const char* name);

    u32 FontID = 0; // host's, 0 while not made
    utf8string Name;
    u8 Size = 0; // height in pixels
    u32 Color = 0xffffffffu;
    bool Bold = false;
    bool Fixed = false;
    TeskElement* Owner = nullptr;
    ScriptHold<TeskFont> Hold;

protected:
    TeskFont(TeskElement* owner, const char* name, u8 size, bool fixed, bool bold);

    // Width of a character, by its three measures, in a face that is made; 12 if the host does not tell.
    float GetAdvance(u8 character) const;

    // The record with its gaps filled: from the template, or without one from what is usual.
    static _CreateFont WithFallbacks(const _CreateFont& record, XMLNode* templateNode);

    // What a character, or a space, counts as wide where nothing better is known.
    static constexpr int UnknownWidth = 12;

private:
    bool EnsureFace() { return FontID != 0 || Prepare(); }
    u64 DrawInBox(const char* text, i32 x, i32 y, u64 width, u32 format);
    u64 MeasureFace(const char* text) const;
    u32 GetColumnByOffset(const char* text, u64 offset) const;
    void TellOwner();
};
