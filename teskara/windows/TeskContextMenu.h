#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/element/TeskFont.h"
#include "teskara/windows/TeskContextMenuNode.h"

class CContextMenuHandler;

// A list of rows to pick from, at a place of the screen. It is opened by a CContextMenuHandler and closes when the
// keyboard, or a press, goes to anything but another menu. It is as high as its rows and, from the next frame on, as wide
// as the widest.
class TESKARA_EXPORT TeskContextMenu : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;

    // Tells the handler.
    ~TeskContextMenu() override;

    // Always false: no markup makes a menu.
    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    void OnKeyboardExit(TeskElement* next) override;
    void OnLMouseDownOther(TeskElement* taker) override;

    // Enters the handler and takes the look from a template; null means the one named "contextmenu". False: there is
    // none, or the menu has died of what the look says.
    bool Load(CContextMenuHandler& handler, XMLNode* templateNode);

    // Adds a row at the bottom.
    void Append(std::unique_ptr<TeskContextMenuNode> node);

    // Forgets a row that is ending.
    void Remove(TeskContextMenuNode& node);

    std::unique_ptr<TeskFont> Font;
    u32 HighlightColor = 0;
    std::unique_ptr<TeskTexture> ItemTexture;
    std::unique_ptr<TeskTexture> SubmenuTexture;
    std::unique_ptr<TeskTexture> SeparatorTexture;
    std::unique_ptr<TeskTexture> HighlightItemTexture;
    std::unique_ptr<TeskTexture> ItemCheckTexture;
    std::unique_ptr<TeskTexture> HighlightSubmenuTexture;
    u32 NextItemID = 0;
    TeskContextMenuNode* Nodes = nullptr; // owned, from the top
    u32 NodeCount = 0;
    TeskContextMenuNode* Highlighted = nullptr; // the row under the mouse
    CContextMenuHandler* pHandler = nullptr;

private:
    u32 RowPitch() const;
    u32 HeightOfRows() const;
    void RenderRows();
    TeskContextMenuNode* RowAt(i32 y) const;
    void CloseUnlessFor(TeskElement* other);

    TeskContextMenuNode* m_LastNode = nullptr;
};
