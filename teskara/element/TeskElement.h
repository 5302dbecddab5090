#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/TeskEmbeddedScript.h"
#include "teskara/markup/ElementPosition.h"

#include <memory>
#include <span>

class ChildIndex;
class MvTypeDefinition;
class TeskElementFactory;
class TeskFixedFont;
class TeskFont;
class TeskTexture;
class XMLNode;
struct TeskDrawRecord;

// What a control tells its parents through OnNotify. The value is 0 where nothing else is said.
enum NotificationCode : u32 {
    NotifyLeftReleased = 1,
    NotifyTextChanged = 3,
    NotifyValueChanged = 4, // the new value
    NotifyEnter = 5,
    NotifyLeftPressed = 6,
    NotifyRightPressed = 7,
    NotifyRightReleased = 8,
    NotifySelectionChanged = 9,
    NotifyLeftDoubleClick = 10,
    NotifyRightDoubleClick = 11,
    NotifyRowDoubleClick = 12,
    NotifyRowDropped = 13,
    NotifyMouseMoved = 14,
    NotifyMouseWheel = 15, // the offset
    NotifyFontChanged = 50, // no source; the font
    NotifyChildGoing = 51, // the child's Name; only its address may be used
};

enum FadeState : u32 {
    FadeNormal = 0, // at Alpha; automatic fading watches the mouse
    FadeDelaying = 1, // waiting out FadeDelay
    FadeFading = 2, // on the way from Alpha to FadeAlpha
    FadeFaded = 3, // at FadeAlpha
};

// The strata of what stays on top of everything.
constexpr i8 TopStrata = 127;

// How far an element is on its way out. A going element is whole, but is not deleted again, filled, focused or raised.
// Of a gone element only the base is left.
enum class LifeStage : u8 { Alive, Going, Gone };

// The event scripts of an element, in the order in which they are given up when the element ends.
struct ElementEvents {
    ScriptPointer OnLoad;
    ScriptPointer OnUnload;
    ScriptPointer OnLeftClick;
    ScriptPointer OnRightClick;
    ScriptPointer OnDoubleLeftClick;
    ScriptPointer OnDoubleRightClick;
    ScriptPointer OnMouseEnter;
    ScriptPointer OnMouseExit;
    ScriptPointer OnMouseMove;
    ScriptPointer OnMouseWheel;
    ScriptPointer OnKeyboardEnter;
    ScriptPointer OnKeyboardExit;
    ScriptPointer OnKeyUp;
    ScriptPointer OnKeyDown;
    ScriptPointer OnLeftDown;
    ScriptPointer OnRightDown;
    ScriptPointer OnRender;
};

// Plain values from which a control is made without markup.
struct _CreateElement {
    i32 X = 0;
    i32 Y = 0;
    u32 Width = 0;
    u32 Height = 0;
    ElementPosition PositionX;
    ElementPosition PositionY;
    ElementPosition PositionHeight;
    ElementPosition PositionWidth;
    bool Visible = true;
    i8 Strata = 0;
};

// One rectangle of TeskElement::TexturedRects.
struct TeskTexturedRect {
    TeskTexture* Texture = nullptr;
    tagRECT Destination;
    u32 Flags = 0;
    tagRECT Source;
    u8 Alpha = 0;
    u32 ColorMask = 0;
    u8 Orientation = 0;
};

// Everything that stands on the screen. An element belongs to its parent's list of children, from the bottom of the
// picture to its top, and leaves it through DeleteChild or Delete only. Its X and Y are pixels from the parent's
// corner.
//
// Scripts run inside most operations, and a script may delete any element, this one included: see ElementWatch.
class TESKARA_EXPORT TeskElement
{
public:
    // type: the kind word of the factory; empty for the screen. Enters itself as the last child of parent and in the
    // manager's indexes. Made through a factory only.
    TeskElement(const char* type, TeskElement* parent, const char* name);
    virtual ~TeskElement();
    TeskElement(const TeskElement&) = delete;
    TeskElement& operator=(const TeskElement&) = delete;

    // --- Markup. Values come from node, else from templateNode, else they are defaults; both may be null.

    virtual bool FromXML(XMLNode* node, XMLNode* templateNode);

    // The caller owns the result of these four; null: there is none. A null tag means that node itself is read.
    virtual TeskTexture* TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode);
    virtual TeskFont* FontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode);
    virtual TeskFixedFont* FixedFontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode);
    virtual TeskEmbeddedScript* EmbeddedScriptFromXML(
        XMLNode* node, const char* tag, XMLNode* templateNode, const char* arguments);

    // Whether this is a word of the kind, or of what it derives from. Serves scripts; it is no proof of a class.
    virtual bool IsTypeOf(const char* word);

    // --- Layout

    // Recomputes what follows the parent; with recurse, the children too if anything changed. May run scripts.
    virtual void RecalculateSize(bool recurse);
    virtual void RecalculateChildrenSize();

    // For a control that lays out parts of its own: called by each RecalculateSize. The base does nothing.
    virtual void SizeRecalculated(bool changed);

    // --- Drawing

    // Draws the element and then its children. May run scripts.
    virtual void Render();
    virtual void RenderChildren();
    virtual void Show(bool show);
    virtual void Center();

    // --- Mouse and keyboard. True: the event was taken. Points are screen coordinates. May run scripts.

    virtual bool OnLMouseUp(_Point2i& point);
    virtual bool OnLMouseDown(_Point2i& point);
    virtual bool OnRMouseUp(_Point2i& point);
    virtual bool OnRMouseDown(_Point2i& point);
    virtual bool OnLMouseDoubleClick(_Point2i& point);
    virtual bool OnRMouseDoubleClick(_Point2i& point);
    virtual bool OnMouseMove(_Point2i& point);
    virtual bool OnMouseWheel(int offset);
    virtual bool OnKeyUp(unsigned int key);
    virtual bool OnKeyDown(unsigned int key);

    // --- News

    // Something happened to source, a child near or far, or null. The base hands it on to its parent.
    virtual void OnNotify(TeskElement* source, unsigned int code, unsigned long long value);
    virtual void OnMouseEnter(_Point2i& point);

    // next: what the mouse or the keyboard goes to; null for nothing.
    virtual void OnMouseExit(TeskElement* next);
    virtual void OnKeyboardEnter();
    virtual void OnKeyboardExit(TeskElement* next);

    // This element has the keyboard, and another took a press; null if that one died of it. The base does nothing.
    virtual void OnLMouseDownOther(TeskElement* taker);

    // After markup and children are read, before OnLoad; and before the destructor. OnDestroy may come twice. Both do
    // nothing in the base.
    virtual void OnCreate();
    virtual void OnDestroy();

    // --- Questions

    // The script type of the element; null while there are no types.
    virtual MvTypeDefinition* GetMvType();

    // What the host keeps of an element with StorePosition. False: nothing is to be kept.
    virtual bool GetStoragePosition(int& x, int& y, unsigned int& width, unsigned int& height);

    // The first child of that name, without regard to case; null if there is none.
    virtual TeskElement* FindChild(const char* name);

    // Always true in the base. Nothing in the toolkit asks; they keep their places for kinds that are built elsewhere.
    virtual bool SetFocus();
    virtual bool SetMouseOver();

    // The topmost visible element under the point, this one or one below it in the tree. With skip, only what lies
    // underneath that child. The base asks its children from the top, and spares the question where a child that is
    // found as the base finds it is hidden or lies elsewhere.
    virtual TeskElement* FindMouseOver(_Point2i& point, TeskElement* skip);

    // --- Order among the siblings; higher strata stay above lower ones

    virtual void MoveZUp();
    virtual void MoveZDown();
    virtual void MoveZTop(bool includeParents);
    virtual void MoveZBottom();

    // --- Tree

    // Links a child that names this element as its parent, as the last one. The child's constructor does it.
    void AddChild(TeskElement* child);

    // Takes a child out of the list and deletes it. May run scripts. Does nothing if it is no child, or going already.
    void DeleteChild(TeskElement* child);

    // Runs OnUnload and has the factory destroy the element. Does nothing if the element is going already.
    void Delete();

    // The first child of that name that is of the kind, else the first one below the children.
    TeskElement* FindUsableChild(const char* name, const char* word);

    // The next element in tree order, for the tab key; null at the end.
    TeskElement* Walk(bool visibleOnly, TeskElement* stop);
    TeskElement* WalkReverse(bool visibleOnly, TeskElement* stop);

    // Moves the ancestor that stands directly under the screen to the top.
    void RaiseTopLevel();

    // Whether a point lies in the element, as its metadata "HitTest" shapes it; children are not asked.
    bool HitTest(_Point2i& point);
    bool IsFocus() const;
    bool IsMouseOver() const;
    bool IsReallyVisible() const; // with all its ancestors

    // Whether a point lies in the element's rectangle. Both far edges count as inside.
    bool Covers(const _Point2i& point) const
    {
        return point.x >= AbsoluteX && point.y >= AbsoluteY && point.x <= WrapAdd(AbsoluteX, Width)
            && point.y <= WrapAdd(AbsoluteY, Height);
    }
    bool IsGoing() const { return Stage != LifeStage::Alive; }

    // Begins a notification at this element: calls OnNotify, unless too many notifications are nested already.
    void Notify(TeskElement* source, u32 code, u64 value);

    // Begins one at the parent, if there is one.
    void NotifyParent(u32 code, u64 value);

    // Runs one of the element's scripts, if it is there. Afterwards the element may be gone.
    static void RunScript(const ScriptPointer& script);
    static void RunScript(const ScriptPointer& script, const _Point2i& point);
    static void RunScript(const ScriptPointer& script, char* argument);

    // Fills the base fields from a record.
    void CreateFrom(const _CreateElement& record);

    // Writes an absolute position to the element and, from it, to everything below.
    void SpreadPosition(i32 absoluteX, i32 absoluteY);

    // --- Drawing operations. All coordinates are screen pixels, all colours ARGB; AbsoluteAlpha is multiplied in.
    // False: nothing was drawn.

    bool FillRect(const tagRECT& rect, u32 color);
    bool FillRectBordered(const tagRECT& rect, u32 color, u32 border, u32 borderColor);
    bool DrawBorder(const tagRECT& rect, u32 width, u32 color);
    bool DrawLine(const _Line& line, u32 color, u32 width);
    bool DrawLine(const _Line& line, TeskTexture* texture, u32 width);
    bool DrawLines(const _Line* lines, u32 count, u32 color, u32 width);
    bool DrawLines(const _Line* lines, u32 count, TeskTexture* texture, u32 width);
    bool TexturedRect(const tagRECT& rect, TeskTexture* texture);
    bool TexturedRectBordered(const tagRECT& rect, TeskTexture* texture, u32 border);
    bool TexturedRects(u32 count, const TeskTexturedRect* records);

    // Text in one line, from or around x; right is the limit, else the element's right edge. The result is the width
    // drawn.
    u64 DrawTextA(TeskFont* font, const char* text, i32 x, i32 y);
    u64 DrawTextClipped(TeskFont* font, const char* text, i32 x, i32 y);
    u64 DrawTextClipped(TeskFont* font, const char* text, i32 x, i32 y, i32 right);
    u64 DrawTextCenter(TeskFont* font, const char* text, i32 x, i32 y);
    u64 DrawTextCenter(TeskFont* font, const char* text, i32 x, i32 y, i32 right);
    u64 DrawTextRight(TeskFont* font, const char* text, i32 x, i32 y);
    u64 DrawTextRight(TeskFont* font, const char* text, i32 x, i32 y, i32 right);

    // Text with colour codes, each introduced by byte 7.
    u64 DrawColoredText(TeskFont* font, const char* text, i32 x, i32 y);
    u64 DrawColoredTextClipped(TeskFont* font, const char* text, i32 x, i32 y, i32 right);

    // Visible length of a text with colour codes, and the text without them. to must be as large as from.
    static u64 ColorStrlen(const char* text);
    static void StripColor(const char* from, char* to);

    // A colour with AbsoluteAlpha multiplied into its top byte.
    u32 AdjustColor(u32 color) const;

    // The opacity of this frame, without the parents'. Advances the fade.
    float GetCurrentAlpha();

    // The element's rectangle on the screen.
    tagRECT ScreenRect() const;

    // Replaces a texture by one from markup text (argv[0]) under a skin (argv[1]). False: there is none now.
    bool TextureFromArgs(int argc, char** argv, TeskTexture** texture);
    bool TextureFromArgs(int argc, char** argv, std::unique_ptr<TeskTexture>& texture);

    // --- What a search under the mouse reads of each element that it passes; first, so that it shares a cache line

    i32 AbsoluteX = 0; // of this frame
    i32 AbsoluteY = 0; // of this frame
    u32 Width = 0;
    u32 Height = 0;
    bool Visible = true;
    bool FoundInsideOnly = false; // FindMouseOver finds nothing for points beyond the rectangle; set by the factory
    u32 Place = 0; // in the parent's ChildIndex

    // --- Family; pointers belong to the tree

    TeskElement* Parent = nullptr;
    TeskElement* Previous = nullptr;
    TeskElement* Next = nullptr;
    TeskElement* FirstChild = nullptr;
    TeskElement* LastChild = nullptr;

    // --- Identity

    utf8string Type; // kind word
    u32 ID = 0; // never used twice
    utf8string Name; // lower case
    utf8string FullName; // name@parent@..., in the case it was given

    ElementEvents Events;

    // --- Geometry, the dimensions apart

    i32 X = 0;
    ElementPosition PositionX;
    i32 Y = 0;
    ElementPosition PositionY;
    ElementPosition PositionHeight;
    ElementPosition PositionWidth;

    // What markup said, to go back to.
    i32 StartX = 0;
    ElementPosition StartPositionX;
    i32 StartY = 0;
    ElementPosition StartPositionY;
    u32 StartHeight = 0;
    ElementPosition StartPositionHeight;
    u32 StartWidth = 0;
    ElementPosition StartPositionWidth;

    // --- Looks

    bool StorePosition = false;
    i8 Strata = 0;
    bool LeftClickThru = false;
    bool RightClickThru = false;
    LifeStage Stage = LifeStage::Alive;
    u16 Depth = 0; // elements above this one
    float Alpha = 1.0f;
    u32 FadeStart = 0;
    u32 FadeDelay = 0;
    u32 FadeDuration = 0;
    float FadeAlpha = 1.0f;
    u32 FadeState = FadeDelaying;
    std::unique_ptr<utf8string> AutoTooltip;
    float AbsoluteAlpha = 1.0f; // of this frame, the parents' applied

protected:
    // Draws the children as RenderChildren of the base does, but moved in from the corner by so many pixels.
    void RenderChildrenWithin(u32 border);

private:
    friend class TeskElementDeleter;
    friend class TeskElementFactory;

    void BuildFullName();
    void DeleteAllChildren();
    bool IsLinked() const;
    void LinkAfter(TeskElement* sibling);
    void Unlink();
    void LeaveParent();
    void Detach();
    void UpdateAutoTooltip();
    static void HideAutoTooltip();
    void KeepStart();
    void UpdateAutoFade();
    ChildIndex* IndexOfChildren(u32 leastChildren);
    std::span<TeskElement* const> ChildrenUpTo(const TeskElement& child);
    TeskElement* CandidateFrom(TeskElement* child, const _Point2i& point);
    bool MayBeFoundAt(const _Point2i& point) const { return !FoundInsideOnly || (Visible && Covers(point)); }
    bool RenderChild(TeskElement& child, u32 border);
    bool IsOffScreen(const tagRECT& rect) const;
    bool DescribeTexture(TeskDrawRecord& record, const TeskTexture* texture) const;

    const TeskElementFactory* m_Maker = nullptr; // only compared
    u32 m_ChildCount = 0;
    std::unique_ptr<ChildIndex> m_ChildIndex; // null until it is wanted

    static u32 s_Relinks; // how often any element has moved among its siblings
};
