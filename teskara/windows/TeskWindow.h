#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/core/utf8string.h"
#include "teskara/windows/CWindowContextMenu.h"

#include <memory>

class MarkupSource;
class TeskText;
class WindowSpan;

// What a window has, and how its size is reckoned.
enum WindowFlag : u32 {
    WindowHasClose = 0x01,
    WindowHasMinimize = 0x02, // and the button for the way back
    WindowResizesWidth = 0x08,
    WindowResizesHeight = 0x10,
    WindowAddsTitleBarWidth = 0x20, // to the width that was asked for; of windows made by code only
    WindowAddsTitleBarHeight = 0x40, // the same
};

// The edges of a window, as bits; a corner is two of them.
enum WindowEdge : u32 {
    LeftEdge = 1,
    RightEdge = 2,
    TopEdge = 4,
    BottomEdge = 8,
};

// Plain values from which a window is made by code. Texts may be null.
struct _CreateWindow : _CreateFrame {
    u32 Border = 0;
    u32 Flags = 0; // of WindowFlag
    const char* Title = nullptr;
    const char* ClickFocus = nullptr;
};

// A frame that the user drags, resizes by its edges and folds up into its title bar. Markup tells of the inner area: the
// window enlarges itself around it by its border, and its children stand in it. What the window shows goes into its
// client, a child; what it is handled by is in its title bar. Either may be missing or go away.
//
// Its notifications end here, so a parent hears nothing of what is inside.
class TESKARA_EXPORT TeskWindow : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override; // of the window alone; the children follow if anything changed
    void Render() override;
    void RenderChildren() override;
    void Show(bool show) override; // a window that is minimised is restored, either way
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnRMouseUp(_Point2i& point) override;
    bool OnRMouseDown(_Point2i& point) override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    void OnCreate() override;
    MvTypeDefinition* GetMvType() override;
    bool GetStoragePosition(int& x, int& y, unsigned int& width, unsigned int& height) override; // the inner area
    TeskElement* FindChild(const char* name) override; // in the client, if there is one

    // The size has changed: lays out the children in the inner area. May run scripts.
    virtual void OnResize();

    // Fills a window that was made without markup; node is for what the record does not tell, and may be null. A title
    // in the record does not count: the node's does, or else the window's name.
    void Create(const _CreateWindow& record, XMLNode* node);

    // Folds the window up, or gives it back the size that it had then. Does not look whether it is folded up already.
    // Does nothing without a title bar.
    void Minimize(bool minimize);

    // Puts the window back to where its markup had it.
    void ResetWindowPosition();

    // Null leaves it without a title.
    void SetTitle(const char* title);

    // The edges that a press there would resize the window by, as bits of WindowEdge; 0 for none.
    u32 ResizeEdgesAt(const _Point2i& point) const;

    u32 WindowFlags = 0; // of WindowFlag
    std::unique_ptr<utf8string> Title;
    std::unique_ptr<utf8string> ClickFocus; // the name of a child of the client; null or empty for none
    u32 MinHeight = 40; // as it is resized
    u32 MinWidth = 20;
    u32 RestoreHeight = 0; // from before it was minimised, as are the next three
    u32 RestoreWidth = 0;
    i32 RestoreTitleBarX = 0;
    i32 RestoreTitleBarY = 0;
    bool Minimized = false;
    bool Dragging = false;
    bool Locked = false; // for the mouse: neither moves nor resizes
    u32 ResizeEdges = 0; // that are being dragged, of WindowEdge
    _Point2i ResizeAnchor; // the mouse at the last step of it
    _Point2i DragOffset; // of the mouse from X and Y as the drag began
    TeskElement* Client = nullptr; // children and grandchildren, null for none
    TeskFrame* TitleBar = nullptr;
    TeskText* TitleText = nullptr;
    TeskElement* MinimizeButton = nullptr;
    TeskElement* MaximizeButton = nullptr;
    TeskElement* CloseButton = nullptr;
    CWindowContextMenu ContextMenu{*this};

private:
    // Markup
    void ReadBounds(const MarkupSource& source);
    bool LoadParts(const MarkupSource& source);
    bool LoadTitleBar(XMLNode* node);
    bool FindMinimizeButtons();
    bool FindCloseButton();
    bool DeletePart(TeskElement* TeskWindow::*part);
    void ForgetPart(const TeskElement* part);
    void WidenBorder();
    void AddTitleBar();
    void AddBorder();

    // Minimising
    bool ShowParts();
    void Restore();

    // Mouse
    bool IsTitleBarAt(_Point2i& point) const;
    bool GiveClickFocus();
    void Grab(const _Point2i& point);
    void BeginDrag(const _Point2i& point);
    void Drag(const _Point2i& point);
    void DragByTitleBar(const _Point2i& point);
    void FollowMouse(const _Point2i& point);
    void Resize(const _Point2i& point);
    WindowSpan Across() const;
    WindowSpan Down() const;
    void TitleBarTold(u32 code);
    void TitleBarPressed();
    void PartClicked(const TeskElement* part);
};
