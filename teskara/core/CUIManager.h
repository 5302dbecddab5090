#pragma once

#include "teskara/core/CWinLock.h"
#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

#include <memory>
#include <unordered_map>
#include <vector>

class ElementWatch;
class HostObject;
class TeskElement;
class TeskElementFactory;
class TeskScreen;
class TeskSkin;
class XMLDocument;
class XMLNode;
struct TemplateRoom;

// The version that a kind must be built for.
constexpr u32 TeskaraVersion = 18;

// What a mouse button is doing.
enum : u8 {
    ButtonUp = 0,
    ButtonIgnored = 1, // down, and no element took the press
    ButtonTaken = 2, // down, and an element took it
};

// Flags of a key in KeyState and KeyStates.
enum : u8 {
    KeyTaken = 0x02, // an element took the press
    KeyHeld = 0x80,
};

struct TESKARA_EXPORT DeleteTemplate {
    void operator()(XMLNode* node) const;
};

// Owner of a stored template.
using StoredTemplate = std::unique_ptr<XMLNode, DeleteTemplate>;

// The centre of the toolkit: knows all elements, owns the screen, the templates and the skins, drives frames and routes
// input. There is one, g_UIManager. All operations must be called on one thread, and all may be called from scripts.
//
// Elements are remembered by id. An id is valid while the id index maps it, and is never used again, so a stale id
// finds nothing, never something else.
class TESKARA_EXPORT CUIManager
{
public:
    CUIManager();
    ~CUIManager();
    CUIManager(const CUIManager&) = delete;
    CUIManager& operator=(const CUIManager&) = delete;

    // --- Life

    // Registers types, objects and commands at the host and makes the screen; a second call replaces the screen.
    virtual void Initialize();

    // Undoes Initialize and deletes the tree. Must be called before the host ends; nothing works afterwards.
    virtual void Shutdown();

    virtual u32 GetVersion();

    // Forgets buttons and the mouse-over element: for a host that lost track of the mouse.
    virtual void ResetMouseState();

    // --- Frame

    // Draws one frame. A call from inside a frame does nothing.
    void Render();

    // Deletes all elements and makes a new screen. Templates, skins and the count of ids stay.
    void Reset();

    // --- Elements

    // By full name, without regard to case; null names nothing.
    TeskElement* FindElement(const char* name);
    TeskElement* FindElementByID(u32 id) const;
    TeskElementFactory* FindFactory(const char* name);
    bool ShowElement(const char* name, bool show);
    bool ToggleElement(const char* name);

    // --- Keyboard focus and mouse

    // The element with the keyboard. If it can no longer be seen it loses the focus by this question.
    TeskElement* GetFocusElement();

    // Moves the focus; null takes it away. An element that cannot be seen does not get it.
    void SetFocusElement(TeskElement* element);

    // Looks again whether the focus element can be seen, after something was hidden. Always null.
    TeskElement* SetFocusElement();

    // The element that mouse events go to first: the one that holds a press, else the one under the mouse.
    TeskElement* GetMouseOverElement();

    // Searches afresh for the element under the mouse and tells the old and the new one.
    TeskElement* SetMouseOverElement();

    // --- Input. True: the toolkit took the event, and the host may keep it from what lies underneath.

    bool OnMouseMove(_Point2i& position);
    bool OnLMouseDown();
    bool OnLMouseUp();
    bool OnRMouseDown();
    bool OnRMouseUp();
    bool OnMouseWheel(int offset);
    bool OnKeyDown(unsigned int key);
    bool OnKeyUp(unsigned int key);

    // --- Interface files. False: nothing was applied, and a line says why. file is the host's to locate.

    bool LoadInterfaceXML(const char* file, bool replace, TeskSkin* skin);
    bool LoadInterfaceXML(const char* file, const char* elementName, const char* newName, bool replace, TeskSkin* skin);
    bool LoadInterfaceXML(TeskElement* parent, const char* file, bool replace, TeskSkin* skin);
    bool LoadInterfaceXML(TeskElement* parent, const char* file, const char* elementName, const char* newName,
        bool replace, TeskSkin* skin);
    bool UnloadInterfaceXML(const char* file);

    // Makes an element without markup, or from a node and its children. Null if it was not made, or if it was deleted
    // by its own scripts.
    TeskElement* LoadElement(TeskElement* parent, const char* type, const char* name);
    TeskElement* LoadElement(
        TeskElement* parent, const char* type, const char* name, XMLNode* node, const char* templateName);

    // --- Templates and skins

    // Stores a template given as markup, as it stands. Null if it is not exactly one Template.
    XMLNode* AddTemplate(const char* name, const char* markup);

    // Stores a copy of a node, merged with the templates that it names.
    XMLNode* AddTemplate(const char* name, XMLNode* node);
    void RemoveTemplate(const char* name);
    void ClearTemplates();

    // Resolves a name through the skin in force. Valid until the template is removed, and while MarkupReading lasts.
    XMLNode* FindTemplate(const char* name);

    TeskSkin* NewSkin(const char* name);
    TeskSkin* FindSkin(const char* name);
    void RemoveSkin(const char* name);

    // The life of one of the manager's skins; empty if it is none of them.
    std::weak_ptr<TeskSkin> ShareSkin(const TeskSkin* skin) const;

    // While somebody reads markup, templates that are removed live on until the last reader ends.
    void BeginReading() { ++m_MarkupReaders; }
    void EndReading();

    // --- Host resources

    bool GetTextureSize(unsigned int id, _Point2i& size);
    u32 LoadFontResource(const char* name, u8 height, bool fixed, bool bold);
    void ReleaseFontResource(u32 id);
    u32 LoadTextureResource(const char* path, u32 colorKey);
    void ReleaseTextureResource(u32 id);

    // --- Metadata: named texts that scripts keep with an element

    void SetElementMetadata(u32 id, const char* name, const char* value);

    // Null if there is none. Valid until it is set again.
    const char* GetElementMetadata(u32 id, const char* name) const;
    bool RemoveElementMetadata(u32 id, const char* name);
    void ClearElementMetadata(TeskElement* element);

    // --- What elements tell of themselves

    // Takes the next id and enters the element in both indexes. False: the ids are used up.
    bool EnterElement(TeskElement& element);
    void LeaveElement(TeskElement& element);

    // How many elements have died so far: if it has not changed, every pointer still holds.
    u32 GetElementDeaths() const { return m_ElementDeaths; }

    // Elements that are out of their parent's list but alive still name it; the parent's end is told to them.
    void EnterDetached(TeskElement& element);
    void LeaveDetached(TeskElement& element);
    void ForgetParent(TeskElement& parent);

    // Whether elements may be made at present.
    bool IsTearingDown() const { return m_TearingDown; }

    // --- State. Ids are 0 for none, times are milliseconds.

    u32 FocusElementID = 0;
    u32 MouseOverElementID = 0;
    u32 LeftPressElementID = 0;
    u32 RightPressElementID = 0;
    u32 MouseCaptureElementID = 0;
    bool ShiftDown = false;
    bool AltDown = false;
    bool CtrlDown = false;
    u8 LeftButtonState = ButtonUp;
    u8 RightButtonState = ButtonUp;
    _Point2i MousePosition = {-1, -1};
    u8 KeyState[256] = {};
    NameMap<TeskElement*> ElementsByName;
    std::unordered_map<u32, TeskElement*> ElementsByID;
    TeskScreen* Screen = nullptr;
    NameMap<TeskElementFactory*> Factories;
    u32 NextElementID = 1;
    CriticalSection Lock; // part of the layout; no operation takes it
    NameMap<StoredTemplate> Templates;
    NameMap<std::shared_ptr<TeskSkin>> Skins;
    TeskSkin* CurrentSkin = nullptr;
    char RootTagName[64] = "Tesk";
    char CurrentFile[512] = "";
    bool ShuttingDown = false;
    u32 MouseEnterTick = 0;
    u32 LastInputTick = 0;
    _Point2i LastClickPosition;
    u32 LastLeftClickTick = 0;
    u32 LastLeftClickElementID = 0;
    u32 LastRightClickTick = 0;
    u32 LastRightClickElementID = 0;
    u32 FrameTick = 0;
    u32 TooltipElementID = 0;
    u32 TooltipDelay = 1000;
    u32 DoubleClickTime = 250;
    u32 KeyRepeatRate = 50;
    u32 KeyRepeatDelay = 250;
    bool ZOrderChanged = false;
    std::unordered_map<u32, u32> KeyStates;
    u32 ObjectClass = 0;
    std::unordered_map<u32, NameMap<utf8string>> ElementMetadata;

private:
    struct FocusEntry;
    struct LoadRequest;
    struct MouseButton;

    // Frame and focus
    void DestroyScreen();
    void CreateScreen();
    bool ExitFocus(TeskElement& element, TeskElement* next);
    bool IsEnteringFocus(u32 id) const;
    void PutMouseOver(TeskElement& element);
    TeskElement* LastMouseOver() const;
    TeskElement* EnterMouseOver(const ElementWatch& watch);

    // Input routing
    static MouseButton LeftButton();
    static MouseButton RightButton();
    template <class Offer> bool OfferDown(TeskElement* candidate, Offer&& offer);
    bool PressButton(const MouseButton& button);
    bool OfferPress(const MouseButton& button, TeskElement& candidate);
    bool IsDoubleClick(const MouseButton& button, u32 id) const;
    void AcceptPress(const MouseButton& button, u32 id);
    bool ReleaseButton(const MouseButton& button);
    TeskElement* ElementBelow(TeskElement& candidate);
    void SetModifier(u32 key, bool down);
    void SetKeyFlags(u32 key, u32 flags);
    u32 GetKeyFlags(u32 key) const;
    void AddKeyFlag(u32 key, u8 flag);
    bool OfferKey(bool (TeskElement::*handler)(unsigned int), u32 key);

    // Interface files, templates and skins
    bool LoadInterface(const LoadRequest& request);
    void LoadTopLevelElement(const LoadRequest& request, XMLNode* node);
    bool OpenInterface(const char* file, XMLDocument& document, XMLNode*& root);
    XMLNode* MergeTemplate(const char* name, XMLNode* node, TemplateRoom& room);
    XMLNode* StoreTemplate(const char* name, StoredTemplate node);
    StoredTemplate TakeTemplate(const char* name);
    void RetireTemplate(StoredTemplate node);

    u32 m_ElementDeaths = 0;
    u32 m_MouseOverDeaths = 0; // when m_MouseOver was found; it holds while no more have died
    TeskElement* m_MouseOver = nullptr;
    u32 m_LoadDepth = 0;
    u32 m_MarkupReaders = 0;
    u32 m_ExitingFocusID = 0;
    FocusEntry* m_FocusEntries = nullptr;
    bool m_TearingDown = false;
    bool m_InShutdown = false;
    bool m_InRender = false;
    std::vector<TeskElement*> m_Detached;
    std::vector<StoredTemplate> m_RetiredTemplates;
};

extern TESKARA_EXPORT CUIManager g_UIManager;

// The library's one plain entry point. host is borrowed until Shutdown. Returns the manager, whose Initialize is the
// host's next call.
extern "C" TESKARA_EXPORT CUIManager* F1(HostObject* host);
