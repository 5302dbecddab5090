#pragma once

#include "teskara/collections/CTeskTab.h"
#include "teskara/collections/TabStrip.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskTexture.h"

#include <memory>
#include <vector>

class MarkupSource;
class TeskButton;
class TeskFrame;
struct ScrollButtonMarkup;

// A strip of tabs along the top, and under it the frame of the tab that is selected. Two small buttons scroll the strip
// by single tabs, and tabs can be dragged along it. Tabs are known by their ids: 0 is none, and an operation on an id
// that no tab has does nothing.
//
// What is selected is told to the control's script, which may change the tabs, or end the control. So may the elements
// of a tab as they come and go.
class TESKARA_EXPORT TeskTabControl : public TeskElement
{
public:
    using TeskElement::TeskElement;
    ~TeskTabControl() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;

    // Never goes on to the children: frames follow the control's size in a way of their own.
    void RecalculateSize(bool recurse) override;
    void SizeRecalculated(bool changed) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // --- Tabs

    // Adds a tab behind the others. Its frame gets the name frameName, and an element for each of the nodes from
    // firstChild on; null for none. The last argument has no effect. Returns the id. 0: there is a tab of that name, in
    // any case, or the tab could not be made, or what it shows has removed it again.
    virtual u32 AddTab(const char* name, XMLNode* firstChild, const char* frameName, const char* unused);

    // Deletes the tab's frame with all that it shows. The strip stays scrolled as it is.
    virtual void RemoveTab(u32 id);

    // The tab under a point of the screen.
    virtual u32 GetTabFromPoint(_Point2i& point);

    // The place in the strip at a point of the screen: the first that shows for all that lies left of the control, and 0
    // for what lies on no tab.
    virtual u32 GetOrderFromPoint(_Point2i& point);

    // An id that no tab has clears the selection.
    virtual void SelectTab(u32 id);

    // The next frame selects the first tab, which is not told to anybody.
    virtual void ClearSelection();

    // --- Beyond the virtual operations

    // Null: there is none. Valid until the tab is removed.
    CTeskTab* RetrieveTab(u32 id) const { return id - 1 < Tabs.size() ? Tabs[id - 1].get() : nullptr; }

    // The one with the lowest id that has this name, in any case; null if there is none.
    CTeskTab* GetTabFromName(const char* name) const;

    // Moves a tab of this control to a place in the strip, at most to the last one that is taken.
    void MoveTab(CTeskTab* tab, u32 order);

    std::unique_ptr<TeskFont> Font;
    std::unique_ptr<TeskTexture> TabTexture; // without it nothing of a tab shows but its name
    std::unique_ptr<TeskTexture> TabSelectedTexture;
    std::unique_ptr<TeskTexture> FrameTexture; // each frame has a copy of its own
    u32 FrameBackgroundColor = 0;
    u32 FrameBorder = 0;
    u32 FrameBorderColor = 0; // and that of borders around tabs
    u32 TabHeight = 0; // of the strip, and both sides of each button
    u32 TabBorder = 0;
    u32 SelectedTextColor = 0;
    bool Draggable = false;
    ScriptPointer OnSelect; // hears the id
    TeskButton* LeftButton = nullptr; // children; null if there is none
    TeskButton* RightButton = nullptr;
    u32 FirstTab = 0; // the first place that shows
    u32 SelectedTab = 0; // id; 0 for none
    std::vector<std::unique_ptr<CTeskTab>> Tabs; // by id - 1; null where no tab has the id
    TabStrip OrderedTabs;
    u32 TabCount = 0;
    u32 DragTab = 0; // id of the tab that is being dragged; 0 for none

private:
    bool LoadButton(const ScrollButtonMarkup& markup, const MarkupSource& source);
    TeskButton* MakeButton(const ScrollButtonMarkup& markup, const MarkupSource& source);
    void AddTabs(XMLNode* tabs);
    CTeskTab* MakeTab(const char* name, const char* frameName);
    CTeskTab* EnterTab(const char* name) noexcept;
    void DropTab(const CTeskTab& tab);
    bool IsTab(u32 id, u64 serial) const;
    u32 WidthFor(const char* name) const;
    void DressFrame(TeskFrame& frame);
    void SelectFront();
    void ShowFrame(u32 id, bool show);
    void ForgetPart(const TeskElement* part);
    void ScrollBy(const TeskElement* button);
    bool DrawStrip();
    void DrawTab(const CTeskTab& tab, i32 left, i32 right);
    bool IsBesideStrip(const _Point2i& point) const;
    u32 OffsetInStrip(const _Point2i& point) const;
    i32 RightEnd() const;
};
