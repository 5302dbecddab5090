#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

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

protected:
    TeskFont(TeskElement* owner, const char* name, u8 size, bool fixed, bool bold);

    // Sum of the three widths of a character; false if the host does not tell.
    bool GetAdvance(u32 character, float& advance);

    void FillFrom(const TeskFont& source);
    void FillFrom(const _CreateFont& record, XMLNode* templateNode);

private:
    u64 DrawInBox(const char* text, i32 x, i32 y, u64 width, u32 format);
    void FaceChanged();
};

// A font in which every character is equally wide.
class TESKARA_EXPORT TeskFixedFont : public TeskFont
{
public:
    bool Prepare() override;

    static TeskFixedFont* New(TeskElement* owner, const char* name, u8 size, bool bold);
    static TeskFixedFont* New(TeskElement* owner, const TeskFont& source);
    static TeskFixedFont* New(TeskElement* owner, const _CreateFont& record, XMLNode* templateNode);

    // Width of each character in pixels; 12 if it is not known.
    u64 GetCharWidthA();

private:
    TeskFixedFont(TeskElement* owner, const char* name, u8 size, bool bold);
};
